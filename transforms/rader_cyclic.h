// Rader's convolution on transforms of its own length p - 1.
#pragma once

#include "frame/types.h"
#include "transforms/cache_lines.h"
#include "transforms/fft_plan_record.h"
#include "transforms/rader_records.h"

namespace quorvan {

// Doubles of workspace for one transform.
constexpr Size CyclicWorkLength(Count p) noexcept { return 2 * WholeLines(2 * Size(p - 1)); }

// One DFT of length p. The input may be the output.
Status CyclicTransform(const ComplexInput& in, const ComplexOutput& out, const FftStage& stage, Count p,
                       double* work) noexcept;
// One DFT of p reals into HalfComplex.
Status CyclicTransformReal(const double* in, Size inStride, double* out, Size outStride, const FftStage& stage, Count p,
                           double* work) noexcept;

}  // namespace quorvan
