// Linear convolution and correlation of row-major arrays, directly or by Fourier transforms of exactly the full size.
//
// The full result has rows1 + rows2 - 1 rows and cols1 + cols2 - 1 columns. Checks, in this order: -20003 for a size
// below 1, -20061 for a bad shape or method, -20008 for shape kShapeInside and a second array that is larger than the
// first, -20046 for more elements than an int32 counts; then -20001.
#pragma once

#include "frame/types.h"

namespace quorvan {

enum Shape2D : std::uint32_t {
    kShapeFull = 0,    // all of it
    kShapeSame = 1,    // rows1 x cols1, from row rows2 / 2 and column cols2 / 2 of the full result
    kShapeInside = 2,  // what no padding has touched
};

template <class T>
Status Convolve2D(const T* x, Count rows1, Count cols1, const T* y, Count rows2, Count cols2, std::uint32_t shape,
                  std::uint32_t method, T* out) noexcept;

// The full convolution of x, reversed in both dimensions and conjugated, with y.
template <class T>
Status Correlate2D(const T* x, Count rows1, Count cols1, const T* y, Count rows2, Count cols2, std::uint32_t method,
                   T* out) noexcept;

}  // namespace quorvan
