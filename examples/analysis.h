// What the tour measures: the steps from a recording to its readings, each one or two calls of the library.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "quorvan/quorvan.h"
#include "recording.h"

namespace tour {

// The number of samples as the library takes it.
inline std::int64_t Size(const std::vector<double>& x) { return static_cast<std::int64_t>(x.size()); }

// Throws a Failure with the library's text for a negative status.
void Check(QvStatus status);

struct Summary {
    double mean, median, mode, rms;  // in the unit of the recording; mode: of a histogram of 100 bins
};
Summary Summarise(const Recording& recording);

// The one-sided power spectrum of the recording without its mean, under a Hanning window: bin k is at k·df.
struct Spectrum {
    std::vector<double> power;  // rms squared
    double df;                  // Hz
    QvWindowProperties window;
};
Spectrum PowerSpectrum(const Recording& recording);

struct Line {
    double frequency;  // Hz
    double power;      // rms squared
};
// The strongest line between two frequencies, its place and power from the bins around the peak.
Line StrongestLine(const Spectrum& spectrum, double from, double to);

struct Beat {
    double frequency;    // Hz
    double correlation;  // of the recording with itself one period later: 1 for a strictly periodic one
};
// The period at which the recording resembles itself most, as a frequency between two limits; nothing if there is none.
std::optional<Beat> FindBeat(const Recording& recording, double from, double to);

struct Quantity {
    double value;
    std::string unit;
};
// Powers in a display unit of the library: flags 1 gives peak amplitudes, 2 rms squared.
std::vector<double> InUnit(const Spectrum& spectrum, const std::vector<double>& power, int flags, std::string& unit);
Quantity InUnit(const Spectrum& spectrum, const Line& line, int flags, const std::string& unit);

}  // namespace tour
