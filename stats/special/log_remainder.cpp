#include "stats/special/log_remainder.h"

#include <cmath>

#include "frame/types.h"

namespace quorvan {

double LogRemainder(double x) noexcept {
    if (!(x > -0.7 && x < 1.5)) return std::log1p(x) - x;
    const double r = x / (2 + x), r2 = r * r;
    double power = 1, sum = 1.0 / 3;
    for (int odd = 5; odd < 81; odd += 2) {
        power *= r2;
        const double term = power / odd;
        sum += term;
        if (term <= 0.25 * kEpsilon) break;
    }
    return r * (2 * r2 * sum - x);
}

}  // namespace quorvan
