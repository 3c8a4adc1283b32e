// Linear systems, least squares, inverse and pseudo-inverse over the provider; T is double or ComplexRecord. Row major.
#pragma once

#include "frame/types.h"

namespace quorvan {

// Minimum-norm least squares of A·X = B, A m by n, nrhs right-hand sides, with the factorisation's tolerance relative
// to max(m, n)·s(0); a negative one stands for the double epsilon. Below full rank the warning 20001, with the
// solution. -20068 for NaN or infinities in A or B: the provider takes them for illegal arguments. X may be A or B.
template <class T>
Status SolveLeastSquares(const T* a, Count m, Count n, const T* b, Count nrhs, double tolerance, T* x) noexcept;

// The kinds of linalg/matrix_kind.h, with their checks. X may be A or B.
template <class T>
Status MatSolveMany(const T* a, Count m, Count n, std::uint32_t kind, const T* b, Count nrhs, T* x) noexcept;
template <class T>
Status MatSolveKind(const T* a, Count m, Count n, const T* b, std::uint32_t kind, T* x) noexcept {
    return MatSolveMany(a, m, n, kind, b, 1, x);
}

// The square general system by LU, not screened. x null: over b. -20003, -20041 for a singular matrix.
Status MatSolve(const double* a, double* b, Count n, double* x) noexcept;
// Back substitution, x null: over b. An exact zero on the diagonal: -20041, with the rows below it solved.
Status MatSolveUpperTriangular(const double* r, double* b, Count n, double* x) noexcept;
// Interchanges element i of b with element pivots[i], in order, then solves by the triangle below the diagonal of L,
// the diagonal standing for ones. x null: over b. pivots null: no interchanges; one outside 0 to n - 1: -20017.
Status MatSolveUnitLower(const double* l, double* b, Count n, double* x, const Count* pivots) noexcept;

// The general inverse, not screened. out null: over A.
Status MatInverse(double* a, Count n, double* out) noexcept;
template <class T>
Status MatInverseKind(T* a, Count n, Count kind, T* out) noexcept;

// out is n by m; null: over A. A negative tolerance means max(m, n)·s(0)·epsilon.
template <class T>
Status MatPseudoInverse(T* a, Count m, Count n, double tolerance, T* out) noexcept;

}  // namespace quorvan
