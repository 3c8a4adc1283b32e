// Inverses of square matrices.
#include <cstring>

#include "frame/memory.h"
#include "frame/status.h"
#include "linalg/element.h"
#include "linalg/general_inverse.h"
#include "linalg/matrix.h"
#include "linalg/matrix_kind.h"
#include "linalg/solve.h"

namespace quorvan {

template <class T>
Status InvertGeneral(T* matrix, Count n) noexcept {
    Block<Count> pivots(static_cast<std::size_t>(n));
    if (!pivots) return status::kOutOfMemory;
    if (Status failed = StatusOf(Getrf<T>(n, n, matrix, n, pivots), info::kSolve)) return failed;
    Count info = 0;
    const Status failed =
        Queried<T>(&info, [&](T* work, Count lwork) { return Getri<T>(n, matrix, n, pivots, work, lwork); });
    return failed ? failed : StatusOf(info, info::kSolve);
}

template Status InvertGeneral(double*, Count) noexcept;
template Status InvertGeneral(ComplexRecord*, Count) noexcept;

namespace {

std::size_t Bytes(Count count, std::size_t size) noexcept { return static_cast<std::size_t>(count) * size; }

// The row-major upper triangle is the provider's lower one. The rest of `to` stays as it is.
template <class T>
void CopyUpper(const T* from, Count n, T* to) noexcept {
    const std::size_t step = static_cast<std::size_t>(n) + 1;
    for (Count i = 0; i < n; ++i)
        std::memcpy(to + static_cast<std::size_t>(i) * step, from + static_cast<std::size_t>(i) * step,
                    Bytes(n - i, sizeof(T)));
}

template <class T>
Status General(const T* a, Count n, T* out) noexcept {
    ProviderBlock<T> inverse = Copied(a, n, n);
    if (!inverse) return status::kOutOfMemory;
    if (Status failed = InvertGeneral<T>(inverse, n)) return failed;
    std::memcpy(out, inverse.get(), Elements(n, n) * sizeof(T));
    return status::kSuccess;
}

template <class T>
Status PositiveDefinite(const T* a, Count n, T* out) noexcept {
    ProviderBlock<T> inverse(Room<T>(n, n));
    if (!inverse) return status::kOutOfMemory;
    CopyUpper<T>(a, n, inverse);
    if (Status failed = StatusOf(Potrf<T>('L', n, inverse, n), info::kCholesky)) return failed;
    if (Status failed = StatusOf(Potri<T>('L', n, inverse, n), info::kTriangle)) return failed;
    // Mirrored: everything turned over, then the triangle that was meant put in place again.
    ConjugateTransposeTo(inverse, n, n, out);
    CopyUpper<T>(inverse, n, out);
    return status::kSuccess;
}

// The triangle that is not read is 0 in the result.
template <class T>
Status Triangular(const T* a, Count n, bool lower, T* out) noexcept {
    ProviderBlock<T> inverse = Copied(a, n, n);
    if (!inverse) return status::kOutOfMemory;
    if (Status failed = StatusOf(Trtri<T>(lower ? 'U' : 'L', 'N', n, inverse, n), info::kTriangle)) return failed;
    const T* row = inverse;
    for (Count i = 0; i < n; ++i, row += n, out += n) {
        const Count first = lower ? 0 : i, last = lower ? i + 1 : n;
        std::memset(out, 0, Bytes(first, sizeof(T)));
        std::memcpy(out + first, row + first, Bytes(last - first, sizeof(T)));
        std::memset(out + last, 0, Bytes(n - last, sizeof(T)));
    }
    return status::kSuccess;
}

}  // namespace

Status MatInverse(double* a, Count n, double* out) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    return General(a, n, out ? out : a);
}

template <class T>
Status MatInverseKind(T* a, Count n, Count kind, T* out) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    const auto selected = static_cast<std::uint32_t>(kind);
    if (selected > kUpperTriangular) return status::kInvalidSelection;
    if (selected <= kPositiveDefinite && MatScreen(a, Elements(n, n))) return status::kNonFiniteInput;
    if (!out) out = a;
    if (selected == kGeneral) return General(a, n, out);
    if (selected == kPositiveDefinite) return PositiveDefinite(a, n, out);
    return Triangular(a, n, selected == kLowerTriangular, out);
}

template Status MatInverseKind(double*, Count, Count, double*) noexcept;
template Status MatInverseKind(ComplexRecord*, Count, Count, ComplexRecord*) noexcept;

}  // namespace quorvan
