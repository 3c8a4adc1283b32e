#include "stats/special/debye.h"

#include <cmath>

#include "frame/types.h"
#include "stats/special/times_exp.h"

namespace quorvan {

double DebyeModified(double v, double x, int kind) noexcept {
    const double z = x / v, root = z < 1e150 ? std::sqrt(1 + z * z) : z;
    const double t = 1 / root, square = t * t;
    double sum = 1, power = 1;
    for (int k = 1; k < kDebyeTerms; ++k) {
        double u = kDebye[k][0];
        for (int i = 1; i <= k; ++i) u = u * square + kDebye[k][i];
        power *= kind * t / v;
        sum += power * u;
    }
    const double exponent = v * (root + std::log(z / (1 + root)));
    const double factor = kind > 0 ? 1 / std::sqrt(kTwoPi * v * root) : std::sqrt(kPi / (2 * v * root));
    return TimesExp(factor * sum, kind * exponent);
}

}  // namespace quorvan
