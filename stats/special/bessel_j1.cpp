#include "stats/special/bessel_j1.h"

#include <cmath>
#include <limits>

#include "frame/targets.h"
#include "frame/types.h"
#include "stats/special/bessel_phase.h"
#include "stats/special/polynomial_pair.h"

namespace quorvan {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr double kTwoOverPi = 0.63661977236758134308;

// Cephes Math Library, S. L. Moshier: j1.
// Squares of the first two zeros of J1.
constexpr double kZero1 = 1.46819706421238932572E1, kZero2 = 4.92184563216946036703E1;
constexpr double kRP[] = {-8.99971225705559398224E8, 4.52228297998194034323E11, -7.27494245221818276015E13,
                          3.68295732863852883286E15};
constexpr double kRQ[] = {6.20836478118054335476E2,  2.56987256757748830383E5,  8.35146791431949253037E7,
                          2.21511595479792499675E10, 4.74914122079991414898E12, 7.84369607876235854894E14,
                          8.95222336184627338078E16, 5.32278620332680085395E18};
constexpr double kYP[] = {1.26320474790178026440E9,   -6.47355876379160291031E11, 1.14509511541823727583E14,
                          -8.12770255501325109621E15, 2.02439475713594898196E17,  -7.78877196265950026825E17};
constexpr double kYQ[] = {5.94301592346128195359E2,  2.35564092943068577943E5,  7.34811944459721705660E7,
                          1.87601316108706159478E10, 3.88231277496238566008E12, 6.20557727146953693363E14,
                          6.87141087355300489866E16, 3.97270608116560655612E18};
constexpr double kPP[] = {7.62125616208173112003E-4, 7.31397056940917570436E-2, 1.12719608129684925192E0,
                          5.11207951146807644818E0,  8.42404590141772420927E0,  5.21451598682361504063E0,
                          1.00000000000000000254E0};
constexpr double kPQ[] = {5.71323128072548699714E-4, 6.88455908754495404082E-2, 1.10514232634061696926E0,
                          5.07386386128601488557E0,  8.39985554327604159757E0,  5.20982848682361821619E0,
                          9.99999999999999997461E-1};
constexpr double kQP[] = {5.10862594750176621635E-2, 4.98213872951233449420E0, 7.58238284132545283818E1,
                          3.66779609360150777800E2,  7.10856304998926107277E2, 5.97489612400613639965E2,
                          2.11688757100572135698E2,  2.52070205858023719784E1};
constexpr double kQQ[] = {7.42373277035675149943E1, 1.05644886038262816351E3, 4.98641058337653607651E3,
                          9.56231892404756170795E3, 7.99704160447350683650E3, 2.82619278517639096600E3,
                          3.36093607810698293419E2};

constexpr PhaseTables kPhase(kPP, kPQ, kQP, kQQ);

// The sum for small |x|, short of the factor x of order 1.
double SmallJ(double z) noexcept {
    const PolynomialPair r = Polynomials<true>(z, kRP, kRQ);
    return (z - kZero1) * (z - kZero2) * r.first / r.second;
}

// x > 5.
QV_INLINE BesselPair Large(double x) noexcept { return PhasePair<1>(x, kPhase); }

}  // namespace

double SpecBesselJ1(double x) noexcept {
    const double magnitude = x < 0 ? -x : x;  // not fabs, which the compiler takes from the cosine only
    if (magnitude <= 5) return x * SmallJ(x * x);
    if (magnitude == kInf) return 0;
    return std::copysign(1, x) * Large(magnitude).j;
}

double SpecBesselY1(double x) noexcept {
    if (std::isnan(x) || x < 0) return kNaN;
    if (x == 0) return -kInf;
    if (x == kInf) return 0;
    if (x > 5) return Large(x).y;
    const double z = x * x;
    const PolynomialPair r = Polynomials<true>(z, kYP, kYQ);
    return x * r.first / r.second + kTwoOverPi * (SpecBesselJ1(x) * std::log(x) - 1 / x);
}

}  // namespace quorvan
