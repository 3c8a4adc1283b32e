#include "fit/median_line.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <utility>

#include "fit/fit_errors.h"
#include "frame/memory.h"

namespace quorvan {
namespace {

constexpr Count kLimit = 50;
constexpr double kSmallestError = 1e-12;
constexpr Count kInsertionBelow = 7;

void InsertionSort(double* keys, double* companions, Count first, Count last) {
    for (Count i = first + 1; i <= last; ++i) {
        const double key = keys[i], companion = companions[i];
        Count j = i;
        for (; j > first && key < keys[j - 1]; --j) {
            keys[j] = keys[j - 1];
            companions[j] = companions[j - 1];
        }
        keys[j] = key;
        companions[j] = companion;
    }
}

void HeapSort(double* keys, double* companions, Count n) {
    const auto sift = [&](Count root, Count end) {
        for (Count child; (child = 2 * root + 1) < end; root = child) {
            if (child + 1 < end && keys[child] < keys[child + 1]) ++child;
            if (!(keys[root] < keys[child])) return;
            std::swap(keys[root], keys[child]);
            std::swap(companions[root], companions[child]);
        }
    };
    for (Count i = n / 2 - 1; i >= 0; --i) sift(i, n);
    for (Count end = n - 1; end > 0; --end) {
        std::swap(keys[0], keys[end]);
        std::swap(companions[0], companions[end]);
        sift(0, end);
    }
}

// The key at which the sum of the weights, along ascending keys, is no longer below half of the total. Sorts both.
double WeightedMedian(double* keys, double* weights, Count n) {
    double total = 0;
    for (Count i = 0; i < n; ++i) total += weights[i];
    SortPairs(keys, weights, n);
    const double half = total / 2;
    double sum = 0;
    for (Count i = 0; i < n; ++i) {
        sum += weights[i];
        if (!(sum < half)) return keys[i];
    }
    return keys[n - 1];
}

}  // namespace

// Quicksort (Hoare, 1961) with the median of first, middle and last as pivot; the longer part waits, so that the stack
// stays short. Rising and falling data, such as a parabola's residuals, mislead that pivot: after too many divisions of
// one range it is left to heapsort.
void SortPairs(double* keys, double* companions, Count n) noexcept {
    struct Range {
        Count first, last;
        int divisions;
    } waiting[32];
    Count depth = 0;
    Range now{0, n - 1, 2 * static_cast<int>(std::bit_width(static_cast<std::uint32_t>(n)))};
    const auto swap = [&](Count i, Count j) {
        std::swap(keys[i], keys[j]);
        std::swap(companions[i], companions[j]);
    };
    for (;;) {
        const Count length = now.last - now.first + 1;
        if (length < kInsertionBelow || now.divisions == 0) {
            if (length < kInsertionBelow)
                InsertionSort(keys, companions, now.first, now.last);
            else
                HeapSort(keys + now.first, companions + now.first, length);
            if (depth == 0) return;
            now = waiting[--depth];
            continue;
        }
        const Count middle = now.first + (now.last - now.first) / 2;
        if (keys[middle] < keys[now.first]) swap(middle, now.first);
        if (keys[now.last] < keys[now.first]) swap(now.last, now.first);
        if (keys[now.last] < keys[middle]) swap(now.last, middle);
        const double pivot = keys[middle];
        Count i = now.first, j = now.last;
        while (i <= j) {  // NaN stops both scans, like the pivot itself
            while (keys[i] < pivot) ++i;
            while (pivot < keys[j]) --j;
            if (i <= j) swap(i++, j--);
        }
        Range low{now.first, j, now.divisions - 1}, high{i, now.last, now.divisions - 1};
        if (low.last - low.first > high.last - high.first) std::swap(low, high);
        waiting[depth++] = high;
        now = low;
    }
}

// sum of |w (y - c - k x)| is least in k, for given c, at the median of the ratios (y - c)/x with the weights |w x|,
// and in c at the median of y - k x with the weights |w| (R. J. Boscovich, 1757; P. S. Laplace, 1789).
Status FitMedianLine(const ModelSamples& samples, double tolerance, const ModelOutputs& out) noexcept {
    tolerance = ToleranceOrDefault(tolerance);
    const double *x = samples.x, *y = samples.y, *w = samples.weights;
    const Count n = samples.n;
    double* c = out.coefficients;
    if (Status failed = FitLineCore(samples, out)) return failed;
    Count zeros = 0;
    for (Count i = 0; i < n; ++i) zeros += x[i] == 0;
    if (zeros >= 2) return status::kCategoriesNotAboveOne;
    const auto room = static_cast<std::size_t>(n);
    Block<double> block(2 * room);
    if (!block) return status::kOutOfMemory;
    double *keys = block, *weights = keys + room;
    const auto error_of = [&](const double* at) {
        for (Count i = 0; i < n; ++i) out.fitted[i] = at[0] * x[i] + at[1];
        double error = 0;
        FitMeanAbsoluteError(out.fitted, y, w, n, &error);
        return error;
    };

    const double first[2] = {c[0], c[1]}, first_error = error_of(c);
    double before[2] = {c[0], c[1]}, previous = 2 * first_error, current = first_error;
    for (Count count = 0; std::fabs(previous - current) > previous * tolerance && current > kSmallestError &&
                          previous > current && count < kLimit;
         ++count) {
        previous = current;
        std::copy_n(c, 2, before);
        Count used = 0;
        for (Count i = 0; i < n; ++i) {
            if (x[i] == 0) continue;
            keys[used] = (y[i] - c[1]) / x[i];
            weights[used++] = std::fabs(w ? w[i] * x[i] : x[i]);
        }
        c[0] = WeightedMedian(keys, weights, used);
        for (Count i = 0; i < n; ++i) {
            keys[i] = y[i] - c[0] * x[i];
            weights[i] = w ? std::fabs(w[i]) : 1.0;
        }
        c[1] = WeightedMedian(keys, weights, n);
        current = error_of(c);
    }
    *out.residue = ChooseModelFit(2, {current, c}, {previous, before}, {first_error, first}, c);
    error_of(c);
    return status::kSuccess;
}

}  // namespace quorvan
