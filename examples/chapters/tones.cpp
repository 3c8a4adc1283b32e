#include <cmath>
#include <cstdio>
#include <optional>

#include "analysis.h"
#include "chapters.h"
#include "report.h"

namespace tour {

// Two tones, one three times the other, off the bins of the spectrum: everything about them is known.
void Tones() {
    Heading("tones", "two tones whose frequencies and amplitudes are known");
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

    TruthColumns();
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

}  // namespace tour
