// The five fixed models: value, derivatives by the coefficients, and what else differs between their fits.
#pragma once

#include <cmath>

#include "frame/status.h"
#include "frame/types.h"

namespace quorvan {

// The base by which a caller chooses the natural logarithm; compared exactly.
inline constexpr double kNaturalBase = 2.71828;

// A base at or below 0 means the natural one.
class LogBase {
public:
    explicit LogBase(double base) noexcept : base_(base <= 0 ? kNaturalBase : base), ln_(std::log(base_)) {}

    bool natural() const noexcept { return base_ == kNaturalBase; }
    double Log(double v) const noexcept {
        if (natural()) return std::log(v);
        return base_ == 10 ? std::log10(v) : std::log(v) / ln_;
    }
    double Power(double v) const noexcept { return natural() ? std::exp(v) : std::pow(base_, v); }
    // d log(v) / d v, times v.
    double Slope(double quotient) const noexcept { return natural() ? quotient : quotient / ln_; }

private:
    double base_;
    double ln_;
};

// Iteration limits of the three methods: the first fit, and for the robust ones each refit.
struct FitLimits {
    Count leastSquares, absoluteFirst, absoluteRefit, bisquareFirst, bisquareRefit;
};

struct TwoCoefficients {
    static constexpr Count kCount = 2;         // coefficients
    static constexpr Count kLeastSamples = 2;  // also of samples with a weight
    static constexpr Status kTooFew = status::kSamplesBelowTwo;
    static constexpr Count kLeastInliers = 2;  // the bisquare ends below this number
    static constexpr double kRefitTolerance = -1;
};

// Value(x, c) is the model; Row(x, c, row) its derivatives by the coefficients, for a line that by the intercept first;
// FromRow(row, c) the model again, without another transcendental function.

// y = c0 x + c1.
struct LineModel : TwoCoefficients {
    static constexpr FitLimits kLimits{0, 0, 0, 0, 0};
    double Value(double x, const double* c) const noexcept { return c[0] * x + c[1]; }
    void Row(double x, const double*, double* row) const noexcept {
        row[0] = 1;  // the intercept first
        row[1] = x;
    }
    double FromRow(const double* row, const double* c) const noexcept { return c[0] * row[1] + c[1]; }
};

struct GrowthModel : TwoCoefficients {
    double FromRow(const double* row, const double* c) const noexcept { return c[0] * row[0]; }
    static constexpr FitLimits kLimits{100, 50, 50, 100, 50};
};

// y = c0 exp(c1 x).
struct ExponentialModel : GrowthModel {
    double Value(double x, const double* c) const noexcept { return c[0] * std::exp(c[1] * x); }
    void Row(double x, const double* c, double* row) const noexcept {
        row[0] = std::exp(c[1] * x);
        row[1] = c[0] * x * row[0];
    }
};

// y = c0 x^c1.
struct PowerModel : GrowthModel {
    double Value(double x, const double* c) const noexcept { return c[0] * std::pow(x, c[1]); }
    void Row(double x, const double* c, double* row) const noexcept {
        row[0] = std::pow(x, c[1]);
        row[1] = c[0] * row[0] * std::log(x);
    }
};

// y = c0 log(c1 x).
struct LogarithmModel : TwoCoefficients {
    static constexpr FitLimits kLimits{0, 0, 0, 0, 0};
    LogBase base;

    explicit LogarithmModel(double base) noexcept : base(base) {}
    double Value(double x, const double* c) const noexcept { return c[0] * base.Log(c[1] * x); }
    void Row(double x, const double* c, double* row) const noexcept {
        row[0] = base.Log(c[1] * x);
        row[1] = base.Slope(c[0] / c[1]);
    }
    double FromRow(const double* row, const double* c) const noexcept { return c[0] * row[0]; }
};

// y = c0 exp(-((x - c1) / c2)² / 2).
struct GaussianModel {
    static constexpr Count kCount = 3;
    static constexpr Count kLeastSamples = 3;
    static constexpr Status kTooFew = status::kSamplesBelowThree;
    static constexpr Count kLeastInliers = 3;
    static constexpr double kRefitTolerance = 1e-8;
    static constexpr FitLimits kLimits{500, 500, 250, 500, 300};

    static double Shape(double x, const double* c) noexcept {
        const double z = (x - c[1]) / c[2];
        return std::exp(-0.5 * (z * z));
    }
    double Value(double x, const double* c) const noexcept { return c[0] * Shape(x, c); }
    void Row(double x, const double* c, double* row) const noexcept {
        const double z = (x - c[1]) / c[2];
        row[0] = std::exp(-0.5 * (z * z));
        row[1] = c[0] * z * row[0] / c[2];
        row[2] = c[0] * (z * z) * row[0] / c[2];
    }
    double FromRow(const double* row, const double* c) const noexcept { return c[0] * row[0]; }
};

}  // namespace quorvan
