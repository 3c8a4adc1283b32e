#include "recording.h"

#include <cerrno>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <optional>

#include "analysis.h"
#include "quorvan/quorvan.h"

namespace tour {
namespace {

constexpr std::size_t kFewestSamples = 16;

std::string LastField(const std::string& line) {
    const std::size_t end = line.find_last_not_of(" \t\r");
    if (end == std::string::npos) return "";
    const std::size_t comma = line.find_last_of(",;", end);
    const std::size_t begin = line.find_first_not_of(" \t", comma == std::string::npos ? 0 : comma + 1);
    if (begin == std::string::npos || begin > end) return "";
    const bool quoted = end > begin && line[begin] == '"' && line[end] == '"';
    return quoted ? line.substr(begin + 1, end - begin - 1) : line.substr(begin, end - begin + 1);
}

std::optional<double> Number(const std::string& text) {
    char* end = nullptr;
    const double value = std::strtod(text.c_str(), &end);
    if (text.empty() || *end != '\0' || !std::isfinite(value)) return std::nullopt;
    return value;
}

std::string UnitSymbol(const std::string& heading) {
    if (heading == "millivolt") return "mV";
    if (heading == "volt") return "V";
    return heading;
}

}  // namespace

Recording ReadRecording(const std::string& path, double rate) {
    std::ifstream file(path);
    if (!file) throw Failure(path + ": " + std::strerror(errno));

    Recording recording{path.substr(path.find_last_of('/') + 1), "", rate, {}};
    std::string line;
    std::size_t blank = 0;  // number of a line without text, which is none of ours only at the end
    for (std::size_t number = 1; std::getline(file, line); ++number) {
        if (line.find_first_not_of(" \t\r") == std::string::npos) {
            blank = blank == 0 ? number : blank;
            continue;
        }
        const std::string field = LastField(line);
        const std::optional<double> value = Number(field);
        if (!value && number == 1) {
            recording.unit = UnitSymbol(field);
        } else if (blank != 0 || field.empty()) {
            throw Failure(path + ", line " + std::to_string(blank != 0 ? blank : number) + ": no number");
        } else if (!value) {
            throw Failure(path + ", line " + std::to_string(number) + ": '" + field + "' is not a number");
        } else {
            recording.samples.push_back(*value);
        }
    }
    if (file.bad()) throw Failure(path + ": cannot be read");
    if (recording.samples.size() < kFewestSamples)
        throw Failure(path + ": " + std::to_string(recording.samples.size()) + " samples, at least " +
                      std::to_string(kFewestSamples) + " are needed");
    return recording;
}

Series ReadSeries(const std::string& path) {
    std::ifstream file(path);
    if (!file) throw Failure(path + ": " + std::strerror(errno));

    Series series{{}, {}, 0};
    std::string line;
    std::getline(file, line);
    for (std::size_t number = 2; std::getline(file, line); ++number) {
        const std::optional<double> x = Number(line.substr(0, line.find(',')));
        const std::string field = LastField(line);
        const std::optional<double> y = Number(field);
        if (!x || (!y && !field.empty()))
            throw Failure(path + ", line " + std::to_string(number) + ": no pair of numbers");
        if (!y) {
            ++series.gaps;
            continue;
        }
        series.x.push_back(*x);
        series.y.push_back(*y);
    }
    if (file.bad() || series.x.size() < kFewestSamples) throw Failure(path + ": cannot be read");
    return series;
}

std::string Example(const std::string& file) { return std::string(TOUR_DATA) + "/" + file; }

Recording Electrocardiogram() { return ReadRecording(Example("ecg.csv"), 360.0); }

Recording MakeTones(const std::vector<Tone>& tones, double offset, double rate, std::size_t count) {
    Recording recording{"two tones", "V", rate, std::vector<double>(count, offset)};
    const auto n = static_cast<std::int64_t>(count);
    std::vector<double> wave(count);
    for (const Tone& tone : tones) {
        double phase = 0.0;
        Check(QvGenSineWave(n, tone.amplitude, tone.frequency / rate, &phase, wave.data()));
        Check(QvArrAdd(recording.samples.data(), wave.data(), n, recording.samples.data()));
    }
    return recording;
}

}  // namespace tour
