#include "frame/array_sort.h"

#include <bit>
#include <cstring>
#include <limits>

#include "frame/array_loops.h"
#include "frame/arrays.h"
#include "frame/status.h"

namespace quorvan {
namespace {

// Brings NaN to the front and returns their count. One that moves becomes the canonical quiet NaN; those that stand at
// the front already keep their bits.
Count GatherNaN(double* x, Count n) noexcept {
    Count front = 0;
    while (front < n && x[front] != x[front]) ++front;
    for (Size i = Size{front} + 1; i < n; ++i) {
        if (x[i] == x[i]) continue;
        x[i] = x[front];
        x[front++] = std::numeric_limits<double>::quiet_NaN();
    }
    return front;
}

}  // namespace

Status ArrSort(double* x, Count n, std::uint32_t direction, double* out) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    if (out && out != x) std::memmove(out, x, sizeof(double) * static_cast<std::size_t>(n));
    out = InPlaceIfNull(out, x);
    if (n == 1) return status::kSuccess;
    const Count front = GatherNaN(out, n), rest = n - front;
    if (rest < 2) return status::kSuccess;
    const int halvings = std::bit_width(static_cast<std::uint32_t>(rest));
    kArraySort().ascending(out + front, rest, 2 * halvings);
    if (direction != 0) kArrayLoops().reverse(out + front, rest, out + front);
    return status::kSuccess;
}

}  // namespace quorvan
