#include "stats/special/dilogarithm.h"

#include <cmath>
#include <limits>

#include "stats/special/polynomial.h"

namespace quorvan {

double SpecDilogarithm(double x) noexcept {
    // -Li2(-w) = -w A(w)/B(w) on [-1/2, 1/2]. Cephes Math Library, S. L. Moshier: spence.
    static constexpr double kA[] = {4.65128586073990045278E-5, 7.31589045238094711071E-3, 1.33847639578309018650E-1,
                                    8.79691311754530315341E-1, 2.71149851196553469920E0,  4.25697156008121755724E0,
                                    3.29771340985225106936E0,  1.00000000000000000126E0};
    static constexpr double kB[] = {6.90990488912553276999E-4, 2.54043763932544379113E-2, 2.82974860602568089943E-1,
                                    1.41172597751831069617E0,  3.63800533345137075418E0,  5.03278880143316990390E0,
                                    3.54771340985225096217E0,  9.99999999999999998740E-1};
    constexpr double kPiSquaredBySix = 1.6449340668482264;
    if (std::isnan(x) || x < 0) return std::numeric_limits<double>::quiet_NaN();
    if (x == 1) return 0;
    if (x == 0) return kPiSquaredBySix;
    if (std::isinf(x)) return -x;

    bool inverted = x > 1.5, reflected = false;
    if (x > 2) x = 1 / x;
    double w;
    if (x > 1.5) {
        w = 1 / x - 1;
    } else if (x < 0.5) {
        w = -x;
        reflected = true;
    } else {
        w = x - 1;
    }
    double y = -w * Polynomial(w, kA) / Polynomial(w, kB);
    const double logarithm = std::log(x);
    if (reflected) y = kPiSquaredBySix - logarithm * std::log1p(-x) - y;
    if (inverted) y = -0.5 * logarithm * logarithm - y;
    return y;
}

}  // namespace quorvan
