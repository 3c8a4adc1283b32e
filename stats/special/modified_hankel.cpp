#include "stats/special/modified_hankel.h"

#include <cmath>

#include "frame/types.h"

namespace quorvan {

double ScaledModifiedHankel(double v, double x, int kind) noexcept {
    double sum = 1, term = 1;
    for (int k = 1; k < 200; ++k) {
        const double odd = 2 * k - 1, next = -kind * term * ((2 * v - odd) * (2 * v + odd)) / (8 * x * k);
        // Past the order the terms only fall until they rise for good.
        if (std::fabs(next) > std::fabs(term) && odd > 2 * v) break;
        term = next;
        sum += term;
        if (std::fabs(term) <= 0.25 * kEpsilon * std::fabs(sum) && odd > 2 * v) break;
    }
    return kind > 0 ? sum / (std::sqrt(kTwoPi) * std::sqrt(x)) : sum * (std::sqrt(kPi / 2) / std::sqrt(x));
}

}  // namespace quorvan
