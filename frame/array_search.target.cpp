#include "frame/array_search.h"

#include "frame/wide.h"

namespace quorvan::QV_TARGET {
namespace {

// Four registers in turn, so that one search step need not wait for the one before.
constexpr int kTurns = 4;
constexpr std::ptrdiff_t kStep = kTurns * kLanes;

// The value is there.
Count FirstEqual(const double* x, std::ptrdiff_t from, std::ptrdiff_t n, double value) {
    while (from + kLanes <= n && !Any(Load(x + from) == value)) from += kLanes;
    while (x[from] != value) ++from;
    return static_cast<Count>(from);
}

// Looks for values only, block by block, and remembers the block in which the best value so far came up first: strictly
// better, so that of equal values (zeros of both signs too) the first keeps its place. The index is found at the end.
Extremes FindExtremes(const double* x, Count n) {
    constexpr std::ptrdiff_t kBlock = 16 * kStep;
    std::ptrdiff_t i = 0;
    while (i < n && x[i] != x[i]) ++i;
    if (i == n) return {__builtin_nan(""), __builtin_nan(""), -1, -1};

    double max = x[i], min = x[i];
    std::ptrdiff_t max_block = i, min_block = i;
    Wide high[kTurns], low[kTurns];
    for (int t = 0; t < kTurns; ++t) high[t] = low[t] = Like(Wide{}, x[i]);
    while (i < n) {
        const std::ptrdiff_t block = i, end = i + kBlock < n ? i + kBlock : n;
        for (; i + kStep <= end; i += kStep)
            for (int t = 0; t < kTurns; ++t) {
                const Wide v = Load(x + i + t * kLanes);
                high[t] = Max(v, high[t]);
                low[t] = Min(v, low[t]);
            }
        const Wide highest = Max(Max(high[0], high[1]), Max(high[2], high[3]));
        const Wide lowest = Min(Min(low[0], low[1]), Min(low[2], low[3]));
        double block_max = max, block_min = min;
        for (int lane = 0; lane < kLanes; ++lane) {
            if (highest[lane] > block_max) block_max = highest[lane];
            if (lowest[lane] < block_min) block_min = lowest[lane];
        }
        for (; i < end; ++i) {
            if (x[i] > block_max) block_max = x[i];
            if (x[i] < block_min) block_min = x[i];
        }
        if (block_max > max) max = block_max, max_block = block;
        if (block_min < min) min = block_min, min_block = block;
    }
    const Count max_index = FirstEqual(x, max_block, n, max), min_index = FirstEqual(x, min_block, n, min);
    return {x[max_index], x[min_index], max_index, min_index};
}

double FindPeak(const double* x, Count n) {
    Wide high[kTurns] = {};
    std::ptrdiff_t i = 0;
    for (; i + kStep <= n; i += kStep)
        for (int t = 0; t < kTurns; ++t) high[t] = Max(Abs(Load(x + i + t * kLanes)), high[t]);
    const Wide highest = Max(Max(high[0], high[1]), Max(high[2], high[3]));
    double peak = 0;
    for (int lane = 0; lane < kLanes; ++lane)
        if (highest[lane] > peak) peak = highest[lane];
    for (; i < n; ++i)
        if (Abs(x[i]) > peak) peak = Abs(x[i]);
    return peak;
}

// Inside are the values between the two bounds. The lower one is written with fourteen digits, deliberately: a little
// closer to zero than the negated largest double, which the upper one is the counterpart of.
bool HasNonFinite(const double* x, Size n) {
    constexpr double kUpper = 1.7976931348623157e308, kLower = -1.7976931348623e308;
    Size i = 0;
    for (; i + kStep <= n; i += kStep) {
        WideBits inside = ~WideBits{};
        for (int t = 0; t < kTurns; ++t) {
            const Wide v = Load(x + i + t * kLanes);
            inside &= (v > kLower) & (v < kUpper);
        }
        if (Any(~inside)) return true;
    }
    for (; i < n; ++i)
        if (!(x[i] > kLower && x[i] < kUpper)) return true;
    return false;
}

}  // namespace

const ArraySearch kArraySearch = {FindExtremes, FindPeak, HasNonFinite};

}  // namespace quorvan::QV_TARGET
