#include "stats/special/divergent_series.h"

namespace quorvan {

Estimate DivergentSeries(double p, double q, double z) noexcept {
    double sum = 1, term = 1, largest = 1, last = 1;
    for (double n = 0; n < 500; n += 1) {
        const double quotient = (p + n) * (q + n) / (n + 1) * z;
        if (quotient == 0) {
            last = 0;
            break;
        }
        const double next = term * quotient, size = std::fabs(next);
        const bool settled = p + n > 0 && q + n > 0;
        if (settled && size >= std::fabs(term)) {
            last = std::fabs(term);
            break;
        }
        if (!(size < 1e300)) return {sum, std::numeric_limits<double>::infinity()};
        term = next;
        sum += term;
        last = size;
        if (size > largest) largest = size;
        if (settled && size <= 0.25 * kEpsilon * std::fabs(sum)) break;
    }
    return {sum, kEpsilon * largest + last};
}

}  // namespace quorvan
