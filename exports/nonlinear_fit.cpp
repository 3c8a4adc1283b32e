// Entries of the nonlinear fit.
#include "fit/nonlinear_fit.h"

#include "frame/entry.h"
#include "quorvan/quorvan.h"

using namespace quorvan;

namespace {

constexpr Count kNoLimit = -1;

}  // namespace

QV_EXPORT Status ZemFunc130(const double* x, const double* y, double* fitted, Size n, QvModel model,
                            double* coefficients, std::int32_t m, double* meanSquaredError) {
    return narrowed(
        n, [&](Count n) { return FitNonlinear(x, y, fitted, n, kNoLimit, model, coefficients, m, meanSquaredError); });
}
QV_EXPORT_ALIAS(Status, ZemFunc339, ZemFunc130, const double*, const double*, double*, Size, QvModel, double*,
                std::int32_t, double*);

QV_EXPORT Status ZemFunc131(const double* x, const double* y, double* fitted, Size n, std::int32_t limit, QvModel model,
                            double* coefficients, std::int32_t m, double* meanSquaredError) {
    return narrowed(
        n, [&](Count n) { return FitNonlinear(x, y, fitted, n, limit, model, coefficients, m, meanSquaredError); });
}
QV_EXPORT_ALIAS(Status, ZemFunc338, ZemFunc131, const double*, const double*, double*, Size, std::int32_t, QvModel,
                double*, std::int32_t, double*);

QV_EXPORT Status ZemFunc374(const double* x, const double* y, const double* weights, double* fitted, Size n,
                            std::int32_t limit, QvModel model, double* coefficients, std::int32_t m,
                            double* meanSquaredError, std::int32_t* iterations) {
    return narrowed(n, [&](Count n) {
        return FitNonlinearWeighted(x, y, weights, fitted, n, limit, model, coefficients, m, meanSquaredError,
                                    iterations);
    });
}
QV_EXPORT_ALIAS(Status, ZemFunc375, ZemFunc374, const double*, const double*, const double*, double*, Size,
                std::int32_t, QvModel, double*, std::int32_t, double*, std::int32_t*);
