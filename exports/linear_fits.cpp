// Entries of the linear and polynomial fits.
#include "fit/general_fit.h"
#include "fit/polynomial_fit.h"
#include "frame/entry.h"
#include "quorvan/quorvan.h"

using namespace quorvan;

QV_EXPORT Status ZemFunc239(const double* design, Size m, Size n, const double* y, double* coefficients,
                            std::uint32_t selector) {
    return narrowed(m, n, [&](Count m, Count n) { return FitGeneralLinear(design, m, n, y, coefficients, selector); });
}

QV_EXPORT Status ZemFunc86(const double* design, Size m, Size n, const double* y, const double* deviations,
                           std::uint32_t selector, double* fitted, double* coefficients, double* covariance,
                           double* meanSquaredError) {
    return narrowed(m, n, [&](Count m, Count n) {
        return FitGeneralLinearEx(design, m, n, y, deviations, selector, fitted, coefficients, covariance,
                                  meanSquaredError);
    });
}

QV_EXPORT Status ZemFunc137(double* x, const double* y, Size n, std::int32_t order, double* fitted,
                            double* coefficients, double* meanSquaredError) {
    return narrowed(n, [&](Count n) { return FitPolynomial(x, y, n, order, fitted, coefficients, meanSquaredError); });
}

QV_EXPORT Status ZemFunc298(double* x, const double* y, Size n, std::int32_t order, const std::int32_t* fixedOrders,
                            const double* fixedValues, std::int32_t fixedCount, std::uint32_t algorithm, double* fitted,
                            double* coefficients, double* meanSquaredError) {
    return narrowed(n, [&](Count n) {
        return FitPolynomialConstrained(x, y, n, order, {fixedOrders, fixedValues, fixedCount}, algorithm, fitted,
                                        coefficients, meanSquaredError);
    });
}

QV_EXPORT Status ZemFunc361(double* x, const double* y, const double* weights, Size n, std::int32_t order,
                            const std::int32_t* fixedOrders, const double* fixedValues, std::int32_t fixedCount,
                            std::uint32_t algorithm, double* fitted, double* coefficients, double* meanSquaredError) {
    return narrowed(n, [&](Count n) {
        return FitPolynomialWeighted(x, y, weights, n, order, {fixedOrders, fixedValues, fixedCount}, algorithm, fitted,
                                     coefficients, meanSquaredError);
    });
}
