// The sums that the rational and Chebyshev approximations of the special functions are made of.
#pragma once

#include <cstddef>

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
// 1955): highest order first, the term of order 0 taken by half.
template <std::size_t N>
constexpr double ChebyshevSum(double x, const double (&c)[N]) noexcept {
    double b0 = c[0], b1 = 0, b2 = 0;
    for (std::size_t i = 1; i < N; ++i) {
        b2 = b1;
        b1 = b0;
        b0 = x * b1 + (c[i] - b2);  // the difference is ready while the product still waits for b1
    }
    return 0.5 * (b0 - b2);
}

}  // namespace quorvan
