#include "stats/contingency.h"

#include <algorithm>

#include "frame/memory.h"
#include "frame/status.h"
#include "stats/distributions.h"

namespace quorvan {

Status ContingencyChiSquare(Count rows, Count columns, const std::int32_t* counts, double* chiSquare,
                            double* significance) noexcept {
    if (rows < 0 || columns < 0) return status::kNegativeCount;
    if (rows < 2 || columns < 2) return status::kCategoriesNotAboveOne;
    const Size cells = Size{rows} * columns;
    if (cells > INT32_MAX) return status::kOverflow;
    if (std::any_of(counts, counts + cells, [](std::int32_t count) { return count < 0; }))
        return status::kNegativeCount;
    const Block<double> work(static_cast<std::size_t>(rows) + static_cast<std::size_t>(columns));
    if (!work) return status::kOutOfMemory;
    double *const rowSums = work, *const columnSums = rowSums + rows;

    std::fill(columnSums, columnSums + columns, 0.0);
    double total = 0;
    for (Count i = 0; i < rows; ++i) {
        const std::int32_t* row = counts + Size{i} * columns;
        rowSums[i] = 0;
        for (Count j = 0; j < columns; ++j) {
            rowSums[i] += row[j];
            columnSums[j] += row[j];
        }
        total += rowSums[i];
    }
    double sum = 0;
    for (Count i = 0; i < rows; ++i)
        for (Count j = 0; j < columns; ++j) {
            const double expected = rowSums[i] * columnSums[j] / total;
            const double off = counts[Size{i} * columns + j] - expected;
            sum += off * off / expected;
        }
    double probability;
    const Status done = DistChiSquareCdf(sum, (rows - 1) * (columns - 1), &probability);
    *chiSquare = sum;
    *significance = 1 - probability;
    return done;
}

}  // namespace quorvan
