#include "stats/descriptive.h"

#include <cmath>
#include <limits>

#include "frame/moments.h"
#include "frame/status.h"

namespace quorvan {

Status StatMean(const double* x, Count n, double* mean) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    *mean = MeanOf(x, n);
    return status::kSuccess;
}

Status StatRms(const double* x, Count n, double* rms) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    double squares = 0;
    for (Count i = 0; i < n; ++i) squares += x[i] * x[i];
    *rms = std::sqrt(squares / n);
    return status::kSuccess;
}

Status StatRmsComplex(const ComplexRecord* x, Count n, double* rms) noexcept {
    // Deliberate: unlike its real twin this one writes its output when it refuses.
    *rms = std::numeric_limits<double>::quiet_NaN();
    if (n < 1) return status::kSamplesNotPositive;
    double squares = 0;
    for (Count i = 0; i < n; ++i) squares += x[i].re * x[i].re + x[i].im * x[i].im;
    *rms = std::sqrt(squares / n);
    return status::kSuccess;
}

Status StatMeanVariance(const double* x, Count n, double* mean, double* variance) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    double sum = 0, squares = 0;
    for (Count i = 0; i < n; ++i) {
        sum += x[i];
        squares += x[i] * x[i];
    }
    const double average = sum / n;
    *mean = average;
    // Deliberately not clipped at 0: a constant signal may round to a tiny negative value.
    *variance = squares / n - average * average;
    return status::kSuccess;
}

Status StatMeanStdDev(const double* x, Count n, double* mean, double* deviation) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    const MeanDeviation of = MeanDeviationOf(x, n);
    *mean = of.mean;
    *deviation = of.deviation;
    return status::kSuccess;
}

Status StatMoment(const double* x, Count n, std::uint32_t order, double* moment) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    const std::int32_t exponent = static_cast<std::int32_t>(order);
    if (exponent < 1) return status::kOrderNotPositive;
    const double mean = MeanOf(x, n);
    double sum = 0;
    for (Count i = 0; i < n; ++i) {
        const double deviation = x[i] - mean;
        double power = deviation;
        for (std::int32_t k = 1; k < exponent; ++k) power *= deviation;
        sum += power;
    }
    *moment = sum / n;
    return status::kSuccess;
}

}  // namespace quorvan
