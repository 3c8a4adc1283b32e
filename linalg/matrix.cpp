#include "linalg/matrix.h"

#include <cstring>

#include "frame/array_search.h"
#include "frame/complex.h"
#include "frame/status.h"

namespace quorvan {
namespace {

using Rows = std::ptrdiff_t;

// A tile is a cache line wide both ways, so that each line is read and written whole while it is near. Tiles go down a
// strip whose columns become few enough rows for the first level of the address cache.
constexpr Rows kTile = 8;
constexpr Rows kStrip = 32;

typedef double Pair __attribute__((vector_size(2 * sizeof(double))));

Pair Load(const double* from) noexcept {
    Pair v;
    std::memcpy(&v, from, sizeof v);
    return v;
}
void Store(double* to, Pair v) noexcept { std::memcpy(to, &v, sizeof v); }

// A whole tile of reals goes through registers, two by two.
struct PlainReal {
    void tile(const double* a, Rows lda, double* out, Rows ldo) const noexcept {
        for (Rows j = 0; j < kTile; j += 2)
            for (Rows i = 0; i < kTile; i += 2) {
                const Pair upper = Load(a + i * lda + j), lower = Load(a + (i + 1) * lda + j);
                Store(out + j * ldo + i, Pair{upper[0], lower[0]});
                Store(out + (j + 1) * ldo + i, Pair{upper[1], lower[1]});
            }
    }
    double operator()(double v) const noexcept { return v; }
};

// A record fills a register by itself.
template <class Element>
struct RecordTile {
    void tile(const ComplexRecord* a, Rows lda, ComplexRecord* out, Rows ldo) const noexcept {
        for (Rows j = 0; j < kTile; ++j)
            for (Rows i = 0; i < kTile; ++i) out[j * ldo + i] = Element::Of(a[i * lda + j]);
    }
    ComplexRecord operator()(ComplexRecord v) const noexcept { return Element::Of(v); }
};
struct Itself {
    static ComplexRecord Of(ComplexRecord v) noexcept { return v; }
};
struct Conjugate {
    static ComplexRecord Of(ComplexRecord v) noexcept { return CxConj(v); }
};
using PlainComplex = RecordTile<Itself>;
using Conjugated = RecordTile<Conjugate>;

Rows Least(Rows a, Rows b) noexcept { return a < b ? a : b; }

template <class T, class Element>
void Transpose(const T* a, Rows m, Rows n, Rows lda, T* out, Rows ldo, Element element) noexcept {
    for (Rows strip = 0; strip < n; strip += kStrip) {
        const Rows end = Least(n, strip + kStrip);
        for (Rows i = 0; i < m; i += kTile) {
            for (Rows j = strip; j < end; j += kTile) {
                if (i + kTile <= m && j + kTile <= n) {
                    element.tile(a + i * lda + j, lda, out + j * ldo + i, ldo);
                    continue;
                }
                for (Rows column = j; column < Least(n, j + kTile); ++column)
                    for (Rows row = i; row < Least(m, i + kTile); ++row)
                        out[column * ldo + row] = element(a[row * lda + column]);
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
    ProviderBlock<T> copy(count);
    if (copy && count > 0) std::memcpy(copy.get(), a, count * sizeof(T));
    return copy;
}

template <class T>
ProviderBlock<T> Transposed(const T* a, Count m, Count n) noexcept {
    ProviderBlock<T> copy(Elements(m, n));
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
