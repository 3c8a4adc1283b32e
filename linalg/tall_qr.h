// QR of a matrix with few columns and at least as many rows, together with a right-hand side, without forming Q: what
// least squares need of it. Compiled for each instruction set.
#pragma once

#include <cstddef>

#include "frame/targets.h"
#include "frame/types.h"

namespace quorvan {

inline constexpr Count kTallQrColumns = 32;  // at most: the blocks of rows must stay in the cache
inline constexpr Count kTallQrBlock = 64;

constexpr std::size_t TallQrWork(Count n) noexcept {
    return static_cast<std::size_t>(kTallQrBlock) * static_cast<std::size_t>(n + 1) + static_cast<std::size_t>(n);
}

// r, n by n + 1 row major, becomes the upper triangle R with A = Q·R, beside it Q'·y. Each row, y's element too, is
// multiplied by the root of its weight's magnitude first; weights null: none. False, with r and work spoilt, when an
// element or the largest of a column that is not all 0 is so far from 1 that squares might overflow or vanish, or NaN.
struct TallQr {
    bool (*reduce)(const double* a, const double* y, const double* weights, Count m, Count n, double* r, double* work);
};
QV_DECLARE_TARGETS(TallQr, kTallQr)

}  // namespace quorvan
