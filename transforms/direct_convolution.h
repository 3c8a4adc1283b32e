// Convolution as the sum of products that it is, compiled for each instruction set.
#pragma once

#include "frame/targets.h"
#include "frame/types.h"

namespace quorvan {

struct DirectConvolution {
    // out[l] += sum over i of a[i] b[l - i], the terms added in ascending order of i, whatever the lengths; out has
    // n + m - 1 elements. Reversed: b is read from its end.
    void (*reals)(const double* a, Count n, const double* b, Count m, double* out);
    void (*realsReversed)(const double* a, Count n, const double* b, Count m, double* out);
    void (*records)(const ComplexRecord* a, Count n, const ComplexRecord* b, Count m, ComplexRecord* out);
};
QV_DECLARE_TARGETS(DirectConvolution, kDirectConvolution)

}  // namespace quorvan
