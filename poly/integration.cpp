#include "poly/integration.h"

#include <cmath>

namespace quorvan {
namespace {

// The rest at the end, one to three intervals; `end` is one behind the last sample.
double Trapezoid(const double* end, double h) noexcept { return (end[-2] + end[-1]) * h / 2; }
double Simpson(const double* end, double h) noexcept { return (end[-3] + 4 * end[-2] + end[-1]) * h / 3; }
double ThreeEighths(const double* end, double h) noexcept {
    return (3 * (end[-4] + end[-1]) + 9 * (end[-3] + end[-2])) * h / 8;
}

double Rest(Count intervals, const double* end, double h) noexcept {
    switch (intervals) {
        case 1: return Trapezoid(end, h);
        case 2: return Simpson(end, h);
        case 3: return ThreeEighths(end, h);
        default: return 0;
    }
}

// The sum over whole panels of kWidth intervals, the weighted samples of a panel added from the left.
template <Count kWidth>
double Panels(const double* x, Count count, const double (&weights)[kWidth + 1]) noexcept {
    double sum = 0;
    for (Count p = 0; p < count; ++p, x += kWidth) {
        double panel = weights[0] * x[0];
        for (Count i = 1; i <= kWidth; ++i) panel += weights[i] * x[i];
        sum += panel;
    }
    return sum;
}

template <Count kWidth>
Status Composite(const double* x, Count n, double h, const double (&weights)[kWidth + 1], double divisor,
                 double* result) noexcept {
    if (n < kWidth + 1) return status::kWrongDataCount;
    const Count intervals = n - 1, left = intervals % kWidth;
    const double whole = h / divisor * Panels<kWidth>(x, intervals / kWidth, weights);
    *result = left == 0 ? whole : whole + Rest(left, x + n, h);
    return status::kSuccess;
}

// The samples inside belong to two panels each, so this rule weighs them once.
Status TrapezoidRule(const double* x, Count n, double h, double* result) noexcept {
    if (n < 2) return status::kWrongDataCount;
    double inside = 0;
    for (Count i = 1; i < n - 1; ++i) inside += x[i];
    *result = h * ((x[0] + x[n - 1]) / 2 + inside);
    return status::kSuccess;
}

}  // namespace

Status IntegrateSamples(const double* x, Count n, double dt, std::uint32_t rule, double* result) noexcept {
    const double h = std::fabs(dt);
    switch (rule) {
        case 0: return TrapezoidRule(x, n, h, result);
        case 1: return Composite<2>(x, n, h, {1, 4, 1}, 3, result);
        case 2: return Composite<3>(x, n, h, {3, 9, 9, 3}, 8, result);
        case 3: return Composite<4>(x, n, h, {14, 64, 24, 64, 14}, 45, result);
        default: return status::kInvalidSelection;
    }
}

}  // namespace quorvan
