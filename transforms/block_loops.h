// The passes around the transforms of a convolution in blocks, compiled for each instruction set. The products are of
// whole registers: n is a multiple of 8 there.
#pragma once

#include "frame/targets.h"
#include "frame/types.h"

namespace quorvan {

struct BlockLoops {
    // records[k] = (re[k], im[k]).
    void (*join)(const double* re, const double* im, Count n, ComplexRecord* records);
    // records[k] = conj(records[k] factors[k]).
    void (*conjugateProduct)(ComplexRecord* records, const ComplexRecord* factors, Count n);
    // The other way from the conjugates: re[k] + i im[k] = conj records[k].
    void (*partConjugate)(const ComplexRecord* records, Count n, double* re, double* im);
    // out[k] = conj records[k].
    void (*conjugate)(const ComplexRecord* records, Count n, ComplexRecord* out);
};
QV_DECLARE_TARGETS(BlockLoops, kBlockLoops)

}  // namespace quorvan
