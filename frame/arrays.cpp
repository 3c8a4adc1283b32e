#include "frame/arrays.h"

#include "frame/array_loops.h"
#include "frame/status.h"

namespace quorvan {

Status ArrAdd(const double* x, const double* y, Count n, double* out) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    kArrayLoops().add(x, y, n, out);
    return status::kSuccess;
}

}  // namespace quorvan
