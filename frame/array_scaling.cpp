// Extremes of an array, the scalings that follow from them, and the screen for values that are not finite.
#include <cmath>
#include <cstring>
#include <limits>

#include "frame/array_loops.h"
#include "frame/array_search.h"
#include "frame/arrays.h"
#include "frame/entry.h"
#include "frame/moments.h"
#include "frame/status.h"

namespace quorvan {

Status ArrMaxMin(const double* x, Count n, double* max, Count* maxIndex, double* min, Count* minIndex) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    const Extremes found = kArraySearch().extremes(x, n);
    *max = found.max;
    *maxIndex = found.max_index;
    *min = found.min;
    *minIndex = found.min_index;
    return status::kSuccess;
}

Status ArrMaxMin2D(const double* x, Count rows, Count cols, double* max, Count* maxRow, Count* maxCol, double* min,
                   Count* minRow, Count* minCol) noexcept {
    if (rows < 1 || cols < 1) return status::kSamplesNotPositive;
    Count maxIndex = -1, minIndex = -1;
    const Status status = ArrMaxMin(x, Product(rows, cols), max, &maxIndex, min, &minIndex);
    if (status < 0) return status;
    const bool found = maxIndex >= 0;
    *maxRow = found ? maxIndex / cols : -1;
    *maxCol = found ? maxIndex % cols : -1;
    *minRow = found ? minIndex / cols : -1;
    *minCol = found ? minIndex % cols : -1;
    return status;
}

// out = (x - offset) / scale with scale = (max - min) / 2 and offset = scale + min, as a product with the reciprocal.
Status ArrScale(double* x, Count n, double* out, double* offset, double* scale) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    const Extremes found = kArraySearch().extremes(x, n);
    if (found.max_index < 0) {
        *offset = *scale = std::numeric_limits<double>::quiet_NaN();
        return status::kSuccess;  // the array stays unwritten, deliberately
    }
    out = InPlaceIfNull(out, x);
    *scale = (found.max - found.min) * 0.5;
    *offset = *scale + found.min;
    const double reciprocal = 1 / *scale;
    // Flat is what has no finite reciprocal: a scale of 0, one too small, and the NaN of nothing but one infinity.
    if (!std::isfinite(reciprocal)) {
        *scale = 1;
        *offset = found.max;
        kArrayLoops().offset(x, n, *offset, out);
        return status::kSuccess;
    }
    kArrayLoops().offset_scale(x, n, *offset, reciprocal, out);
    return status::kSuccess;
}

Status ArrQuickScale(double* x, Count n, double* out, double* peak) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    out = InPlaceIfNull(out, x);
    const double found = kArraySearch().peak(x, n);
    if (found == 0)
        std::memmove(out, x, sizeof(double) * static_cast<std::size_t>(n));
    else
        kArrayLoops().scale(x, n, 1 / found, out);
    *peak = found;
    return status::kSuccess;
}

// No test for a deviation of 0, deliberately: a flat signal becomes NaN.
Status ArrNormalize(double* x, Count n, double* out, double* mean, double* stdDev) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    const MeanDeviation moments = MeanDeviationOf(x, n);
    kArrayLoops().offset_scale(x, n, moments.mean, 1 / moments.deviation, InPlaceIfNull(out, x));
    *mean = moments.mean;
    *stdDev = moments.deviation;
    return status::kSuccess;
}

bool ArrHasNonFinite(const double* x, Count n) noexcept { return kArraySearch().has_non_finite(x, n); }

}  // namespace quorvan
