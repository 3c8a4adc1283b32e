// Entries of the complex arithmetic.
#include "frame/complex.h"

#include "frame/complex_arrays.h"
#include "frame/entry.h"
#include "quorvan/quorvan.h"

using namespace quorvan;

namespace {

// Hands a result to the two addresses of a caller.
Status Given(ComplexRecord result, double* re, double* im) {
    *re = result.re;
    *im = result.im;
    return status::kSuccess;
}

// The same for an operation that can fail, and then writes nothing: GivenBy(re, im, CxLog, z).
template <class Operation, class... Arguments>
Status GivenBy(double* re, double* im, Operation operation, Arguments... arguments) {
    ComplexRecord result;
    const Status status = operation(arguments..., &result);
    return status < 0 ? status : Given(result, re, im);
}

}  // namespace

// Scalars

QV_EXPORT Status ZemFunc38(double a, double b, double c, double d, double* re, double* im) {
    return Given(CxAdd({a, b}, {c, d}), re, im);
}

QV_EXPORT Status ZemFunc51(double a, double b, double c, double d, double* re, double* im) {
    return Given(CxSubtract({a, b}, {c, d}), re, im);
}

QV_EXPORT Status ZemFunc46(double a, double b, double c, double d, double* re, double* im) {
    return Given(CxMultiply({a, b}, {c, d}), re, im);
}

QV_EXPORT Status ZemFunc40(double a, double b, double c, double d, double* re, double* im) {
    return Given(CxDivide({a, b}, {c, d}), re, im);
}

QV_EXPORT Status ZemFunc49(double a, double b, double* re, double* im) {
    return GivenBy(re, im, CxReciprocal, ComplexRecord{a, b});
}

QV_EXPORT Status ZemFunc50(double a, double b, double* re, double* im) { return Given(CxSqrt({a, b}), re, im); }

QV_EXPORT Status ZemFunc42(double a, double b, double* re, double* im) { return Given(CxExp({a, b}), re, im); }

QV_EXPORT Status ZemFunc44(double a, double b, double* re, double* im) {
    return GivenBy(re, im, CxLog, ComplexRecord{a, b});
}

QV_EXPORT Status ZemFunc45(double a, double b, double* re, double* im) {
    return GivenBy(re, im, CxLog10, ComplexRecord{a, b});
}

QV_EXPORT Status ZemFunc48(double a, double b, double p, double* re, double* im) {
    return GivenBy(re, im, CxPow, ComplexRecord{a, b}, p);
}

QV_EXPORT Status ZemFunc172(double re, double im, double* magnitude, double* phase) {
    const Polar polar = CxToPolar({re, im});
    *magnitude = polar.magnitude;
    *phase = polar.phase;
    return status::kSuccess;
}

QV_EXPORT Status ZemFunc174(double magnitude, double phase, double* re, double* im) {
    return Given(CxFromPolar(magnitude, phase), re, im);
}

// Split arrays

QV_EXPORT Status ZemFunc39(const double* aRe, const double* aIm, const double* bRe, const double* bIm, Size n,
                           double* outRe, double* outIm) {
    return narrowed(n, [&](Count n) { return CxArrAdd(aRe, aIm, bRe, bIm, n, outRe, outIm); });
}

QV_EXPORT Status ZemFunc52(const double* aRe, const double* aIm, const double* bRe, const double* bIm, Size n,
                           double* outRe, double* outIm) {
    return narrowed(n, [&](Count n) { return CxArrSubtract(aRe, aIm, bRe, bIm, n, outRe, outIm); });
}

QV_EXPORT Status ZemFunc47(const double* aRe, const double* aIm, const double* bRe, const double* bIm, Size n,
                           double* outRe, double* outIm) {
    return narrowed(n, [&](Count n) { return CxArrMultiply(aRe, aIm, bRe, bIm, n, outRe, outIm); });
}

QV_EXPORT Status ZemFunc41(const double* aRe, const double* aIm, const double* bRe, const double* bIm, Size n,
                           double* outRe, double* outIm) {
    return narrowed(n, [&](Count n) { return CxArrDivide(aRe, aIm, bRe, bIm, n, outRe, outIm); });
}

QV_EXPORT Status ZemFunc173(double* re, double* im, Size n, double* outMagnitude, double* outPhase) {
    return narrowed(n, [&](Count n) { return CxArrToPolar(re, im, n, outMagnitude, outPhase); });
}

QV_EXPORT Status ZemFunc232(double* magnitude, double* phase, Size n, double* outRe, double* outIm) {
    return narrowed(n, [&](Count n) { return CxArrFromPolar(magnitude, phase, n, outRe, outIm); });
}

QV_EXPORT Status ZemFunc43(double* re, double* im, Size n, double aRe, double aIm, double bRe, double bIm,
                           double* outRe, double* outIm) {
    return narrowed(n, [&](Count n) { return CxArrLinearEval(re, im, n, {aRe, aIm}, {bRe, bIm}, outRe, outIm); });
}
