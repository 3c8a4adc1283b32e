#include <algorithm>
#include <cmath>
#include <cstdio>
#include <functional>
#include <memory>
#include <numbers>
#include <optional>
#include <vector>

#include "analysis.h"
#include "chapters.h"
#include "heart.h"
#include "report.h"

namespace tour {
namespace {

constexpr double kMains = 60.0;  // Hz, where the recording was made

using Gain = std::function<double(double frequency)>;  // of amplitudes

struct Response {
    double re = 0.0, im = 0.0;
};

// c[0] + c[1] z^-1 + ... on the unit circle.
Response Polynomial(const double* c, int count, double angle) {
    Response sum;
    for (int k = 0; k < count; ++k) {
        sum.re += c[k] * std::cos(k * angle);
        sum.im -= c[k] * std::sin(k * angle);
    }
    return sum;
}

double Magnitude(const Response& r) { return std::hypot(r.re, r.im); }

Gain OfTaps(const std::vector<double>& taps, double rate) {
    return [=](double f) {
        return Magnitude(Polynomial(taps.data(), static_cast<int>(taps.size()), 2 * std::numbers::pi * f / rate));
    };
}

// A recursive filter; its record shows the coefficients of its stages.
class Recursive {
public:
    Recursive(std::uint32_t kind, double rate, double from, double to)
        : rate_(rate), filter_(QvIirFilterCreate(kind, 2), &QvIirFilterRelease) {
        if (!filter_) throw Failure("no memory for a filter");
        Check(QvIirDesignButterworth(rate, from, to, filter_.get()));
    }
    double operator()(double f) const {
        const int width = filter_->type < 2 ? 2 : 4;
        const double angle = 2 * std::numbers::pi * f / rate_;
        double gain = 1.0;
        for (int stage = 0; stage < (filter_->order + 1) / 2; ++stage) {
            std::vector<double> a{1.0};
            a.insert(a.end(), filter_->a + stage * width, filter_->a + (stage + 1) * width);
            gain *= Magnitude(Polynomial(filter_->b + stage * (width + 1), width + 1, angle)) /
                    Magnitude(Polynomial(a.data(), width + 1, angle));
        }
        return gain;
    }
    // The signal comes in blocks, as it would from an instrument.
    void Apply(std::vector<double>& x, std::size_t block) const {
        QvIirFilterReset(filter_.get());
        for (std::size_t i = 0; i < x.size(); i += block)
            Check(QvIirCascadeApply(&x[i], static_cast<std::int64_t>(std::min(block, x.size() - i)), filter_.get(),
                                    &x[i]));
    }

private:
    double rate_;
    std::unique_ptr<QvIirFilter, void (*)(void*)> filter_;
};

// Where the response passes a level between two frequencies, by halving.
double Edge(const Gain& gain, double level, double from, double to) {
    const bool above = gain(from) > level;
    for (int i = 0; i < 60; ++i) {
        const double middle = 0.5 * (from + to);
        ((gain(middle) > level) == above ? from : to) = middle;
    }
    return 0.5 * (from + to);
}

void PrintResponse(const char* name, const Gain& gain, double level, double from, double to, double designed) {
    const auto decibels = [&](double f) {
        return std::round(2000.0 * std::log10(std::max(gain(f), 1e-15))) / 100.0 + 0.0;  // two decimals, and no -0.00
    };
    std::printf("  %-32s %8.2f %8.2f %8.2f %8.2f  %9.4f %9.4f  Hz\n", name, decibels(0.05), decibels(10.0),
                decibels(50.0), decibels(kMains), Edge(gain, level, from, to), designed);
}

// Root mean square of what lies between two frequencies; a filter's gain can be laid over it.
double Rms(const Spectrum& spectrum, double from, double to, const Gain& gain) {
    double sum = 0.0;
    for (std::size_t k = 1; k < spectrum.power.size(); ++k) {
        const double f = static_cast<double>(k) * spectrum.df;
        if (f >= from && f < to) sum += spectrum.power[k] * gain(f) * gain(f);
    }
    return std::sqrt(sum / spectrum.window.enbw);
}

// The middle row of the cubic, in closed form: 3 (3 M^2 + 3 M - 1 - 5 k^2) / ((2 M - 1)(2 M + 1)(2 M + 3)).
std::vector<double> CubicSmoother(int side) {
    const double m = side;
    std::vector<double> taps;
    for (int k = -side; k <= side; ++k)
        taps.push_back(3 * (3 * m * m + 3 * m - 1 - 5.0 * k * k) / ((2 * m - 1) * (2 * m + 1) * (2 * m + 3)));
    return taps;
}

}  // namespace

void Filters() {
    Heading("filters", "mains hum and baseline wander removed from the electrocardiogram");
    const Recording before = Electrocardiogram();
    const double rate = before.rate;
    constexpr std::uint32_t kHighpass = 1, kBandstop = 3;
    const Recursive wander(kHighpass, rate, 0.5, 0.0), mains(kBandstop, rate, 59.0, 61.0);

    constexpr int kTaps = 121, kCubic = 3, kSide = 25, kFrame = 2 * kSide + 1;
    std::vector<double> taps(kTaps), smoother(kFrame * kFrame);
    Check(QvFirDesignKaiserLowpass(rate, 40.0, kTaps, taps.data(), 6.0));
    Check(QvSavitzkyGolayDesign(kCubic, kSide, nullptr, 0, smoother.data(), nullptr));
    const Gain muscle = OfTaps(taps, rate);
    const Gain local = OfTaps({&smoother[kSide * kFrame], &smoother[kSide * kFrame] + kFrame}, rate);

    const double half = std::sqrt(0.5);
    std::printf("  gain in dB at                     0.05 Hz    10 Hz    50 Hz    60 Hz    edge at  designed\n");
    PrintResponse("wander: Butterworth highpass", std::cref(wander), half, 0.1, 5.0, 0.5);
    PrintResponse("hum: Butterworth stop, lower", std::cref(mains), half, 50.0, 59.9, 59.0);
    PrintResponse("  the same, upper", std::cref(mains), half, 60.1, 70.0, 61.0);
    PrintResponse("muscles: 121 taps under Kaiser", muscle, 0.5, 20.0, 60.0, 40.0);
    PrintResponse("Savitzky-Golay, 51 samples", local, half, 1.0, 15.0,
                  Edge(OfTaps(CubicSmoother(kSide), rate), half, 1.0, 15.0));

    Recording after = before, whole = before;
    constexpr std::size_t kBlock = 1000;
    for (const Recursive* filter : {&wander, &mains}) {
        filter->Apply(after.samples, kBlock);
        filter->Apply(whole.samples, whole.samples.size());
    }
    std::vector<double> state(kTaps - 1);
    Check(
        QvFilterFir(after.samples.data(), Size(after.samples), taps.data(), state.data(), kTaps, after.samples.data()));
    std::fill(state.begin(), state.end(), 0.0);
    Check(
        QvFilterFir(whole.samples.data(), Size(whole.samples), taps.data(), state.data(), kTaps, whole.samples.data()));
    double largest = 0.0;
    for (std::size_t i = 0; i < after.samples.size(); ++i)
        largest = std::max(largest, std::abs(after.samples[i] - whole.samples[i]));

    const Gain all = [&](double f) { return wander(f) * mains(f) * muscle(f); };
    const Gain none = [](double) { return 1.0; };
    const Spectrum old = PowerSpectrum(before), now = PowerSpectrum(after);
    const std::optional<Beat> oldBeat = FindBeat(before, 40.0 / 60.0, 200.0 / 60.0);
    const std::optional<Beat> newBeat = FindBeat(after, 40.0 / 60.0, 200.0 / 60.0);
    if (!oldBeat || !newBeat) throw Failure("the beats have no rhythm");
    const auto lineNear = [](const Spectrum& spectrum, double f) { return StrongestLine(spectrum, f / 1.2, f * 1.2); };
    const Line oldLine = lineNear(old, oldBeat->frequency), newLine = lineNear(now, oldBeat->frequency);

    std::printf("\n  %-32s %12s %12s %12s\n", "", "before", "after", "to expect");
    const auto row = [](const char* name, double a, double b, double c, const char* unit) {
        std::printf("  %-32s %12.5g %12.5g %12.5g  %s\n", name, a, b, c, unit);
    };
    const auto band = [&](const char* name, double from, double to) {
        row(name, 1e3 * Rms(old, from, to, none), 1e3 * Rms(now, from, to, none), 1e3 * Rms(old, from, to, all), "uV");
    };
    band("wander, rms below 0.3 Hz", 0.0, 0.3);
    band("muscles, rms from 45 to 55 Hz", 45.0, 55.0);
    band("hum, rms from 59.8 to 60.2 Hz", 59.8, 60.2);
    row("line of the heart, amplitude", 1e3 * std::sqrt(2.0 * oldLine.power), 1e3 * std::sqrt(2.0 * newLine.power),
        1e3 * std::sqrt(2.0 * oldLine.power) * all(oldLine.frequency), "uV");
    row("heart rate, autocorrelation", 60.0 * oldBeat->frequency, 60.0 * newBeat->frequency, 60.0 * oldBeat->frequency,
        "/min");
    row("beats", static_cast<double>(FindBeats(before).positions.size()),
        static_cast<double>(FindBeats(after).positions.size()), static_cast<double>(FindBeats(before).positions.size()),
        "");
    std::printf("\n  In blocks of %zu samples and in one piece: the largest difference is %g.\n", kBlock, largest);
}

}  // namespace tour
