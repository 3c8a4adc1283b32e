#include "fit/robust_weights.h"

#include <cmath>

#include "frame/moments.h"
#include "frame/status.h"
#include "stats/median.h"

namespace quorvan {
namespace {

constexpr double kLeverageLimit = 0.9999;
// 1 - kLeverageLimit as the two forms of the factor have it.
constexpr double kLeastGap = 9.999999999998899e-5, kLargestFactor = 10000.0000000011;

constexpr double kTuning = 4.685;     // 95 percent efficiency under normal errors
constexpr double kQuartile = 0.6745;  // the median absolute deviation of a standard normal variable

}  // namespace

Status LeastAbsoluteWeights(const double* y, const double* fitted, const double* given, Count n, double* residuals,
                            double* weights) noexcept {
    for (Count i = 0; i < n; ++i) residuals[i] = std::fabs(y[i] - fitted[i]);
    double threshold = 0;
    if (Status failed = StatMedian(residuals, n, &threshold)) return failed;
    threshold *= 0.01;
    if (threshold == 0) threshold = 1e-7;
    for (Count i = 0; i < n; ++i) {
        const double residual = threshold > residuals[i] ? threshold : residuals[i];
        weights[i] = std::fabs((given ? given[i] : 1.0) / residual);
    }
    return status::kSuccess;
}

double LeverageFactor(double leverage, const double* given, Count i) noexcept {
    if (leverage > kLeverageLimit) return std::sqrt(given ? std::fabs(given[i]) / kLeastGap : kLargestFactor);
    return std::sqrt((given ? std::fabs(given[i]) : 1.0) / (1 - leverage));
}

BisquareOutcome BisquareWeights(const double* y, const double* fitted, const double* factors, Count n, double* work,
                                double* weights) noexcept {
    double *residuals = work, *distances = work + n;
    for (Count i = 0; i < n; ++i) residuals[i] = (y[i] - fitted[i]) * factors[i];
    double median = 0, scale = 0, largest = 0;
    if (Status failed = StatMedian(residuals, n, &median)) return {failed, false, 0};
    for (Count i = 0; i < n; ++i) {
        distances[i] = std::fabs(residuals[i] - median);
        if (distances[i] > largest) largest = distances[i];
    }
    if (std::fabs(median) >= largest)
        for (Count i = 0; i < n; ++i) distances[i] = std::fabs(residuals[i]);
    if (Status failed = StatMedian(distances, n, &scale)) return {failed, false, 0};
    if (scale == 0) scale = MeanOf(distances, n);
    if (scale == 0) return {status::kSuccess, true, 0};

    Count zeros = 0;
    for (Count i = 0; i < n; ++i) {
        const double u = residuals[i] * kQuartile / (scale * kTuning);
        const double inside = 1 - u * u;
        const bool outlier = std::fabs(u) >= 1;
        weights[i] = outlier ? 0 : inside * inside;
        zeros += outlier;
    }
    return {status::kSuccess, false, zeros};
}

}  // namespace quorvan
