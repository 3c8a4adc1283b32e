#include "fit/interpolation.h"

#include <algorithm>
#include <cmath>

#include "frame/memory.h"
#include "frame/status.h"

namespace quorvan {
namespace {

// The index of the sample whose abscissa is nearest the point, the first one on a tie. NaN is never near.
Count Nearest(const double* x, Count n, double point) {
    Count nearest = 0;
    double smallest = std::fabs(point - x[0]);
    for (Count i = 1; i < n; ++i) {
        const double distance = std::fabs(point - x[i]);
        if (distance < smallest) {
            smallest = distance;
            nearest = i;
        }
    }
    return nearest;
}

// The tableau of corrections that both schemes share (Press et al., Numerical Recipes, 3.1 and 3.2, give the idea): up
// and down hold the corrections of a column from above and from below. `column(m, up, down)` makes column m of n - m
// entries; the path through the tableau stays as central as it can.
template <class Column>
Status Correct(const double* y, Count n, Count nearest, double* up, double* down, const Column& column, double* result,
               double* error) {
    double value = y[nearest];
    double correction = 0;
    Count below = nearest - 1;
    for (Count m = 1; m < n; ++m) {
        const Status status = column(m, up, down);
        if (status != status::kSuccess) return status;
        correction = 2 * (static_cast<Size>(below) + 1) < n - m ? up[below + 1] : down[below--];
        value += correction;
    }
    *result = value;
    *error = correction;
    return status::kSuccess;
}

}  // namespace

Status InterpPolynomial(const double* x, const double* y, Count n, double point, double* result,
                        double* error) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    Block<double> tableau(2 * static_cast<std::size_t>(n));
    if (!tableau) return status::kOutOfMemory;
    double* const start = tableau;
    std::copy_n(y, n, start);
    std::copy_n(y, n, start + n);
    const auto column = [&](Count m, double* up, double* down) -> Status {
        for (Count i = 0; i < n - m; ++i) {
            const double denominator = x[i] - x[i + m];
            if (x[i] == x[i + m]) return status::kAbscissaeNotDistinct;
            const double w = up[i + 1] - down[i];
            up[i] = (x[i] - point) * w / denominator;
            down[i] = (x[i + m] - point) * w / denominator;
        }
        return status::kSuccess;
    };
    return Correct(y, n, Nearest(x, n, point), start, start + n, column, result, error);
}

Status InterpRational(const double* x, const double* y, Count n, double point, double* result, double* error) noexcept {
    constexpr double kTiny = 1e-10;  // keeps a zero numerator from 0/0 in the scheme
    if (n < 1) return status::kSamplesNotPositive;
    Block<double> tableau(2 * static_cast<std::size_t>(n));
    if (!tableau) return status::kOutOfMemory;
    double* const start = tableau;
    for (Count i = 0; i < n; ++i) {
        if (std::fabs(point - x[i]) == 0) {
            *result = y[i];
            *error = 0;
            return status::kSuccess;
        }
        start[i] = y[i];
        start[n + i] = y[i] + kTiny;
    }
    const auto column = [&](Count m, double* up, double* down) -> Status {
        for (Count i = 0; i < n - m; ++i) {
            const double w = up[i + 1] - down[i];
            const double t = (x[i] - point) * down[i] / (x[i + m] - point);
            double dd = t - up[i + 1];
            if (dd == 0) return status::kInterpolantHasPole;
            dd = w / dd;
            down[i] = up[i + 1] * dd;
            up[i] = t * dd;
        }
        return status::kSuccess;
    };
    return Correct(y, n, Nearest(x, n, point), start, start + n, column, result, error);
}

}  // namespace quorvan
