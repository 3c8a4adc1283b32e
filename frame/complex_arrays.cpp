#include "frame/complex_arrays.h"

#include "frame/array_search.h"
#include "frame/arrays.h"
#include "frame/complex.h"
#include "frame/complex_loops.h"
#include "frame/status.h"

namespace quorvan {
namespace {

Status Combined(ComplexBinaryLoop* loop, const double* aRe, const double* aIm, const double* bRe, const double* bIm,
                Count n, double* outRe, double* outIm) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    loop(aRe, aIm, bRe, bIm, n, outRe, outIm);
    return status::kSuccess;
}

}  // namespace

Status CxArrAdd(const double* aRe, const double* aIm, const double* bRe, const double* bIm, Count n, double* outRe,
                double* outIm) noexcept {
    return Combined(kComplexLoops().add, aRe, aIm, bRe, bIm, n, outRe, outIm);
}

Status CxArrSubtract(const double* aRe, const double* aIm, const double* bRe, const double* bIm, Count n, double* outRe,
                     double* outIm) noexcept {
    return Combined(kComplexLoops().subtract, aRe, aIm, bRe, bIm, n, outRe, outIm);
}

Status CxArrMultiply(const double* aRe, const double* aIm, const double* bRe, const double* bIm, Count n, double* outRe,
                     double* outIm) noexcept {
    return Combined(kComplexLoops().multiply, aRe, aIm, bRe, bIm, n, outRe, outIm);
}

Status CxArrDivide(const double* aRe, const double* aIm, const double* bRe, const double* bIm, Count n, double* outRe,
                   double* outIm) noexcept {
    return Combined(kComplexLoops().divide, aRe, aIm, bRe, bIm, n, outRe, outIm);
}

Status CxArrToPolar(double* re, double* im, Count n, double* outMagnitude, double* outPhase) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    double* magnitude = InPlaceIfNull(outMagnitude, re);
    double* phase = InPlaceIfNull(outPhase, im);
    for (Count i = 0; i < n; ++i) {
        const Polar polar = CxToPolar({re[i], im[i]});
        magnitude[i] = polar.magnitude;
        phase[i] = polar.phase;
    }
    return status::kSuccess;
}

Status CxArrFromPolar(double* magnitude, double* phase, Count n, double* outRe, double* outIm) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    double* re = InPlaceIfNull(outRe, magnitude);
    double* im = InPlaceIfNull(outIm, phase);
    for (Count i = 0; i < n; ++i) {
        const ComplexRecord z = CxFromPolar(magnitude[i], phase[i]);
        re[i] = z.re;
        im[i] = z.im;
    }
    return status::kSuccess;
}

Status CxArrLinearEval(double* re, double* im, Count n, ComplexRecord a, ComplexRecord b, double* outRe,
                       double* outIm) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    kComplexLoops().linear(re, im, n, a, b, InPlaceIfNull(outRe, re), InPlaceIfNull(outIm, im));
    return status::kSuccess;
}

bool CxHasNonFinite(const ComplexRecord* x, Count n) noexcept {
    return n > 0 && kArraySearch().has_non_finite(&x->re, 2 * Size{n});
}

}  // namespace quorvan
