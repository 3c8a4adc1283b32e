#include "frame/array_loops.h"

namespace quorvan::QV_TARGET {
namespace {

void Add(const double* x, const double* y, Count n, double* out) {
    for (Count i = 0; i < n; ++i) out[i] = x[i] + y[i];
}

}  // namespace

const ArrayLoops kArrayLoops = {Add};

}  // namespace quorvan::QV_TARGET
