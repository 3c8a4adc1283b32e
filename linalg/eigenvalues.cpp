#include "linalg/eigenvalues.h"

#include <algorithm>
#include <cstring>

#include "linalg/eigenvectors.h"
#include "linalg/info.h"
#include "linalg/lapack_eigen.h"
#include "linalg/matrix.h"

namespace quorvan {
namespace {

// A matrix and its transpose have the same eigenvalues, so those alone come from memory as it stands; the right vectors
// need the matrix in the provider's order.
template <class T>
ProviderBlock<T> GeneralCopy(const T* a, Count n, bool vectors) noexcept {
    return vectors ? Transposed(a, n, n) : Copied(a, n, n);
}

constexpr char Job(bool vectors) noexcept { return vectors ? 'V' : 'N'; }

Status General(const ComplexRecord* a, Count n, bool wantVectors, ComplexRecord* values,
               ComplexRecord* vectors) noexcept {
    const auto order = static_cast<std::size_t>(n);
    const ProviderBlock<ComplexRecord> copy = GeneralCopy(a, n, wantVectors), found(order);
    const ProviderBlock<ComplexRecord> columns(wantVectors ? Room<ComplexRecord>(n, n) : 0);
    const Block<double> rwork(2 * order);
    if (!copy || !found || !columns || !rwork) return status::kOutOfMemory;
    Count info = 0;
    const Status memory = Queried<ComplexRecord>(&info, [&](ComplexRecord* work, Count lwork) {
        return Geev(Job(wantVectors), n, copy.get(), found.get(), columns.get(), work, lwork, rwork.get());
    });
    if (memory != status::kSuccess) return memory;
    if (info != 0) return StatusOf(info, info::kEigenvalues);
    std::memcpy(values, found.get(), order * sizeof(ComplexRecord));
    if (wantVectors) TransposeTo(columns.get(), n, n, vectors);
    return status::kSuccess;
}

// The row-major upper triangle, as the lower one of conj(A): the values are the same, the vectors their conjugates.
Status Hermitian(const ComplexRecord* a, Count n, bool wantVectors, ComplexRecord* values,
                 ComplexRecord* vectors) noexcept {
    const ProviderBlock<ComplexRecord> copy = Copied(a, n, n);
    const Block<double> found(static_cast<std::size_t>(n));
    if (!copy || !found) return status::kOutOfMemory;
    const auto solve = [&](ComplexRecord* work, Count lwork, double* rwork, Count lrwork, Count* iwork, Count liwork) {
        return Heevd(Job(wantVectors), 'L', n, copy.get(), found.get(), work, lwork, rwork, lrwork, iwork, liwork);
    };
    double lrwork = 1;
    Count liwork = 1;
    const Count lwork = WorkspaceSize<ComplexRecord>(
        [&](ComplexRecord* work, Count query) { solve(work, query, &lrwork, query, &liwork, query); });
    const ProviderBlock<ComplexRecord> work(static_cast<std::size_t>(lwork));
    const Block<double> rwork(static_cast<std::size_t>(lrwork));
    const Block<Count> iwork(static_cast<std::size_t>(liwork));
    if (!work || !rwork || !iwork) return status::kOutOfMemory;
    const Count info = solve(work, lwork, rwork, static_cast<Count>(lrwork), iwork, liwork);
    if (const Status failure = StatusOf(info, info::kHermitian); failure != status::kSuccess) return failure;
    for (Count i = 0; i < n; ++i) values[i] = {found[i], 0.0};
    if (wantVectors) ConjugateTransposeTo(copy.get(), n, n, vectors);
    return status::kSuccess;
}

}  // namespace

Status MatEigenGeneral(const double* a, Count n, std::uint32_t wantVectors, ComplexRecord* values,
                       ComplexRecord* vectors) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    if (wantVectors > 1) return status::kInvalidSelection;
    if (!ElementsFit(n, n)) return status::kOverflow;
    if (MatScreen(a, Elements(n, n))) return status::kNonFiniteInput;
    const auto order = static_cast<std::size_t>(n);
    const ProviderBlock<double> copy = GeneralCopy(a, n, wantVectors);
    const ProviderBlock<double> columns(wantVectors ? Elements(n, n) : 0);
    const Block<double> found(2 * order);
    if (!copy || !columns || !found) return status::kOutOfMemory;
    double *re = found, *im = found + order;
    const auto solve = [&](double* work, Count lwork) {
        return Geev(Job(wantVectors), n, copy.get(), re, im, columns.get(), work, lwork);
    };
    // 4n is what the vectors need; the provider asks for more, and is far slower without.
    const std::size_t lwork = std::max(4 * order, static_cast<std::size_t>(WorkspaceSize<double>(solve)));
    const ProviderBlock<double> work(lwork);
    if (!work) return status::kOutOfMemory;
    const Count info = solve(work, static_cast<Count>(lwork));
    if (info != 0) return StatusOf(info, info::kEigenvalues);
    JoinValues(re, im, n, values);
    if (wantVectors) ExpandVectors(columns, im, n, vectors);
    return status::kSuccess;
}

Status MatEigenSymmetric(const double* a, Count n, std::uint32_t wantVectors, double* values,
                         double* vectors) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    if (wantVectors > 1) return status::kInvalidSelection;
    if (!ElementsFit(n, n)) return status::kOverflow;
    if (MatScreen(a, Elements(n, n))) return status::kNonFiniteInput;
    const ProviderBlock<double> copy = Copied(a, n, n);
    const Block<double> found(static_cast<std::size_t>(n));
    if (!copy || !found) return status::kOutOfMemory;
    const auto solve = [&](double* work, Count lwork, Count* iwork, Count liwork) {
        return Syevd(Job(wantVectors), 'L', n, copy.get(), found.get(), work, lwork, iwork, liwork);
    };
    Count liwork = 1;
    const Count lwork = WorkspaceSize<double>([&](double* work, Count query) { solve(work, query, &liwork, query); });
    const ProviderBlock<double> work(static_cast<std::size_t>(lwork));
    const Block<Count> iwork(static_cast<std::size_t>(liwork));
    if (!work || !iwork) return status::kOutOfMemory;
    const Count info = solve(work, lwork, iwork, liwork);
    if (info != 0) return StatusOf(info, info::kEigenvalues);
    std::memcpy(values, found.get(), static_cast<std::size_t>(n) * sizeof(double));
    if (wantVectors) TransposeTo(copy.get(), n, n, vectors);
    return status::kSuccess;
}

Status MatEigenComplex(const ComplexRecord* a, Count n, Count kind, std::uint32_t wantVectors, ComplexRecord* values,
                       ComplexRecord* vectors) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    if (kind != 0 && kind != 1) return status::kInvalidSelection;
    if (wantVectors > 1) return status::kInvalidSelection;
    if (!ElementsFit(n, n)) return status::kOverflow;
    if (MatScreen(a, Elements(n, n))) return status::kNonFiniteInput;
    return (kind == 0 ? General : Hermitian)(a, n, wantVectors == 1, values, vectors);
}

}  // namespace quorvan
