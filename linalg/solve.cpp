// Systems of a kind that the caller names.
#include "linalg/solve.h"

#include <type_traits>

#include "frame/status.h"
#include "linalg/element.h"
#include "linalg/info.h"
#include "linalg/lapack.h"
#include "linalg/matrix.h"
#include "linalg/matrix_kind.h"

namespace quorvan {
namespace {

// Both forms read the row-major lower triangle.
ProviderBlock<double> Definite(const double* a, Count n) noexcept { return Copied(a, n, n); }
ProviderBlock<ComplexRecord> Definite(const ComplexRecord* a, Count n) noexcept { return Transposed(a, n, n); }
constexpr char DefiniteTriangle(double) noexcept { return 'U'; }
constexpr char DefiniteTriangle(ComplexRecord) noexcept { return 'L'; }

template <class T>
Status SolvePositiveDefinite(const T* a, Count n, const T* b, Count nrhs, T* x) noexcept {
    if (MatScreen(a, Elements(n, n))) return status::kNonFiniteInput;
    ProviderBlock<T> factor = Definite(a, n), columns = Transposed(b, n, nrhs);
    if (!factor || !columns) return status::kOutOfMemory;
    const Count info = Posv<T>(DefiniteTriangle(T{}), n, nrhs, factor, n, columns, n);
    if (Status failed = StatusOf(info, info::kCholesky)) return failed;
    TransposeTo(columns, nrhs, n, x);
    return status::kSuccess;
}

// The triangle column by column without gaps. Strips of columns are taken together, so that lines of the row-major
// matrix are read once.
template <class T>
void Pack(const T* a, Count n, bool lower, T* packed) noexcept {
    constexpr Count kStrip = 8;
    const auto start = [&](std::size_t j) {  // where element (0, j) would stand
        const std::size_t height = static_cast<std::size_t>(n);
        return lower ? j * height - j * (j + 1) / 2 : j * (j + 1) / 2;
    };
    for (Count strip = 0; strip < n; strip += kStrip) {
        const Count end = n - strip < kStrip ? n : strip + kStrip;
        for (Count i = lower ? strip : 0; i < (lower ? n : end); ++i) {
            const T* row = a + static_cast<std::size_t>(i) * static_cast<std::size_t>(n);
            const Count first = lower || i < strip ? strip : i, last = lower && i < end ? i + 1 : end;
            for (Count j = first; j < last; ++j) packed[start(static_cast<std::size_t>(j)) + i] = row[j];
        }
    }
}

// What the diagonal is measured by: magnitudes of reals, squared moduli of records, with the limit squared too.
struct RealScale {
    static constexpr double kLimit = kEpsilon;
    static double Of(double v) noexcept { return element::Magnitude(v); }
    static double Largest(const double* x, Count n) noexcept { return Of(x[provider::cblas_idamax(n, x, 1)]); }
};
struct RecordScale {
    static constexpr double kLimit = 4.930380657631324e-32;
    static double Of(ComplexRecord v) noexcept { return CxSquaredMagnitude(v); }
    static double Largest(const ComplexRecord* x, Count n) noexcept {
        double largest = 0;
        for (Count i = 0; i < n; ++i) largest = Of(x[i]) > largest ? Of(x[i]) : largest;
        return largest;
    }
};
template <class T>
using ScaleOf = std::conditional_t<std::is_same_v<T, double>, RealScale, RecordScale>;

// A diagonal that is tiny beside the largest element of the triangle counts as singular, deliberately, though the
// provider would accept it.
template <class T>
bool HasTinyDiagonal(const T* packed, Count packedCount, const T* a, Count n) noexcept {
    using Scale = ScaleOf<T>;
    const double limit = Scale::Largest(packed, packedCount) * Scale::kLimit;
    for (Count i = 0; i < n; ++i)
        if (Scale::Of(a[static_cast<std::size_t>(i) * static_cast<std::size_t>(n) + i]) <= limit) return true;
    return false;
}

template <class T>
Status SolveTriangular(const T* a, Count n, bool lower, const T* b, Count nrhs, T* x) noexcept {
    const std::size_t packedCount = (static_cast<std::size_t>(n) + 1) * static_cast<std::size_t>(n) / 2;
    ProviderBlock<T> packed(packedCount);
    if (!packed) return status::kOutOfMemory;
    Pack<T>(a, n, lower, packed);
    if (HasTinyDiagonal<T>(packed, static_cast<Count>(packedCount), a, n)) return status::kSingularMatrix;
    ProviderBlock<T> columns = Transposed(b, n, nrhs);
    if (!columns) return status::kOutOfMemory;
    const Count info = Tptrs<T>(lower ? 'L' : 'U', 'N', 'N', n, nrhs, packed, columns, n);
    if (Status failed = StatusOf(info, info::kTriangle)) return failed;
    TransposeTo(columns, nrhs, n, x);
    return status::kSuccess;
}

}  // namespace

template <class T>
Status MatSolveMany(const T* a, Count m, Count n, std::uint32_t kind, const T* b, Count nrhs, T* x) noexcept {
    if (kind != kGeneral && kind <= kUpperTriangular && m != n) return status::kNotSquare;
    if (m < 1 || n < 1 || nrhs < 1) return status::kSamplesNotPositive;
    switch (kind) {
        case kGeneral: return SolveLeastSquares(a, m, n, b, nrhs, -1.0, x);
        case kPositiveDefinite: return SolvePositiveDefinite(a, n, b, nrhs, x);
        case kLowerTriangular:
        case kUpperTriangular: return SolveTriangular(a, n, kind == kLowerTriangular, b, nrhs, x);
        default: return status::kInvalidSelection;
    }
}

template Status MatSolveMany(const double*, Count, Count, std::uint32_t, const double*, Count, double*) noexcept;
template Status MatSolveMany(const ComplexRecord*, Count, Count, std::uint32_t, const ComplexRecord*, Count,
                             ComplexRecord*) noexcept;

}  // namespace quorvan
