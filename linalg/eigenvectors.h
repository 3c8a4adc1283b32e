// Eigenvectors and eigenvalues from the provider's real storage to complex row-major arrays.
#pragma once

#include <algorithm>
#include <cstddef>

#include "frame/types.h"

namespace quorvan {

// values[i] = re[i] + i·im[i]
inline void JoinValues(const double* re, const double* im, Count n, ComplexRecord* values) noexcept {
    for (Count i = 0; i < n; ++i) values[i] = {re[i], im[i]};
}

// One vector a column, n by n. A real eigenvalue has one real column; a pair has two, u and w, for the vectors u + iw
// and u - iw, the one with the positive imaginary part first.
inline void ExpandVectors(const double* columns, const double* im, Count n, ComplexRecord* vectors) noexcept {
    constexpr std::size_t kStrip = 8;  // rows at a time: a cache line of each column
    const auto order = static_cast<std::size_t>(n);
    for (std::size_t top = 0; top < order; top += kStrip) {
        const std::size_t bottom = std::min(top + kStrip, order);
        for (std::size_t j = 0; j < order; ++j) {
            const double* u = columns + j * order;
            if (im[j] == 0) {
                for (std::size_t i = top; i < bottom; ++i) vectors[i * order + j] = {u[i], 0.0};
                continue;
            }
            const double* w = u + order;
            for (std::size_t i = top; i < bottom; ++i) {
                vectors[i * order + j] = {u[i], w[i]};
                vectors[i * order + j + 1] = {u[i], -w[i]};
            }
            ++j;
        }
    }
}

}  // namespace quorvan
