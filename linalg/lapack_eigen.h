// The provider by value and by type, for decompositions and eigenproblems: what linalg/lapack.h is for the rest.
//
// Where a complex routine takes one work area more, its real twin takes the same argument here and leaves it alone, so
// that an algorithm is one text for both. RealWork tells how large such an area must be.
#pragma once

#include <type_traits>

#include "frame/memory.h"
#include "linalg/lapack.h"

namespace quorvan {

template <class T>
inline constexpr bool kIsComplex = std::is_same_v<T, ComplexRecord>;

// The `lwork` that routine(work, lwork) asks for: left in work[0] by a call with lwork = -1, and truncated.
template <class T, class Routine>
Count WorkspaceSize(const Routine& routine) noexcept {
    T size{};
    routine(&size, -1);
    return RealPart(size) >= 1 ? static_cast<Count>(RealPart(size)) : 1;
}

// A real work area of the complex routines alone, on the general heap; the real ones get the smallest block.
template <class T>
Block<double> RealWork(std::size_t count) noexcept {
    return Block<double>(kIsComplex<T> ? count : 0);
}

// Singular values

inline Count Gesdd(char job, Count m, Count n, double* a, Count lda, double* s, double* u, Count ldu, double* vt,
                   Count ldvt, double* work, Count lwork, double*, Count* iwork) noexcept {
    Count info = 0;
    provider::QV_LAPACK(dgesdd)(&job, &m, &n, a, &lda, s, u, &ldu, vt, &ldvt, work, &lwork, iwork, &info, 1);
    return info;
}
inline Count Gesdd(char job, Count m, Count n, ComplexRecord* a, Count lda, double* s, ComplexRecord* u, Count ldu,
                   ComplexRecord* vt, Count ldvt, ComplexRecord* work, Count lwork, double* rwork,
                   Count* iwork) noexcept {
    Count info = 0;
    provider::QV_LAPACK(zgesdd)(&job, &m, &n, a, &lda, s, u, &ldu, vt, &ldvt, work, &lwork, rwork, iwork, &info, 1);
    return info;
}

// QR with column pivoting

inline Count Geqp3(Count m, Count n, double* a, Count lda, Count* pivots, double* tau, double* work, Count lwork,
                   double*) noexcept {
    Count info = 0;
    provider::QV_LAPACK(dgeqp3)(&m, &n, a, &lda, pivots, tau, work, &lwork, &info);
    return info;
}
inline Count Geqp3(Count m, Count n, ComplexRecord* a, Count lda, Count* pivots, ComplexRecord* tau,
                   ComplexRecord* work, Count lwork, double* rwork) noexcept {
    Count info = 0;
    provider::QV_LAPACK(zgeqp3)(&m, &n, a, &lda, pivots, tau, work, &lwork, rwork, &info);
    return info;
}

// Hessenberg form and balancing; ilo and ihi are one-based, as the provider counts.

template <class T>
Count Gehrd(Count n, Count ilo, Count ihi, T* a, Count lda, T* tau, T* work, Count lwork) noexcept {
    Count info = 0;
    Provider<T>::gehrd(&n, &ilo, &ihi, a, &lda, tau, work, &lwork, &info);
    return info;
}

template <class T>
Count Orghr(Count n, Count ilo, Count ihi, T* a, Count lda, const T* tau, T* work, Count lwork) noexcept {
    Count info = 0;
    Provider<T>::orghr(&n, &ilo, &ihi, a, &lda, tau, work, &lwork, &info);
    return info;
}

template <class T>
Count Gebal(char job, Count n, T* a, Count lda, Count* ilo, Count* ihi, double* scale) noexcept {
    Count info = 0;
    Provider<T>::gebal(&job, &n, a, &lda, ilo, ihi, scale, &info, 1);
    return info;
}

template <class T>
Count Gebak(char job, char side, Count n, Count ilo, Count ihi, const double* scale, Count m, T* v,
            Count ldv) noexcept {
    Count info = 0;
    Provider<T>::gebak(&job, &side, &n, &ilo, &ihi, scale, &m, v, &ldv, &info, 1, 1);
    return info;
}

// Eigenvalues; the left vectors of geev are not asked for.

inline Count Geev(char job, Count n, double* a, double* re, double* im, double* vectors, double* work,
                  Count lwork) noexcept {
    Count info = 0;
    provider::QV_LAPACK(dgeev)("N", &job, &n, a, &n, re, im, nullptr, &n, vectors, &n, work, &lwork, &info, 1, 1);
    return info;
}
inline Count Geev(char job, Count n, ComplexRecord* a, ComplexRecord* values, ComplexRecord* vectors,
                  ComplexRecord* work, Count lwork, double* rwork) noexcept {
    Count info = 0;
    provider::QV_LAPACK(zgeev)("N", &job, &n, a, &n, values, nullptr, &n, vectors, &n, work, &lwork, rwork, &info, 1,
                               1);
    return info;
}

inline Count Syevd(char job, char triangle, Count n, double* a, double* values, double* work, Count lwork, Count* iwork,
                   Count liwork) noexcept {
    Count info = 0;
    provider::QV_LAPACK(dsyevd)(&job, &triangle, &n, a, &n, values, work, &lwork, iwork, &liwork, &info, 1, 1);
    return info;
}
inline Count Heevd(char job, char triangle, Count n, ComplexRecord* a, double* values, ComplexRecord* work, Count lwork,
                   double* rwork, Count lrwork, Count* iwork, Count liwork) noexcept {
    Count info = 0;
    provider::QV_LAPACK(zheevd)(&job, &triangle, &n, a, &n, values, work, &lwork, rwork, &lrwork, iwork, &liwork, &info,
                                1, 1);
    return info;
}

}  // namespace quorvan
