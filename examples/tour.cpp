// The tour: readings from real recordings and from signals that are known, each beside its truth or a second reading.
//
//     tour                     all chapters, on the recordings that come with the examples
//     tour --chapter NAME      one of them
//     tour FILE [RATE]         the rhythm of your own CSV file; RATE in samples per second, 1 if not given
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <string>

#include "chapters/chapters.h"
#include "recording.h"
#include "report.h"

namespace {

using namespace tour;

struct Chapter {
    const char* name;
    void (*print)();
};

void HeartRhythm() {
    Heading("rhythm", "a heart rate from its spectrum");
    Rhythm(Electrocardiogram());
}

constexpr const char* kUsage = "tour [FILE [SAMPLES_PER_SECOND] | --chapter NAME]";

constexpr Chapter kChapters[] = {{"rhythm", HeartRhythm}, {"beats", Beats},       {"shape", Shape},
                                 {"filters", Filters},    {"tones", Tones},       {"amplifier", Amplifier},
                                 {"trend", Trend},        {"sunspots", Sunspots}, {"matrices", Matrices}};

void Print(const Chapter& chapter) {
    chapter.print();
    std::printf("\n");
    std::fflush(stdout);
}

void PrintNamed(const std::string& name) {
    std::string names;
    for (const Chapter& chapter : kChapters) {
        if (name == chapter.name) return Print(chapter);
        names += std::string(names.empty() ? "" : ", ") + chapter.name;
    }
    throw Failure("no chapter '" + name + "'; there are: " + names);
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
    if (argc == 2 && std::string(argv[1]) == "--help") return std::printf("usage: %s\n", kUsage), 0;
    const bool named = argc > 1 && std::string(argv[1]) == "--chapter";
    if (argc > 3 || (named && argc != 3)) throw Failure(std::string("usage: ") + kUsage);
    if (named) {
        PrintNamed(argv[2]);
    } else if (argc > 1) {
        const double rate = argc > 2 ? ParseRate(argv[2]) : 1.0;
        Rhythm(ReadRecording(argv[1], rate));
    } else {
        for (const Chapter& chapter : kChapters) Print(chapter);
    }
    return 0;
} catch (const std::exception& failure) {
    std::fflush(stdout);
    std::fprintf(stderr, "tour: %s\n", failure.what());
    return 1;
}
