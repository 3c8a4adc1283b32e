// Norms of matrices and vectors, condition number, rank; T is double or ComplexRecord. Row major.
#pragma once

#include "frame/types.h"

namespace quorvan {

// Selectors: 0 largest singular value, 1 largest column sum of magnitudes, 2 Frobenius, 3 largest row sum. NaN first.
template <class T>
Status MatNorm(const T* a, Count m, Count n, std::uint32_t selector, double* out) noexcept;

// The same selectors; a singular matrix has +Inf and is no error. 1 to 3 want a square matrix. NaN first.
template <class T>
Status MatConditionNumber(const T* a, Count m, Count n, std::uint32_t selector, double* out) noexcept;

// The number of singular values above an absolute tolerance; a negative one means max(m, n)·s(0)·epsilon. -1 first.
template <class T>
Status MatRank(const T* a, Count m, Count n, double tolerance, Count* rank) noexcept;

// The p-norm: selectors 0 to 4 for p = 1, 2, +Inf, -Inf and the argument.
template <class T>
Status VecNorm(const T* x, Count n, std::uint32_t selector, double p, double* out) noexcept;

}  // namespace quorvan
