#include "frame/complex_loops.h"

#include "frame/complex.h"
#include "frame/wide.h"

namespace quorvan::QV_TARGET {
namespace {

// An operation of complex.h on two split arrays, in registers and on the rest.
template <class Operation>
QV_INLINE void MapBinary(const double* aRe, const double* aIm, const double* bRe, const double* bIm, Count n,
                         double* outRe, double* outIm, Operation operation) {
    Map(
        n, SplitSink{outRe, outIm},
        [=](auto a, auto b, auto c, auto d) {
            return operation(Split<decltype(a)>{a, b}, Split<decltype(a)>{c, d});
        },
        aRe, aIm, bRe, bIm);
}

void Add(const double* aRe, const double* aIm, const double* bRe, const double* bIm, Count n, double* outRe,
         double* outIm) {
    MapBinary(aRe, aIm, bRe, bIm, n, outRe, outIm, [](auto z, auto w) { return CxAdd(z, w); });
}

void Subtract(const double* aRe, const double* aIm, const double* bRe, const double* bIm, Count n, double* outRe,
              double* outIm) {
    MapBinary(aRe, aIm, bRe, bIm, n, outRe, outIm, [](auto z, auto w) { return CxSubtract(z, w); });
}

void Multiply(const double* aRe, const double* aIm, const double* bRe, const double* bIm, Count n, double* outRe,
              double* outIm) {
    MapBinary(aRe, aIm, bRe, bIm, n, outRe, outIm, [](auto z, auto w) { return CxMultiply(z, w); });
}

void Divide(const double* aRe, const double* aIm, const double* bRe, const double* bIm, Count n, double* outRe,
            double* outIm) {
    MapBinary(aRe, aIm, bRe, bIm, n, outRe, outIm, [](auto z, auto w) { return CxDivide(z, w); });
}

void Linear(const double* re, const double* im, Count n, ComplexRecord a, ComplexRecord b, double* outRe,
            double* outIm) {
    Map(
        n, SplitSink{outRe, outIm},
        [=](auto x, auto y) {
            using Record = Split<decltype(x)>;
            const Record product = CxMultiply(Record{Like(x, a.re), Like(x, a.im)}, Record{x, y});
            return CxAdd(product, Record{Like(x, b.re), Like(x, b.im)});
        },
        re, im);
}

}  // namespace

const ComplexLoops kComplexLoops = {Add, Subtract, Multiply, Divide, Linear};

}  // namespace quorvan::QV_TARGET
