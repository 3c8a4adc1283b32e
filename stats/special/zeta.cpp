#include "stats/special/zeta.h"

#include <cmath>
#include <limits>

#include "frame/types.h"
#include "stats/special/gamma.h"
#include "stats/special/polynomial.h"

namespace quorvan {
namespace {

// All tables: Cephes Math Library, S. L. Moshier: zetac.

// zeta(n) - 1 for n = 0 to 30; the pole's place is never read.
constexpr double kWhole[] = {
    -1.50000000000000000000E0, 1.70141183460469231730E38, 6.44934066848226436472E-1, 2.02056903159594285400E-1,
    8.23232337111381915160E-2, 3.69277551433699263314E-2, 1.73430619844491397145E-2, 8.34927738192282683980E-3,
    4.07735619794433937869E-3, 2.00839282608221441785E-3, 9.94575127818085337146E-4, 4.94188604119464558702E-4,
    2.46086553308048298638E-4, 1.22713347578489146752E-4, 6.12481350587048292585E-5, 3.05882363070204935517E-5,
    1.52822594086518717326E-5, 7.63719763789976227360E-6, 3.81729326499983985646E-6, 1.90821271655393892566E-6,
    9.53962033872796113152E-7, 4.76932986787806463117E-7, 2.38450502727732990004E-7, 1.19219925965311073068E-7,
    5.96081890512594796124E-8, 2.98035035146522801861E-8, 1.49015548283650412347E-8, 7.45071178983542949198E-9,
    3.72533402478845705482E-9, 1.86265972351304900640E-9, 9.31327432419668182872E-10};

// 0 <= x < 1: R(x) / ((1 - x) S(x)).
double BelowPole(double x) noexcept {
    static constexpr double kR[] = {-3.28717474506562731748E-1, 1.55162528742623950834E1, -2.48762831680821954401E2,
                                    1.01050368053237678329E3,   1.26726061410235149405E4, -1.11578094770515181334E5};
    static constexpr double kS[] = {1.95107674914060531512E1, 3.17710311750646984099E2, 3.03835500874445748734E3,
                                    2.03665876435770579345E4, 7.43853965136767874343E4};
    return Polynomial(x, kR) / ((1 - x) * MonicPolynomial(x, kS));
}

// 1 < x <= 10: x P(1/x) / (2^x (x - 1) Q(1/x)). x - 1 comes apart: near the pole it may be known better than x.
double AbovePole(double x, double x_minus_1) noexcept {
    static constexpr double kP[] = {5.85746514569725319540E11, 2.57534127756102572888E11, 4.87781159567948256438E10,
                                    5.15399538023885770696E9,  3.41646073514754094281E8,  1.60837006880656492731E7,
                                    5.92785467342109522998E5,  1.51129169964938823117E4,  2.01822444485997955865E2};
    static constexpr double kQ[] = {3.90497676373371157516E11, 5.22858235368272161797E10, 5.64451517271280543351E9,
                                    3.39006746015350418834E8,  1.79410371500126453702E7,  5.66666825131384797029E5,
                                    1.60382976810944131506E4,  1.96436237223387314144E2};
    const double w = 1 / x;
    return x * Polynomial(w, kP) / (std::exp2(x) * x_minus_1 * MonicPolynomial(w, kQ));
}

// 10 < x <= 50: e^(A(x)/B(x)) + 2^-x.
double Middle(double x) noexcept {
    static constexpr double kA[] = {8.70728567484590192539E6,  1.76506865670346462757E8,   2.60889506707483264896E10,
                                    5.29806374009894791647E11, 2.26888156119238241487E13,  3.31884402932705083599E14,
                                    5.13778997975868230192E15, -1.98123688133907171455E15, -9.92763810039983572356E16,
                                    7.82905376180870586444E16, 9.26786275768927717187E16};
    static constexpr double kB[] = {-7.92625410563741061862E6,  -1.60529969932920229676E8,  -2.37669260975543221788E10,
                                    -4.80319584350455169857E11, -2.07820961754173320170E13, -2.96075404507272223680E14,
                                    -4.86299103694609136686E15, 5.34589509675789930199E15,  5.71464111092297631292E16,
                                    -1.79915597658676556828E16};
    return std::exp(Polynomial(x, kA) / MonicPolynomial(x, kB)) + std::exp2(-x);
}

// 50 < x < 127: with s = 3^-x + 5^-x + ..., zeta(x) (1 - 2^-x) = 1 + s.
double Tail(double x) noexcept {
    double sum = 0, base = 1, term;
    do {
        base += 2;
        term = std::pow(base, -x);
        sum += term;
    } while (term > kEpsilon * sum);
    const double half = std::exp2(-x);
    return (sum + half) / (1 - half);
}

// x >= 0, not 1; zeta(x) - 1.
double RightHalf(double x) noexcept {
    if (x >= 127) return 0;
    if (x <= 30 && x == std::floor(x)) return kWhole[static_cast<int>(x)];
    if (x < 1) return BelowPole(x);
    if (x <= 10) return AbovePole(x, x - 1);
    return x <= 50 ? Middle(x) : Tail(x);
}

// -30.8148 <= x < 0: zeta(x) = 2 (2 pi)^(x-1) sin(pi x/2) Gamma(1-x) zeta(1-x).
double Reflected(double x) noexcept {
    if (x > -1e-17) return kWhole[0];  // 1/x might overflow, and zeta(x) is zeta(0) to the last bit
    const double u = 1 - x;
    const bool tabled = u <= 30 && u == std::floor(u) && u != 1;
    const double zeta = 1 + (tabled || u > 10 ? RightHalf(u) : AbovePole(u, -x));
    // sin(pi x/2) from the distance to the nearest even integer, so that it is good beside its zeros and 0 at them.
    const double half = std::nearbyint(0.5 * x);
    const double sine = std::sin(0.5 * kPi * (x - 2 * half)) * (std::fmod(half, 2) != 0 ? -1 : 1);
    return sine * std::pow(kTwoPi, x) * GammaValue(u) * zeta / kPi - 1;
}

}  // namespace

double SpecZeta(double x) noexcept {
    if (std::isnan(x) || x < -30.8148) return std::numeric_limits<double>::quiet_NaN();
    if (x == 1) return std::numeric_limits<double>::infinity();
    return x < 0 ? Reflected(x) : RightHalf(x);
}

}  // namespace quorvan
