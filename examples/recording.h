// A recording: samples with their unit and rate, read from a CSV file or made of tones.
#pragma once

#include <stdexcept>
#include <string>
#include <vector>

namespace tour {

// One clear line for the user.
struct Failure : std::runtime_error {
    using std::runtime_error::runtime_error;
};

struct Recording {
    std::string name;
    std::string unit;  // of the samples; empty when it is not known
    double rate;       // samples per second
    std::vector<double> samples;

    double Seconds() const { return static_cast<double>(samples.size()) / rate; }
};

// One sample a line, the last field of each; a first line that is no number names the unit. Throws Failure.
Recording ReadRecording(const std::string& path, double rate);

// Pairs of numbers: abscissas that need not be equally far apart, and what was measured there.
struct Series {
    std::vector<double> x, y;
    std::size_t gaps;  // lines without a value
};

// Two fields a line behind a heading; a line whose second field is empty is a gap. Throws Failure.
Series ReadSeries(const std::string& path);

struct Tone {
    double frequency;  // Hz
    double amplitude;  // peak, in the unit of the recording
};

// The path of a recording that comes with the examples.
std::string Example(const std::string& file);
// The electrocardiogram among them.
Recording Electrocardiogram();

// The sum of tones on an offset, in volt.
Recording MakeTones(const std::vector<Tone>& tones, double offset, double rate, std::size_t count);

}  // namespace tour
