#include "transforms/phases.h"

#include <algorithm>
#include <cmath>

namespace quorvan {

// exp(i (b + r) step) = exp(i b step) exp(i r step): one table of fine steps, one pair of trigonometric calls for each
// coarse step, and one complex product for each point. Errors do not grow with k as those of a recurrence would.
void FillPhases(double step, double scale, Count count, double* cosines, double* sines) noexcept {
    constexpr Count kFine = 64;
    double fineCos[kFine], fineSin[kFine];
    for (Count r = 0; r < std::min(kFine, count); ++r) {
        fineCos[r] = std::cos(r * step);
        fineSin[r] = std::sin(r * step);
    }
    for (Count base = 0; base < count; base += std::min(kFine, count - base)) {
        const double coarseCos = scale * std::cos(base * step), coarseSin = scale * std::sin(base * step);
        const Count width = std::min(kFine, count - base);
        for (Count r = 0; r < width; ++r) {
            cosines[base + r] = coarseCos * fineCos[r] - coarseSin * fineSin[r];
            sines[base + r] = coarseSin * fineCos[r] + coarseCos * fineSin[r];
        }
    }
}

}  // namespace quorvan
