// The exponential and the power model: a line through logarithms, then Gauss-Newton steps.
#include <algorithm>
#include <cmath>

#include "fit/fit_errors.h"
#include "fit/general_fit.h"
#include "fit/model_engines.h"
#include "frame/memory.h"

namespace quorvan {
namespace {

// ln y = ln a + b·u with u of x; y = a·basis with basis of x and b; dy/db of a, x, u and the basis.
struct ExponentialForm {
    static constexpr bool kPositiveAbscissas = false;
    static double Straight(double x) { return x; }
    static double Basis(double x, double b) { return std::exp(b * x); }
    static double Slope(double a, double u, double basis) { return a * u * basis; }
};
struct PowerForm {
    static constexpr bool kPositiveAbscissas = true;
    static double Straight(double x) { return std::log(x); }
    static double Basis(double x, double b) { return std::pow(x, b); }
    static double Slope(double a, double u, double basis) { return a * basis * u; }
};

template <class Form>
class GrowthFit {
public:
    GrowthFit(const ModelSamples& samples, const ModelOutputs& out)
        : samples_(samples), out_(out), room_(static_cast<std::size_t>(samples.n)), block_(6 * room_) {
        if (!block_) return;
        straight_ = block_;
        basis_ = straight_ + room_;
        design_ = basis_ + room_;
        target_ = design_ + 2 * room_;
        weights_ = target_ + room_;
        for (Count i = 0; i < samples_.n; ++i) straight_[i] = Form::Straight(samples_.x[i]);
    }

    explicit operator bool() const { return static_cast<bool>(block_); }

    // ln(s y) = ln(s a) + b u; weighted by y² the residuals are those of y, to first order.
    Status Start(double sign) {
        Count rows = 0;
        for (Count i = 0; i < samples_.n; ++i) {
            const double y = samples_.y[i];
            if (!(sign * y > 0)) continue;
            design_[2 * rows] = 1;
            design_[2 * rows + 1] = straight_[i];
            target_[rows] = std::log(sign * y);
            weights_[rows++] = samples_.weights ? std::fabs(y * samples_.weights[i] * y) : y * y;
        }
        double c[2];
        if (Status failed = Solve(rows, weights_, c)) return failed;
        Set(sign * std::exp(c[0]), c[1]);
        return status::kSuccess;
    }

    void Set(double a, double b) {
        a_ = a;
        b_ = b;
        for (Count i = 0; i < samples_.n; ++i) {
            basis_[i] = Form::Basis(samples_.x[i], b);
            out_.fitted[i] = a * basis_[i];
        }
        FitMeanSquaredError(samples_.y, out_.fitted, samples_.weights, samples_.n, &error_);
    }

    Status Iterate(const ModelControl& control) {
        const double tolerance = ToleranceOrDefault(control.tolerance);
        double previous = 2 * error_, best_a = a_, best_b = b_, best = error_;
        for (Count count = 1; std::fabs(previous - error_) > previous * tolerance && error_ > control.smallestError;
             ++count) {
            previous = error_;
            for (Count i = 0; i < samples_.n; ++i) {
                design_[2 * i] = basis_[i];
                design_[2 * i + 1] = Form::Slope(a_, straight_[i], basis_[i]);
                target_[i] = samples_.y[i] - out_.fitted[i];
            }
            double step[2];
            if (Status failed = Solve(samples_.n, samples_.weights, step)) return failed;
            Set(a_ + step[0], b_ + step[1]);
            if (!std::isfinite(error_)) break;
            // Against divergence; the first tenth of the iterations may climb.
            if (count > control.limit / 10 && error_ > previous && error_ > best) break;
            if (best > error_) {
                best_a = a_;
                best_b = b_;
                best = error_;
            }
            if (count > control.limit) break;
        }
        if (best_a != a_ || best_b != b_) Set(best_a, best_b);
        return status::kSuccess;
    }

    void Write() const {
        out_.coefficients[0] = a_;
        out_.coefficients[1] = b_;
        *out_.residue = error_;
    }

private:
    Status Solve(Count rows, const double* weights, double* c) {
        return FitGeneralCore(design_, rows, 2, target_, weights, c, nullptr, nullptr, nullptr, kFitSingularValues);
    }

    ModelSamples samples_;
    ModelOutputs out_;
    std::size_t room_;
    Block<double> block_;
    double* straight_ = nullptr;
    double* basis_ = nullptr;
    double* design_ = nullptr;
    double* target_ = nullptr;
    double* weights_ = nullptr;
    double a_ = 0, b_ = 0, error_ = 0;
};

template <class Form>
Status FitGrowthCore(ModelSamples samples, bool iterate, const ModelControl& control, const ModelOutputs& out) {
    if (samples.n < GrowthModel::kLeastSamples) return GrowthModel::kTooFew;
    if (Status failed = CheckModelWeights(&samples.weights, samples.n, GrowthModel::kLeastSamples)) return failed;
    const double sign = FitSignOfMajority(samples.y, samples.n);
    if constexpr (Form::kPositiveAbscissas)
        for (Count i = 0; i < samples.n; ++i)
            if (samples.x[i] <= 0) return status::kNotPositive;

    GrowthFit<Form> fit(samples, out);
    if (!fit) return status::kOutOfMemory;
    const double* guess = control.guess;
    if (iterate && guess && std::isfinite(guess[0]) && std::isfinite(guess[1]))
        fit.Set(guess[0], guess[1]);
    else if (Status failed = fit.Start(sign))
        return failed;
    if (iterate && control.limit >= 0)
        if (Status failed = fit.Iterate(control)) return failed;
    fit.Write();
    return status::kSuccess;
}

}  // namespace

double FitSignOfMajority(const double* y, Count n) noexcept {
    Count balance = 0;
    for (Count i = 0; i < n; ++i) balance += (y[i] > 0) - (y[i] < 0);
    return balance >= 0 ? 1 : -1;
}

Status FitExponentialCore(const ModelSamples& samples, bool iterate, const ModelControl& control,
                          const ModelOutputs& out) noexcept {
    return FitGrowthCore<ExponentialForm>(samples, iterate, control, out);
}

Status FitPowerCore(const ModelSamples& samples, bool iterate, const ModelControl& control,
                    const ModelOutputs& out) noexcept {
    return FitGrowthCore<PowerForm>(samples, iterate, control, out);
}

}  // namespace quorvan
