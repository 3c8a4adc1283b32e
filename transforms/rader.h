// Rader's DFT for large prime factors: as leaf and as stage, complex and real, over the tables of its plan stage.
//
// Rader (1968): with a primitive root g of p, the outputs X[g^-q] - x[0] are the cyclic convolution, of length p - 1,
// of the inputs x[g^q] with the roots of unity; two transforms of length p - 1 do it, since the spectrum of the roots
// stands in the plan. All give -20001 when the workspace cannot be had.
#pragma once

#include "transforms/fft_plan_record.h"

namespace quorvan {

// `count` transforms of length p, laid out as the kernel leaves are.
Status RaderComplexLeaf(const double* inRe, const double* inIm, double* outRe, double* outIm, Size inStride,
                        Size outStride, Count count, Size elementStride, const Count* positions, const FftStage& stage,
                        Count p) noexcept;
Status RaderRealLeaf(const double* in, double* out, Size inStride, Size outStride, Count count, Size elementStride,
                     const Count* positions, const FftStage& stage, Count p) noexcept;

// Merges p adjacent transforms of length m in place.
Status RaderComplexStage(double* re, double* im, Size stride, Count m, const FftStage& stage, Count p) noexcept;
Status RaderRealStage(double* data, Size stride, Count m, const FftStage& stage, Count p) noexcept;

}  // namespace quorvan
