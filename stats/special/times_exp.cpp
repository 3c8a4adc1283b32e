#include "stats/special/times_exp.h"

#include <cmath>

namespace quorvan {

double TimesExp(double value, double x, int exponent) noexcept {
    constexpr double kLn2 = 6.93147180369123816490e-1, kLn2Rest = 1.90821492927058770002e-10;  // kLn2 has 32 bits
    if (std::fabs(x) < 600 && exponent == 0) return value * std::exp(x);
    if (std::isnan(x)) return x;
    if (value == 0) return value;
    if (x > 1e6) x = 1e6;  // far beyond any other factor; whole multiples of kLn2 stay exact
    if (x < -1e6) x = -1e6;
    const double n = std::nearbyint(x * 1.4426950408889634);
    const double e = std::exp((x - n * kLn2) - n * kLn2Rest);
    return std::ldexp(value * e, static_cast<int>(n) + exponent);
}

}  // namespace quorvan
