#include <algorithm>
#include <cmath>
#include <cstdio>
#include <numbers>
#include <vector>

#include "analysis.h"
#include "chapters.h"
#include "picture.h"
#include "report.h"

namespace tour {
namespace {

constexpr double kMiddle = 1854.0;  // phases are counted from here, so that frequency and phase are fitted apart

double Cycle(double year, double* c, std::int32_t) {
    const double angle = 2.0 * std::numbers::pi * c[3] * (year - kMiddle);
    return c[0] + c[1] * std::cos(angle) + c[2] * std::sin(angle);
}

// The places of the maxima of the slow swing: a bell of about the length of a cycle's rise hides the teeth of the
// years.
std::vector<double> Maxima(const Recording& sunspots) {
    constexpr std::int32_t kCubic = 3, kSide = 4;
    std::vector<double> smooth(sunspots.samples.size());
    Check(QvSavitzkyGolayFilter(sunspots.samples.data(), Size(smooth), kCubic, kSide, nullptr, smooth.data()));
    std::int64_t count;
    double *locations, *heights, *curvatures;
    Check(QvPeakDetect(smooth.data(), Size(smooth), 10.0, 5, 0, 1, 1, &count, &locations, &heights, &curvatures));
    std::vector<double> maxima(locations, locations + count);
    QvMemoryRelease(locations);
    QvMemoryRelease(heights);
    QvMemoryRelease(curvatures);
    return maxima;
}

struct Waves {
    double frequency, amplitude;
};

// The error has a valley for each side lobe of the spectrum: one start in each, and the deepest valley counts.
Waves FitCycle(const Series& series) {
    Waves best{};
    double least = 0.0;
    const double lowest = 1.0 / 13.0, highest = 1.0 / 9.0, lobe = 1.0 / static_cast<double>(series.x.size());
    const int starts = static_cast<int>((highest - lowest) / (0.5 * lobe)) + 1;
    for (int i = 0; i < starts; ++i) {
        double c[4] = {50.0, 20.0, 0.0, lowest + i * 0.5 * lobe}, error;
        std::vector<double> fitted(series.x.size());
        std::int32_t iterations;
        constexpr std::int32_t kLimit = 100;
        Check(QvFitNonlinearWeighted(series.x.data(), series.y.data(), nullptr, fitted.data(), Size(series.y), kLimit,
                                     Cycle, c, 4, &error, &iterations));
        if (best.frequency != 0.0 && error >= least) continue;
        best = {c[3], std::hypot(c[1], c[2])};
        least = error;
    }
    return best;
}

}  // namespace

void Sunspots() {
    Heading("sunspots", "the length of the sunspot cycle, four ways");
    const Series series = ReadSeries(Example("sunspots.csv"));
    const Recording sunspots{"sunspots.csv", "spots", 1.0, series.y};
    const std::vector<double> maxima = Maxima(sunspots);
    if (maxima.size() < 2) throw Failure("the sunspots have no cycle");
    std::vector<double> years;
    years.reserve(maxima.size());
    for (const double maximum : maxima) years.push_back(series.x.front() + maximum);
    std::printf("%s\n", DrawTrace(series.y, series.x.front(), 1.0, "spots", "year", years).c_str());

    const Line line = StrongestLine(PowerSpectrum(sunspots), 1.0 / 20.0, 1.0 / 5.0);
    const double search[2] = {0.1, 5.0};  // the centre in cycles a year, the half-width in percent of the rate
    double frequency, amplitude, phase;
    Check(QvToneSingleReal(series.y.data(), Size(series.y), 1.0, search, &frequency, &amplitude, &phase));

    const Waves waves = FitCycle(series);
    const double counted = (maxima.back() - maxima.front()) / static_cast<double>(maxima.size() - 1);

    BesideColumns();
    Beside("cycle, line of the spectrum", 1.0 / line.frequency, counted, "years", "distance of the marks");
    Beside("cycle, tone of the record", 1.0 / frequency, counted, "years", "the same");
    Beside("cycle, nonlinear fit", 1.0 / waves.frequency, counted, "years", "the same");
    Beside("amplitude of the fit", waves.amplitude, amplitude, "spots", "the tone's");
    Row("marks", static_cast<double>(maxima.size()), "");
    double shortest = maxima[1] - maxima[0], longest = shortest;
    for (std::size_t i = 2; i < maxima.size(); ++i) {
        shortest = std::min(shortest, maxima[i] - maxima[i - 1]);
        longest = std::max(longest, maxima[i] - maxima[i - 1]);
    }
    std::printf("\n  One sine for three centuries, while the marks stand %.1f to %.1f years apart.\n", shortest,
                longest);
}

}  // namespace tour
