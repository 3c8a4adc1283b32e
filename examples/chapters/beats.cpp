#include <cmath>
#include <cstdio>
#include <optional>
#include <vector>

#include "analysis.h"
#include "chapters.h"
#include "heart.h"
#include "picture.h"
#include "report.h"

namespace tour {
namespace {

struct Variability {
    double median;      // s
    double deviation;   // of the intervals, s: SDNN
    double successive;  // root mean square of the differences of neighbours, s: RMSSD
};

Variability Measure(const std::vector<double>& intervals) {
    Variability v{};
    double mean, squares = 0.0;
    Check(QvStatMedian(intervals.data(), Size(intervals), &v.median));
    Check(QvStatMeanStdDev(intervals.data(), Size(intervals), &mean, &v.deviation));
    for (std::size_t i = 1; i < intervals.size(); ++i)
        squares += (intervals[i] - intervals[i - 1]) * (intervals[i] - intervals[i - 1]);
    v.successive = std::sqrt(squares / static_cast<double>(intervals.size() - 1));
    return v;
}

// The same beats by the other detector: each run of the envelope above the threshold, placed at its middle.
BeatTrain Runs(const BeatTrain& beats, double rate) {
    const auto width = static_cast<std::int64_t>(0.05 * rate);
    std::vector<std::int64_t> starts(beats.envelope.size() / static_cast<std::size_t>(width) + 1);
    std::int64_t count;
    Check(QvPeakThresholdRuns(beats.envelope.data(), Size(beats.envelope), beats.threshold, width, starts.data(),
                              &count));
    BeatTrain runs{{}, {}, beats.threshold};
    for (std::int64_t i = 0; i < count; ++i) {
        auto first = static_cast<std::size_t>(starts[static_cast<std::size_t>(i)]), end = first;
        while (end < beats.envelope.size() && beats.envelope[end] >= beats.threshold) ++end;
        runs.positions.push_back(0.5 * static_cast<double>(first + end - 1));
    }
    return runs;
}

}  // namespace

void Beats() {
    Heading("beats", "each beat of the electrocardiogram and the variability of the heart");
    const Recording recording = Electrocardiogram();
    const BeatTrain beats = FindBeats(recording);
    const BeatTrain runs = Runs(beats, recording.rate);
    if (beats.positions.size() < 3 || runs.positions.size() < 3) throw Failure("too few beats");

    constexpr double kShown = 5.0;  // s
    const auto shown = static_cast<std::ptrdiff_t>(kShown * recording.rate);
    std::vector<double> marks;
    for (const double position : beats.positions) marks.push_back(position / recording.rate);
    std::printf("%s\n", DrawTrace({recording.samples.begin(), recording.samples.begin() + shown}, 0.0,
                                  1.0 / recording.rate, recording.unit, "s", marks)
                            .c_str());

    const std::vector<double> intervals = Intervals(beats, recording.rate);
    const Variability v = Measure(intervals), w = Measure(Intervals(runs, recording.rate));
    const std::optional<Beat> rhythm = FindBeat(recording, 40.0 / 60.0, 200.0 / 60.0);
    if (!rhythm) throw Failure("the beats have no rhythm");

    std::printf("  the first beats, in s           ");
    for (std::size_t i = 0; i < 8 && i < marks.size(); ++i) std::printf(" %6.3f", marks[i]);
    std::printf("\n\n");
    BesideColumns();
    Beside("beats", static_cast<double>(beats.positions.size()), static_cast<double>(runs.positions.size()), "",
           "runs above a threshold");
    Beside("heart rate, median interval", 60.0 / v.median, 60.0 * rhythm->frequency, "/min", "autocorrelation");
    Beside("median interval", 1e3 * v.median, 1e3 * w.median, "ms", "runs");
    Beside("deviation of the intervals", 1e3 * v.deviation, 1e3 * w.deviation, "ms", "runs (SDNN)");
    Beside("difference of neighbours, rms", 1e3 * v.successive, 1e3 * w.successive, "ms", "runs (RMSSD)");
}

}  // namespace tour
