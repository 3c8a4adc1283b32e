#include "measure/spectral_peak.h"

#include <cmath>

#include "frame/arrays.h"
#include "frame/status.h"

namespace quorvan {

Status SpecPeakPowerFrequency(const double* power, Count n, double search, const WinProperties& window, double df,
                              Count span, double* frequency, double* peakPower) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    Count centre = -1;
    // The bin stays a double until it is known to lie in the spectrum: it may be NaN or beyond every integer.
    const double bin = search >= 0 ? std::trunc(search / df) : -1;
    if (bin >= 0 && bin < n) {
        centre = static_cast<Count>(bin);
    } else {
        double max, min;
        Count minIndex;
        ArrMaxMin(power, n, &max, &centre, &min, &minIndex);
    }

    // Always an odd width: the lowest bit of the span is replaced by one.
    const Size width = ((span > 3 ? span : 3) & ~1) + Size{1};
    const Size start = centre - (width >> 1);
    const Size first = start > 0 ? start : 0;
    const Size end = start + width < n ? start + width : n;
    double sum = 0, moment = 0;
    for (Size j = first; j < end; ++j) {
        sum += power[j];
        moment += static_cast<double>(j) * power[j];
    }
    *peakPower = sum / window.enbw;
    *frequency = sum > 0 ? moment * df / sum : centre * df;
    return status::kSuccess;
}

}  // namespace quorvan
