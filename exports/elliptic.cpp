// Entries of the elliptic, hypergeometric and integral functions. They return the value itself, or fill the caller's
// doubles, without a status.
#include "frame/entry.h"
#include "quorvan/quorvan.h"
#include "stats/special/dawson.h"
#include "stats/special/elliptic_integrals.h"
#include "stats/special/exponential_integral.h"
#include "stats/special/fresnel.h"
#include "stats/special/gauss_hypergeometric.h"
#include "stats/special/hyperbolic_integral.h"
#include "stats/special/hypergeometric.h"
#include "stats/special/jacobi_elliptic.h"
#include "stats/special/parabolic_cylinder.h"
#include "stats/special/sine_integral.h"
#include "stats/special/tricomi.h"

using namespace quorvan;

QV_EXPORT double ZemFunc315(double x, double a, double b, double c) { return SpecHyperg2F1Transformed(x, a, b, c); }

QV_EXPORT double ZemFunc316(double x, double a, double b) { return SpecHyperg1F1(x, a, b); }

QV_EXPORT double ZemFunc317(double x, double a, double b) { return SpecHypergU(x, a, b); }

// A null address, not a zero value, selects the complete integral.
QV_EXPORT double ZemFunc318(double m, const double* phi) { return phi ? SpecEllipticF(*phi, m) : SpecEllipticK(m); }

QV_EXPORT double ZemFunc319(double m, const double* phi) {
    return phi ? SpecEllipticEIncomplete(*phi, m) : SpecEllipticE(m);
}

QV_EXPORT double ZemFunc320(double x) { return SpecDawson(x); }

QV_EXPORT double ZemFunc321(double x, std::int32_t n) { return SpecExpIntegralN(x, n); }

QV_EXPORT double ZemFunc322(double x) { return SpecSineIntegral(x); }

QV_EXPORT double ZemFunc323(double x) { return SpecCosineIntegral(x); }

QV_EXPORT double ZemFunc324(double x) { return SpecHyperbolicCosineIntegral(x); }

QV_EXPORT double ZemFunc325(double x) { return SpecHyperbolicSineIntegral(x); }

QV_EXPORT double ZemFunc327(double x, double v) { return SpecParabolicCylinder(v, x); }

QV_EXPORT void ZemFunc331(double x, double* s, double* c) { SpecFresnel(x, s, c); }

QV_EXPORT void ZemFunc332(double u, double m, double* sn, double* cn, double* dn, double* phi) {
    SpecJacobiElliptic(u, m, sn, cn, dn, phi);
}

QV_EXPORT double ZemFunc386(double x, double a, double b, double c) { return SpecHyperg2F1(x, a, b, c); }
