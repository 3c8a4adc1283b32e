// Sine and cosine of an argument less some eighths of a turn, both for little more than the price of one.
#pragma once

#include <bit>
#include <cmath>
#include <cstdint>

#include "frame/targets.h"
#include "stats/special/sin_cos_pi.h"
#include "stats/special/two_lanes.h"

namespace quorvan {

// The same at any size, by the library's reduction and sums of its two values, which round once more.
template <int kEighths>
[[gnu::noinline]] SineCosine FarSinCosLessEighths(double x) noexcept {
    constexpr double kSqrtHalf = 0.70710678118654752440;
    const double s = std::sin(x), c = std::cos(x);
    if (kEighths == 0) return {s, c};
    const double difference = kSqrtHalf * (s - c), sum = kSqrtHalf * (s + c);
    return kEighths == 1 ? SineCosine{difference, sum} : SineCosine{-sum, difference};
}

// sin t and cos t, t = x - kEighths pi/4; with eighths x is at least 1. They go into the reduction r = x - m pi/4 to
// |r| <= pi/4 instead of being subtracted first or turned afterwards, so that they cost neither digits nor time.
// Peak 0.6 of a last place for |r| itself, 0.8 for the cosine; values below 1e-10 have an error of 2e-27 instead.
//   sin r = r + r^3 S(r^2), cos r = 1 - r^2/2 + r^4 C(r^2), S and C of degree 5 by Remez's exchange: 4e-18 and 6e-20
template <int kEighths>
QV_INLINE SineCosine SinCosLessEighths(double x) noexcept {
    static_assert(kEighths == 0 || kEighths == 1 || kEighths == 3);
    // pi/4 in parts of 29, 29 and 53 bits: with |m| < 2^24 the products with the first two are exact.
    constexpr double kFirst = 0x1.921fb54p-1, kSecond = 0x1.10b4611p-31, kThird = 0x1.4c4c6628b80dcp-60;
    constexpr std::uint64_t kSign = std::uint64_t{1} << 63;
    constexpr double kFarthest = 1e7, kTwoOverPi = 0.63661977236758134308;
    constexpr double kWhole = 0x1.8p52;  // a sum with it ends at the ones, in the low bits of its pattern
    constexpr TwoLanes kSines[] = {
        {1.5895433298102134e-10, -1.1358749267175693e-11}, {-2.5050734389348566e-08, 2.0875705396436402e-09},
        {2.7557313538514475e-06, -2.75573142170409e-07},   {-0.00019841269829358528, 2.4801587289002083e-05},
        {0.00833333333332184, -0.0013888888888873342},     {-0.1666666666666663, 0.041666666666666595}};
    if (!(std::fabs(x) <= kFarthest)) return FarSinCosLessEighths<kEighths>(x);

    const double shifted = x * kTwoOverPi - 0.5 * kEighths + kWhole;
    const std::uint64_t quarters = std::bit_cast<std::uint64_t>(shifted);
    const double m = 2 * (shifted - kWhole) + kEighths;
    // r + rest = x - m pi/4 to some 30 bits more than r has.
    const double near = x - m * kFirst, away = m * kSecond, reduced = near - away;
    const double lost = ((near - reduced) - away) - m * kThird;
    const double r = reduced + lost, rest = (reduced - r) + lost;

    const double z = r * r, half = 0.5 * z, flat = 1 - half;
    const TwoLanes point = {z, z};
    TwoLanes sum = kSines[0];
#pragma GCC unroll 5
    for (int i = 1; i < 6; ++i) sum = sum * point + kSines[i];
    const double s = r + (r * z * sum[0] + rest * flat);
    const double c = flat + (((1 - flat) - half) + (z * z * sum[1] - r * rest));

    // Back by the quarter turns taken out, without a branch that random arguments would mispredict.
    const std::uint64_t swap = 0 - (quarters & 1), s_bits = std::bit_cast<std::uint64_t>(s);
    const std::uint64_t change = swap & (s_bits ^ std::bit_cast<std::uint64_t>(c));
    const std::uint64_t s_sign = (quarters << 62) & kSign, c_sign = ((quarters + 1) << 62) & kSign;
    return {std::bit_cast<double>(s_bits ^ change ^ s_sign),
            std::bit_cast<double>(std::bit_cast<std::uint64_t>(c) ^ change ^ c_sign)};
}

}  // namespace quorvan
