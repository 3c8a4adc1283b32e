// An array between boundary values, walked in blocks that are read before they are written, so that an operation on
// neighbouring samples works in place at the speed of one out of place.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>

#include "frame/types.h"

namespace quorvan {

// e[k] is x[k] inside, initial[k + back] for k from -back to -1, and final[k - n] for k from n to n + ahead - 1. Calls
// body(e, start, count) for adjacent blocks: e is a copy that stands at e[start], valid from -back to count - 1 +
// ahead, and the body may write the elements start to start + count - 1 of x.
template <int back, int ahead, class Body>
void ForExtendedBlocks(const double* x, Count n, const double* initial, const double* final, Body body) noexcept {
    constexpr std::ptrdiff_t kBlock = 1024;
    constexpr int kContext = back + ahead;
    double window[kContext + kBlock];
    const auto read = [&](double* to, std::ptrdiff_t first, std::ptrdiff_t count) {
        const std::ptrdiff_t inside = std::clamp<std::ptrdiff_t>(n - first, 0, count);
        std::memcpy(to, x + std::min<std::ptrdiff_t>(first, n), sizeof(double) * static_cast<std::size_t>(inside));
        for (std::ptrdiff_t k = inside; k < count; ++k) to[k] = final[first + k - n];
    };
    for (int k = 0; k < back; ++k) window[k] = initial[k];
    read(window + back, 0, ahead);
    for (std::ptrdiff_t start = 0; start < n; start += kBlock) {
        const std::ptrdiff_t count = std::min(kBlock, n - start);
        read(window + kContext, start + ahead, count);
        body(static_cast<const double*>(window + back), start, count);
        std::memmove(window, window + count, sizeof(double) * kContext);
    }
}

}  // namespace quorvan
