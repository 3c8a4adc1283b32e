// Filter objects as a test holds them, and the cascade as its definition reads, sample by sample.
#pragma once

#include <cmath>
#include <vector>

#include "quorvan/quorvan.h"
#include "tests/support/guarded.h"

namespace quorvan::testing {

inline constexpr int kKinds[] = {0, 1, 2, 3};
inline int WidthOf(int kind) { return kind < 2 ? 2 : 4; }

// A filter object for the time of a test.
class Filter {
public:
    Filter(int kind, int order) : filter_(ZemFunc233(static_cast<std::uint32_t>(kind), order)) {
        EXPECT_NE(filter_, nullptr);
    }
    Filter(const Filter&) = delete;
    ~Filter() { ZemFunc234(filter_); }
    operator QvIirFilter*() const { return filter_; }
    QvIirFilter* operator->() const { return filter_; }

    int width() const { return WidthOf(filter_->type); }
    int stages() const { return (filter_->order + 1) / 2; }
    double a(int stage, int k) const { return filter_->a[stage * width() + k]; }
    double b(int stage, int k) const { return filter_->b[stage * (width() + 1) + k]; }
    std::vector<double> feedback() const { return {filter_->a, filter_->a + filter_->a_count}; }
    std::vector<double> forward() const { return {filter_->b, filter_->b + filter_->b_count}; }
    std::vector<double> delays() const { return {filter_->state, filter_->state + filter_->state_count}; }

    // H(1) or H(-1) of one stage.
    double Gain(int stage, double z) const {
        double numerator = b(stage, 0), denominator = 1, power = 1;
        for (int k = 0; k < width(); ++k) {
            power *= z;
            numerator += b(stage, k + 1) * power;
            denominator += a(stage, k) * power;
        }
        return numerator / denominator;
    }

private:
    QvIirFilter* filter_;
};

class ComplexState {
public:
    ComplexState(int kind, int order) : state_(ZemFunc469(static_cast<std::uint32_t>(kind), order)) {
        EXPECT_NE(state_, nullptr);
    }
    ComplexState(const ComplexState&) = delete;
    ~ComplexState() { ZemFunc470(state_); }
    operator QvIirStateComplex*() const { return state_; }
    QvIirStateComplex* operator->() const { return state_; }

private:
    QvIirStateComplex* state_;
};

// Stages with poles well inside the circle; the same seed gives the same stages.
inline void FillStages(const Filter& filter, unsigned seed) {
    const Reals a = RandomReals(filter->a_count, seed), b = RandomReals(filter->b_count, seed + 1000);
    for (int k = 0; k < filter->a_count; ++k) filter->a[k] = a[k] * 0.9 / filter.width();
    for (int k = 0; k < filter->b_count; ++k) filter->b[k] = b[k];
}

// One sample through all stages, as the formulas stand. `state` has one delay line a stage.
inline double Sample(const Filter& filter, double v, std::vector<double>& state) {
    constexpr double kSmallest = 2.2250738585072014e-308;
    const int w = filter.width();
    for (int s = 0; s < filter.stages(); ++s) {
        double* d = state.data() + s * w;
        double t = v;
        for (int k = 0; k < w; ++k) t -= filter.a(s, k) * d[k];
        v = t * filter.b(s, 0);
        for (int k = 0; k < w; ++k) v += filter.b(s, k + 1) * d[k];
        for (int k = w - 1; k > 0; --k) d[k] = d[k - 1];
        d[0] = std::fabs(t) <= kSmallest ? 0.0 : t;
    }
    return std::fabs(v) <= kSmallest ? 0.0 : v;
}

}  // namespace quorvan::testing
