// Transposition between row-major memory and column-major blocks whose columns stand further apart than their length.
#pragma once

#include <cstddef>

#include "frame/types.h"

namespace quorvan {

// out[j·ldOut + i] = a[i·ldA + j] for i < rows, j < cols. Tiles of a cache line both ways: each line is read and
// written whole while it is near.
template <class T>
void TransposeStrided(const T* a, Count rows, Count cols, Count ldA, T* out, Count ldOut) noexcept {
    constexpr std::ptrdiff_t kTile = 8;
    const std::ptrdiff_t m = rows, n = cols, strideA = ldA, strideOut = ldOut;
    for (std::ptrdiff_t top = 0; top < m; top += kTile)
        for (std::ptrdiff_t left = 0; left < n; left += kTile) {
            const std::ptrdiff_t bottom = top + kTile < m ? top + kTile : m;
            const std::ptrdiff_t right = left + kTile < n ? left + kTile : n;
            for (std::ptrdiff_t j = left; j < right; ++j)
                for (std::ptrdiff_t i = top; i < bottom; ++i) out[j * strideOut + i] = a[i * strideA + j];
        }
}

}  // namespace quorvan
