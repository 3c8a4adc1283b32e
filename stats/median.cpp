#include "stats/median.h"

#include <bit>
#include <cstring>
#include <limits>

#include "frame/arrays.h"
#include "frame/memory.h"
#include "frame/status.h"

namespace quorvan {
namespace {

void SwapIfGreater(double& a, double& b) noexcept {
    if (b < a) {
        const double kept = a;
        a = b;
        b = kept;
    }
}

// Reorders data without NaN so that position k holds the element of that rank, nothing greater stands before it and
// nothing smaller behind it. Quickselect (Hoare, 1961) with the median of first, middle and last as pivot.
void PartitionAt(double* data, Count n, Count k) noexcept {
    Count first = 0, last = n - 1;
    // Input made against the pivot choice would cost n^2: what is left after so many rounds is sorted instead.
    int rounds = 4 * std::bit_width(static_cast<std::uint32_t>(n));
    while (first < last) {
        if (rounds-- == 0) {
            ArrSort(data + first, last - first + 1, 0, nullptr);
            return;
        }
        const Count middle = first + (last - first) / 2;
        SwapIfGreater(data[first], data[middle]);
        SwapIfGreater(data[first], data[last]);
        SwapIfGreater(data[middle], data[last]);
        const double pivot = data[middle];
        Count i = first, j = last;
        while (i <= j) {
            while (data[i] < pivot) ++i;
            while (pivot < data[j]) --j;
            if (i > j) break;
            const double kept = data[i];
            data[i++] = data[j];
            data[j--] = kept;
        }
        if (k <= j)
            last = j;
        else if (k >= i)
            first = i;
        else
            return;
    }
}

}  // namespace

Status StatMedian(const double* x, Count n, double* median) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    for (Count i = 0; i < n; ++i) {
        if (x[i] == x[i]) continue;
        *median = std::numeric_limits<double>::quiet_NaN();
        return status::kNanInput;
    }
    Block<double> ranked(n);
    if (!ranked) return status::kOutOfMemory;
    std::memcpy(ranked, x, sizeof(double) * static_cast<std::size_t>(n));

    const Count k = n / 2;
    PartitionAt(ranked, n, k);
    if (n % 2 != 0) {
        *median = ranked[k];
        return status::kSuccess;
    }
    double below = ranked[0];
    for (Count i = 1; i < k; ++i)
        if (ranked[i] > below) below = ranked[i];
    *median = (below + ranked[k]) / 2;
    return status::kSuccess;
}

}  // namespace quorvan
