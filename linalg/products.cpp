#include "linalg/products.h"

#include <cstring>

#include "frame/status.h"
#include "linalg/apart.h"
#include "linalg/element.h"
#include "linalg/lapack.h"
#include "linalg/matrix.h"

namespace quorvan {
namespace {

using provider::Transposition;

// A long product runs in slabs of rows, each a call of its own.
constexpr Count kSlab = 1530;
constexpr bool InSlabs(Count rowsA, Count colsA, Count colsB) noexcept {
    return rowsA > kSlab && colsA >= 257 && colsB >= 3;
}

std::size_t Offset(Count row, Count cols) noexcept {
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(cols);
}

}  // namespace

template <class T>
Status MatMultiply(const T* a, const T* b, Count rowsA, Count colsA, Count colsB, T* out) noexcept {
    if (rowsA < 0 || colsA < 0 || colsB < 0) return status::kSamplesNegative;
    if (rowsA == 0 || colsB == 0) return status::kSuccess;
    if (colsA == 0) {
        std::memset(out, 0, Elements(rowsA, colsB) * sizeof(T));
        return status::kSuccess;
    }
    const Count slab = InSlabs(rowsA, colsA, colsB) ? kSlab : rowsA;
    for (Count done = 0, rows; done < rowsA; done += rows) {
        rows = rowsA - done < slab ? rowsA - done : slab;
        Gemm(Transposition::kNone, Transposition::kNone, rows, colsB, colsA, a + Offset(done, colsA), colsA, b, colsB,
             out + Offset(done, colsB), colsB);
    }
    return status::kSuccess;
}

template <class T>
Status MatMultiplyCopied(const T* a, const T* b, Count rowsA, Count colsA, Count colsB, T* out) noexcept {
    if (rowsA < 0 || colsA < 0 || colsB < 0) return status::kSamplesNegative;
    const ProviderBlock<T> first = Copied(a, rowsA, colsA), second = Copied(b, colsA, colsB);
    if (!first || !second) return status::kOutOfMemory;
    return MatMultiply<T>(first, second, rowsA, colsA, colsB, out);
}

template <class T>
Status MatVectorMultiply(const T* a, const T* x, Count m, Count n, T* y) noexcept {
    if (m < 1 || n < 1) return status::kSamplesNotPositive;
    const Apart<T> matrix(a, Elements(m, n), y), vector(x, static_cast<std::size_t>(n), y);
    if (!matrix || !vector) return status::kOutOfMemory;
    Gemv(m, n, matrix, vector, y);
    return status::kSuccess;
}

Status VecDot(const double* x, const double* y, Count n, double* out) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    *out = provider::cblas_ddot(n, x, 1, y, 1);
    return status::kSuccess;
}

Status VecDotComplex(const ComplexRecord* x, const ComplexRecord* y, Count n, ComplexRecord* out) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    provider::cblas_zdotu_sub(n, x, 1, y, 1, out);
    return status::kSuccess;
}

template <class T>
Status VecOuterProduct(const T* x, Count nx, const T* y, Count ny, T* out) noexcept {
    if (nx < 1 || ny < 1) return status::kSamplesNotPositive;
    const Apart<T> column(x, static_cast<std::size_t>(nx), out), row(y, static_cast<std::size_t>(ny), out);
    if (!column || !row) return status::kOutOfMemory;
    for (Count i = 0; i < nx; ++i, out += ny) {
        const T factor = column[i];
        for (Count j = 0; j < ny; ++j) out[j] = element::Product(factor, row[j]);
    }
    return status::kSuccess;
}

template <class T>
Status MatKronecker(const T* a, const T* b, Count rowsA, Count colsA, Count rowsB, Count colsB, T* out) noexcept {
    if (rowsA < 1 || colsA < 1 || rowsB < 1 || colsB < 1) return status::kSamplesNotPositive;
    const Apart<T> outer(a, Elements(rowsA, colsA), out), inner(b, Elements(rowsB, colsB), out);
    if (!outer || !inner) return status::kOutOfMemory;
    for (Count i = 0; i < rowsA; ++i)
        for (Count k = 0; k < rowsB; ++k) {
            const T* row = inner + Offset(k, colsB);
            for (Count j = 0; j < colsA; ++j, out += colsB) {
                const T factor = outer[Offset(i, colsA) + j];
                for (Count l = 0; l < colsB; ++l) out[l] = element::Product(factor, row[l]);
            }
        }
    return status::kSuccess;
}

#define QV_INSTANTIATE(T)                                                                    \
    template Status MatMultiply(const T*, const T*, Count, Count, Count, T*) noexcept;       \
    template Status MatMultiplyCopied(const T*, const T*, Count, Count, Count, T*) noexcept; \
    template Status MatVectorMultiply(const T*, const T*, Count, Count, T*) noexcept;        \
    template Status VecOuterProduct(const T*, Count, const T*, Count, T*) noexcept;          \
    template Status MatKronecker(const T*, const T*, Count, Count, Count, Count, T*) noexcept;
QV_INSTANTIATE(double)
QV_INSTANTIATE(ComplexRecord)
#undef QV_INSTANTIATE

}  // namespace quorvan
