#include <algorithm>
#include <cmath>
#include <limits>

#include "fit/fit_errors.h"
#include "fit/gaussian_loops.h"
#include "fit/model_engines.h"
#include "frame/arrays.h"
#include "frame/memory.h"

namespace quorvan {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

struct Point {
    double x, y;
};

Count PeakOf(const double* y, Count n) {
    Count peak = 0;
    double largest = -1;
    for (Count i = 0; i < n; ++i)
        if (std::fabs(y[i]) > largest) {
            largest = std::fabs(y[i]);
            peak = i;
        }
    return peak;
}

// The Gaussian through the peak and the nearest sample on each side of it with the peak's sign. With q the ratio of the
// logarithms of their heights to the peak's, each pair says that its midpoint and its distance fit one centre.
Status ThroughThreePoints(const ModelSamples& samples, const Point& peak, double* c) {
    Point left{0, 0}, right{0, 0};
    bool has_left = false, has_right = false;
    for (Count i = 0; i < samples.n; ++i) {
        const Point at{samples.x[i], samples.y[i]};
        if (!(peak.y > 0 ? at.y > 0 : at.y < 0)) continue;
        if (at.x < peak.x && (!has_left || at.x > left.x)) {
            left = at;
            has_left = true;
        }
        if (at.x > peak.x && (!has_right || at.x < right.x)) {
            right = at;
            has_right = true;
        }
    }
    if (!has_left || !has_right) return status::kWidthNotPositive;
    for (double v : {left.x, left.y, peak.x, peak.y, right.x, right.y})
        if (!std::isfinite(v)) return status::kWidthNotPositive;
    const double drop = std::log(left.y / peak.y);
    const double k = drop / std::log(right.y / peak.y) * (peak.x - right.x) / (peak.x - left.x);
    const double m = ((right.x + peak.x) * k - left.x - peak.x) / (k - 1) * 0.5;
    const double s = std::sqrt((left.x + peak.x - 2 * m) * (peak.x - left.x) / drop * 0.5);
    c[0] = left.y / std::exp(-0.5 * ((left.x - m) * (left.x - m)) / s / s);
    c[1] = m;
    c[2] = s;
    return status::kSuccess;
}

// From the peak, and the width over the samples above a tenth of it: ln((a / y)²) = ((x - m) / s)². *exact says that
// the result needs no iteration: only the peak stands out.
Status Estimate(const ModelSamples& samples, double* c, bool* exact) {
    const auto [x, y, weights, n] = samples;
    const Count at = PeakOf(y, n);
    const Point peak{x[at], y[at]};
    double distances = 0, drops = 0;
    Count count = 0;
    for (Count i = 0; i < n; ++i) {
        if (y[i] == 0 || !(std::fabs(y[i]) > 0.1 * std::fabs(peak.y))) continue;
        const double distance = x[i] - peak.x, ratio = peak.y / y[i];
        distances += distance * distance;
        drops += std::log(ratio * ratio);
        ++count;
    }
    *exact = count == 1;
    if (count == 1) return ThroughThreePoints(samples, peak, c);
    c[0] = peak.y;
    c[1] = peak.x;
    if (drops != 0) {
        c[2] = std::sqrt(distances / drops);
        return status::kSuccess;
    }
    // A plateau.
    double smallest = peak.x, largest = peak.x;
    for (Count i = 0; i < n; ++i) {
        if (y[i] != peak.y) continue;
        if (x[i] < smallest) smallest = x[i];
        if (x[i] > largest) largest = x[i];
    }
    c[0] = peak.y * 1.2;
    c[1] = (smallest + largest) * 0.5;
    c[2] = std::sqrt(largest - smallest);
    return status::kSuccess;
}

// The curve at the coefficients and its error.
double Evaluate(const GaussianSamples& at, const double* c, double* fitted) {
    kGaussianLoops().error(at, c, kInfinity);
    for (Count i = 0; i < at.n; ++i) fitted[i] = c[0] * at.shape[i];
    double error = 0;
    FitMeanSquaredError(at.y, fitted, at.weights, at.n, &error);
    return error;
}

// c in: the start; out: the result. tried gets the coefficients whose error is the residue.
void Climb(const GaussianSamples& at, const ModelControl& control, double* c, double* tried) {
    const double tolerance = ToleranceOrDefault(control.tolerance), n = at.n;
    const double start[3] = {c[0], c[1], c[2]}, first = kGaussianLoops().error(at, c, kInfinity) / n;
    double error = first, previous = error + 1, step = 1, gradient[3] = {0, 0, 0};
    bool wanted = true;
    std::copy_n(c, 3, tried);
    for (Count count = 0; count <= control.limit; ++count) {
        if (!(std::fabs(previous - error) > previous * tolerance) || !(error > control.smallestError)) break;
        if (wanted) {
            previous = error;
            // Downhill on the sum of squares, a factor of 2 aside.
            kGaussianLoops().gradient(at, c, gradient);
        }
        for (int j = 0; j < 3; ++j) tried[j] = c[j] + step * gradient[j];
        // An error this large is rejected and changes enough, whatever it is.
        error = kGaussianLoops().error(at, tried, (2 + tolerance) * previous * n) / n;
        wanted = previous >= error;
        if (wanted)
            std::copy_n(tried, 3, c);
        else
            step *= 0.5;
    }
    if (error >= first && previous >= first) {
        std::copy_n(start, 3, c);
        std::copy_n(start, 3, tried);
    }
}

}  // namespace

Status FitGaussianCore(const ModelSamples& given, const ModelControl& control, const ModelOutputs& out) noexcept {
    ModelSamples samples = given;
    if (samples.n < GaussianModel::kLeastSamples) return GaussianModel::kTooFew;
    if (Status failed = CheckModelWeights(&samples.weights, samples.n, GaussianModel::kLeastSamples)) return failed;
    if (ArrHasNonFinite(samples.x, samples.n)) return status::kNonFiniteInput;
    Block<double> shape(static_cast<std::size_t>(samples.n));
    if (!shape) return status::kOutOfMemory;
    const GaussianSamples at{samples.x, samples.y, samples.weights, shape, samples.n};

    double c[3];
    bool exact = false;
    if (control.guess && !ArrHasNonFinite(control.guess, 3))
        std::copy_n(control.guess, 3, c);
    else if (Status failed = Estimate(samples, c, &exact))
        return failed;
    if (!exact) {
        if (c[2] == 0) return status::kWidthNotPositive;
        double tried[3];
        Climb(at, control, c, tried);
        *out.residue = Evaluate(at, tried, out.fitted);
        c[2] = std::fabs(c[2]);
    }
    const double error = Evaluate(at, c, out.fitted);
    if (exact) *out.residue = error;
    std::copy_n(c, 3, out.coefficients);
    return status::kSuccess;
}

}  // namespace quorvan
