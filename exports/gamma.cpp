// Entries of the gamma family. They return the value itself, without a status.
#include "stats/special/gamma.h"

#include "frame/entry.h"
#include "quorvan/quorvan.h"
#include "stats/special/beta.h"
#include "stats/special/digamma.h"
#include "stats/special/dilogarithm.h"
#include "stats/special/factorial.h"
#include "stats/special/incomplete_beta.h"
#include "stats/special/incomplete_gamma.h"
#include "stats/special/ln_gamma.h"
#include "stats/special/zeta.h"

using namespace quorvan;

// A null address, not a zero value, selects the complete function.
QV_EXPORT double ZemFunc307(double a, double b, const double* x) {
    return x ? SpecIncompleteBeta(a, b, *x) : SpecBeta(a, b);
}

QV_EXPORT double ZemFunc308(std::int64_t n) { return SpecFactorial(n); }

QV_EXPORT double ZemFunc309(double a, const double* x) { return x ? SpecIncompleteGamma(a, *x) : SpecGamma(a); }

QV_EXPORT double ZemFunc310(double a, double x) { return SpecIncompleteGammaComplement(a, x); }

QV_EXPORT double ZemFunc311(std::uint32_t n) { return SpecLnFactorial(n); }

QV_EXPORT double ZemFunc312(double x) { return SpecLnGamma(x); }

QV_EXPORT double ZemFunc313(double x) { return SpecDigamma(x); }

QV_EXPORT double ZemFunc314(double x) { return SpecGammaStirling(x); }

QV_EXPORT double ZemFunc326(double x) { return SpecDilogarithm(x); }

QV_EXPORT double ZemFunc329(double x) { return SpecZeta(x); }
