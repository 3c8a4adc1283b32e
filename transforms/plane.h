// The two passes of a two-dimensional transform: rows, then columns of the same array, a block of neighbours at a time.
#pragma once

#include "frame/memory.h"
#include "frame/status.h"
#include "transforms/columns.h"
#include "transforms/spectrum_layout.h"

namespace quorvan {

// Plans and workspace for arrays of rows x cols bins.
class Plane {
public:
    Plane(Count rows, Count cols, FftPlanUse rowUse = FftPlanUse::kTransforms) noexcept
        : rows_(rows),
          cols_(cols),
          rowPlan_(cols, rowUse),
          columnPlan_(rows),
          line_(2 * std::size_t(cols)),
          block_(2 * std::size_t{kColumnBlock} * rows) {}
    explicit operator bool() const noexcept { return rowPlan_ && columnPlan_ && line_ && block_; }

    const FftPlan* rowPlan() const noexcept { return rowPlan_; }
    const FftPlan* columnPlan() const noexcept { return columnPlan_; }
    // Room for one row of records, or for two of reals.
    ComplexRecord* line() const noexcept { return reinterpret_cast<ComplexRecord*>(line_.get()); }
    double* realLine() const noexcept { return line_; }
    // Room for two blocks of columns of records.
    ComplexRecord* block() const noexcept { return block_; }

    // Transforms `count` columns in place. Rows from `used` on count as zeros and are written. Row `from` holds
    // element 0 of a column before, row `to` after the transform.
    Status columns(decltype(FftComplex) core, ComplexRecord* data, Size stride, Count count, Count used, Count from,
                   Count to) const noexcept {
        ComplexRecord *in = block_, *out = in + Size{kColumnBlock} * rows_;
        return InColumnBlocks(count, [&](Count first, Count width) -> Status {
            GatherColumns(data + first, stride, used, from, rows_, width, in);
            for (Size c = 0; c < width; ++c)
                if (const Status failure = RecordsThrough(core, columnPlan_, in + c * rows_, out + c * rows_, rows_))
                    return failure;
            ScatterColumns(out, rows_, to, width, data + first, stride);
            return status::kSuccess;
        });
    }

    // The inverse transform of one row, whose X[0] stands in the middle if shifted.
    Status inverseRow(const ComplexRecord* row, bool shift, ComplexRecord* out) const noexcept {
        if (shift) {
            RotateFromShifted(row, cols_, line());
            row = line();
        }
        return RecordsThrough(FftComplexInverse, rowPlan_, row, out, cols_);
    }

private:
    Count rows_, cols_;
    HeldPlan rowPlan_, columnPlan_;
    Block<double> line_;
    Block<ComplexRecord> block_;
};

}  // namespace quorvan
