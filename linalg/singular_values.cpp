// Singular values by the provider's divide and conquer, on the transpose: row-major memory as it stands.
//
// With A^T = P·S·Q^H, A = conj(Q)·S·P^T: the provider's vt = Q^H is, read row by row, U; its u = P becomes V by a
// conjugate transposition.
#include <algorithm>
#include <cstring>

#include "linalg/decompositions.h"
#include "linalg/info.h"
#include "linalg/lapack_eigen.h"
#include "linalg/matrix.h"

namespace quorvan {
namespace {

constexpr char kValuesOnly = 'N', kEconomy = 'S', kFull = 'A';

// The doubles that zgesdd uses at most: (5k + 7)k, and 2·max(m, n)·k + 2k² + k where one side is somewhat longer.
std::size_t RealWorkCount(Count m, Count n) noexcept {
    const auto longer = static_cast<std::size_t>(std::max(m, n)), k = static_cast<std::size_t>(std::min(m, n));
    return std::max((5 * k + 7) * k, 2 * longer * k + 2 * k * k + k);
}

// So many elements that what follows them is aligned as the provider's blocks are.
constexpr std::size_t Padded(std::size_t count) noexcept { return (count + 3) / 4 * 4; }

template <class T>
Status Decompose(const T* a, Count m, Count n, char job, T* u, double* s, T* v) noexcept {
    if (!ElementsFit(m, n)) return status::kOverflow;
    if (job == kFull && !(ElementsFit(m, m) && ElementsFit(n, n))) return status::kOverflow;
    if (MatScreen(a, Elements(m, n))) return status::kNonFiniteInput;
    const Count k = std::min(m, n);
    const bool vectors = job != kValuesOnly;
    const Count columnsU = job == kFull ? m : k, columnsV = job == kFull ? n : k;
    const std::size_t elementsU = vectors ? Elements(m, columnsU) : 0, elementsV = vectors ? Elements(n, columnsV) : 0;

    const Block<double> values(static_cast<std::size_t>(k));
    const Block<double> rwork = RealWork<T>(RealWorkCount(m, n));
    const Block<Count> iwork(8 * static_cast<std::size_t>(k));
    if (!values || !rwork || !iwork) return status::kOutOfMemory;
    T *copy = nullptr, *left = nullptr, *right = nullptr;  // the transpose has the vectors the other way round
    const auto solve = [&](T* work, Count lwork) {
        return Gesdd(job, n, m, copy, n, values.get(), left, n, right, columnsU, work, lwork, rwork.get(), iwork.get());
    };
    // One area for all: a heap that gives large blocks back to the system keeps one of a size that it has seen.
    const std::size_t elements = Elements(m, n);
    const Count lwork = WorkspaceSize<T>(solve);
    const ProviderBlock<T> area(Padded(elements) + Padded(elementsV) + Padded(elementsU) +
                                static_cast<std::size_t>(lwork));
    if (!area) return status::kOutOfMemory;
    copy = area;
    left = copy + Padded(elements);
    right = left + Padded(elementsV);
    std::memcpy(copy, a, elements * sizeof(T));
    const Count info = solve(right + Padded(elementsU), lwork);
    if (info != 0) return StatusOf(info, info::kSingularValues);

    std::memcpy(s, values.get(), static_cast<std::size_t>(k) * sizeof(double));
    if (!vectors) return status::kSuccess;
    std::memcpy(u, right, elementsU * sizeof(T));
    ConjugateTransposeTo(left, columnsV, n, v);
    return status::kSuccess;
}

}  // namespace

template <class T>
Status MatSingularValues(const T* a, Count m, Count n, double* s) noexcept {
    if (m < 1 || n < 1) return status::kSamplesNotPositive;
    return Decompose<T>(a, m, n, kValuesOnly, nullptr, s, nullptr);
}

template <class T>
Status MatSvd(const T* a, Count m, Count n, T* u, double* s, T* v) noexcept {
    if (m < 1 || n < 1) return status::kSamplesNotPositive;
    return Decompose(a, m, n, kEconomy, u, s, v);
}

template <class T>
Status MatSvdMode(const T* a, Count m, Count n, Count mode, T* u, double* s, T* v) noexcept {
    if (m < 1 || n < 1) return status::kSamplesNotPositive;
    if (!u || !v) return MatSingularValues(a, m, n, s);  // whatever the mode, deliberately
    if (mode != 0 && mode != 1) return status::kInvalidSelection;
    return Decompose(a, m, n, mode == 0 ? kFull : kEconomy, u, s, v);
}

template Status MatSingularValues(const double*, Count, Count, double*) noexcept;
template Status MatSingularValues(const ComplexRecord*, Count, Count, double*) noexcept;
template Status MatSvd(const double*, Count, Count, double*, double*, double*) noexcept;
template Status MatSvd(const ComplexRecord*, Count, Count, ComplexRecord*, double*, ComplexRecord*) noexcept;
template Status MatSvdMode(const double*, Count, Count, Count, double*, double*, double*) noexcept;
template Status MatSvdMode(const ComplexRecord*, Count, Count, Count, ComplexRecord*, double*, ComplexRecord*) noexcept;

}  // namespace quorvan
