// Entries of the recursive filters: design into an object, design into polynomials, and filtering of one array.
#include "filters/iir_design.h"

#include "filters/iir_one_shot.h"
#include "frame/entry.h"
#include "quorvan/quorvan.h"

using namespace quorvan;

namespace {

constexpr double kNone = 0;  // where a filter has no such frequency or level

}  // namespace

// Designs

QV_EXPORT Status ZemFunc12(double fs, double fl, double fh, QvIirFilter* filter) {
    return IirDesign(IirFamily::kEvenPole, {fs, fl, fh}, *filter);
}

QV_EXPORT Status ZemFunc18(double fs, double fl, double fh, QvIirFilter* filter) {
    return IirDesign(IirFamily::kButterworth, {fs, fl, fh}, *filter);
}

QV_EXPORT Status ZemFunc471(double fs, double fl, double fh, QvIirFilter* filter) {
    return IirDesign(IirFamily::kBessel, {fs, fl, fh}, *filter);
}

QV_EXPORT Status ZemFunc24(double fs, double fl, double fh, double ripple, QvIirFilter* filter) {
    return IirDesign(IirFamily::kChebyshev, {fs, fl, fh, ripple}, *filter);
}

QV_EXPORT Status ZemFunc98(double fs, double fl, double fh, double attenuation, QvIirFilter* filter) {
    return IirDesign(IirFamily::kInverseChebyshev, {fs, fl, fh, kNone, attenuation}, *filter);
}

QV_EXPORT Status ZemFunc61(double fs, double fl, double fh, double ripple, double attenuation, QvIirFilter* filter) {
    return IirDesign(IirFamily::kElliptic, {fs, fl, fh, ripple, attenuation}, *filter);
}

QV_EXPORT Status ZemFunc13(Count kind, Count order, double fs, double fl, double fh, double* a, Count aSize, double* b,
                           Count bSize) {
    return IirCoefficients(IirFamily::kEvenPole, kind, order, {fs, fl, fh}, a, aSize, b, bSize);
}

QV_EXPORT Status ZemFunc19(Count kind, Count order, double fs, double fl, double fh, double* a, Count aSize, double* b,
                           Count bSize) {
    return IirCoefficients(IirFamily::kButterworth, kind, order, {fs, fl, fh}, a, aSize, b, bSize);
}

QV_EXPORT Status ZemFunc25(Count kind, Count order, double fs, double fl, double fh, double ripple, double* a,
                           Count aSize, double* b, Count bSize) {
    return IirCoefficients(IirFamily::kChebyshev, kind, order, {fs, fl, fh, ripple}, a, aSize, b, bSize);
}

QV_EXPORT Status ZemFunc99(Count kind, Count order, double fs, double fl, double fh, double attenuation, double* a,
                           Count aSize, double* b, Count bSize) {
    return IirCoefficients(IirFamily::kInverseChebyshev, kind, order, {fs, fl, fh, kNone, attenuation}, a, aSize, b,
                           bSize);
}

QV_EXPORT Status ZemFunc62(Count kind, Count order, double fs, double fl, double fh, double ripple, double attenuation,
                           double* a, Count aSize, double* b, Count bSize) {
    return IirCoefficients(IirFamily::kElliptic, kind, order, {fs, fl, fh, ripple, attenuation}, a, aSize, b, bSize);
}

QV_EXPORT Status ZemFunc236(QvIirFilter* filter, double* a, Count aSize, double* b, Count bSize) {
    return IirToDirectForm(filter, a, aSize, b, bSize);
}

// Real arrays: section by section but for the Bessel family

QV_EXPORT Status ZemFunc21(double* x, Size n, double fs, double fc, Count order, double* y) {
    return narrowed(n, [&](Count n) {
        return IirFilterSections(IirFamily::kButterworth, kLowpass, x, n, {fs, fc, kNone}, order, y);
    });
}

QV_EXPORT Status ZemFunc20(double* x, Size n, double fs, double fc, Count order, double* y) {
    return narrowed(n, [&](Count n) {
        return IirFilterSections(IirFamily::kButterworth, kHighpass, x, n, {fs, fc, kNone}, order, y);
    });
}

QV_EXPORT Status ZemFunc16(double* x, Size n, double fs, double fl, double fh, Count order, double* y) {
    return narrowed(n, [&](Count n) {
        return IirFilterSections(IirFamily::kButterworth, kBandpass, x, n, {fs, fl, fh}, order, y);
    });
}

QV_EXPORT Status ZemFunc17(double* x, Size n, double fs, double fl, double fh, Count order, double* y) {
    return narrowed(n, [&](Count n) {
        return IirFilterSections(IirFamily::kButterworth, kBandstop, x, n, {fs, fl, fh}, order, y);
    });
}

QV_EXPORT Status ZemFunc27(double* x, Size n, double fs, double fc, double ripple, Count order, double* y) {
    return narrowed(n, [&](Count n) {
        return IirFilterSections(IirFamily::kChebyshev, kLowpass, x, n, {fs, fc, kNone, ripple}, order, y);
    });
}

QV_EXPORT Status ZemFunc26(double* x, Size n, double fs, double fc, double ripple, Count order, double* y) {
    return narrowed(n, [&](Count n) {
        return IirFilterSections(IirFamily::kChebyshev, kHighpass, x, n, {fs, fc, kNone, ripple}, order, y);
    });
}

QV_EXPORT Status ZemFunc22(double* x, Size n, double fs, double fl, double fh, double ripple, Count order, double* y) {
    return narrowed(n, [&](Count n) {
        return IirFilterSections(IirFamily::kChebyshev, kBandpass, x, n, {fs, fl, fh, ripple}, order, y);
    });
}

QV_EXPORT Status ZemFunc23(double* x, Size n, double fs, double fl, double fh, double ripple, Count order, double* y) {
    return narrowed(n, [&](Count n) {
        return IirFilterSections(IirFamily::kChebyshev, kBandstop, x, n, {fs, fl, fh, ripple}, order, y);
    });
}

QV_EXPORT Status ZemFunc101(double* x, Size n, double fs, double fc, double attenuation, Count order, double* y) {
    return narrowed(n, [&](Count n) {
        return IirFilterSections(IirFamily::kInverseChebyshev, kLowpass, x, n, {fs, fc, kNone, kNone, attenuation},
                                 order, y);
    });
}

QV_EXPORT Status ZemFunc100(double* x, Size n, double fs, double fc, double attenuation, Count order, double* y) {
    return narrowed(n, [&](Count n) {
        return IirFilterSections(IirFamily::kInverseChebyshev, kHighpass, x, n, {fs, fc, kNone, kNone, attenuation},
                                 order, y);
    });
}

QV_EXPORT Status ZemFunc96(double* x, Size n, double fs, double fl, double fh, double attenuation, Count order,
                           double* y) {
    return narrowed(n, [&](Count n) {
        return IirFilterSections(IirFamily::kInverseChebyshev, kBandpass, x, n, {fs, fl, fh, kNone, attenuation}, order,
                                 y);
    });
}

QV_EXPORT Status ZemFunc97(double* x, Size n, double fs, double fl, double fh, double attenuation, Count order,
                           double* y) {
    return narrowed(n, [&](Count n) {
        return IirFilterSections(IirFamily::kInverseChebyshev, kBandstop, x, n, {fs, fl, fh, kNone, attenuation}, order,
                                 y);
    });
}

QV_EXPORT Status ZemFunc64(double* x, Size n, double fs, double fc, double ripple, double attenuation, Count order,
                           double* y) {
    return narrowed(n, [&](Count n) {
        return IirFilterSections(IirFamily::kElliptic, kLowpass, x, n, {fs, fc, kNone, ripple, attenuation}, order, y);
    });
}

QV_EXPORT Status ZemFunc63(double* x, Size n, double fs, double fc, double ripple, double attenuation, Count order,
                           double* y) {
    return narrowed(n, [&](Count n) {
        return IirFilterSections(IirFamily::kElliptic, kHighpass, x, n, {fs, fc, kNone, ripple, attenuation}, order, y);
    });
}

QV_EXPORT Status ZemFunc59(double* x, Size n, double fs, double fl, double fh, double ripple, double attenuation,
                           Count order, double* y) {
    return narrowed(n, [&](Count n) {
        return IirFilterSections(IirFamily::kElliptic, kBandpass, x, n, {fs, fl, fh, ripple, attenuation}, order, y);
    });
}

QV_EXPORT Status ZemFunc60(double* x, Size n, double fs, double fl, double fh, double ripple, double attenuation,
                           Count order, double* y) {
    return narrowed(n, [&](Count n) {
        return IirFilterSections(IirFamily::kElliptic, kBandstop, x, n, {fs, fl, fh, ripple, attenuation}, order, y);
    });
}

QV_EXPORT Status ZemFunc399(double* x, Size n, double fs, double fc, Count order, double* y) {
    return narrowed(n, [&](Count n) {
        return IirFilterObject(IirFamily::kBessel, kLowpass, x, n, {fs, fc, kNone}, order, y);
    });
}

QV_EXPORT Status ZemFunc400(double* x, Size n, double fs, double fc, Count order, double* y) {
    return narrowed(n, [&](Count n) {
        return IirFilterObject(IirFamily::kBessel, kHighpass, x, n, {fs, fc, kNone}, order, y);
    });
}

QV_EXPORT Status ZemFunc401(double* x, Size n, double fs, double fl, double fh, Count order, double* y) {
    return narrowed(n, [&](Count n) {
        return IirFilterObject(IirFamily::kBessel, kBandpass, x, n, {fs, fl, fh}, order, y);
    });
}

QV_EXPORT Status ZemFunc402(double* x, Size n, double fs, double fl, double fh, Count order, double* y) {
    return narrowed(n, [&](Count n) {
        return IirFilterObject(IirFamily::kBessel, kBandstop, x, n, {fs, fl, fh}, order, y);
    });
}

// Complex arrays

QV_EXPORT Status ZemFunc450(ComplexRecord* x, Size n, double fs, double fc, Count order, ComplexRecord* y) {
    return narrowed(n, [&](Count n) {
        return IirFilterObjectComplex(IirFamily::kButterworth, kLowpass, x, n, {fs, fc, kNone}, order, y);
    });
}

QV_EXPORT Status ZemFunc451(ComplexRecord* x, Size n, double fs, double fc, Count order, ComplexRecord* y) {
    return narrowed(n, [&](Count n) {
        return IirFilterObjectComplex(IirFamily::kButterworth, kHighpass, x, n, {fs, fc, kNone}, order, y);
    });
}

QV_EXPORT Status ZemFunc452(ComplexRecord* x, Size n, double fs, double fl, double fh, Count order, ComplexRecord* y) {
    return narrowed(n, [&](Count n) {
        return IirFilterObjectComplex(IirFamily::kButterworth, kBandpass, x, n, {fs, fl, fh}, order, y);
    });
}

QV_EXPORT Status ZemFunc453(ComplexRecord* x, Size n, double fs, double fl, double fh, Count order, ComplexRecord* y) {
    return narrowed(n, [&](Count n) {
        return IirFilterObjectComplex(IirFamily::kButterworth, kBandstop, x, n, {fs, fl, fh}, order, y);
    });
}

QV_EXPORT Status ZemFunc454(ComplexRecord* x, Size n, double fs, double fc, double ripple, Count order,
                            ComplexRecord* y) {
    return narrowed(n, [&](Count n) {
        return IirFilterObjectComplex(IirFamily::kChebyshev, kLowpass, x, n, {fs, fc, kNone, ripple}, order, y);
    });
}

QV_EXPORT Status ZemFunc455(ComplexRecord* x, Size n, double fs, double fc, double ripple, Count order,
                            ComplexRecord* y) {
    return narrowed(n, [&](Count n) {
        return IirFilterObjectComplex(IirFamily::kChebyshev, kHighpass, x, n, {fs, fc, kNone, ripple}, order, y);
    });
}

QV_EXPORT Status ZemFunc456(ComplexRecord* x, Size n, double fs, double fl, double fh, double ripple, Count order,
                            ComplexRecord* y) {
    return narrowed(n, [&](Count n) {
        return IirFilterObjectComplex(IirFamily::kChebyshev, kBandpass, x, n, {fs, fl, fh, ripple}, order, y);
    });
}

QV_EXPORT Status ZemFunc457(ComplexRecord* x, Size n, double fs, double fl, double fh, double ripple, Count order,
                            ComplexRecord* y) {
    return narrowed(n, [&](Count n) {
        return IirFilterObjectComplex(IirFamily::kChebyshev, kBandstop, x, n, {fs, fl, fh, ripple}, order, y);
    });
}

QV_EXPORT Status ZemFunc458(ComplexRecord* x, Size n, double fs, double fc, double attenuation, Count order,
                            ComplexRecord* y) {
    return narrowed(n, [&](Count n) {
        return IirFilterObjectComplex(IirFamily::kInverseChebyshev, kLowpass, x, n, {fs, fc, kNone, kNone, attenuation},
                                      order, y);
    });
}

QV_EXPORT Status ZemFunc459(ComplexRecord* x, Size n, double fs, double fc, double attenuation, Count order,
                            ComplexRecord* y) {
    return narrowed(n, [&](Count n) {
        return IirFilterObjectComplex(IirFamily::kInverseChebyshev, kHighpass, x, n,
                                      {fs, fc, kNone, kNone, attenuation}, order, y);
    });
}

QV_EXPORT Status ZemFunc460(ComplexRecord* x, Size n, double fs, double fl, double fh, double attenuation, Count order,
                            ComplexRecord* y) {
    return narrowed(n, [&](Count n) {
        return IirFilterObjectComplex(IirFamily::kInverseChebyshev, kBandpass, x, n, {fs, fl, fh, kNone, attenuation},
                                      order, y);
    });
}

QV_EXPORT Status ZemFunc461(ComplexRecord* x, Size n, double fs, double fl, double fh, double attenuation, Count order,
                            ComplexRecord* y) {
    return narrowed(n, [&](Count n) {
        return IirFilterObjectComplex(IirFamily::kInverseChebyshev, kBandstop, x, n, {fs, fl, fh, kNone, attenuation},
                                      order, y);
    });
}

QV_EXPORT Status ZemFunc462(ComplexRecord* x, Size n, double fs, double fc, double ripple, double attenuation,
                            Count order, ComplexRecord* y) {
    return narrowed(n, [&](Count n) {
        return IirFilterObjectComplex(IirFamily::kElliptic, kLowpass, x, n, {fs, fc, kNone, ripple, attenuation}, order,
                                      y);
    });
}

QV_EXPORT Status ZemFunc463(ComplexRecord* x, Size n, double fs, double fc, double ripple, double attenuation,
                            Count order, ComplexRecord* y) {
    return narrowed(n, [&](Count n) {
        return IirFilterObjectComplex(IirFamily::kElliptic, kHighpass, x, n, {fs, fc, kNone, ripple, attenuation},
                                      order, y);
    });
}

QV_EXPORT Status ZemFunc464(ComplexRecord* x, Size n, double fs, double fl, double fh, double ripple,
                            double attenuation, Count order, ComplexRecord* y) {
    return narrowed(n, [&](Count n) {
        return IirFilterObjectComplex(IirFamily::kElliptic, kBandpass, x, n, {fs, fl, fh, ripple, attenuation}, order,
                                      y);
    });
}

QV_EXPORT Status ZemFunc465(ComplexRecord* x, Size n, double fs, double fl, double fh, double ripple,
                            double attenuation, Count order, ComplexRecord* y) {
    return narrowed(n, [&](Count n) {
        return IirFilterObjectComplex(IirFamily::kElliptic, kBandstop, x, n, {fs, fl, fh, ripple, attenuation}, order,
                                      y);
    });
}

QV_EXPORT Status ZemFunc403(ComplexRecord* x, Size n, double fs, double fc, Count order, ComplexRecord* y) {
    return narrowed(n, [&](Count n) {
        return IirFilterObjectComplex(IirFamily::kBessel, kLowpass, x, n, {fs, fc, kNone}, order, y);
    });
}

QV_EXPORT Status ZemFunc404(ComplexRecord* x, Size n, double fs, double fc, Count order, ComplexRecord* y) {
    return narrowed(n, [&](Count n) {
        return IirFilterObjectComplex(IirFamily::kBessel, kHighpass, x, n, {fs, fc, kNone}, order, y);
    });
}

QV_EXPORT Status ZemFunc405(ComplexRecord* x, Size n, double fs, double fl, double fh, Count order, ComplexRecord* y) {
    return narrowed(n, [&](Count n) {
        return IirFilterObjectComplex(IirFamily::kBessel, kBandpass, x, n, {fs, fl, fh}, order, y);
    });
}

QV_EXPORT Status ZemFunc406(ComplexRecord* x, Size n, double fs, double fl, double fh, Count order, ComplexRecord* y) {
    return narrowed(n, [&](Count n) {
        return IirFilterObjectComplex(IirFamily::kBessel, kBandstop, x, n, {fs, fl, fh}, order, y);
    });
}
