// A caller's array with guard zones on both sides, checked when it goes.
#pragma once

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>
#include <gtest/gtest.h>
#include <initializer_list>
#include <limits>
#include <random>
#include <vector>

#include "frame/types.h"

namespace quorvan::testing {

inline constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
inline constexpr double kInf = std::numeric_limits<double>::infinity();

// What an output holds before a call, so that a test can tell an unwritten element.
inline constexpr double kUnwritten = -7.25e77;

template <class T>
class Guarded {
public:
    explicit Guarded(std::size_t count, T fill = T{}) : count_(count), bytes_(kZone * 2 + count * sizeof(T), kMark) {
        std::fill(begin(), end(), fill);
    }
    Guarded(std::initializer_list<T> values) : Guarded(values.size()) {
        std::copy(values.begin(), values.end(), begin());
    }
    explicit Guarded(const std::vector<T>& values) : Guarded(values.size()) {
        std::copy(values.begin(), values.end(), begin());
    }
    Guarded(const Guarded&) = default;
    Guarded& operator=(const Guarded&) = default;
    ~Guarded() {
        const auto marked = [](unsigned char byte) { return byte == kMark; };
        EXPECT_TRUE(std::all_of(bytes_.begin(), bytes_.begin() + kZone, marked)) << "written before the array";
        EXPECT_TRUE(std::all_of(bytes_.end() - kZone, bytes_.end(), marked)) << "written behind the array";
    }

    T* data() { return reinterpret_cast<T*>(bytes_.data() + kZone); }
    const T* data() const { return reinterpret_cast<const T*>(bytes_.data() + kZone); }
    operator T*() { return data(); }
    operator const T*() const { return data(); }
    T* begin() { return data(); }
    T* end() { return data() + count_; }
    const T* begin() const { return data(); }
    const T* end() const { return data() + count_; }
    std::size_t size() const { return count_; }
    std::vector<T> values() const { return {begin(), end()}; }

private:
    static constexpr std::size_t kZone = 128;
    static constexpr unsigned char kMark = 0xA5;
    std::size_t count_;
    std::vector<unsigned char> bytes_;
};

using Reals = Guarded<double>;
using Records = Guarded<ComplexRecord>;

// An output array of n doubles that no one has written yet.
inline Reals Output(std::size_t n) { return Reals(n, kUnwritten); }
inline Records RecordOutput(std::size_t n) { return Records(n, ComplexRecord{kUnwritten, kUnwritten}); }

inline bool Untouched(const Reals& array) {
    return std::all_of(array.begin(), array.end(), [](double v) { return v == kUnwritten; });
}
inline bool Untouched(const Records& array) {
    return std::all_of(array.begin(), array.end(),
                       [](const ComplexRecord& v) { return v.re == kUnwritten && v.im == kUnwritten; });
}

// Reproducible samples, uniform in [-1, 1).
inline Reals RandomReals(std::size_t n, unsigned seed = 1) {
    std::mt19937_64 engine(seed);
    std::uniform_real_distribution<double> uniform(-1, 1);
    Reals out(n);
    for (double& v : out) v = uniform(engine);
    return out;
}
inline Records RandomRecords(std::size_t n, unsigned seed = 1) {
    std::mt19937_64 engine(seed);
    std::uniform_real_distribution<double> uniform(-1, 1);
    Records out(n);
    for (ComplexRecord& v : out) v = {uniform(engine), uniform(engine)};
    return out;
}

// Equality to the last bit, which tells -0.0 from 0.0 and one NaN from another.
inline bool SameBits(double a, double b) { return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b); }

// The size that fails to narrow.
inline constexpr Size kTooLarge = Size{1} << 31;

}  // namespace quorvan::testing
