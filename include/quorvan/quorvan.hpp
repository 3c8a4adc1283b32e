// Quorvan for C++20, over quorvan.h: ranges for pointers, values or statuses for results, owners for handles.
//
//     std::vector<double> x = ..., power(x.size() / 2);
//     const auto df = qv::call(QvSpecPowerSpectrum, x, std::ssize(x), 1e-3, power, qv::out);
//     if (!df) std::puts(df.text());
//     else std::printf("%g Hz a bin\n", *df);
//
// Arguments stand in the order of the C function. A contiguous range goes as the pointer to its elements, of doubles or
// integers as they are, of std::complex<double> as QvComplex; its room is the caller's affair, as in C. qv::out stands
// for a scalar by address: it becomes a result, and several of them a tuple.
#ifndef QUORVAN_HPP
#define QUORVAN_HPP

#include <complex>
#include <cstddef>
#include <memory>
#include <ranges>
#include <stdexcept>
#include <tuple>
#include <type_traits>
#include <utility>

#include "quorvan/quorvan.h"

namespace qv {

/// What Result::value throws.
class Error : public std::runtime_error {
public:
    explicit Error(QvStatus status) : std::runtime_error(QvStatusMessage(status)), code(status) {}
    QvStatus code;
};

/// What a call gives: a value, or a status below 0. A warning, above 0, has its value.
template <class T>
class [[nodiscard]] Result {
public:
    Result(QvStatus status, T value) : status_(status), value_(std::move(value)) {}

    [[nodiscard]] bool ok() const noexcept { return status_ >= 0; }
    explicit operator bool() const noexcept { return ok(); }
    [[nodiscard]] QvStatus status() const noexcept { return status_; }
    [[nodiscard]] const char* text() const noexcept { return QvStatusMessage(status_); }

    /// The value; throws Error where there is none.
    T value() const {
        if (!ok()) throw Error(status_);
        return value_;
    }
    [[nodiscard]] T value_or(T other) const { return ok() ? value_ : std::move(other); }
    /// The value, which must be there.
    const T& operator*() const noexcept { return value_; }
    const T* operator->() const noexcept { return &value_; }

private:
    QvStatus status_;
    T value_;
};

struct Out {};
/// In the place of a scalar that the library writes.
inline constexpr Out out{};

namespace detail {

template <class A>
constexpr bool kIsOut = std::is_same_v<std::remove_cvref_t<A>, Out>;

// The room for a scalar, where the argument is qv::out.
template <class P, class A>
auto Room() {
    if constexpr (!kIsOut<A>) {
        return std::tuple<>();
    } else {
        static_assert(std::is_pointer_v<P> && !std::is_const_v<std::remove_pointer_t<P>>, "not an output");
        return std::tuple<std::remove_pointer_t<P>>();
    }
}

// An argument as the parameter of type P takes it.
template <class P, class A, class R>
P Passed(A& argument, R& room) {
    if constexpr (kIsOut<A>) {
        return &std::get<0>(room);
    } else if constexpr (std::is_pointer_v<P> && std::ranges::contiguous_range<A&>) {
        auto* data = std::ranges::data(argument);
        if constexpr (std::is_same_v<std::remove_cvref_t<decltype(*data)>, std::complex<double>>) {
            static_assert(std::is_same_v<std::remove_cv_t<std::remove_pointer_t<P>>, QvComplex>, "not complex data");
            return reinterpret_cast<P>(data);  // both are two doubles, the real part first
        } else {
            return data;
        }
    } else if constexpr (std::is_pointer_v<P> && requires { argument.get(); }) {
        return argument.get();
    } else if constexpr (std::is_integral_v<P> && std::is_integral_v<A> && sizeof(std::decay_t<A>) <= sizeof(P)) {
        return static_cast<P>(argument);
    } else {
        return argument;
    }
}

template <class S, class... P, class Rooms, std::size_t... i, class... A>
QvStatus Called(S (*function)(P...), Rooms& rooms, std::index_sequence<i...>, A&... arguments) {
    static_assert(std::is_same_v<S, QvStatus> || std::is_void_v<S>, "this function gives its value itself");
    if constexpr (std::is_void_v<S>) {
        function(Passed<P>(arguments, std::get<i>(rooms))...);
        return 0;
    } else {
        return function(Passed<P>(arguments, std::get<i>(rooms))...);
    }
}

}  // namespace detail

/// Calls a function of quorvan.h that returns a status or nothing.
template <class S, class... P, class... A>
auto call(S (*function)(P...), A&&... arguments) {
    static_assert(sizeof...(P) == sizeof...(A), "as many arguments as the C function has");
    auto rooms = std::make_tuple(detail::Room<P, A>()...);
    const QvStatus status = detail::Called(function, rooms, std::index_sequence_for<P...>(), arguments...);
    auto values = std::apply([](auto&... room) { return std::tuple_cat(room...); }, rooms);
    if constexpr (std::tuple_size_v<decltype(values)> == 1)
        return Result(status, std::get<0>(values));
    else
        return Result(status, values);
}

namespace detail {
template <auto release>
struct Release {
    void operator()(void* object) const noexcept { release(static_cast<Object>(object)); }
    template <class T>
    static T First(void (*)(T));
    using Object = decltype(First(release));
};
}  // namespace detail

// Objects of the library, given back with their owner. Null says that memory ran out, or that what was asked is
// refused.
using FftPlan = std::unique_ptr<QvFftPlan, detail::Release<QvFftPlanRelease>>;
using IirFilter = std::unique_ptr<QvIirFilter, detail::Release<QvIirFilterRelease>>;
using IirStateComplex = std::unique_ptr<QvIirStateComplex, detail::Release<QvIirStateComplexRelease>>;
using FirNarrowband = std::unique_ptr<QvFirNarrowband, detail::Release<QvFirNarrowbandRelease>>;
/// An array that the library allocated.
using Array = std::unique_ptr<double[], detail::Release<QvMemoryRelease>>;

}  // namespace qv

#endif  // QUORVAN_HPP
