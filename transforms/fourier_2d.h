// Fourier transforms of row-major arrays. Order of the bins and lengths as in one dimension, for each dimension.
//
// Statuses: -20003 for rows or cols below 1, -20046 for more elements than an int32 counts, -20001 for exhausted
// memory.
#pragma once

#include "frame/types.h"

namespace quorvan {

Status TransformRealFft2D(const double* x, Count rows, Count cols, Count fftRows, Count fftCols, bool shift,
                          ComplexRecord* out) noexcept;
Status TransformComplexFft2D(const ComplexRecord* x, Count rows, Count cols, Count fftRows, Count fftCols, bool shift,
                             ComplexRecord* out) noexcept;
Status TransformRealIfft2D(const ComplexRecord* X, Count rows, Count cols, bool shift, double* out) noexcept;
Status TransformComplexIfft2D(const ComplexRecord* X, Count rows, Count cols, bool shift, ComplexRecord* out) noexcept;

}  // namespace quorvan
