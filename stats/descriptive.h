// Means, root mean squares, variances and central moments. All divide by n: they describe the data as a population.
#pragma once

#include "frame/types.h"

namespace quorvan {

// mean = sum(x) / n, added in index order, as all sums here.
Status StatMean(const double* x, Count n, double* mean) noexcept;

// rms = sqrt(sum(x^2) / n).
Status StatRms(const double* x, Count n, double* rms) noexcept;
// rms = sqrt(sum(re^2 + im^2) / n); NaN when n is below 1.
Status StatRmsComplex(const ComplexRecord* x, Count n, double* rms) noexcept;

// One pass: variance = sum(x^2) / n - mean^2, which rounding can take a little below 0.
Status StatMeanVariance(const double* x, Count n, double* mean, double* variance) noexcept;

// Two passes: deviation = sqrt(sum((x - mean)^2) / n).
Status StatMeanStdDev(const double* x, Count n, double* mean, double* deviation) noexcept;

// Central moment, sum((x - mean)^order) / n.
Status StatMoment(const double* x, Count n, std::uint32_t order, double* moment) noexcept;

}  // namespace quorvan
