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

}  // namespace quorvan
