// Numerator and denominator of a rational approximation at once, in the two lanes of a register.
#pragma once

#include <cstddef>

#include "stats/special/two_lanes.h"

namespace quorvan {

struct PolynomialPair {
    double first, second;
};

// Both sums of Polynomial (polynomial.h) with the same roundings, for finite x; the shorter table is led by zeros.
// kMonic: the second table leaves out its leading coefficient 1.
template <bool kMonic = false, std::size_t N, std::size_t M>
inline PolynomialPair Polynomials(double x, const double (&first)[N], const double (&second)[M]) noexcept {
    constexpr std::size_t kSecond = kMonic ? M + 1 : M, kLength = N > kSecond ? N : kSecond;
    const auto coefficients = [&](std::size_t i) noexcept {
        const std::size_t skipped = kLength - M;  // places of the second before its table
        const double leading = kMonic && i + 1 == skipped ? 1 : 0;
        return TwoLanes{i < kLength - N ? 0 : first[i - (kLength - N)], i < skipped ? leading : second[i - skipped]};
    };
    const TwoLanes point = {x, x};
    TwoLanes sum = coefficients(0);
#pragma GCC unroll 16
    for (std::size_t i = 1; i < kLength; ++i) sum = sum * point + coefficients(i);
    return {sum[0], sum[1]};
}

}  // namespace quorvan
