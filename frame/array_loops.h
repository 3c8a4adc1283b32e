// The element-wise loops of the array primitives, compiled for each instruction set.
#pragma once

#include "frame/targets.h"
#include "frame/types.h"

namespace quorvan {

struct ArrayLoops {
    void (*fill)(double value, Count n, double* out);
    void (*reverse)(double* x, Count n, double* out);  // out is x, or another array
    void (*add)(const double* x, const double* y, Count n, double* out);
    void (*subtract)(const double* x, const double* y, Count n, double* out);
    void (*multiply)(const double* x, const double* y, Count n, double* out);
    bool (*divide)(const double* x, const double* y, Count n, double* out);  // false: stopped at a zero of y
    void (*negate)(const double* x, Count n, double* out);
    void (*abs)(const double* x, Count n, double* out);
    void (*offset)(const double* x, Count n, double offset, double* out);                       // x - offset
    void (*offset_scale)(const double* x, Count n, double offset, double factor, double* out);  // (x - offset) factor
    void (*scale)(const double* x, Count n, double factor, double* out);                        // x factor
    void (*linear)(const double* x, Count n, double a, double b, double* out);                  // a x + b
    void (*polynomial)(const double* x, Count n, const double* coef, Count count, double* out);
    void (*clip)(const double* x, Count n, double upper, double lower, double* out);
};
QV_DECLARE_TARGETS(ArrayLoops, kArrayLoops)

}  // namespace quorvan
