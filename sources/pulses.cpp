// Pulses: functions of the time t = i dt - delay.
#include <cmath>

#include "frame/status.h"
#include "sources/generators.h"

namespace quorvan {
namespace {

template <class Shape>
Status Sampled(Count n, double delay, double dt, double* out, Shape shape) noexcept {
    for (Count i = 0; i < n; ++i) out[i] = shape(i * dt - delay);
    return status::kSuccess;
}

}  // namespace

// amp sin(pi t) / (pi t)
Status GenSincPattern(Count n, double amp, double delay, double dt, double* out) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    if (dt <= 0.0) return status::kTimeStepNotPositive;
    return Sampled(n, delay, dt, out, [=](double t) {
        const double x = t * kPi;
        return x == 0.0 ? amp : amp * std::sin(x) / x;
    });
}

// amp sin(order x) / (order sin x), x = t / 2 (the Dirichlet kernel). Where sin x vanishes the value is amp, also where
// the limit is -amp; deliberate.
Status GenPeriodicSincPattern(Count n, double amp, double delay, double dt, std::int32_t order, double* out) noexcept {
    if (order < 1) return status::kNotPositive;
    if (n < 1) return status::kSamplesNotPositive;
    if (dt <= 0.0) return status::kTimeStepNotPositive;
    return Sampled(n, delay, dt, out, [=](double t) {
        const double x = t * 0.5, sine = std::sin(x);
        return std::fabs(sine) <= kEpsilon ? amp : amp * std::sin(order * x) / (order * sine);
    });
}

// amp exp(a u^2) cos(2 u), u = pi centre t; a makes the spectrum fall by `attenuation` dB at the edges of the band.
Status GenGaussianModulatedSine(Count n, double amp, double delay, double dt, double centre, double bandwidth,
                                double attenuation, double* out) noexcept {
    if (centre <= 0.0 || bandwidth <= 0.0 || attenuation <= 0.0) return status::kNotPositive;
    if (n < 1) return status::kSamplesNotPositive;
    if (dt <= 0.0) return status::kTimeStepNotPositive;
    const double a = bandwidth * -5.0 * bandwidth / std::log(10.0) / attenuation;
    return Sampled(n, delay, dt, out, [=](double t) {
        const double u = t * centre * kPi;
        return amp * std::exp(u * u * a) * std::cos(2.0 * u);
    });
}

// 2 sqrt(e) amp u exp(-2 u^2), u = pi centre t, with the extreme values amp and -amp at u = 1/2 and -1/2.
Status GenGaussianMonopulse(Count n, double amp, double delay, double dt, double centre, double* out) noexcept {
    if (centre <= 0.0) return status::kNotPositive;
    if (n < 1) return status::kSamplesNotPositive;
    if (dt <= 0.0) return status::kTimeStepNotPositive;
    const double gain = std::sqrt(2.718281828459045) * 2.0 * amp;
    return Sampled(n, delay, dt, out, [=](double t) {
        const double u = t * centre * kPi;
        return std::exp(-2.0 * (u * u)) * (u * gain);
    });
}

// Rises from 0 at t = 0 to amp at t = skew width and falls to 0 at t = width.
Status GenSkewedTrianglePulse(Count n, double amp, double delay, double dt, double width, double skew,
                              double* out) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    if (width <= 0.0) return status::kNotPositive;
    if (dt <= 0.0) return status::kTimeStepNotPositive;
    if (skew < 0.0 || skew > 1.0) return status::kProbabilityOutOfRange;
    const double apex = width * skew;
    // Without a rising edge, or without a falling one, no sample lies on it: the slope of 1/0 is never used.
    const double rise = amp / apex, fall = amp / (width - apex);
    return Sampled(n, delay, dt, out, [=](double t) {
        if (t < 0.0 || t > width) return 0.0;
        if (skew == 0.0) return (width - t) * fall;
        if (skew == 1.0 || t <= apex) return rise * t;
        return (width - t) * fall;
    });
}

}  // namespace quorvan
