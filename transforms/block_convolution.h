// The convolution of a long sequence with a short one through transforms of blocks of the long one.
//
// One transform of the whole result leaves every cache and needs the tables of its size; those of blocks of a few times
// the short length stay in the cache, and a block costs less arithmetic a sample. It also errs less, and a NaN or an
// infinity spoils the blocks that it stands in, not the whole result.
#pragma once

#include "frame/types.h"

namespace quorvan {

// A sequence, as it stands or from its end.
template <class T>
struct Sequence {
    const T* data;
    Count length;
    bool reversed;
};

// The length of the transforms by which blocks are clearly cheaper than one transform of the fast length S, or 0 when
// they are not: a power of two, at least twice the shorter length.
template <class T>
Count BlockLength(Count longer, Count shorter, Count S) noexcept;

// -20001 for exhausted memory, before anything is written. `out` overlaps neither sequence.
template <class T>
Status ConvolveInBlocks(const Sequence<T>& longer, const Sequence<T>& shorter, Count block, T* out) noexcept;

}  // namespace quorvan
