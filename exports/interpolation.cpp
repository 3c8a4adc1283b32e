// Entries of interpolation and splines.
#include "fit/interpolation.h"

#include "fit/smoothing_spline.h"
#include "fit/spline.h"
#include "frame/entry.h"
#include "quorvan/quorvan.h"

using namespace quorvan;

QV_EXPORT Status ZemFunc138(const double* x, const double* y, Size n, double point, double* result, double* error) {
    return narrowed(n, [&](Count n) { return InterpPolynomial(x, y, n, point, result, error); });
}

QV_EXPORT Status ZemFunc146(const double* x, const double* y, Size n, double point, double* result, double* error) {
    return narrowed(n, [&](Count n) { return InterpRational(x, y, n, point, result, error); });
}

QV_EXPORT Status ZemFunc164(const double* x, const double* y, Size n, double first, double last, double* second) {
    return narrowed(n, [&](Count n) { return InterpSplineSecondDerivatives(x, y, n, first, last, second); });
}

QV_EXPORT Status ZemFunc163(const double* x, const double* y, const double* second, Size n, double point,
                            double* result) {
    return narrowed(n, [&](Count n) { return InterpSplineEvaluate(x, y, second, n, point, result); });
}

QV_EXPORT Status ZemFunc285(const double* x, double* y, const double* weights, Size n, double balance,
                            const double* smoothness, double* out) {
    return narrowed(n, [&](Count n) { return InterpSmoothingSpline(x, y, weights, n, balance, smoothness, out); });
}
