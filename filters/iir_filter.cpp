#include "filters/iir_filter.h"

#include <algorithm>
#include <new>

namespace quorvan {
namespace {

bool Valid(std::uint32_t kind, Count order) {
    if (order < 1 || kind > kBandstop) return false;
    return StageCount(order) * (StageWidth(kind) + 1) <= INT32_MAX;
}

// A record with `count` elements behind it.
template <class Record, class Element>
void* OneBlock(Size count) {
    static_assert(sizeof(Record) % alignof(Element) == 0);
    Block<unsigned char> block(sizeof(Record) + static_cast<std::size_t>(count) * sizeof(Element));
    return block.release();
}

}  // namespace

IirFilter* IirFilterCreate(std::uint32_t kind, Count order) noexcept {
    if (!Valid(kind, order)) return nullptr;
    const Count stages = static_cast<Count>(StageCount(order)), width = StageWidth(kind);
    void* block = OneBlock<IirFilter, double>(Size{stages} * (3 * width + 1));
    if (!block) return nullptr;
    IirFilter* filter = new (block) IirFilter;
    double* values = reinterpret_cast<double*>(filter + 1);
    filter->type = static_cast<Count>(kind);
    filter->order = order;
    filter->reset = 0;
    filter->a_count = filter->state_count = stages * width;
    filter->b_count = stages * (width + 1);
    filter->a = values;
    filter->b = filter->a + filter->a_count;
    filter->state = filter->b + filter->b_count;
    std::fill_n(filter->state, filter->state_count, 0.0);
    return filter;
}

IirStateComplex* IirStateComplexCreate(std::uint32_t kind, Count order) noexcept {
    if (!Valid(kind, order)) return nullptr;
    const Count count = static_cast<Count>(StageCount(order)) * StageWidth(kind);
    void* block = OneBlock<IirStateComplex, ComplexRecord>(count);
    if (!block) return nullptr;
    IirStateComplex* state = new (block) IirStateComplex;
    state->count = count;
    state->values = reinterpret_cast<ComplexRecord*>(state + 1);
    std::fill_n(state->values, count, ComplexRecord{});
    return state;
}

void IirFilterReset(IirFilter* filter) noexcept {
    if (filter) filter->reset = 1;
}

}  // namespace quorvan
