// LU, Cholesky, QR, singular values, Hessenberg form and balancing over the provider; T is double or ComplexRecord. Row
// major throughout. Statuses common to all: -20003 for a size below 1, -20068 for a matrix that does not pass
// MatScreen, -20001. Nothing is written before the provider has succeeded.
#pragma once

#include "frame/types.h"

namespace quorvan {

// min(m, n) singular values, descending.
template <class T>
Status MatSingularValues(const T* a, Count m, Count n, double* s) noexcept;

// A = U·diag(s)·V^H in economy form: U m by k, V n by k, k = min(m, n).
template <class T>
Status MatSvd(const T* a, Count m, Count n, T* u, double* s, T* v) noexcept;

// Mode 0 full (U m by m, V n by n), 1 economy, others -20061. With U or V null only s is computed, whatever the mode.
template <class T>
Status MatSvdMode(const T* a, Count m, Count n, Count mode, T* u, double* s, T* v) noexcept;

inline Status MatSvdComplex(const ComplexRecord* a, Count m, Count n, ComplexRecord* u, double* s,
                            ComplexRecord* v) noexcept {
    return MatSvd(a, m, n, u, s, v);
}

// Factors over A: unit L below the diagonal, U on and above it. pivots[min(m, n)] are zero-based, further entries up to
// m hold their own index; each interchange toggles *parity. A singular matrix: warning 20003, factors returned.
template <class T>
Status MatLu(T* a, Count m, Count n, Count* pivots, std::uint32_t* parity) noexcept;

// The upper factor with A = R^H·R (upper true), or the lower one; the other triangle is set to 0. `out` null: over A.
template <class T>
Status MatCholesky(T* a, Count n, bool upper, T* out) noexcept;

// A = Q·R. Economy: Q m by k, R k by n, k = min(m, n); full: Q m by m, R m by n. Q null: not formed; R null: over A.
template <class T>
Status MatQr(T* a, Count m, Count n, bool economy, T* q, T* r) noexcept;

inline Status MatQrComplex(ComplexRecord* a, Count m, Count n, bool economy, ComplexRecord* q,
                           ComplexRecord* r) noexcept {
    return MatQr(a, m, n, economy, q, r);
}

// Method 0 MatQr in full form, 1 Givens rotations, 2 fast Givens rotations (linalg/givens.h), others -20061.
Status MatQrMethod(double* a, Count m, Count n, std::uint32_t method, double* q, double* r) noexcept;

// A·P = Q·R with the columns in the order pivots[n], zero-based. Pivot mode 0: no pivoting, the identity order; 1 and
// 2: by the largest remaining column; others -20061. Q null: not formed; R null: over A.
template <class T>
Status MatQrPivot(T* a, Count m, Count n, std::uint32_t pivotMode, bool economy, Count* pivots, T* q, T* r) noexcept;

// A = Q·H·Q^H with H zero below its first subdiagonal; A is triangular outside rows and columns low to high, -20017
// unless 0 <= low <= high < n. H null: over A.
template <class T>
Status MatHessenberg(T* a, Count n, Count low, Count high, T* h, T* q) noexcept;

// Job 0 nothing, 1 permutation, 2 scaling, 3 both, others -20061. low and high, zero-based, bound the part that is not
// triangular; `scale` is as the provider gives it: factors from low to high, elsewhere one-based indices of
// interchanges. `balanced` null: over A.
template <class T>
Status MatBalance(T* a, Count n, std::uint32_t job, Count* low, Count* high, double* scale, T* balanced) noexcept;

// From the eigenvectors of the balanced matrix (columns; side 0 right, 1 left) to those of the matrix itself. -20061
// for another job or side, -20017 where the limits or the interchanges of `scale` leave the matrix. `out` null: over V.
template <class T>
Status MatBalanceBack(T* v, Count n, std::uint32_t job, std::uint32_t side, Count low, Count high, const double* scale,
                      T* out) noexcept;

}  // namespace quorvan
