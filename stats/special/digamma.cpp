#include "stats/special/digamma.h"

#include <cmath>
#include <limits>

#include "frame/types.h"
#include "stats/special/polynomial.h"

namespace quorvan {
namespace {

// x > 0 (or NaN).
double PositiveDigamma(double x) noexcept {
    // B(2k)/(2k) of the asymptotic series. Cephes Math Library, S. L. Moshier: psi.
    static constexpr double kA[] = {8.33333333333333333333E-2,  -2.10927960927960927961E-2, 7.57575757575757575758E-3,
                                    -4.16666666666666666667E-3, 3.96825396825396825397E-3,  -8.33333333333333333333E-3,
                                    8.33333333333333333333E-2};
    if (x <= 10 && x == std::floor(x)) {
        double sum = -0.5772156649015329;
        for (int i = 1; i < static_cast<int>(x); ++i) sum += 1.0 / i;
        return sum;
    }
    double s = x, shift = 0;
    while (s < 10) {
        shift += 1 / s;
        s += 1;
    }
    const double w = 1 / s, z = w * w;
    const double series = s < 1e17 ? z * Polynomial(z, kA) : 0;
    return std::log(s) - 0.5 * w - series - shift;
}

}  // namespace

double SpecDigamma(double x) noexcept {
    if (!(x <= 0)) return PositiveDigamma(x);
    // psi(x) = psi(1 - x) - pi / tan(pi x), the tangent taken at the distance to the nearest integer.
    const double whole = std::floor(x);
    if (whole == x) return std::numeric_limits<double>::quiet_NaN();
    double f = x - whole;
    if (f > 0.5) f = x - (whole + 1);
    const double cotangent = f == 0.5 ? 0 : kPi / std::tan(kPi * f);
    return PositiveDigamma(1 - x) - cotangent;
}

}  // namespace quorvan
