// Determinant and trace; T is double or ComplexRecord. Row major.
#pragma once

#include "frame/types.h"

namespace quorvan {

// The kinds of linalg/matrix_kind.h. Writes NaN first; a singular matrix has determinant 0 and is no error, a matrix of
// kind 1 without Cholesky factors has -20071 and 0.
template <class T>
Status MatDeterminantKind(const T* a, Count n, std::uint32_t kind, T* out) noexcept;

inline Status MatDeterminant(const double* a, Count n, double* out) noexcept {
    return MatDeterminantKind(a, n, 0, out);
}

template <class T>
Status MatTrace(const T* a, Count n, T* out) noexcept;

}  // namespace quorvan
