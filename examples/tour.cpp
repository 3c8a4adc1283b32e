// The tour: readings from a real electrocardiogram, and from two tones whose readings are known.
//
//     tour                 the recording that comes with the examples, then the tones
//     tour FILE [RATE]     the same readings from your own CSV file; RATE in samples per second, 1 if not given
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <optional>
#include <string>
#include <vector>

#include "analysis.h"
#include "picture.h"
#include "recording.h"

namespace {

using namespace tour;

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

void Row(const char* name, double value, const std::string& unit, const std::string& note = "") {
    std::printf("  %-32s %12.5g  %s%s\n", name, value, unit.c_str(), note.c_str());
}

void Title(const Recording& recording) {
    std::printf("%s: %zu samples, %g per second, %.4g s\n\n", recording.name.c_str(), recording.samples.size(),
                recording.rate, recording.Seconds());
}

void ReadRhythm(const Recording& recording) {
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

void Compare(const char* name, double value, double truth, const std::string& unit) {
    std::printf("  %-32s %12.7g %12.7g %+10.1e  %s\n", name, value, truth, value - truth, unit.c_str());
}

// Two tones, one three times the other, off the bins of the spectrum: everything about them is known.
void ReadTones() {
    const double offset = 0.25;
    const Tone low{50.2, 1.5}, high{150.6, 0.4};
    const Recording tones = MakeTones({low, high}, offset, 1000.0, 4096);
    Title(tones);

    const Summary summary = Summarise(tones);
    const Spectrum spectrum = PowerSpectrum(tones);
    const Line first = StrongestLine(spectrum, 5.0, 500.0);
    const Line second = StrongestLine(spectrum, 1.5 * first.frequency, 500.0);
    const std::optional<Beat> beat = FindBeat(tones, 20.0, 250.0);
    if (!beat) throw Failure("the tones have no rhythm");
    const Quantity firstPeak = InUnit(spectrum, first, 1, tones.unit);
    const Quantity secondPeak = InUnit(spectrum, second, 1, tones.unit);
    const Quantity firstPower = InUnit(spectrum, first, 2, tones.unit);
    const auto square = [](double x) { return x * x; };

    std::printf("  %-32s %12s %12s %10s\n", "", "reading", "truth", "error");
    Compare("mean", summary.mean, offset, "V");
    Compare("median", summary.median, offset, "V");
    Compare("rms", summary.rms, std::sqrt(square(offset) + square(low.amplitude) / 2 + square(high.amplitude) / 2),
            "V");
    Compare("rhythm, autocorrelation", beat->frequency, low.frequency, "Hz");
    Compare("first tone, frequency", first.frequency, low.frequency, "Hz");
    Compare("first tone, amplitude", firstPeak.value, low.amplitude, firstPeak.unit);
    Compare("first tone, power", firstPower.value, square(low.amplitude) / 2, firstPower.unit);
    Compare("second tone, frequency", second.frequency, high.frequency, "Hz");
    Compare("second tone, amplitude", secondPeak.value, high.amplitude, secondPeak.unit);
    std::printf("\n  The record ends within a cycle, and mean, median and rms show it.\n");
}

double ParseRate(const char* text) {
    char* end = nullptr;
    const double rate = std::strtod(text, &end);
    if (end == text || *end != '\0' || !std::isfinite(rate) || rate <= 0.0)
        throw Failure(std::string("the sampling rate must be a number above 0, not '") + text + "'");
    return rate;
}

}  // namespace

int main(int argc, char** argv) try {
    if (argc > 3) throw Failure("usage: tour [FILE [SAMPLES_PER_SECOND]]");
    if (argc > 1) {
        const double rate = argc > 2 ? ParseRate(argv[2]) : 1.0;
        ReadRhythm(ReadRecording(argv[1], rate));
    } else {
        ReadRhythm(ReadRecording(TOUR_RECORDING, 360.0));
        ReadTones();
    }
    return 0;
} catch (const std::exception& failure) {
    std::fprintf(stderr, "tour: %s\n", failure.what());
    return 1;
}
