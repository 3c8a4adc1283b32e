// Whole registers of doubles for the units that are compiled for each instruction set (*.target.cpp only).
//
// Complex products are written in registers, not in the plain formula: GCC 12 finds the pattern of that formula on
// interleaved records and fuses product and sum, contraction off or not, and the machines would round differently.
#pragma once

#include <utility>

#include "frame/targets.h"
#include "frame/types.h"

namespace quorvan::QV_TARGET {
namespace {

#if defined(__AVX512F__)
constexpr int kWidth = 8;
#elif defined(__AVX2__)
constexpr int kWidth = 4;
#else
constexpr int kWidth = 2;
#endif

// As many doubles as the widest register holds, and two, which are one record.
typedef double Wide __attribute__((vector_size(8 * kWidth)));
typedef double Pair __attribute__((vector_size(16)));

template <class V>
constexpr int kLanes = sizeof(V) / sizeof(double);
template <class V>
using Lanes = std::make_integer_sequence<int, kLanes<V>>;

// At any address.
template <class V>
QV_INLINE V Load(const double* p) {
    V v;
    __builtin_memcpy(&v, p, sizeof v);
    return v;
}
template <class V>
QV_INLINE void Store(double* p, V v) {
    __builtin_memcpy(p, &v, sizeof v);
}

template <class V, int... I>
QV_INLINE V ReversedLanes(V v, std::integer_sequence<int, I...>) {
    return __builtin_shufflevector(v, v, (kLanes<V> - 1 - I)...);
}
template <class V>
QV_INLINE V Reversed(V v) {
    return ReversedLanes(v, Lanes<V>{});
}
QV_INLINE double Reversed(double v) { return v; }

// The records of v from the last to the first.
template <class V, int... I>
QV_INLINE V ReversedPairs(V v, std::integer_sequence<int, I...>) {
    return __builtin_shufflevector(v, v, (kLanes<V> - 2 - I + I % 2 * 2)...);
}
template <class V>
QV_INLINE V ReversedRecords(V v) {
    return ReversedPairs(v, Lanes<V>{});
}

// Lanes a0 b0 a1 b1 ... from place kFrom of both on.
template <int kFrom, class V, int... I>
QV_INLINE V InterleavedLanes(V a, V b, std::integer_sequence<int, I...>) {
    return __builtin_shufflevector(a, b, (kFrom + I / 2 + I % 2 * kLanes<V>)...);
}
template <class V>
QV_INLINE void StoreInterleaved(double* p, V a, V b) {
    Store(p, InterleavedLanes<0>(a, b, Lanes<V>{}));
    Store(p + kLanes<V>, InterleavedLanes<kLanes<V> / 2>(a, b, Lanes<V>{}));
}

template <class V, int... I>
QV_INLINE V AlternatingLanes(double even, double odd, std::integer_sequence<int, I...>) {
    return V{(I % 2 ? odd : even)...};
}
// even odd even odd ...
template <class V>
QV_INLINE V Alternating(double even, double odd) {
    return AlternatingLanes<V>(even, odd, Lanes<V>{});
}

template <class V, int... I>
QV_INLINE V RealLanes(V v, std::integer_sequence<int, I...>) {
    return __builtin_shufflevector(v, v, (I / 2 * 2)...);
}
template <class V, int... I>
QV_INLINE V ImaginaryLanes(V v, std::integer_sequence<int, I...>) {
    return __builtin_shufflevector(v, v, (I / 2 * 2 + 1)...);
}
template <class V, int... I>
QV_INLINE V SwappedLanes(V v, std::integer_sequence<int, I...>) {
    return __builtin_shufflevector(v, v, (I / 2 * 2 + 1 - I % 2)...);
}

template <class Half, int... I>
QV_INLINE auto JoinedHalves(Half low, Half high, std::integer_sequence<int, I...>) {
    return __builtin_shufflevector(low, high, I...);
}
// The records get(0), get(1), ... side by side.
template <class V, class Get>
QV_INLINE V Joined(const Get& get) {
    if constexpr (kLanes<V> == 2) {
        return get(0);
    } else {
        typedef double Half __attribute__((vector_size(sizeof(V) / 2)));
        return JoinedHalves(Joined<Half>(get), Joined<Half>([&](int r) { return get(kLanes<V> / 4 + r); }), Lanes<V>{});
    }
}
// put(0, the first record of v), put(1, the second), ...
template <class V, class Put, int... R>
QV_INLINE void PartRecords(V v, const Put& put, std::integer_sequence<int, R...>) {
    (put(R, __builtin_shufflevector(v, v, 2 * R, 2 * R + 1)), ...);
}
template <class V, class Put>
QV_INLINE void Part(V v, const Put& put) {
    PartRecords(v, put, std::make_integer_sequence<int, kLanes<V> / 2>{});
}

// The factor of a complex product that stays: its real part in all lanes, its imaginary part with the signs - + - +.
template <class V>
struct Factor {
    V re, im;
};
template <class V>
QV_INLINE Factor<V> FactorOf(ComplexRecord a) {
    return {Alternating<V>(a.re, a.re), Alternating<V>(-a.im, a.im)};
}
template <class V>
QV_INLINE Factor<V> FactorsOf(V a) {
    return {RealLanes(a, Lanes<V>{}), ImaginaryLanes(a, Lanes<V>{}) * Alternating<V>(-1, 1)};
}
// Record by record (ac - bd) + i(bc + ad), rounded as that formula is.
template <class V>
QV_INLINE V Product(Factor<V> a, V b) {
    return a.re * b + a.im * SwappedLanes(b, Lanes<V>{});
}

}  // namespace
}  // namespace quorvan::QV_TARGET
