#include <algorithm>
#include <cmath>
#include <cstdio>
#include <vector>

#include "analysis.h"
#include "chapters.h"
#include "heart.h"
#include "report.h"

namespace tour {
namespace {

struct Edges {
    double rise, fall;  // between 10 and 90 percent of the height, in samples
};

// One beat, upright, with its apex: `height` above a base of 0 at sample `apex`.
struct Pulse {
    std::vector<double> samples;
    std::size_t apex;
    double height;
};

// What stands within 0.2 s around each beat that goes up.
std::vector<Pulse> CutPulses(const Recording& recording, const BeatTrain& beats) {
    const auto side = static_cast<std::ptrdiff_t>(0.2 * recording.rate);
    std::vector<Pulse> pulses;
    for (const double position : beats.positions) {
        const auto middle = static_cast<std::ptrdiff_t>(std::lround(position));
        if (middle < side || middle + side >= Size(recording.samples)) continue;
        const auto at = recording.samples.begin() + middle;
        Pulse pulse{{at - side, at + side + 1}, 0, 0.0};
        double low;
        std::int64_t apex, lowest;
        Check(QvArrMaxMin(pulse.samples.data(), Size(pulse.samples), &pulse.height, &apex, &low, &lowest));
        pulse.apex = static_cast<std::size_t>(apex);
        if (pulse.height > -low) pulses.push_back(pulse);
    }
    return pulses;
}

// By the crossings of absolute references: the edge that leads to the apex, or away from it.
bool MeasureTransition(const Pulse& pulse, bool rising, double& duration) {
    constexpr std::uint32_t kExtremes = 1;
    constexpr std::int64_t kBins = 64, kMostEdges = 4;
    const double apex = static_cast<double>(pulse.apex);
    bool found = false;
    for (std::int64_t edge = 1; edge <= kMostEdges; ++edge) {
        double high = 0.9 * pulse.height, mid = 0.5 * pulse.height, low = 0.1 * pulse.height;
        double slew, length, begin, end, levels[3], ringing[4];
        const QvStatus status =
            QvPulseTransition(pulse.samples.data(), Size(pulse.samples), rising, edge, &high, &mid, &low, 0, kExtremes,
                              kBins, &slew, &length, &begin, &end, &levels[0], &levels[1], &levels[2], &ringing[0],
                              &ringing[1], &ringing[2], &ringing[3]);
        // A needle leaves no room for ringing beside its edge; the crossings have been found by then.
        constexpr QvStatus kNoRoomForRinging = -20312;
        if (status < 0 && status != kNoRoomForRinging) break;
        if (rising ? end > apex : begin < apex) continue;
        duration = end - begin;
        found = true;
        if (!rising) break;  // the first one behind the apex
    }
    return found;
}

// By the levels that the pulse itself shows, in whole samples.
bool MeasureShape(const Pulse& pulse, Edges& edges) {
    double amplitude, level[3], top, base, overshoot, undershoot, slew;
    std::int64_t delay, width, rise, fall;
    const QvStatus status =
        QvPulseParameters(pulse.samples.data(), Size(pulse.samples), &amplitude, &level[2], &level[1], &level[0], &top,
                          &base, &overshoot, &undershoot, &delay, &width, &rise, &fall, &slew);
    edges = {static_cast<double>(rise), static_cast<double>(fall)};
    return status >= 0 && amplitude > 0.0;
}

double Median(const std::vector<double>& x) {
    double median;
    Check(QvStatMedian(x.data(), Size(x), &median));
    return median;
}

void PrintEdges(const std::vector<Pulse>& pulses, double rate) {
    std::vector<double> rise, fall, shapeRise, shapeFall;
    for (const Pulse& pulse : pulses) {
        Edges edges;
        if (MeasureTransition(pulse, true, edges.rise)) rise.push_back(edges.rise);
        if (MeasureTransition(pulse, false, edges.fall)) fall.push_back(edges.fall);
        if (!MeasureShape(pulse, edges)) continue;
        shapeRise.push_back(edges.rise);
        shapeFall.push_back(edges.fall);
    }
    const double ms = 1e3 / rate;
    BesideColumns();
    Beside("beats with a rise", double(rise.size()), double(shapeRise.size()), "", "pulse parameters");
    Beside("rise, 10 to 90 %, median", ms * Median(rise), ms * Median(shapeRise), "ms",
           "the same, cut to whole samples");
    Beside("fall, 90 to 10 %, median", ms * Median(fall), ms * Median(shapeFall), "ms",
           "the same, cut to whole samples");
}

double Bell(double x, double* c, std::int32_t) {
    const double z = (x - c[1]) / c[2];
    return c[0] * std::exp(-0.5 * z * z);
}

// The bell curve around the apex of a beat by two engines that know nothing of each other.
void PrintBell(const Pulse& pulse, double rate) {
    const auto side = static_cast<std::size_t>(0.02 * rate);
    std::vector<double> x, y;  // ms from the apex, mV
    for (std::size_t i = pulse.apex - side; i <= pulse.apex + side; ++i) {
        x.push_back((static_cast<double>(i) - static_cast<double>(pulse.apex)) * 1e3 / rate);
        y.push_back(pulse.samples[i]);
    }
    std::vector<double> fitted(x.size());
    double guess[3] = {pulse.height, 0.0, 10.0}, amplitude, centre, width, residue;
    constexpr std::uint32_t kLeastSquares = 0;
    std::vector<double> ordinates = y;
    Check(QvFitGaussian(x.data(), ordinates.data(), nullptr, Size(x), kLeastSquares, 1e-12, guess, fitted.data(),
                        &amplitude, &centre, &width, &residue));

    double c[3] = {guess[0], guess[1], guess[2]}, error;
    constexpr std::int32_t kLimit = 100;
    Check(QvFitNonlinearLimited(x.data(), y.data(), fitted.data(), Size(x), kLimit, Bell, c, 3, &error));
    const double halfWidth = 2.0 * std::sqrt(2.0 * std::log(2.0));
    Beside("bell curve on a beat, height", amplitude, c[0], "mV", "nonlinear fit of the same curve");
    Beside("  centre from the apex", centre, c[1], "ms", "the same");
    Beside("  width at half height", halfWidth * width, halfWidth * std::abs(c[2]), "ms", "the same");
    Beside("  what is left of it, rms", std::sqrt(residue), std::sqrt(error), "mV", "the same");
}

}  // namespace

void Shape() {
    Heading("shape", "heartbeats as pulses: rise, fall, and the bell curve that fits");
    const Recording recording = Electrocardiogram();
    const std::vector<Pulse> pulses = CutPulses(WithoutWander(recording), FindBeats(recording));
    if (pulses.empty()) throw Failure("no beat goes up");
    PrintEdges(pulses, recording.rate);
    PrintBell(*std::max_element(pulses.begin(), pulses.end(),
                                [](const Pulse& a, const Pulse& b) { return a.height < b.height; }),
              recording.rate);
}

}  // namespace tour
