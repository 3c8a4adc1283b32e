// Entries of the line, exponential, power, logarithm and Gaussian fits.
#include "fit/model_fits.h"

#include "frame/entry.h"
#include "quorvan/quorvan.h"

using namespace quorvan;

QV_EXPORT Status ZemFunc117(const double* x, double* y, Size n, double* fitted, double* slope, double* intercept,
                            double* meanSquaredError) {
    return narrowed(n, [&](Count n) {
        return FitLine({x, y, nullptr, n}, {fitted, {slope, intercept}, meanSquaredError});
    });
}

QV_EXPORT Status ZemFunc288(const double* x, double* y, const double* weights, Size n, std::uint32_t method,
                            double tolerance, double* fitted, double* slope, double* intercept, double* residue) {
    return narrowed(n, [&](Count n) {
        return FitLineRobust({x, y, weights, n}, method, tolerance, {fitted, {slope, intercept}, residue});
    });
}

QV_EXPORT Status ZemFunc73(const double* x, double* y, Size n, double* fitted, double* a, double* b,
                           double* meanSquaredError) {
    return narrowed(n, [&](Count n) { return FitExponential({x, y, nullptr, n}, {fitted, {a, b}, meanSquaredError}); });
}

QV_EXPORT Status ZemFunc286(const double* x, double* y, const double* weights, Size n, std::uint32_t method,
                            double tolerance, double* fitted, double* a, double* b, double* residue) {
    return narrowed(n, [&](Count n) {
        return FitExponentialRobust({x, y, weights, n}, method, tolerance, {fitted, {a, b}, residue});
    });
}

QV_EXPORT Status ZemFunc290(const double* x, double* y, const double* weights, Size n, std::uint32_t method,
                            double tolerance, double* fitted, double* a, double* b, double* residue) {
    return narrowed(n, [&](Count n) {
        return FitPower({x, y, weights, n}, method, tolerance, {fitted, {a, b}, residue});
    });
}

QV_EXPORT Status ZemFunc289(const double* x, double* y, const double* weights, Size n, double base,
                            std::uint32_t method, double tolerance, double* fitted, double* a, double* b,
                            double* residue) {
    return narrowed(n, [&](Count n) {
        return FitLogarithm({x, y, weights, n}, base, method, tolerance, {fitted, {a, b}, residue});
    });
}

QV_EXPORT Status ZemFunc287(const double* x, double* y, const double* weights, Size n, std::uint32_t method,
                            double tolerance, const double* guess, double* fitted, double* amplitude, double* centre,
                            double* width, double* residue) {
    return narrowed(n, [&](Count n) {
        return FitGaussian({x, y, weights, n}, method, tolerance, guess, {fitted, {amplitude, centre, width}, residue});
    });
}
