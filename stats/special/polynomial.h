// The sums that the rational and Chebyshev approximations of the special functions are made of.
#pragma once

#include <cstddef>

#include "stats/special/two_lanes.h"

namespace quorvan {

// c[0] x^(N-1) + ... + c[N-1] by Horner's rule: highest power first.
template <std::size_t N>
constexpr double Polynomial(double x, const double (&c)[N]) noexcept {
    double sum = c[0];
    for (std::size_t i = 1; i < N; ++i) sum = sum * x + c[i];
    return sum;
}

// x^N + c[0] x^(N-1) + ... + c[N-1]: the leading coefficient 1 is not stored.
template <std::size_t N>
constexpr double MonicPolynomial(double x, const double (&c)[N]) noexcept {
    double sum = x + c[0];
    for (std::size_t i = 1; i < N; ++i) sum = sum * x + c[i];
    return sum;
}

// c[0] T_(N-1)(x/2) + ... + c[N-2] T_1(x/2) + c[N-1]/2 for x in [-2, 2], by Clenshaw's recurrence (C. W. Clenshaw,
// 1955): highest order first, the term of order 0 taken by half. That term comes last, where it rounds only once.
template <std::size_t N>
constexpr double ChebyshevSum(double x, const double (&c)[N]) noexcept {
    double b1 = c[0], b2 = 0;
    for (std::size_t i = 1; i < N - 1; ++i) {
        const double b0 = x * b1 + (c[i] - b2);  // the difference is ready while the product still waits for b1
        b2 = b1;
        b1 = b0;
    }
    return 0.5 * (c[N - 1] + (x * b1 - 2 * b2));
}

// The same in half the steps: odd and even orders alike go on by T_(k+2) = u T_k - T_(k-2), u = 2 T_2 = x^2 - 2, and so
// side by side in the two lanes of a register. Not for sums that are small beside both halves, which then cancel.
template <std::size_t N>
inline double ChebyshevHalves(double x, const double (&c)[N]) noexcept {
    constexpr std::size_t kOdd = N % 2;  // a table of odd length lacks its highest odd order
    const double u = x * x - 2;
    const TwoLanes point = {u, u};
    TwoLanes b1 = {kOdd ? 0 : c[0], c[1 - kOdd]}, b2 = {};
    for (std::size_t i = 2 - kOdd; i < N - 2; i += 2) {
        const TwoLanes b0 = point * b1 + (TwoLanes{c[i], c[i + 1]} - b2);
        b2 = b1;
        b1 = b0;
    }
    const TwoLanes rest = point * b1 - b2;
    return 0.5 * (c[N - 1] + ((rest[1] - b2[1]) + x * (c[N - 2] - b1[0] + rest[0])));
}

}  // namespace quorvan
