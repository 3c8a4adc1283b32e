// Blocks of doubles that start with a cache line, so that no register of a whole line is read from two.
#pragma once

#include <cstddef>
#include <cstdint>

#include "frame/types.h"

namespace quorvan {

inline constexpr Count kCacheLine = 8;  // doubles

// `count` and what fills its last line.
constexpr Size WholeLines(Size count) noexcept { return (count + kCacheLine - 1) / kCacheLine * kCacheLine; }

// How many doubles hold `count` that start with a line.
constexpr std::size_t LinesLength(Size count) noexcept { return static_cast<std::size_t>(count) + kCacheLine; }

// The first start of a line in a block.
inline double* LineStart(double* block) noexcept {
    const std::size_t past = reinterpret_cast<std::uintptr_t>(block) / sizeof(double) % kCacheLine;
    return block + (kCacheLine - past) % kCacheLine;
}

}  // namespace quorvan
