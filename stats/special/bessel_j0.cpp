#include "stats/special/bessel_j0.h"

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

// Cephes Math Library, S. L. Moshier: j0.
// Squares of the first two zeros of J0.
constexpr double kZero1 = 5.78318596294678452118E0, kZero2 = 3.04712623436620863991E1;
constexpr double kRP[] = {-4.79443220978201773821E9, 1.95617491946556577543E12, -2.49248344360967716204E14,
                          9.70862251047306323952E15};
constexpr double kRQ[] = {4.99563147152651017219E2,  1.73785401676374683123E5,  4.84409658339962045305E7,
                          1.11855537045356834862E10, 2.11277520115489217587E12, 3.10518229857422583814E14,
                          3.18121955943204943306E16, 1.71086294081043136091E18};
constexpr double kYP[] = {1.55924367855235737965E4,   -1.46639295903971606143E7, 5.43526477051876500413E9,
                          -9.82136065717911466409E11, 8.75906394395366999549E13, -3.46628303384729719441E15,
                          4.42733268572569800351E16,  -1.84950800436986690637E16};
constexpr double kYQ[] = {1.04128353664259848412E3,  6.26107330137134956842E5,  2.68919633393814121987E8,
                          8.64002487103935000337E10, 2.02979612750105546709E13, 3.17157752842975028269E15,
                          2.50596256172653059228E17};
constexpr double kPP[] = {7.96936729297347051624E-4, 8.28352392107440799803E-2, 1.23953371646414299388E0,
                          5.44725003058768775090E0,  8.74716500199817011941E0,  5.30324038235394892183E0,
                          9.99999999999999997821E-1};
constexpr double kPQ[] = {9.24408810558863637013E-4, 8.56288474354474431428E-2, 1.25352743901058953537E0,
                          5.47097740330417105182E0,  8.76190883237069594232E0,  5.30605288235394617618E0,
                          1.00000000000000000218E0};
constexpr double kQP[] = {-1.13663838898469149931E-2, -1.28252718670509318512E0, -1.95539544257735972385E1,
                          -9.32060152123768231369E1,  -1.77681167980488050595E2, -1.47077505154951170175E2,
                          -5.14105326766599330220E1,  -6.05014350600728481186E0};
constexpr double kQQ[] = {6.43178256118178023184E1, 8.56430025976980587198E2, 3.88240183605401609683E3,
                          7.24046774195652478189E3, 5.93072701187316984827E3, 2.06209331660327847417E3,
                          2.42005740240291393179E2};

constexpr PhaseTables kPhase(kPP, kPQ, kQP, kQQ);

// The sum for small |x|, short of the factor x of order 1.
double SmallJ(double z) noexcept {
    const PolynomialPair r = Polynomials<true>(z, kRP, kRQ);
    return (z - kZero1) * (z - kZero2) * r.first / r.second;
}

// x > 5.
QV_INLINE BesselPair Large(double x) noexcept { return PhasePair<0>(x, kPhase); }

}  // namespace

double SpecBesselJ0(double x) noexcept {
    if (x < 0) x = -x;  // not fabs, which the compiler takes from the cosine only: it would part the pair of calls
    if (x <= 5) return x < 1e-5 ? 1 - x * x / 4 : SmallJ(x * x);
    return x == kInf ? 0 : Large(x).j;
}

double SpecBesselY0(double x) noexcept {
    if (std::isnan(x) || x < 0) return kNaN;
    if (x == 0) return -kInf;
    if (x == kInf) return 0;
    if (x > 5) return Large(x).y;
    const double z = x * x;
    const PolynomialPair r = Polynomials<true>(z, kYP, kYQ);
    return r.first / r.second + kTwoOverPi * std::log(x) * SpecBesselJ0(x);
}

}  // namespace quorvan
