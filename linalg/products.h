// Products of matrices and vectors over the provider; T is double or ComplexRecord. Row major.
#pragma once

#include "frame/types.h"
#include "linalg/provider.h"

namespace quorvan {

// out = A·B with A rowsA by colsA, B colsA by colsB. Negative sizes give -20004; an empty inner size clears the
// product. `out` must not overlap the inputs: MatMultiplyCopied takes that.
template <class T>
Status MatMultiply(const T* a, const T* b, Count rowsA, Count colsA, Count colsB, T* out) noexcept;
template <class T>
Status MatMultiplyCopied(const T* a, const T* b, Count rowsA, Count colsA, Count colsB, T* out) noexcept;

// y = A·x, A m by n. y may be A or x.
template <class T>
Status MatVectorMultiply(const T* a, const T* x, Count m, Count n, T* y) noexcept;

// sum of x(i)·y(i), without conjugation.
Status VecDot(const double* x, const double* y, Count n, double* out) noexcept;
Status VecDotComplex(const ComplexRecord* x, const ComplexRecord* y, Count n, ComplexRecord* out) noexcept;

// out(i, j) = x(i)·y(j), without conjugation. `out` may be x or y.
template <class T>
Status VecOuterProduct(const T* x, Count nx, const T* y, Count ny, T* out) noexcept;

// The block matrix of the a(i, j)·B. `out` may be A or B.
template <class T>
Status MatKronecker(const T* a, const T* b, Count rowsA, Count colsA, Count rowsB, Count colsB, T* out) noexcept;

}  // namespace quorvan
