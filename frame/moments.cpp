#include "frame/moments.h"

#include <cmath>

namespace quorvan {

double MeanOf(const double* x, Count n) noexcept {
    double sum = 0;
    for (Count i = 0; i < n; ++i) sum += x[i];
    return sum / n;
}

MeanDeviation MeanDeviationOf(const double* x, Count n) noexcept {
    const double mean = MeanOf(x, n);
    double sum = 0;
    for (Count i = 0; i < n; ++i) sum += (x[i] - mean) * (x[i] - mean);
    return {mean, std::sqrt(sum / n)};
}

}  // namespace quorvan
