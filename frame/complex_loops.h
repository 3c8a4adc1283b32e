// The element-wise loops over split complex arrays, compiled for each instruction set.
#pragma once

#include "frame/targets.h"
#include "frame/types.h"

namespace quorvan {

using ComplexBinaryLoop = void(const double* aRe, const double* aIm, const double* bRe, const double* bIm, Count n,
                               double* outRe, double* outIm);

struct ComplexLoops {
    ComplexBinaryLoop* add;
    ComplexBinaryLoop* subtract;
    ComplexBinaryLoop* multiply;
    ComplexBinaryLoop* divide;
    void (*linear)(const double* re, const double* im, Count n, ComplexRecord a, ComplexRecord b, double* outRe,
                   double* outIm);
};
QV_DECLARE_TARGETS(ComplexLoops, kComplexLoops)

}  // namespace quorvan
