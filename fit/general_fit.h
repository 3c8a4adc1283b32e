// Least squares for a model that is linear in its n coefficients: m observations y, a design matrix of m rows by n
// columns, row major, whose row i holds the basis functions at observation i.
#pragma once

#include "frame/types.h"

namespace quorvan {

enum FitSelector : std::uint32_t {
    kFitSingularValues = 0,
    kFitQr = 3,  // 1 and 2 are the same
    kFitNormalLu = 4,
    kFitNormalCholesky = 5,
    kFitTruncatedSingularValues = 6  // drops singular values at or below m·s(0)·epsilon
};

// Weights count by magnitude; null: all 1. The covariance, n by n, is (X'WX)⁺, and may be null. The fitted curve and
// the weighted mean squared error are produced only together. In order: -20021 for n below 1, -20037 for m below n,
// -20061 for another selector, -20046 where the design has more than 2^31 - 1 elements; then -20041, -20071, -20068,
// -20062 of the solver, with the covariance and the coefficients perhaps written; -20001.
Status FitGeneralCore(const double* design, Count m, Count n, const double* y, const double* weights,
                      double* coefficients, double* fitted, double* meanSquaredError, double* covariance,
                      std::uint32_t selector) noexcept;

Status FitGeneralLinear(const double* design, Count m, Count n, const double* y, double* coefficients,
                        std::uint32_t selector) noexcept;

// The weights are 1/deviation²; a deviation of 0 weighs 1. Null: all 1.
Status FitGeneralLinearEx(const double* design, Count m, Count n, const double* y, const double* deviations,
                          std::uint32_t selector, double* fitted, double* coefficients, double* covariance,
                          double* meanSquaredError) noexcept;

}  // namespace quorvan
