// Decimation: every factor-th sample, or the mean of every block of factor samples; of a whole array, or of an endless
// signal that arrives in blocks.
#pragma once

#include "frame/types.h"

namespace quorvan {

// floor(n / factor) results; the tail of x is dropped.
Status Decimate(const double* x, Count n, Count factor, std::uint32_t average, double* out) noexcept;
// A null out means x.
Status DecimateComplex(ComplexRecord* x, Count n, Count factor, std::uint32_t average, ComplexRecord* out) noexcept;

// In place. The factor and the number of samples to skip at the begin, offset, are taken on the thread's first call and
// with a reset; every other call goes on with what it has.
Status DecimateContinuous(double* x, Count n, Count factor, std::uint32_t average, std::int32_t offset,
                          std::int32_t reset, Size* count) noexcept;
Status DecimateContinuousComplex(ComplexRecord* x, Count n, Count factor, std::uint32_t average, std::int32_t offset,
                                 std::int32_t reset, Size* count) noexcept;

}  // namespace quorvan
