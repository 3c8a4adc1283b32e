#include "transforms/block_loops.h"

#include "transforms/vectors.h"

namespace quorvan::QV_TARGET {
namespace {

void Join(const double* __restrict re, const double* __restrict im, Count n, ComplexRecord* __restrict records) {
    for (Count k = 0; k < n; ++k) records[k] = {re[k], im[k]};
}

void ConjugateProduct(ComplexRecord* records, const ComplexRecord* factors, Count n) {
    double* x = &records->re;
    const double* y = &factors->re;
    for (Size k = 0; k < 2 * Size{n}; k += kWidth)
        Store(x + k, Product(FactorsOf(Load<Wide>(y + k)), Load<Wide>(x + k)) * Alternating<Wide>(1, -1));
}

// 0 - y, not -y: the conjugate of a real number keeps the zero that it has.
void PartConjugate(const ComplexRecord* __restrict records, Count n, double* __restrict re, double* __restrict im) {
    for (Count k = 0; k < n; ++k) {
        re[k] = records[k].re;
        im[k] = 0 - records[k].im;
    }
}

void Conjugate(const ComplexRecord* __restrict records, Count n, ComplexRecord* __restrict out) {
    for (Count k = 0; k < n; ++k) out[k] = {records[k].re, 0 - records[k].im};
}

}  // namespace

const BlockLoops kBlockLoops = {Join, ConjugateProduct, PartConjugate, Conjugate};

}  // namespace quorvan::QV_TARGET
