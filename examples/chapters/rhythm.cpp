#include <algorithm>
#include <cstdio>
#include <optional>
#include <string>
#include <vector>

#include "analysis.h"
#include "chapters.h"
#include "picture.h"
#include "report.h"

namespace tour {
namespace {

// Heart rates that are worth a search, per second.
constexpr double kSlowestHeart = 40.0 / 60.0;
constexpr double kFastestHeart = 200.0 / 60.0;

struct Band {
    double from, to;  // Hz
    bool heart;       // the heart's, or merely what the recording can show
};

Band RhythmBand(const Recording& recording) {
    const double fewestPeriods = 4.0, fewestSamples = 4.0;
    const double from = fewestPeriods / recording.Seconds(), to = recording.rate / fewestSamples;
    if (from <= kSlowestHeart && kFastestHeart <= to) return {kSlowestHeart, kFastestHeart, true};
    return {from, to, false};
}

}  // namespace

void Rhythm(const Recording& recording) {
    Title(recording);
    const Summary summary = Summarise(recording);
    Row("mean", summary.mean, recording.unit);
    Row("median", summary.median, recording.unit);
    Row("mode of the histogram", summary.mode, recording.unit);
    Row("rms", summary.rms, recording.unit);

    // A spectrum shows a rhythm at its frequency, at multiples of it and, when beats alternate, at fractions; which of
    // them is strongest says little. The autocorrelation tells the period; the line beside it is the rhythm's own.
    const Band band = RhythmBand(recording);
    const std::string rhythm = band.heart ? "heart rate" : "rhythm";
    const double scale = band.heart ? 60.0 : 1.0;
    const std::string rateUnit = band.heart ? "/min" : "Hz";
    const std::optional<Beat> beat = FindBeat(recording, band.from, band.to);
    const Spectrum spectrum = PowerSpectrum(recording);
    const Line line = beat ? StrongestLine(spectrum, beat->frequency / 1.2, beat->frequency * 1.2)
                           : StrongestLine(spectrum, band.from, band.to);
    if (beat) {
        char note[48];
        std::snprintf(note, sizeof note, ", correlation %.2f", beat->correlation);
        Row((rhythm + ", autocorrelation").c_str(), beat->frequency * scale, rateUnit, note);
    } else {
        std::printf("  %-32s %12s\n", (rhythm + ", autocorrelation").c_str(), "none");
    }
    if (line.power <= 0.0) {
        std::printf("  %-32s %12s\n", (rhythm + ", spectrum").c_str(), "none");
        return;
    }
    Row((rhythm + ", spectrum").c_str(), line.frequency * scale, rateUnit);
    Row("  frequency of its line", line.frequency, "Hz");
    const Quantity amplitude = InUnit(spectrum, line, 1, recording.unit);
    const Quantity power = InUnit(spectrum, line, 2, recording.unit);
    Row("  amplitude of its line", amplitude.value, amplitude.unit);
    Row("  power of its line", power.value, power.unit);

    std::string unit = recording.unit;
    const std::vector<double> shown = InUnit(spectrum, spectrum.power, 1, unit);
    const double highest = std::min(4.0 * line.frequency, recording.rate / 2.0);
    char mark[48];
    std::snprintf(mark, sizeof mark, "%.4g %s", line.frequency * scale, rateUnit.c_str());
    std::printf("\n%s\n", DrawSpectrum(shown, spectrum.df, band.from, highest, unit, {line.frequency, mark}).c_str());
}

}  // namespace tour
