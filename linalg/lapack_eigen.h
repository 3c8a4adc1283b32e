// The provider by value and by type, for decompositions and eigenproblems: what linalg/lapack.h is for the rest.
//
// Where a complex routine takes one work area more, its real twin takes the same argument here and leaves it alone, so
// that an algorithm is one text for both. RealWork tells how large such an area must be.
#pragma once

#include "frame/memory.h"
#include "linalg/lapack.h"
#include "linalg/matrix.h"

namespace quorvan {

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

// What a conjugate transposition is to the provider.
template <class T>
inline constexpr auto kConjugation =
    kIsComplex<T> ? provider::Transposition::kConjugated : provider::Transposition::kTransposed;

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

// Schur form. `select` null: nothing is sorted, and bwork may be null.

inline Count Gees(char job, provider::SelectReal select, Count n, double* a, double* re, double* im, double* vectors,
                  double* work, Count lwork, Count* bwork) noexcept {
    Count info = 0, chosen = 0;
    provider::QV_LAPACK(dgees)(&job, select ? "S" : "N", select, &n, a, &n, &chosen, re, im, vectors, &n, work, &lwork,
                               bwork, &info, 1, 1);
    return info;
}
inline Count Gees(char job, provider::SelectComplex select, Count n, ComplexRecord* a, ComplexRecord* values,
                  ComplexRecord* vectors, ComplexRecord* work, Count lwork, double* rwork, Count* bwork) noexcept {
    Count info = 0, chosen = 0;
    provider::QV_LAPACK(zgees)(&job, select ? "S" : "N", select, &n, a, &n, &chosen, values, vectors, &n, work, &lwork,
                               rwork, bwork, &info, 1, 1);
    return info;
}

// Moves the diagonal block at row `from` to row `to`, both one-based. q null: the vectors do not follow.
inline Count Trexc(Count n, double* t, double* q, Count from, Count to, double* work) noexcept {
    Count info = 0;
    provider::QV_LAPACK(dtrexc)(q ? "V" : "N", &n, t, &n, q, &n, &from, &to, work, &info, 1);
    return info;
}
inline Count Trexc(Count n, ComplexRecord* t, ComplexRecord* q, Count from, Count to) noexcept {
    Count info = 0;
    provider::QV_LAPACK(ztrexc)(q ? "V" : "N", &n, t, &n, q, &n, &from, &to, &info, 1);
    return info;
}

// Generalised Schur form

// q, z null: not formed.
inline Count Gges(Count n, double* a, double* b, double* re, double* im, double* beta, double* q, double* z,
                  double* work, Count lwork) noexcept {
    Count info = 0, chosen = 0;
    provider::QV_LAPACK(dgges)(q ? "V" : "N", z ? "V" : "N", "N", nullptr, &n, a, &n, b, &n, &chosen, re, im, beta, q,
                               &n, z, &n, work, &lwork, nullptr, &info, 1, 1, 1);
    return info;
}

// Q is multiplied into q; Z is formed anew.
template <class T>
Count Gghrd(Count n, T* a, T* b, T* q, T* z) noexcept {
    Count info = 0;
    const Count first = 1;
    Provider<T>::gghrd("V", "I", &n, &first, &n, a, &n, b, &n, q, &n, z, &n, &info, 1, 1);
    return info;
}

// The Schur form of a Hessenberg-triangular pencil; q and z are multiplied into.
inline Count Hgeqz(Count n, double* h, double* t, double* re, double* im, double* beta, double* q, double* z,
                   double* work, Count lwork) noexcept {
    Count info = 0;
    const Count first = 1;
    provider::QV_LAPACK(dhgeqz)("S", "V", "V", &n, &first, &n, h, &n, t, &n, re, im, beta, q, &n, z, &n, work, &lwork,
                                &info, 1, 1, 1);
    return info;
}
inline Count Hgeqz(Count n, ComplexRecord* h, ComplexRecord* t, ComplexRecord* alpha, ComplexRecord* beta,
                   ComplexRecord* q, ComplexRecord* z, ComplexRecord* work, Count lwork, double* rwork) noexcept {
    Count info = 0;
    const Count first = 1;
    provider::QV_LAPACK(zhgeqz)("S", "V", "V", &n, &first, &n, h, &n, t, &n, alpha, beta, q, &n, z, &n, work, &lwork,
                                rwork, &info, 1, 1, 1);
    return info;
}

// All eigenvectors: `left` and `right` hold Q and Z and become the vectors; null: not wanted. work: 6n doubles, or 2n
// records and 2n doubles.
inline Count Tgevc(Count n, const double* s, const double* t, double* left, double* right, double* work,
                   double*) noexcept {
    Count info = 0, found = 0;
    provider::QV_LAPACK(dtgevc)(!right  ? "L"
                                : !left ? "R"
                                        : "B",
                                "B", nullptr, &n, s, &n, t, &n, left, &n, right, &n, &n, &found, work, &info, 1, 1);
    return info;
}
inline Count Tgevc(Count n, const ComplexRecord* s, const ComplexRecord* t, ComplexRecord* left, ComplexRecord* right,
                   ComplexRecord* work, double* rwork) noexcept {
    Count info = 0, found = 0;
    provider::QV_LAPACK(ztgevc)(!right  ? "L"
                                : !left ? "R"
                                        : "B",
                                "B", nullptr, &n, s, &n, t, &n, left, &n, right, &n, &n, &found, work, rwork, &info, 1,
                                1);
    return info;
}

// Moves the diagonal block at row `from` to row `to`, both one-based. q, z null: they do not follow.
inline Count Tgexc(Count n, double* s, double* t, double* q, double* z, Count from, Count to, double* work,
                   Count lwork) noexcept {
    Count info = 0;
    const Count followQ = q != nullptr, followZ = z != nullptr;
    provider::QV_LAPACK(dtgexc)(&followQ, &followZ, &n, s, &n, t, &n, q, &n, z, &n, &from, &to, work, &lwork, &info);
    return info;
}
inline Count Tgexc(Count n, ComplexRecord* s, ComplexRecord* t, ComplexRecord* q, ComplexRecord* z, Count from,
                   Count to) noexcept {
    Count info = 0;
    const Count followQ = q != nullptr, followZ = z != nullptr;
    provider::QV_LAPACK(ztgexc)(&followQ, &followZ, &n, s, &n, t, &n, q, &n, z, &n, &from, &to, &info);
    return info;
}

}  // namespace quorvan
