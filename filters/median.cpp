#include "filters/median.h"

#include <algorithm>
#include <cmath>
#include <cstring>

#include "frame/arrays.h"
#include "frame/memory.h"
#include "frame/status.h"

namespace quorvan {
namespace {

// The samples of the window in ascending order, NaN first.
class SortedWindow {
public:
    SortedWindow(double* values, Count count) : s_(values), count_(count) {}

    double Median() const {
        const Count middle = count_ / 2;
        return count_ % 2 ? s_[middle] : (s_[middle - 1] + s_[middle]) / 2;
    }

    // The first exact match of `leaving` goes. `entering` comes to the front when it is below the first value, else
    // behind the first value and before all others that are not below it: equal values, and so zeros of either sign,
    // keep this order.
    void Replace(double leaving, double entering) {
        const Count gap = std::isnan(leaving) ? 0 : FirstNotBelow(leaving);
        const double front = s_[gap == 0 ? 1 : 0];
        Count place = 0;
        if (!std::isnan(entering) && !(entering < front)) {
            place = FirstNotBelow(entering);
            if (gap < place) --place;
            if (place == 0) place = 1;
        }
        if (place < gap)
            std::memmove(s_ + place + 1, s_ + place, static_cast<std::size_t>(gap - place) * sizeof(double));
        else
            std::memmove(s_ + gap, s_ + gap + 1, static_cast<std::size_t>(place - gap) * sizeof(double));
        s_[place] = entering;
    }

private:
    // The number of values below v, NaN among them.
    Count FirstNotBelow(double v) const {
        const double* base = s_;
        for (Count left = count_; left > 0;) {
            const Count half = left / 2;
            const bool below = !(base[half] >= v);
            base = below ? base + half + 1 : base;
            left = below ? left - half - 1 : half;
        }
        return static_cast<Count>(base - s_);
    }

    double* s_;
    Count count_;
};

}  // namespace

Status FilterMedian(const double* x, Count n, Count left, Count right, double* y) noexcept {
    if (n < 0) return status::kSamplesNotPositive;
    if (right < 0) right = left;
    if (left < 0) return status::kFilterRankOutOfRange;
    if (n > 0 && n <= right) return status::kWrongDataCount;
    if (n == 0 || (left == 0 && right == 0)) {
        if (x != y && n > 0) std::memmove(y, x, static_cast<std::size_t>(n) * sizeof(double));
        return status::kSuccess;
    }
    const Size width = Size{left} + right + 1;
    if (width > INT32_MAX) return status::kOverflow;
    const auto count = static_cast<Count>(width);
    Block<double> work(static_cast<std::size_t>(width) + static_cast<std::size_t>(left));
    if (!work) return status::kOutOfMemory;
    double* const ring = work + width;  // the last `left` samples, which y may have overwritten
    std::fill_n(ring, left, 0.0);
    std::fill_n(work.get(), left, 0.0);
    std::copy_n(x, Size{right} + 1, work + left);
    if (Status failed = ArrSort(work, count, 0, work)) return failed;

    SortedWindow window(work, count);
    Count oldest = 0;
    for (Count t = 0;; ++t) {
        double leaving = x[t];
        y[t] = window.Median();
        if (t + 1 == n) return status::kSuccess;
        if (left > 0) {
            std::swap(leaving, ring[oldest]);
            if (++oldest == left) oldest = 0;
        }
        const Size entering = Size{t} + 1 + right;
        window.Replace(leaving, entering < n ? x[entering] : 0.0);
    }
}

}  // namespace quorvan
