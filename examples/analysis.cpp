#include "analysis.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace tour {
namespace {

std::vector<double> WithoutMean(const Recording& recording) {
    const std::vector<double>& x = recording.samples;
    std::vector<double> centred(x.size());
    double mean;
    Check(QvStatMean(x.data(), Size(x), &mean));
    // With an output of its own the call only reads its input.
    Check(QvArrLinearEval(const_cast<double*>(x.data()), Size(x), 1.0, -mean, centred.data()));
    return centred;
}

}  // namespace

void Check(QvStatus status) {
    if (status < 0) throw Failure(QvStatusMessage(status));
}

Summary Summarise(const Recording& recording) {
    const std::vector<double>& x = recording.samples;
    Summary s{};
    double highest, lowest;
    std::int64_t highestIndex, lowestIndex;
    Check(QvStatMean(x.data(), Size(x), &s.mean));
    Check(QvStatMedian(x.data(), Size(x), &s.median));
    Check(QvStatRms(x.data(), Size(x), &s.rms));
    Check(QvArrMaxMin(x.data(), Size(x), &highest, &highestIndex, &lowest, &lowestIndex));
    Check(QvStatModeOfHistogram(x.data(), Size(x), lowest, highest, 100, &s.mode));
    return s;
}

Spectrum PowerSpectrum(const Recording& recording) {
    std::vector<double> x = WithoutMean(recording);
    Spectrum spectrum;
    spectrum.power.resize(x.size() / 2);
    Check(QvWinApplyScaledPlain(x.data(), Size(x), QV_WINDOW_HANNING, &spectrum.window));
    Check(QvSpecPowerSpectrum(x.data(), Size(x), 1.0 / recording.rate, spectrum.power.data(), &spectrum.df));
    return spectrum;
}

Line StrongestLine(const Spectrum& spectrum, double from, double to) {
    const double last = static_cast<double>(spectrum.power.size() - 1);
    const auto first = static_cast<std::size_t>(std::clamp(std::ceil(from / spectrum.df), 0.0, last));
    const auto end = static_cast<std::size_t>(std::clamp(std::floor(to / spectrum.df), double(first), last)) + 1;
    double highest, lowest;
    std::int64_t highestIndex, lowestIndex;
    Check(QvArrMaxMin(spectrum.power.data() + first, static_cast<std::int64_t>(end - first), &highest, &highestIndex,
                      &lowest, &lowestIndex));

    // The main lobe of the Hanning window covers five bins; the search frequency lies in the middle of the peak's bin.
    const double peak = (static_cast<double>(first) + static_cast<double>(highestIndex) + 0.5) * spectrum.df;
    Line line;
    Check(QvSpecPeakPowerFrequency(spectrum.power.data(), Size(spectrum.power), peak, &spectrum.window, spectrum.df, 5,
                                   &line.frequency, &line.power));
    return line;
}

std::optional<Beat> FindBeat(const Recording& recording, double from, double to) {
    const std::vector<double> x = WithoutMean(recording);
    std::vector<double> correlation(2 * x.size() - 1);
    constexpr int kBiased = 2;
    Check(QvAutoCorrelateReal(x.data(), Size(x), kBiased, correlation.data()));

    const double* at = correlation.data() + x.size() - 1;  // by lag
    const auto shortest = static_cast<std::size_t>(std::max(std::ceil(recording.rate / to), 1.0));
    const auto longest = std::min(static_cast<std::size_t>(recording.rate / from), x.size() - 2);
    std::size_t best = 0;
    for (std::size_t lag = shortest; lag <= longest; ++lag) {
        const bool peak = at[lag] > 0.0 && at[lag] > at[lag - 1] && at[lag] >= at[lag + 1];
        if (peak && (best == 0 || at[lag] > at[best])) best = lag;
    }
    if (best == 0) return std::nullopt;

    // The vertex of the parabola through the peak and its neighbours, by at most half a sample away.
    const double bend = at[best - 1] - 2.0 * at[best] + at[best + 1];
    const double shift = bend < 0.0 ? 0.5 * (at[best - 1] - at[best + 1]) / bend : 0.0;
    return Beat{recording.rate / (static_cast<double>(best) + shift), at[best] / at[0]};
}

std::vector<double> InUnit(const Spectrum& spectrum, const std::vector<double>& power, int flags, std::string& unit) {
    constexpr int kOfPowers = 0, kLinear = 0;
    std::vector<double> shown(power.size());
    std::vector<char> text(unit.begin(), unit.end());
    text.resize(unit.size() + 16);  // room for the longest suffix
    Check(QvSpecUnitConvert(power.data(), Size(power), kOfPowers, kLinear, flags, spectrum.df, &spectrum.window,
                            shown.data(), text.data()));
    unit = text.data();
    return shown;
}

Quantity InUnit(const Spectrum& spectrum, const Line& line, int flags, const std::string& unit) {
    Quantity quantity{0.0, unit};
    // Element 0 is taken as the mean, which has no peak value of its own.
    quantity.value = InUnit(spectrum, {0.0, line.power}, flags, quantity.unit)[1];
    return quantity;
}

}  // namespace tour
