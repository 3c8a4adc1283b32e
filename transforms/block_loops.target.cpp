#include "transforms/block_loops.h"

namespace quorvan::QV_TARGET {
namespace {

void Join(const double* __restrict re, const double* __restrict im, Count n, ComplexRecord* __restrict records) {
    for (Count k = 0; k < n; ++k) records[k] = {re[k], im[k]};
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

const BlockLoops kBlockLoops = {Join, PartConjugate, Conjugate};

}  // namespace quorvan::QV_TARGET
