#include "fit/nonlinear_fit.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "frame/memory.h"
#include "frame/status.h"
#include "linalg/decompositions.h"
#include "linalg/solve.h"

namespace quorvan {
namespace {

constexpr double kFirstDamping = 0.001;
// So many iterations in a row without a smaller chi-square end a fit that has no limit. The damping overflows after
// some 600 rejections; only a circle of small steps and rejections, which clear each other, comes here.
constexpr Count kStallLimit = 1000;
// And so many in a row of which none lowers it by more than the loop calls small: a crawl, on which each step clears a
// rejection, would take hours.
constexpr Count kCrawlLimit = 20'000;

constexpr double kRootEpsilon = 1.4901161193847656e-08;  // the square root of the double epsilon

struct Samples {
    const double* x;
    const double* y;
    const double* deviation;  // squared, or null
    Count count;

    // A term of a sum over the samples, in units of the squared deviation where there is one.
    double Scaled(double term, Count i) const { return deviation ? term / deviation[i] : term; }
};

// K. Levenberg (Quart. Appl. Math. 2, 1944) and D. W. Marquardt (SIAM J. 11, 1963): with alpha = sum g g' and
// beta = sum (y - f) g over the samples, g the gradient of the model, each step solves
//     (alpha + lambda diag(alpha)) step = beta.
class Engine {
public:
    Engine(const Samples& samples, FitNonlinearModel model, double* coefficients, Count m)
        : samples_(samples),
          model_(model),
          coefficients_(coefficients),
          m_(m),
          block_((2 * static_cast<std::size_t>(m) + 5) * static_cast<std::size_t>(m)) {
        double* next = block_;
        const auto take = [&](std::size_t count) { return std::exchange(next, next + count); };
        if (!block_) return;
        alpha_ = take(static_cast<std::size_t>(m) * m);
        damped_ = take(static_cast<std::size_t>(m) * m);
        for (double** row : {&trial_, &step_, &beta_, &gradient_, &singular_}) *row = take(m);
    }

    explicit operator bool() const { return static_cast<bool>(block_); }

    // The status of the loop; *iterations as the caller counts them. -20062 leaves the last accepted coefficients.
    Status Run(Count limit, Count* iterations) {
        double chi = Curvature(coefficients_);
        double chi_new = chi;
        double lambda = kFirstDamping;
        Count iteration = 0;
        bool small_before = false;
        Count stalled = 0, crawled = 0;
        while (limit < 0 || iteration < limit) {
            std::copy_n(coefficients_, m_, trial_);
            const Status status = Step(lambda);
            if (status < 0) {
                *iterations = iteration + 1;
                // A diagonal that overflowed ends the fit quietly, with what was accepted: deliberate.
                return status == status::kNonFiniteInput ? status::kSuccess : status;
            }
            chi_new = ChiSquare();
            stalled = chi_new < chi ? 0 : stalled + 1;
            if (limit < 0 && (stalled > kStallLimit || ++crawled > kCrawlLimit)) {
                *iterations = iteration + 1;
                return status::kSuccess;
            }
            if (chi_new > chi) {
                lambda *= 10;
                ++iteration;
                small_before = false;
                continue;
            }
            Curvature(trial_);
            lambda *= 0.1;
            std::copy_n(trial_, m_, coefficients_);
            const double change = chi - chi_new;
            if (change < 0.001 || change < chi * 1e-5) {
                if (small_before) {
                    *iterations = iteration + 1;
                    return status::kSuccess;
                }
                small_before = true;
            } else {
                crawled = 0;
            }
            // In the last pass of a limit the old value stays: the two last ones are compared below.
            if (limit < 0 || iteration < limit - 1) chi = chi_new;
            ++iteration;
        }
        *iterations = iteration;
        const double tolerance = 1e-6 * (chi_new > chi ? chi : chi_new);
        return std::fabs(chi - chi_new) < tolerance ? status::kSuccess : status::kTooManyIterations;
    }

    double Value(double x) const { return model_(x, coefficients_, m_); }

private:
    // Central differences; each coefficient is moved in place and put back exactly.
    void Gradient(double x, double* coefficients) {
        for (Count j = 0; j < m_; ++j) {
            const double p = coefficients[j];
            const double size = std::fabs(p);
            const double h = 3e-06 * (size > kRootEpsilon ? size : kRootEpsilon);
            coefficients[j] = p + h;
            const double above = model_(x, coefficients, m_);
            coefficients[j] = (p + h) - 2 * h;
            const double below = model_(x, coefficients, m_);
            gradient_[j] = (above - below) / (2 * h);
            coefficients[j] = p;
        }
    }

    // alpha and beta at the coefficients, and chi-square.
    double Curvature(double* coefficients) {
        const auto row = [&](Count j) { return alpha_ + static_cast<Size>(j) * m_; };
        std::fill_n(alpha_, static_cast<std::size_t>(m_) * m_, 0.0);
        std::fill_n(beta_, m_, 0.0);
        double chi = 0;
        for (Count i = 0; i < samples_.count; ++i) {
            const double dy = samples_.y[i] - model_(samples_.x[i], coefficients, m_);
            chi += samples_.Scaled(dy * dy, i);
            Gradient(samples_.x[i], coefficients);
            for (Count j = 0; j < m_; ++j) {
                for (Count k = 0; k <= j; ++k) row(j)[k] += samples_.Scaled(gradient_[j] * gradient_[k], i);
                beta_[j] += samples_.Scaled(dy * gradient_[j], i);
            }
        }
        for (Count j = 0; j < m_; ++j)
            for (Count k = 0; k < j; ++k) row(k)[j] = row(j)[k];
        return chi;
    }

    double ChiSquare() const {
        double chi = 0;
        for (Count i = 0; i < samples_.count; ++i) {
            const double dy = samples_.y[i] - model_(samples_.x[i], trial_, m_);
            chi += samples_.Scaled(dy * dy, i);
        }
        return chi;
    }

    // Adds the damped step to the trial coefficients.
    Status Step(double lambda) {
        std::copy_n(alpha_, static_cast<std::size_t>(m_) * m_, damped_);
        for (Count j = 0; j < m_; ++j) {
            double& diagonal = damped_[static_cast<Size>(j) * m_ + j];
            diagonal *= lambda + 1;
            if (!std::isfinite(diagonal)) return status::kNonFiniteInput;
        }
        // The solver multiplies its tolerance by m: an ill-conditioned matrix loses at most what lies below half its
        // smallest singular value.
        const Status status = MatSingularValues(damped_, m_, m_, singular_);
        if (status == status::kOutOfMemory) return status;
        double threshold = 0;
        if (status >= 0 && singular_[0] != 0) {
            const double ratio = singular_[m_ - 1] / singular_[0] / m_;
            if (ratio < kEpsilon) threshold = ratio * 0.5;
        }
        const Status solved = SolveLeastSquares(damped_, m_, m_, beta_, 1, threshold, step_);
        if (solved < 0) return solved;
        for (Count j = 0; j < m_; ++j) trial_[j] += step_[j];
        return status::kSuccess;
    }

    Samples samples_;
    FitNonlinearModel model_;
    double* coefficients_;
    Count m_;
    Block<double> block_;
    double* alpha_ = nullptr;
    double* damped_ = nullptr;
    double* trial_ = nullptr;
    double* step_ = nullptr;
    double* beta_ = nullptr;
    double* gradient_ = nullptr;
    double* singular_ = nullptr;
};

Status FitNonlinearCore(const Samples& samples, double* fitted, Count limit, FitNonlinearModel model,
                        double* coefficients, Count m, double* meanSquaredError, Count* iterations) {
    if (samples.count < 1 || m < 1) return status::kSamplesNotPositive;
    if (samples.count < m) return status::kPointsNotAboveOrder;
    Engine engine(samples, model, coefficients, m);
    if (!engine) return status::kOutOfMemory;
    const Status status = engine.Run(limit, iterations);
    if (status < 0 && status != status::kTooManyIterations) return status;
    // One of the two alone is not produced: deliberate.
    if (!fitted || !meanSquaredError) return status;
    double sum = 0;
    for (Count i = 0; i < samples.count; ++i) {
        const double y = samples.y[i];
        fitted[i] = engine.Value(samples.x[i]);
        sum += (fitted[i] - y) * (fitted[i] - y);
    }
    *meanSquaredError = sum / samples.count;
    return status;
}

}  // namespace

Status FitNonlinear(const double* x, const double* y, double* fitted, Count n, Count limit, FitNonlinearModel model,
                    double* coefficients, Count m, double* meanSquaredError) noexcept {
    Count iterations = 0;
    return FitNonlinearCore({x, y, nullptr, n}, fitted, limit, model, coefficients, m, meanSquaredError, &iterations);
}

Status FitNonlinearWeighted(const double* x, const double* y, const double* weights, double* fitted, Count n,
                            Count limit, FitNonlinearModel model, double* coefficients, Count m,
                            double* meanSquaredError, Count* iterations) noexcept {
    Count count = 0;
    if (!iterations) iterations = &count;
    *iterations = 0;
    Samples samples{x, y, nullptr, n};
    Block<double> kept;
    if (weights && n > 0) {
        for (Count i = 0; i < n; ++i)
            if (!std::isfinite(weights[i])) return status::kNonFiniteInput;
        const auto room = static_cast<std::size_t>(n);
        kept = Block<double>(3 * room);
        if (!kept) return status::kOutOfMemory;
        double *kept_x = kept, *kept_y = kept_x + room, *deviation = kept_y + room;
        Count left = 0;
        for (Count i = 0; i < n; ++i) {
            if (weights[i] == 0) continue;
            const double sigma = 1 / std::sqrt(std::fabs(weights[i]));
            kept_x[left] = x[i];
            kept_y[left] = y[i];
            deviation[left++] = sigma == 0 ? 1.0 : sigma * sigma;
        }
        if (left > 0) samples = {kept_x, kept_y, deviation, left};
    }
    const Status status = FitNonlinearCore(samples, nullptr, limit, model, coefficients, m, nullptr, iterations);
    // Without a curve there is no mean squared error either: deliberate.
    if (status < 0 || !fitted) return status;
    double sum = 0;
    for (Count i = 0; i < n; ++i) {
        const double y_i = y[i];
        fitted[i] = model(x[i], coefficients, m);
        const double square = (fitted[i] - y_i) * (fitted[i] - y_i);
        sum += weights ? square * std::fabs(weights[i]) : square;
    }
    if (meanSquaredError) *meanSquaredError = sum / n;
    return status;
}

}  // namespace quorvan
