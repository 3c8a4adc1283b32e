#include "stats/special/airy.h"

#include <cmath>
#include <limits>

#include "frame/types.h"
#include "stats/special/double_double.h"
#include "stats/special/polynomial.h"

namespace quorvan {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr double kLimit = 103.892;
constexpr double kCut = 2.09;
constexpr double kGrowingCut = 8.3203353;
constexpr double kOneOverSqrtPi = 0.5641895835477563;
constexpr double kSqrtHalf = 0.70710678118654752440;
constexpr double kC1 = 0.35502805388781723926, kC2 = 0.258819403792806798405;  // Ai(0), -Ai'(0)
constexpr double kSqrt3 = 1.732050807568877293527;

// Cephes Math Library, S. L. Moshier: airy. A is Ai, B is Bi, P a derivative; F and G the amplitudes for x < 0.
constexpr double kAN[] = {3.46538101525629032477E-1, 1.20075952739645805542E1, 7.62796053615234516538E1,
                          1.68089224934630576269E2,  1.59756391350164413639E2, 7.05360906840444183113E1,
                          1.40264691163389668864E1,  9.99999999999999995305E-1};
constexpr double kAD[] = {5.67594532638770212846E-1, 1.47562562584847203173E1, 8.45138970141474626562E1,
                          1.77318088145400459522E2,  1.64234692871529701831E2, 7.14778400825575695274E1,
                          1.40959135607834029598E1,  1.00000000000000000470E0};
constexpr double kAPN[] = {6.13759184814035759225E-1, 1.47454670787755323881E1, 8.20584123476060982430E1,
                           1.71184781360976385540E2,  1.59317847137141783523E2, 6.99778599330103016170E1,
                           1.39470856980481566958E1,  1.00000000000000000550E0};
constexpr double kAPD[] = {3.34203677749736953049E-1, 1.11810297306158156705E1, 7.11727352147859965283E1,
                           1.58778084372838313640E2,  1.53206427475809220834E2, 6.86752304592780337944E1,
                           1.38498634758259442477E1,  9.99999999999999994502E-1};
constexpr double kBN16[] = {-2.53240795869364152689E-1, 5.75285167332467384228E-1, -3.29907036873225371650E-1,
                            6.44404068948199951727E-2, -3.82519546641336734394E-3};
constexpr double kBD16[] = {-7.15685095054035237902E0, 1.06039580715664694291E1, -5.23246636471251500874E0,
                            9.57395864378383833152E-1, -5.50828147163549611107E-2};
constexpr double kBPPN[] = {4.65461162774651610328E-1, -1.08992173800493920734E0, 6.38800117371827987759E-1,
                            -1.26844349553102907034E-1, 7.62487844342109852105E-3};
constexpr double kBPPD[] = {-8.70622787633159124240E0, 1.38993162704553213172E1, -7.14116144616431159572E0,
                            1.34008595960680518666E0, -7.84273211323341930448E-2};
constexpr double kAFN[] = {-1.31696323418331795333E-1, -6.26456544431912369773E-1, -6.93158036036933542233E-1,
                           -2.79779981545119124951E-1, -4.91900132609500318020E-2, -4.06265923594885404393E-3,
                           -1.59276496239262096340E-4, -2.77649108155232920844E-6, -1.67787698489114633780E-8};
constexpr double kAFD[] = {1.33560420706553243746E1,  3.26825032795224613948E1,  2.67367040941499554804E1,
                           9.18707402907259625840E0,  1.47529146771666414581E0,  1.15687173795188044134E-1,
                           4.40291641615211203805E-3, 7.54720348287414296618E-5, 4.51850092970580378464E-7};
constexpr double kAGN[] = {1.97339932091685679179E-2, 3.91103029615688277255E-1, 1.06579897599595591108E0,
                           9.39169229816650230044E-1, 3.51465656105547619242E-1, 6.33888919628925490927E-2,
                           5.85804113048388458567E-3, 2.82851600836737019778E-4, 6.98793669997260967291E-6,
                           8.11789239554389293311E-8, 3.41551784765923618484E-10};
constexpr double kAGD[] = {9.30892908077441974853E0,  1.98352928718312140417E1,  1.55646628932864612953E1,
                           5.47686069422975497931E0,  9.54293611618961883998E-1, 8.64580826352392193095E-2,
                           4.12656523824222607191E-3, 1.01259085116509135510E-4, 1.17166733214413521882E-6,
                           4.91834570062930015649E-9};
constexpr double kAPFN[] = {1.85365624022535566142E-1, 8.86712188052584095637E-1, 9.87391981747398547272E-1,
                            4.01241082318003734092E-1, 7.10304926289631174579E-2, 5.90618657995661810071E-3,
                            2.33051409401776799569E-4, 4.08718778289035454598E-6, 2.48379932900442457853E-8};
constexpr double kAPFD[] = {1.47345854687502542552E1,  3.75423933435489594466E1,  3.14657751203046424330E1,
                            1.09969125207298778536E1,  1.78885054766999417817E0,  1.41733275753662636873E-1,
                            5.44066067017226003627E-3, 9.39421290654511171663E-5, 5.65978713036027009243E-7};
constexpr double kAPGN[] = {-3.55615429033082288335E-2, -6.37311518129435504426E-1, -1.70856738884312371053E0,
                            -1.50221872117316635393E0,  -5.63606665822102676611E-1, -1.02101031120216891789E-1,
                            -9.48396695961445269093E-3, -4.60325307486780994357E-4, -1.14300836484517375919E-5,
                            -1.33415518685547420648E-7, -5.63803833958893494476E-10};
constexpr double kAPGD[] = {9.85865801696130355144E0,  2.16401867356585941885E1,  1.73130776389749389525E1,
                            6.17872175280828766327E0,  1.08848694396321495475E0,  9.95005543440888479402E-2,
                            4.78468199683886610842E-3, 1.18159633322838625562E-4, 1.37480673554219441465E-6,
                            5.79912514929147598821E-9};

AiryValues Oscillating(double x, double zeta, double zeta_rest) noexcept {
    const double root = std::sqrt(std::sqrt(-x)), z = 1 / zeta, zz = z * z;
    // Sine and cosine of zeta + zeta_rest, then of an eighth of a turn more.
    const double s0 = std::sin(zeta), c0 = std::cos(zeta);
    double s1 = s0 + zeta_rest * c0, c1 = c0 - zeta_rest * s0;
    if (std::fabs(zeta_rest) > 1e-8) {  // not small any more
        const double s = std::sin(zeta_rest), c = std::cos(zeta_rest);
        s1 = s0 * c + c0 * s;
        c1 = c0 * c - s0 * s;
    }
    const double s = kSqrtHalf * (s1 + c1), c = kSqrtHalf * (c1 - s1);
    double f = 1 + zz * Polynomial(zz, kAFN) / MonicPolynomial(zz, kAFD);
    double g = z * Polynomial(zz, kAGN) / MonicPolynomial(zz, kAGD);
    AiryValues out;
    double k = kOneOverSqrtPi / root;
    out.ai = k * (s * f - c * g);
    out.bi = k * (c * f + s * g);
    f = 1 + zz * Polynomial(zz, kAPFN) / MonicPolynomial(zz, kAPFD);
    g = z * Polynomial(zz, kAPGN) / MonicPolynomial(zz, kAPGD);
    k = kOneOverSqrtPi * root;
    out.ai_slope = -k * (c * f + s * g);
    out.bi_slope = k * (s * f - c * g);
    return out;
}

AiryValues Maclaurin(double x) noexcept {
    const double z = x * x * x;
    double f = 1, g = x, term_f = 1, term_g = x, k = 1;
    do {
        term_f *= z / ((k + 1) * (k + 2));
        term_g *= z / ((k + 2) * (k + 3));
        f += term_f;
        g += term_g;
        k += 3;
    } while (std::fabs(term_f) > kEpsilon * std::fabs(f) || std::fabs(term_g) > kEpsilon * std::fabs(g));

    // f' = x^2/2 (1 + x^3/(3 5) + ...), g' = 1 + x^3/3 (1 + x^3/(4 6) + ...).
    double slope_f = x * x / 2, slope_g = 1;
    term_f = slope_f;
    term_g = 1;
    k = 3;
    do {
        term_f *= z / (k * (k + 2));
        term_g *= z / (k * (k - 2));
        slope_f += term_f;
        slope_g += term_g;
        k += 3;
    } while (std::fabs(term_f) > kEpsilon * std::fabs(slope_f) || std::fabs(term_g) > kEpsilon * std::fabs(slope_g));
    return {kC1 * f - kC2 * g, kSqrt3 * (kC1 * f + kC2 * g), kC1 * slope_f - kC2 * slope_g,
            kSqrt3 * (kC1 * slope_f + kC2 * slope_g)};
}

// Ai for 0.5 < x <= 2.09, where c1 f and c2 g cancel by up to 35: the same sums in double-doubles.
double CancelledAi(double x) noexcept {
    constexpr DoubleDouble kFirst{0.3550280538878172, 2.05233632436212e-17},
        kSecond{-0.2588194037928068, 2.522243111610832e-17};  // Ai(0), Ai'(0)
    const DoubleDouble z = ExactProduct(x, x) * DoubleDouble{x, 0};
    DoubleDouble f{1, 0}, g{x, 0}, term_f = f, term_g = g;
    double k = 1;
    do {
        term_f = term_f * z / DoubleDouble{(k + 1) * (k + 2), 0};
        term_g = term_g * z / DoubleDouble{(k + 2) * (k + 3), 0};
        f = f + term_f;
        g = g + term_g;
        k += 3;
    } while (term_f.high > 1e-20 || term_g.high > 1e-20);
    return (kFirst * f + kSecond * g).high;
}

// x > 2.09: Ai, and from 8.32 on Bi, whose part of `out` is else left as it is.
void Exponential(double x, double zeta, double zeta_rest, AiryValues* out) noexcept {
    const double root = std::sqrt(std::sqrt(x)), z = 1 / zeta;
    const double decay = std::exp(-zeta) * (1 - zeta_rest);
    out->ai = 0.5 * kOneOverSqrtPi / root * decay * (Polynomial(z, kAN) / Polynomial(z, kAD));
    out->ai_slope = -0.5 * kOneOverSqrtPi * root * decay * (Polynomial(z, kAPN) / Polynomial(z, kAPD));
    if (x <= kGrowingCut) return;
    const double growth = std::exp(zeta) * (1 + zeta_rest);
    out->bi = kOneOverSqrtPi / root * growth * (1 + z * Polynomial(z, kBN16) / MonicPolynomial(z, kBD16));
    out->bi_slope = kOneOverSqrtPi * root * growth * (1 + z * Polynomial(z, kBPPN) / MonicPolynomial(z, kBPPD));
}

// (2/3) a^(3/2) as a sum of two doubles.
double Zeta(double a, double* rest) noexcept {
    constexpr double kTwoThirds = 2.0 / 3, kTwoThirdsRest = 3.700743415417188e-17;  // exact sum 2/3
    const double root = std::sqrt(a), root_rest = std::fma(-root, root, a) / (2 * root);
    const double cube = a * root, cube_rest = std::fma(a, root, -cube) + a * root_rest;
    const double zeta = kTwoThirds * cube;
    *rest = std::fma(kTwoThirds, cube, -zeta) + kTwoThirdsRest * cube + kTwoThirds * cube_rest;
    return zeta;
}

AiryValues Everywhere(double x) noexcept {
    if (std::isnan(x)) return {kNaN, kNaN, kNaN, kNaN};
    if (x > kLimit) return {0, kInf, -0.0, kInf};
    if (std::fabs(x) <= kCut) {
        AiryValues out = Maclaurin(x);
        if (x > 0.5) out.ai = CancelledAi(x);
        return out;
    }
    if (x < -1e200) return {0, 0, 0, 0};  // (-x)^(3/2) would overflow; the phase is long lost
    double rest;
    const double zeta = Zeta(std::fabs(x), &rest);
    return AiryOfZeta(x, zeta, rest);
}

}  // namespace

AiryValues AiryOfZeta(double x, double zeta, double zeta_rest) noexcept {
    if (x < -kCut) return Oscillating(x, zeta, zeta_rest);
    AiryValues out{};
    if (x <= kGrowingCut) out = Maclaurin(x);
    if (x > kCut) Exponential(x, zeta, zeta_rest, &out);
    return out;
}

void SpecAiry(double x, double* ai, double* bi, double* ai_slope, double* bi_slope) noexcept {
    const AiryValues out = Everywhere(x);
    *ai = out.ai;
    *bi = out.bi;
    if (ai_slope) *ai_slope = out.ai_slope;
    if (bi_slope) *bi_slope = out.bi_slope;
}

}  // namespace quorvan
