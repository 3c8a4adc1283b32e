#include "linalg/matrix.h"

#include <cstring>

#include "frame/array_search.h"
#include "frame/complex.h"
#include "frame/status.h"

namespace quorvan {
namespace {

using Rows = std::ptrdiff_t;

// A square tile is turned in a place of its own and then leaves row by row, so that every line of the output is written
// whole at once: rows a power of two apart would throw each other's half-written lines out of the cache.
constexpr Rows kSide = 32;
template <class T>
using Tile = T[kSide][kSide];

typedef double Pair __attribute__((vector_size(2 * sizeof(double))));

Pair Load(const double* from) noexcept {
    Pair v;
    std::memcpy(&v, from, sizeof v);
    return v;
}
void Store(double* to, Pair v) noexcept { std::memcpy(to, &v, sizeof v); }

// How two adjacent rows enter a tile as two adjacent columns. Reals go through registers, two by two.
struct PlainReal {
    void turnTwo(const double* upper, const double* lower, Rows columns, Tile<double>& tile, Rows at) const noexcept {
        Rows j = 0;
        for (; j + 2 <= columns; j += 2) {
            const Pair a = Load(upper + j), b = Load(lower + j);
            Store(&tile[j][at], Pair{a[0], b[0]});
            Store(&tile[j + 1][at], Pair{a[1], b[1]});
        }
        if (j < columns) tile[j][at] = upper[j], tile[j][at + 1] = lower[j];
    }
    double operator()(double v) const noexcept { return v; }
};

// A record fills a register by itself.
template <ComplexRecord (*kElement)(ComplexRecord) noexcept>
struct Records {
    void turnTwo(const ComplexRecord* upper, const ComplexRecord* lower, Rows columns, Tile<ComplexRecord>& tile,
                 Rows at) const noexcept {
        for (Rows j = 0; j < columns; ++j) {
            tile[j][at] = kElement(upper[j]);
            tile[j][at + 1] = kElement(lower[j]);
        }
    }
    ComplexRecord operator()(ComplexRecord v) const noexcept { return kElement(v); }
};
ComplexRecord Itself(ComplexRecord v) noexcept { return v; }
ComplexRecord Conjugate(ComplexRecord v) noexcept { return CxConj(v); }
using PlainComplex = Records<Itself>;
using Conjugated = Records<Conjugate>;

Rows Least(Rows a, Rows b) noexcept { return a < b ? a : b; }

// `rows` by `columns` of `a` into the tile.
template <class T, class Element>
void Turn(const T* a, Rows rows, Rows columns, Rows lda, Tile<T>& tile, Element element) noexcept {
    Rows i = 0;
    for (; i + 2 <= rows; i += 2, a += 2 * lda) element.turnTwo(a, a + lda, columns, tile, i);
    if (i == rows) return;
    for (Rows j = 0; j < columns; ++j) tile[j][i] = element(a[j]);
}

// Asks for the lines that a whole tile will be written to: they stand in as many pages, which no processor foresees.
template <class T>
void Foresee(T* out, Rows ldo) noexcept {
    constexpr Rows kLine = 64 / sizeof(T);
    for (Rows k = 0; k < kSide; ++k)
        for (Rows i = 0; i < kSide; i += kLine) __builtin_prefetch(out + k * ldo + i, 1);
}

// Along the rows, which are read in order.
template <class T, class Element>
void Transpose(const T* a, Rows m, Rows n, Rows lda, T* out, Rows ldo, Element element) noexcept {
    Tile<T> tile;
    for (Rows i = 0; i < m; i += kSide) {
        const Rows rows = Least(m - i, kSide);
        for (Rows j = 0; j < n; j += kSide) {
            const Rows columns = Least(n - j, kSide);
            if (rows == kSide && j + 2 * kSide <= n) Foresee(out + (j + kSide) * ldo + i, ldo);
            Turn(a + i * lda + j, rows, columns, lda, tile, element);
            for (Rows k = 0; k < columns; ++k) {
                T* to = out + (j + k) * ldo + i;
                if (rows == kSide)
                    std::memcpy(to, tile[k], kSide * sizeof(T));
                else
                    std::memcpy(to, tile[k], static_cast<std::size_t>(rows) * sizeof(T));
            }
        }
    }
}

template <class T, class Element>
Status TransposeOutOrIn(T* a, Count m, Count n, T* out, Element element) noexcept {
    if (m < 1 || n < 1) return status::kSamplesNotPositive;
    if (out && out != a) {
        Transpose<T>(a, m, n, n, out, m, element);
        return status::kSuccess;
    }
    const ProviderBlock<T> copy = Copied(a, m, n);
    if (!copy) return status::kOutOfMemory;
    Transpose<T>(copy, m, n, n, a, m, element);
    return status::kSuccess;
}

}  // namespace

bool MatScreen(const double* a, std::size_t count) noexcept {
    return kArraySearch().has_non_finite(a, static_cast<Size>(count));
}

bool MatScreen(const ComplexRecord* a, std::size_t count) noexcept {
    static_assert(sizeof(ComplexRecord) == 2 * sizeof(double));
    return MatScreen(&a->re, 2 * count);
}

void TransposeTo(const double* a, Count m, Count n, double* out) noexcept { TransposeTo(a, m, n, n, out, m); }

void TransposeTo(const ComplexRecord* a, Count m, Count n, ComplexRecord* out) noexcept {
    TransposeTo(a, m, n, n, out, m);
}

void TransposeTo(const double* a, Count m, Count n, Count lda, double* out, Count ldo) noexcept {
    Transpose(a, m, n, lda, out, ldo, PlainReal{});
}

void TransposeTo(const ComplexRecord* a, Count m, Count n, Count lda, ComplexRecord* out, Count ldo) noexcept {
    Transpose(a, m, n, lda, out, ldo, PlainComplex{});
}

void ConjugateTransposeTo(const ComplexRecord* a, Count m, Count n, ComplexRecord* out) noexcept {
    Transpose(a, m, n, n, out, m, Conjugated{});
}

template <class T>
ProviderBlock<T> Copied(const T* a, Count m, Count n) noexcept {
    const std::size_t count = Elements(m, n);
    ProviderBlock<T> copy(Room<T>(n, m));
    if (copy && count > 0) std::memcpy(copy.get(), a, count * sizeof(T));
    return copy;
}

template <class T>
ProviderBlock<T> Transposed(const T* a, Count m, Count n) noexcept {
    ProviderBlock<T> copy(Room<T>(m, n));
    if (copy) TransposeTo(a, m, n, copy.get());
    return copy;
}

template ProviderBlock<double> Copied(const double*, Count, Count) noexcept;
template ProviderBlock<ComplexRecord> Copied(const ComplexRecord*, Count, Count) noexcept;
template ProviderBlock<double> Transposed(const double*, Count, Count) noexcept;
template ProviderBlock<ComplexRecord> Transposed(const ComplexRecord*, Count, Count) noexcept;

Status MatTranspose(double* a, Count m, Count n, double* out) noexcept {
    return TransposeOutOrIn(a, m, n, out, PlainReal{});
}

Status MatTransposeComplex(ComplexRecord* a, Count m, Count n, ComplexRecord* out) noexcept {
    return TransposeOutOrIn(a, m, n, out, PlainComplex{});
}

Status MatConjugateTranspose(ComplexRecord* a, Count m, Count n, ComplexRecord* out) noexcept {
    return TransposeOutOrIn(a, m, n, out, Conjugated{});
}

}  // namespace quorvan
