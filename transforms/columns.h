// Columns of a row-major array, a few neighbours at a time: whole cache lines move, and each column becomes contiguous.
#pragma once

#include <algorithm>

#include "frame/types.h"

namespace quorvan {

// Whether a product of two positive sizes is no element count.
constexpr bool TooManyElements(Count rows, Count cols) noexcept { return Size{rows} * cols > INT32_MAX; }

// How many neighbouring columns travel together.
inline constexpr Count kColumnBlock = 8;

// Calls body(first, width) for the columns in blocks, until a status is not success.
template <class Body>
Status InColumnBlocks(Count columns, const Body& body) {
    for (Count first = 0; first < columns; first += std::min(kColumnBlock, columns - first))
        if (const Status failure = body(first, std::min(kColumnBlock, columns - first))) return failure;
    return 0;
}

// Copies `width` columns of `rows` elements into block[c * length + r], r from 0 to length - 1, with zeros behind the
// rows. Row `start` becomes element 0, and the rows before it follow the last one.
template <class T>
void GatherColumns(const T* in, Size stride, Count rows, Count start, Count length, Count width, T* block) {
    const auto copy = [&](Count from, Count to, Count at) {
        for (Count r = from; r < to; ++r)
            for (Count c = 0; c < width; ++c) block[Size{c} * length + at + r - from] = in[r * stride + c];
    };
    copy(start, rows, 0);
    copy(0, start, rows - start);
    for (Count c = 0; c < width; ++c) std::fill(block + Size{c} * length + rows, block + Size{c + 1} * length, T{});
}

// Copies block[c * length + r] into `width` columns. Element 0 goes to row `start`, and the last ones to the rows
// before.
template <class T>
void ScatterColumns(const T* block, Count length, Count start, Count width, T* out, Size stride) {
    const auto copy = [&](Count from, Count to, Count at) {
        for (Count r = from; r < to; ++r)
            for (Count c = 0; c < width; ++c) out[(at + r - from) * stride + c] = block[Size{c} * length + r];
    };
    copy(0, length - start, start);
    copy(length - start, length, 0);
}

}  // namespace quorvan
