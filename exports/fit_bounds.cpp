// Entries of the bands, the goodness of fit and the removal of samples.
#include "fit/fit_bounds.h"

#include "fit/goodness.h"
#include "fit/sample_removal.h"
#include "frame/entry.h"
#include "quorvan/quorvan.h"

using namespace quorvan;

QV_EXPORT Status ZemFunc293(const double* x, const double* y, const double* weights, Size n, std::uint32_t type,
                            double level, double slope, double intercept, double* upper, double* lower,
                            double* slopeHalfWidth, double* interceptHalfWidth) {
    return narrowed(n, [&](Count n) {
        return FitBoundsLine({x, y, weights, n, type, level}, slope, intercept,
                             {upper, lower, {slopeHalfWidth, interceptHalfWidth}});
    });
}

QV_EXPORT Status ZemFunc291(const double* x, const double* y, const double* weights, Size n, std::uint32_t type,
                            double level, double a, double b, double* upper, double* lower, double* aHalfWidth,
                            double* bHalfWidth) {
    return narrowed(n, [&](Count n) {
        return FitBoundsExponential({x, y, weights, n, type, level}, a, b, {upper, lower, {aHalfWidth, bHalfWidth}});
    });
}

QV_EXPORT Status ZemFunc295(const double* x, const double* y, const double* weights, Size n, std::uint32_t type,
                            double level, double a, double b, double* upper, double* lower, double* aHalfWidth,
                            double* bHalfWidth) {
    return narrowed(n, [&](Count n) {
        return FitBoundsPower({x, y, weights, n, type, level}, a, b, {upper, lower, {aHalfWidth, bHalfWidth}});
    });
}

QV_EXPORT Status ZemFunc294(const double* x, const double* y, const double* weights, Size n, double base,
                            std::uint32_t type, double level, double a, double b, double* upper, double* lower,
                            double* aHalfWidth, double* bHalfWidth) {
    return narrowed(n, [&](Count n) {
        return FitBoundsLogarithm({x, y, weights, n, type, level}, base, a, b,
                                  {upper, lower, {aHalfWidth, bHalfWidth}});
    });
}

QV_EXPORT Status ZemFunc292(const double* x, const double* y, const double* weights, Size n, std::uint32_t type,
                            double level, double amplitude, double centre, double width, double* upper, double* lower,
                            double* amplitudeHalfWidth, double* centreHalfWidth, double* widthHalfWidth) {
    return narrowed(n, [&](Count n) {
        return FitBoundsGaussian({x, y, weights, n, type, level}, amplitude, centre, width,
                                 {upper, lower, {amplitudeHalfWidth, centreHalfWidth, widthHalfWidth}});
    });
}

QV_EXPORT Status ZemFunc284(const double* y, const double* fitted, const double* weights, Size n, Size dof, double* sse,
                            double* rSquare, double* rmse) {
    return narrowed(n, dof,
                    [&](Count n, Count dof) { return FitGoodness(y, fitted, weights, n, dof, sse, rSquare, rmse); });
}

QV_EXPORT Status ZemFunc297(double* x, double* y, double* weights, Size* n, std::uint32_t mode, const double* limits,
                            std::int32_t limitCount, Size* removed, Size* capacity, Size* removedCount) {
    return narrowed(*n, *capacity, [&](Count count, Count room) {
        const Removal removal = FitRemoveOutOfRange({x, y, weights}, count, mode, limits, limitCount, removed, room);
        *removedCount = *capacity = Size{count} - removal.kept;  // whatever the status: deliberate
        *n = removal.kept;
        return removal.status;
    });
}

QV_EXPORT Status ZemFunc296(double* x, double* y, double* weights, Size* n, const Size* indices, Size count) {
    return narrowed(*n, count, [&](Count samples, Count count) {
        for (Count k = 0; k < count; ++k)
            if (!SizeNarrow(indices[k])) return status::kOverflow;
        const Removal removal = FitRemoveByIndex({x, y, weights}, samples, indices, count);
        if (removal.status == status::kSuccess) *n = removal.kept;
        return removal.status;
    });
}
