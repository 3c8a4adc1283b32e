// Entries of the analysis of variance and of the contingency test.
#include "stats/variance_analysis.h"

#include <type_traits>

#include "frame/entry.h"
#include "quorvan/quorvan.h"
#include "stats/contingency.h"

using namespace quorvan;

static_assert(sizeof(AnovaRow) == 4 * sizeof(double) && std::is_standard_layout_v<AnovaRow>);

namespace {

// Narrows the level arrays of n observations each and calls the body with the copies. They narrow before anything else
// is tested but n.
template <int kFactors, class Body>
Status WithLevels(Count n, const Size* const (&levels)[kFactors], const Body& body) {
    if (n < 1) return status::kSamplesNotPositive;
    Block<Count> copy(static_cast<std::size_t>(n) * kFactors);
    if (!copy) return status::kOutOfMemory;
    for (int i = 0; i < kFactors; ++i)
        if (const Status failure = SizeArrayNarrow(copy + Size{n} * i, levels[i], n)) return failure;
    return body(copy.get());
}

}  // namespace

QV_EXPORT Status ZemFunc6(const double* y, const Size* level, Size n, Size levels, double* ssA, double* msA, double* f,
                          double* significance, double* ssError, double* msError, double* ssTotal) {
    return narrowed(n, levels, [&](Count n, Count levels) {
        return WithLevels<1>(n, {level}, [&](const Count* copy) {
            return AnovaOneWay(y, copy, n, levels, {ssA, msA, f, significance, ssError, msError, ssTotal});
        });
    });
}

QV_EXPORT Status ZemFunc7(const double* y, const Size* levelA, const Size* levelB, Size n, Size perCell, Size levelsA,
                          Size levelsB, double* table, double* sigA, double* sigB, double* sigAB) {
    return narrowed(n, perCell, levelsA, levelsB, [&](Count n, Count perCell, Count levelsA, Count levelsB) {
        return WithLevels<2>(n, {levelA, levelB}, [&](const Count* copy) {
            double* const significance[] = {sigA, sigB, sigAB};
            return AnovaTwoWay(y, copy, copy + n, n, perCell, levelsA, levelsB, reinterpret_cast<AnovaRow*>(table),
                               significance);
        });
    });
}

QV_EXPORT Status ZemFunc8(const double* y, const Size* levelA, const Size* levelB, const Size* levelC, Size n,
                          Size perCell, Size levelsA, Size levelsB, Size levelsC, double* table, double* sigA,
                          double* sigB, double* sigC, double* sigAB, double* sigAC, double* sigBC, double* sigABC) {
    return narrowed(n, perCell, levelsA, levelsB, levelsC,
                    [&](Count n, Count perCell, Count levelsA, Count levelsB, Count levelsC) {
                        return WithLevels<3>(n, {levelA, levelB, levelC}, [&](const Count* copy) {
                            double* const significance[] = {sigA, sigB, sigC, sigAB, sigAC, sigBC, sigABC};
                            return AnovaThreeWay(y, copy, copy + n, copy + 2 * Size{n}, n, perCell, levelsA, levelsB,
                                                 levelsC, reinterpret_cast<AnovaRow*>(table), significance);
                        });
                    });
}

QV_EXPORT Status ZemFunc31(std::uint32_t rows, std::uint32_t cols, const std::int32_t* counts, double* chiSquare,
                           double* significance) {
    return ContingencyChiSquare(static_cast<Count>(rows), static_cast<Count>(cols), counts, chiSquare, significance);
}
