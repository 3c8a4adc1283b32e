// Fits of polynomials, c(0) + c(1) x + c(2) x² + ..., of which some coefficients may be fixed.
#pragma once

#include "frame/types.h"

namespace quorvan {

// The coefficients that are given: of each order of 0 to the highest, its value. Other orders count, but do nothing; of
// several values for an order the last holds.
struct FixedCoefficients {
    const Count* orders;
    const double* values;
    Count count;
};

struct PolynomialMethod {
    enum Kind : std::uint32_t { kLeastSquares, kLeastAbsolute, kBisquare };
    std::uint32_t selector;  // of fit/general_fit.h
    Kind robust = kLeastSquares;
    double tolerance = -1;  // at or below 0: 0.0001
    double smallestError = -1;
    Count* iterations = nullptr;  // in the limit; out the count of the bisquare. Not for least squares
};

// At most the powers up to 25 are fitted, or up to the second free one where more are fixed; further coefficients are
// 0, with the warning 20031. A null curve stands for x: with an error wanted, the curve overwrites the abscissas.
// Without fixed coefficients a curve without an error is not produced. -20103 for a negative order or count, -20037 for
// n at or below the order less the count; further those of FitGeneralCore.
Status FitPolynomialCore(double* x, const double* y, const double* weights, Count n, Count order,
                         const FixedCoefficients& fixed, double* fitted, double* coefficients, double* meanSquaredError,
                         const PolynomialMethod& method) noexcept;

Status FitPolynomial(double* x, const double* y, Count n, Count order, double* fitted, double* coefficients,
                     double* meanSquaredError) noexcept;

// Algorithms: 0 singular values, 1 QR, 2 LU and 3 Cholesky of the normal equations; others -20061.
Status FitPolynomialWeighted(double* x, const double* y, const double* weights, Count n, Count order,
                             const FixedCoefficients& fixed, std::uint32_t algorithm, double* fitted,
                             double* coefficients, double* meanSquaredError) noexcept;
inline Status FitPolynomialConstrained(double* x, const double* y, Count n, Count order, const FixedCoefficients& fixed,
                                       std::uint32_t algorithm, double* fitted, double* coefficients,
                                       double* meanSquaredError) noexcept {
    return FitPolynomialWeighted(x, y, nullptr, n, order, fixed, algorithm, fitted, coefficients, meanSquaredError);
}

}  // namespace quorvan
