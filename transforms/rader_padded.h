// Rader's convolution where p - 1 has a large prime factor itself: in two halves, each padded to fast transforms.
//
// Since g^h = -1 for h = (p - 1)/2, the roots of unity in generator order repeat conjugated after h places. So the
// convolution of length p - 1 falls into one of the sums x[j] + x[p - j] with cosines and one of the differences
// x[j] - x[p - j] with sines, both of length h. Each is linear, padded to 2M >= 2h - 1 points; and of a sequence that
// ends before M the even bins are the transform of length M, the odd bins that of the sequence turned by half a bin.
// So no pass is spent on zeros, and the transforms are a quarter as long as those of the whole convolution would be.
#pragma once

#include "frame/types.h"
#include "transforms/fft_plan_record.h"
#include "transforms/rader_records.h"

namespace quorvan {

// Doubles of the tables of a stage whose paddedPlan exists.
Size PaddedTableLength(const FftStage& stage) noexcept;
// Fills them, for prime p, from the start of the first line in paddedBlock on. `sequence` holds the roots of
// unity over p - 1 in generator order, the real parts and then the imaginary ones.
Status MakePaddedTables(FftStage& stage, Count p, const double* sequence) noexcept;

// Doubles of workspace for one transform.
Size PaddedWorkLength(const FftStage& stage) noexcept;

// One DFT of length p. The input may be the output.
Status PaddedTransform(const ComplexInput& in, const ComplexOutput& out, const FftStage& stage, Count p,
                       double* work) noexcept;
// One DFT of p reals into HalfComplex.
Status PaddedTransformReal(const double* in, Size inStride, double* out, Size outStride, const FftStage& stage, Count p,
                           double* work) noexcept;

}  // namespace quorvan
