#include "filters/iir_cascade.h"

#include <algorithm>

#include "filters/cascade_loops.h"
#include "frame/status.h"

namespace quorvan {
namespace {

bool Fits(Size width, Size stages, Count aCount, Count bCount) {
    return (width == 2 || width == 4) && aCount == width * stages && bCount == (width + 1) * stages;
}

struct Shape {
    Count width, stages;
};

// False for a record whose counts do not fit together.
bool ShapeOf(const IirFilter& filter, Count stateCount, Shape& shape) {
    const Size stages = StageCount(filter.order);
    if (stages < 1) return false;
    const Size width = filter.a_count / stages;
    shape = {static_cast<Count>(width), static_cast<Count>(stages)};
    return Fits(width, stages, filter.a_count, filter.b_count) && stateCount == filter.a_count;
}

template <class T>
void ResetIfPending(IirFilter& filter, T* state, Count count) {
    if (!filter.reset) return;
    std::fill_n(state, count, T{});
    filter.reset = 0;
}

Status CheckRun(Count width, Count stages, Count n, Count aCount, Count bCount) {
    if (n < 1) return status::kSamplesNotPositive;
    if (aCount < 1 || bCount < 1) return status::kInvalidFilter;
    return Fits(width, stages, aCount, bCount) ? status::kSuccess : status::kInvalidFilter;
}

}  // namespace

Status IirCascadePrepare(IirFilter& filter, const double* x, Count n, double* y) noexcept {
    Shape shape;
    if (!ShapeOf(filter, filter.state_count, shape)) return status::kInvalidFilter;
    ResetIfPending(filter, filter.state, filter.state_count);
    return IirCascadeRun(shape.width, shape.stages, x, n, filter.a, filter.a_count, filter.b, filter.b_count,
                         filter.state, y);
}

Status IirCascadePrepareComplex(IirFilter& filter, const IirStateComplex& state, const ComplexRecord* x, Count n,
                                ComplexRecord* y) noexcept {
    Shape shape;
    if (!ShapeOf(filter, state.count, shape)) return status::kInvalidFilter;
    ResetIfPending(filter, state.values, state.count);
    return IirCascadeRunComplex(shape.width, shape.stages, x, n, filter.a, filter.a_count, filter.b, filter.b_count,
                                state.values, y);
}

Status IirCascadeRun(Count width, Count stages, const double* x, Count n, const double* a, Count aCount,
                     const double* b, Count bCount, double* state, double* y) noexcept {
    if (const Status failure = CheckRun(width, stages, n, aCount, bCount)) return failure;
    kCascadeLoops().reals({width, stages, a, b}, x, n, state, y);
    return status::kSuccess;
}

Status IirCascadeRunComplex(Count width, Count stages, const ComplexRecord* x, Count n, const double* a, Count aCount,
                            const double* b, Count bCount, ComplexRecord* state, ComplexRecord* y) noexcept {
    if (const Status failure = CheckRun(width, stages, n, aCount, bCount)) return failure;
    kCascadeLoops().records({width, stages, a, b}, x, n, state, y);
    return status::kSuccess;
}

Status IirCascadeApply(const double* x, Count n, IirFilter* filter, double* y) noexcept {
    IirFilter record = *filter;
    const Status outcome = IirCascadePrepare(record, x, n, y);
    filter->reset = record.reset;
    return outcome;
}

Status IirCascadeApplyComplex(const ComplexRecord* x, Count n, IirFilter* filter, const IirStateComplex* state,
                              ComplexRecord* y) noexcept {
    IirFilter record = *filter;
    const Status outcome = IirCascadePrepareComplex(record, *state, x, n, y);
    filter->reset = record.reset;
    return outcome;
}

}  // namespace quorvan
