#include "stats/special/exponential_integral.h"

#include <cmath>
#include <limits>

#include "frame/types.h"

namespace quorvan {
namespace {

constexpr double kInf = std::numeric_limits<double>::infinity();

// (-x)^(n-1)/(n-1)! (-ln x + psi(n)) - sum of (-x)^k / ((k - n + 1) k!), k = n-1 left out.
double BySeries(double x, std::int32_t n) noexcept {
    // From here on the first term is below 1e-22.
    constexpr std::int32_t kNoLogarithm = 25;
    double logarithmic = 0;
    if (n < kNoLogarithm) {
        double psi = -0.57721566490153286 - std::log(x), power = 1;
        for (std::int32_t i = 1; i < n; ++i) {
            psi += 1.0 / i;
            power *= -x / i;
        }
        logarithmic = power * psi;
    }
    double power = 1, divisor = 1 - n, sum = n == 1 ? 0 : 1 / divisor, k = 0, term;
    do {
        k += 1;
        power *= -x / k;
        divisor += 1;
        term = divisor == 0 ? 0 : power / divisor;
        sum += term;
    } while (divisor == 0 || std::fabs(term) > 0.25 * kEpsilon * std::fabs(sum));
    return logarithmic - sum;
}

// e^-x / (x+n - 1 n/(x+n+2 - 2 (n+1)/(x+n+4 - ...))): the even part, twice as fast as the fraction itself. Its
// convergents are summed by their differences (J. Steed's algorithm): all are positive, and nothing grows that would
// need rescaling.
double ByFraction(double x, std::int32_t n) noexcept {
    double denominator = x + n, d = 1 / denominator, difference = d, value = d, k = 0;
    do {
        k += 1;
        denominator += 2;
        const double numerator = k * (n - 1 + k), before = d;
        d = 1 / (denominator - numerator * before);
        difference *= numerator * before * d;
        value += difference;
    } while (difference > 0.5 * kEpsilon * value);
    return value * std::exp(-x);
}

// e^-x/(x+n) (1 + w + (1 - 2l) w^2 + (1 - 8l + 6l^2) w^3 + (1 - 22l + 58l^2 - 24l^3) w^4), w = n/(x+n)^2, l = x/n.
double ByLargeOrder(double x, double n) noexcept {
    const double sum = x + n, w = n / (sum * sum), l = x / n;
    const double fourth = w * (1 + l * (-22 + l * (58 - l * 24)));
    const double third = w * (1 + l * (-8 + l * 6) + fourth);
    return std::exp(-x) / sum * (1 + w * (1 + w * (1 - 2 * l + third)));
}

}  // namespace

double SpecExpIntegralN(double x, std::int32_t n) noexcept {
    if (std::isnan(x) || n < 0 || x < 0) return std::numeric_limits<double>::quiet_NaN();
    if (x > 709.7827128933) return 0;
    if (x == 0) return n < 2 ? kInf : 1.0 / (n - 1);
    if (n == 0) return std::exp(-x) / x;
    if (n > 5000) return ByLargeOrder(x, n);
    return x > 1 ? ByFraction(x, n) : BySeries(x, n);
}

}  // namespace quorvan
