#include "linalg/banded.h"

#include "frame/memory.h"
#include "frame/status.h"
#include "linalg/info.h"
#include "linalg/matrix.h"
#include "linalg/provider.h"

namespace quorvan {

Status MatBandedSolve(const double* band, Count order, Count kl, Count ku, const double* b, Count nrhs,
                      double* x) noexcept {
    if (nrhs < 1 || order < 1) return status::kSamplesNotPositive;
    if (kl < 0 || ku < 0 || static_cast<Size>(kl) + ku + 1 > order) return status::kWrongDataCount;
    // The provider keeps kl rows above the band for the fill of its interchanges.
    const Count rows = kl + ku + 1;
    const Size leading = static_cast<Size>(rows) + kl;
    if (leading > INT32_MAX) return status::kOutOfMemory;
    const Count ldab = static_cast<Count>(leading);
    ProviderBlock<double> storage(Elements(order, ldab));
    ProviderBlock<double> solution = Transposed(b, order, nrhs);
    Block<Count> pivots(static_cast<std::size_t>(order));
    if (!storage || !solution || !pivots) return status::kOutOfMemory;
    for (Count row = 0; row < rows; ++row)
        for (Count j = 0; j < order; ++j)
            storage[static_cast<Size>(j) * ldab + kl + row] = band[static_cast<Size>(row) * order + j];
    Count info = 0;
    provider::QV_LAPACK(dgbsv)(&order, &kl, &ku, &nrhs, storage, &ldab, pivots, solution, &order, &info);
    if (const Status status = StatusOf(info, info::kSolve); status != status::kSuccess) return status;
    TransposeTo(solution, nrhs, order, x);
    return status::kSuccess;
}

}  // namespace quorvan
