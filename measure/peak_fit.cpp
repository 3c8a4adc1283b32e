#include "measure/peak_fit.h"

#include <algorithm>

#include "frame/memory.h"
#include "frame/status.h"
#include "linalg/solve.h"

namespace quorvan {

Status PeakFitMatrix(Count w, double* matrix) noexcept {
    if (w == 3) {
        constexpr double kThroughThreePoints[] = {0, 1, 0, -0.5, 0, 0.5, 0.5, -1, 0.5};
        std::copy(kThroughThreePoints, kThroughThreePoints + 9, matrix);
        return status::kSuccess;
    }
    const Block<double> nodes(3 * static_cast<std::size_t>(w));
    if (!nodes) return status::kOutOfMemory;
    for (Count i = 0; i < w; ++i) {
        const double t = i - (w - 1) / 2.0;
        double* row = nodes + 3 * static_cast<std::size_t>(i);
        row[0] = 1;
        row[1] = t;
        row[2] = t * t;
    }
    constexpr double kDefaultTolerance = -1.0;
    return MatPseudoInverse<double>(nodes, w, 3, kDefaultTolerance, matrix);
}

}  // namespace quorvan
