#include "fit/spline.h"

#include "frame/memory.h"
#include "frame/status.h"

namespace quorvan {

// With s(x) the spline and M its second derivatives, continuity of s' at sample i says
//     (x(i) - x(i-1))/6 M(i-1) + (x(i+1) - x(i-1))/3 M(i) + (x(i+1) - x(i))/6 M(i+1)
//         = (y(i+1) - y(i))/(x(i+1) - x(i)) - (y(i) - y(i-1))/(x(i) - x(i-1)),
// a tridiagonal system that one sweep eliminates (C. de Boor, A Practical Guide to Splines, 1978, IV).
Status SplineSweep(const double* x, const double* y, Count n, double first, double last, double* second,
                   double* work) noexcept {
    const auto slope = [&](Count i) { return (y[i + 1] - y[i]) / (x[i + 1] - x[i]); };
    if (n == 1) {
        second[0] = 0;
        return status::kSuccess;
    }
    double* const u = work;
    if (first > kNaturalEnd) {
        second[0] = u[0] = 0;
    } else {
        second[0] = -0.5;
        u[0] = 3 / (x[1] - x[0]) * (slope(0) - first);
    }
    for (Count i = 1; i < n - 1; ++i) {
        if (x[i - 1] == x[i] || x[i] == x[i + 1] || x[i - 1] == x[i + 1]) return status::kAbscissaeNotDistinct;
        const double span = x[i + 1] - x[i - 1];
        const double sig = (x[i] - x[i - 1]) / span;
        const double p = sig * second[i - 1] + 2;
        second[i] = (sig - 1) / p;
        u[i] = (6 * (slope(i) - slope(i - 1)) / span - sig * u[i - 1]) / p;
    }
    double qn = 0, un = 0;
    if (!(last > kNaturalEnd)) {
        qn = 0.5;
        un = 3 / (x[n - 1] - x[n - 2]) * (last - slope(n - 2));
    }
    second[n - 1] = (un - qn * u[n - 2]) / (qn * second[n - 2] + 1);
    for (Count k = n - 2; k >= 0; --k) second[k] = second[k] * second[k + 1] + u[k];
    return status::kSuccess;
}

Status InterpSplineSecondDerivatives(const double* x, const double* y, Count n, double first, double last,
                                     double* second) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    Block<double> work(static_cast<std::size_t>(n));
    if (!work) return status::kOutOfMemory;
    return SplineSweep(x, y, n, first, last, second, work);
}

Status InterpSplineEvaluate(const double* x, const double* y, const double* second, Count n, double point,
                            double* result) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    Count low = 0, high = n - 1;
    const bool ascending = x[n - 1] > x[0];
    while (high - low > 1) {
        const Count mid = low + ((high - low) >> 1);
        if (ascending ? x[mid] > point : point > x[mid])
            high = mid;
        else
            low = mid;
    }
    const double h = x[high] - x[low];
    if (h == 0) return status::kAbscissaeNotDistinct;
    const double a = (x[high] - point) / h;
    const double b = (point - x[low]) / h;
    *result = a * y[low] + b * y[high] + ((a * a * a - a) * second[low] + (b * b * b - b) * second[high]) * (h * h) / 6;
    return status::kSuccess;
}

}  // namespace quorvan
