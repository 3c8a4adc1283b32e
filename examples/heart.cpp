#include "heart.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "analysis.h"
#include "quorvan/quorvan.h"

namespace tour {
namespace {

constexpr int kLowpass = 0, kBandpass = 2;
constexpr int kOrder = 2;

// Filters forwards and backwards, so that nothing moves in time.
template <int kCoefficients>
void Filter(int kind, double from, double to, double rate, std::vector<double>& x) {
    double a[kCoefficients], b[kCoefficients];
    Check(QvIirCoefficientsButterworth(kind, kOrder, rate, from, to, a, kCoefficients, b, kCoefficients));
    Check(QvFilterZeroPhase(x.data(), Size(x), a, kCoefficients, b, kCoefficients, x.data()));
}

std::vector<double> Envelope(const Recording& recording) {
    std::vector<double> x = recording.samples;
    Filter<2 * kOrder + 1>(kBandpass, 5.0, 15.0, recording.rate, x);
    Check(QvArrMultiply(x.data(), x.data(), Size(x), x.data()));
    Filter<kOrder + 1>(kLowpass, 4.0, 0.0, recording.rate, x);
    for (double& value : x) value = std::sqrt(std::max(value, 0.0));
    return x;
}

}  // namespace

BeatTrain FindBeats(const Recording& recording) {
    BeatTrain beats{{}, Envelope(recording), 0.0};
    double rms;
    Check(QvStatRms(beats.envelope.data(), Size(beats.envelope), &rms));
    beats.threshold = 0.5 * rms;

    // Parabolas over 0.15 s: the width of a hump.
    const auto width = static_cast<std::int64_t>(0.15 * recording.rate) | 1;
    constexpr std::uint32_t kPeaks = 0;
    std::int64_t count = 0;
    double *locations = nullptr, *heights = nullptr, *curvatures = nullptr;
    Check(QvPeakDetect(beats.envelope.data(), Size(beats.envelope), beats.threshold, width, kPeaks, 1, 1, &count,
                       &locations, &heights, &curvatures));
    beats.positions.assign(locations, locations + count);
    QvMemoryRelease(locations);
    QvMemoryRelease(heights);
    QvMemoryRelease(curvatures);
    return beats;
}

std::vector<double> Intervals(const BeatTrain& beats, double rate) {
    std::vector<double> intervals;
    for (std::size_t i = 1; i < beats.positions.size(); ++i)
        intervals.push_back((beats.positions[i] - beats.positions[i - 1]) / rate);
    return intervals;
}

Recording WithoutWander(const Recording& recording) {
    constexpr int kCentred = -1;
    Recording still = recording;
    const std::vector<double>& x = recording.samples;
    std::vector<double> baseline(x.size());
    const auto side = static_cast<std::int32_t>(0.1 * recording.rate);
    Check(QvFilterMedian(x.data(), Size(x), side, kCentred, baseline.data()));
    Check(QvFilterMedian(baseline.data(), Size(x), 3 * side, kCentred, baseline.data()));
    Check(QvArrSubtract(x.data(), baseline.data(), Size(x), still.samples.data()));
    return still;
}

}  // namespace tour
