// Discrete cosine and sine transforms, in one and two dimensions.
//
// The cosine transform is the orthonormal type II, its inverse type III: with L the length, c(0) = 1/sqrt(2), else 1,
//     X[k] = c(k) sqrt(2/L) sum over j of x[j] cos(pi k (2j + 1) / (2L)).
// The sine transform is type I, unnormalised; its inverse carries the whole factor 2/(n + 1):
//     X[k - 1] = sum over j of x[j] sin(pi k (j + 1) / (L + 1)), k = 1 to L.
//
// -20003 for sizes below 1, -20115 for a length below 1, -20001 for exhausted memory.
#pragma once

#include "frame/types.h"

namespace quorvan {

// `length` results of n samples, padded with zeros or cut. out may be x where it has room.
Status TransformDct(const double* x, Count n, Count length, double* out) noexcept;
Status TransformDst(const double* x, Count n, Count length, double* out) noexcept;

Status TransformIdct(const double* x, Count n, double* out) noexcept;
Status TransformIdst(const double* x, Count n, double* out) noexcept;

Status TransformDct2D(const double* x, Count rows, Count cols, double* out) noexcept;
Status TransformIdct2D(const double* x, Count rows, Count cols, double* out) noexcept;
Status TransformDst2D(const double* x, Count rows, Count cols, double* out) noexcept;
Status TransformIdst2D(const double* x, Count rows, Count cols, double* out) noexcept;

}  // namespace quorvan
