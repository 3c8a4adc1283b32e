// The provider by value and by type: one name for a routine and its complex twin, so that an algorithm is one text for
// both. Each call returns LAPACK's info (linalg/info.h turns it into a status).
//
// Routines with an `lwork` argument run inside `Queried`, which asks for the best size first:
//     Count info = 0;
//     const Status memory = Queried<T>(&info, [&](T* work, Count lwork) { return Getri(n, a, lda, pivots, work, lwork);
//     });
#pragma once

#include "frame/status.h"
#include "linalg/provider.h"
#include "linalg/provider_memory.h"

namespace quorvan {

inline constexpr double RealPart(double x) noexcept { return x; }
inline constexpr double RealPart(ComplexRecord z) noexcept { return z.re; }

// Runs `routine(work, lwork)` twice: with lwork = -1 for the size, which comes back in work[0] and is truncated, and
// then on a block of that size. A status of 0 says that it ran; *info is that of the last run.
template <class T, class Routine>
Status Queried(Count* info, const Routine& routine) noexcept {
    T size{};
    *info = routine(&size, -1);
    const Count lwork = RealPart(size) >= 1 ? static_cast<Count>(RealPart(size)) : 1;
    ProviderBlock<T> work(static_cast<std::size_t>(lwork));
    if (!work) return status::kOutOfMemory;
    *info = routine(work.get(), lwork);
    return status::kSuccess;
}

// The twins that take the same arguments.
template <class T>
struct Provider;

#define QV_PROVIDER(Type, letter, orthogonal)                                        \
    template <>                                                                      \
    struct Provider<Type> {                                                          \
        static constexpr auto copy = &provider::cblas_##letter##copy;                \
        static constexpr auto gemv = &provider::cblas_##letter##gemv;                \
        static constexpr auto gemm = &provider::cblas_##letter##gemm;                \
        static constexpr auto getrf = &provider::QV_LAPACK(letter##getrf);           \
        static constexpr auto getri = &provider::QV_LAPACK(letter##getri);           \
        static constexpr auto potrf = &provider::QV_LAPACK(letter##potrf);           \
        static constexpr auto potri = &provider::QV_LAPACK(letter##potri);           \
        static constexpr auto posv = &provider::QV_LAPACK(letter##posv);             \
        static constexpr auto trtri = &provider::QV_LAPACK(letter##trtri);           \
        static constexpr auto tptrs = &provider::QV_LAPACK(letter##tptrs);           \
        static constexpr auto gelqf = &provider::QV_LAPACK(letter##gelqf);           \
        static constexpr auto orglq = &provider::QV_LAPACK(letter##orthogonal##glq); \
        static constexpr auto orgqr = &provider::QV_LAPACK(letter##orthogonal##gqr); \
        static constexpr auto gebal = &provider::QV_LAPACK(letter##gebal);           \
        static constexpr auto gebak = &provider::QV_LAPACK(letter##gebak);           \
        static constexpr auto gehrd = &provider::QV_LAPACK(letter##gehrd);           \
        static constexpr auto orghr = &provider::QV_LAPACK(letter##orthogonal##ghr); \
        static constexpr auto gghrd = &provider::QV_LAPACK(letter##gghrd);           \
    };
QV_PROVIDER(double, d, or)
QV_PROVIDER(ComplexRecord, z, un)
#undef QV_PROVIDER

// C = op(A)·op(B) on row-major matrices, C m by n and the inner size k.
inline void Gemm(provider::Transposition opA, provider::Transposition opB, Count m, Count n, Count k, const double* a,
                 Count lda, const double* b, Count ldb, double* c, Count ldc, double beta = 0) noexcept {
    provider::cblas_dgemm(provider::Order::kRowMajor, opA, opB, m, n, k, 1.0, a, lda, b, ldb, beta, c, ldc);
}
inline void Gemm(provider::Transposition opA, provider::Transposition opB, Count m, Count n, Count k,
                 const ComplexRecord* a, Count lda, const ComplexRecord* b, Count ldb, ComplexRecord* c, Count ldc,
                 double beta = 0) noexcept {
    const ComplexRecord one{1, 0}, scale{beta, 0};
    provider::cblas_zgemm(provider::Order::kRowMajor, opA, opB, m, n, k, &one, a, lda, b, ldb, &scale, c, ldc);
}

// The Euclidean length, scaled against overflow.
inline double Nrm2(Count n, const double* x) noexcept { return provider::cblas_dnrm2(n, x, 1); }
inline double Nrm2(Count n, const ComplexRecord* x) noexcept { return provider::cblas_dznrm2(n, x, 1); }

// y = A·x on a row-major m by n matrix.
inline void Gemv(Count m, Count n, const double* a, const double* x, double* y) noexcept {
    provider::cblas_dgemv(provider::Order::kRowMajor, provider::Transposition::kNone, m, n, 1.0, a, n, x, 1, 0.0, y, 1);
}
inline void Gemv(Count m, Count n, const ComplexRecord* a, const ComplexRecord* x, ComplexRecord* y) noexcept {
    const ComplexRecord one{1, 0}, zero{0, 0};
    provider::cblas_zgemv(provider::Order::kRowMajor, provider::Transposition::kNone, m, n, &one, a, n, x, 1, &zero, y,
                          1);
}

template <class T>
Count Getrf(Count m, Count n, T* a, Count lda, Count* pivots) noexcept {
    Count info = 0;
    Provider<T>::getrf(&m, &n, a, &lda, pivots, &info);
    return info;
}

template <class T>
Count Getri(Count n, T* a, Count lda, const Count* pivots, T* work, Count lwork) noexcept {
    Count info = 0;
    Provider<T>::getri(&n, a, &lda, pivots, work, &lwork, &info);
    return info;
}

inline Count Gesv(Count n, Count nrhs, double* a, Count lda, Count* pivots, double* b, Count ldb) noexcept {
    Count info = 0;
    provider::QV_LAPACK(dgesv)(&n, &nrhs, a, &lda, pivots, b, &ldb, &info);
    return info;
}

inline Count Gelsd(Count m, Count n, Count nrhs, double* a, Count lda, double* b, Count ldb, double* s, double rcond,
                   Count* rank, double* work, Count lwork, Count* iwork) noexcept {
    Count info = 0;
    provider::QV_LAPACK(dgelsd)(&m, &n, &nrhs, a, &lda, b, &ldb, s, &rcond, rank, work, &lwork, iwork, &info);
    return info;
}

// `triangle` is the provider's name: the opposite of the row-major triangle that is meant.
template <class T>
Count Potrf(char triangle, Count n, T* a, Count lda) noexcept {
    Count info = 0;
    Provider<T>::potrf(&triangle, &n, a, &lda, &info, 1);
    return info;
}

template <class T>
Count Potri(char triangle, Count n, T* a, Count lda) noexcept {
    Count info = 0;
    Provider<T>::potri(&triangle, &n, a, &lda, &info, 1);
    return info;
}

template <class T>
Count Posv(char triangle, Count n, Count nrhs, T* a, Count lda, T* b, Count ldb) noexcept {
    Count info = 0;
    Provider<T>::posv(&triangle, &n, &nrhs, a, &lda, b, &ldb, &info, 1);
    return info;
}

template <class T>
Count Trtri(char triangle, char diagonal, Count n, T* a, Count lda) noexcept {
    Count info = 0;
    Provider<T>::trtri(&triangle, &diagonal, &n, a, &lda, &info, 1, 1);
    return info;
}

template <class T>
Count Tptrs(char triangle, char transposition, char diagonal, Count n, Count nrhs, const T* packed, T* b,
            Count ldb) noexcept {
    Count info = 0;
    Provider<T>::tptrs(&triangle, &transposition, &diagonal, &n, &nrhs, packed, b, &ldb, &info, 1, 1, 1);
    return info;
}

template <class T>
Count Gelqf(Count m, Count n, T* a, Count lda, T* tau, T* work, Count lwork) noexcept {
    Count info = 0;
    Provider<T>::gelqf(&m, &n, a, &lda, tau, work, &lwork, &info);
    return info;
}

template <class T>
Count Orglq(Count m, Count n, Count k, T* a, Count lda, const T* tau, T* work, Count lwork) noexcept {
    Count info = 0;
    Provider<T>::orglq(&m, &n, &k, a, &lda, tau, work, &lwork, &info);
    return info;
}

template <class T>
Count Orgqr(Count m, Count n, Count k, T* a, Count lda, const T* tau, T* work, Count lwork) noexcept {
    Count info = 0;
    Provider<T>::orgqr(&m, &n, &k, a, &lda, tau, work, &lwork, &info);
    return info;
}

}  // namespace quorvan
