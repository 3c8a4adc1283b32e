#include <algorithm>
#include <cmath>
#include <cstdio>
#include <numbers>
#include <optional>
#include <vector>

#include "analysis.h"
#include "chapters.h"
#include "picture.h"
#include "report.h"

namespace tour {
namespace {

// 1, t, t^2, t^3 and two waves a year: t in decades from the middle of the record, so that the powers stay small.
constexpr std::size_t kPowers = 4, kWaves = 2, kTerms = kPowers + 2 * kWaves;
constexpr double kMiddle = 1980.0, kDecade = 10.0;

// From a date written as 19580329 to 1958.24.
double Year(double date) {
    constexpr int kBefore[] = {0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334};
    const int year = static_cast<int>(date) / 10000, month = static_cast<int>(date) / 100 % 100;
    const bool leap = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
    if (month < 1 || month > 12) throw Failure("a date has no month");
    const int day = kBefore[month - 1] + (leap && month > 2) + static_cast<int>(date) % 100 - 1;
    return year + (day + 0.5) / (365.0 + leap);
}

void Terms(double year, double* row) {
    const double t = (year - kMiddle) / kDecade;
    for (std::size_t k = 0; k < kPowers; ++k) row[k] = k == 0 ? 1.0 : row[k - 1] * t;
    for (std::size_t k = 1; k <= kWaves; ++k) {
        const double angle = 2.0 * std::numbers::pi * static_cast<double>(k) * year;
        row[kPowers + 2 * k - 2] = std::cos(angle);
        row[kPowers + 2 * k - 1] = std::sin(angle);
    }
}

struct Fit {
    double coefficients[kTerms];
    double covariance[kTerms * kTerms];  // for observations of deviation 1
    double deviation;                    // of the observations, from what is left
    std::vector<double> fitted;

    double Trend(double year) const {
        double row[kTerms], sum = 0.0;
        Terms(year, row);
        for (std::size_t k = 0; k < kPowers; ++k) sum += coefficients[k] * row[k];
        return sum;
    }
    double Season(double year) const {
        double row[kTerms], sum = 0.0;
        Terms(year, row);
        for (std::size_t k = kPowers; k < kTerms; ++k) sum += coefficients[k] * row[k];
        return sum;
    }
    double Growth(double year) const {  // a year
        const double t = (year - kMiddle) / kDecade;
        return (coefficients[1] + t * (2.0 * coefficients[2] + t * 3.0 * coefficients[3])) / kDecade;
    }
    // The variance of the curve at one place, row C row', for observations of deviation 1.
    double Variance(double year) const {
        double row[kTerms], sum = 0.0;
        Terms(year, row);
        for (std::size_t i = 0; i < kTerms; ++i)
            for (std::size_t j = 0; j < kTerms; ++j) sum += row[i] * covariance[i * kTerms + j] * row[j];
        return sum;
    }
};

Fit FitTerms(const std::vector<double>& years, const std::vector<double>& y) {
    std::vector<double> design(years.size() * kTerms);
    for (std::size_t i = 0; i < years.size(); ++i) Terms(years[i], &design[i * kTerms]);
    Fit fit{};
    fit.fitted.resize(years.size());
    constexpr std::uint32_t kSingularValues = 0;
    double error;
    Check(QvFitGeneralLinearEx(design.data(), Size(years), kTerms, y.data(), nullptr, kSingularValues,
                               fit.fitted.data(), fit.coefficients, fit.covariance, &error));
    const double m = static_cast<double>(years.size());
    fit.deviation = std::sqrt(error * m / (m - static_cast<double>(kTerms)));
    return fit;
}

// The average of one month; nothing where it has no value.
std::optional<double> MeanOfMonth(const std::vector<double>& years, const std::vector<double>& y, int year, int month) {
    double sum = 0.0;
    int count = 0;
    for (std::size_t i = 0; i < y.size(); ++i)
        if (static_cast<int>(std::floor(12.0 * years[i])) == 12 * year + month) sum += y[i], ++count;
    return count == 0 ? std::nullopt : std::optional(sum / count);
}

// From the years before and behind, month by month, so that neither seasons nor gaps weigh.
double GrowthOfMonths(const std::vector<double>& years, const std::vector<double>& y, int year, int side) {
    double sum = 0.0;
    int count = 0;
    for (int month = 0; month < 12; ++month) {
        const auto before = MeanOfMonth(years, y, year - side, month),
                   behind = MeanOfMonth(years, y, year + side, month);
        if (before && behind) sum += (*behind - *before) / (2.0 * side), ++count;
    }
    return sum / count;
}

// The record on equal steps, straight across its gaps, for the picture.
std::vector<double> Resample(const std::vector<double>& years, const std::vector<double>& y, std::size_t count) {
    std::vector<double> even;
    std::size_t i = 0;
    for (std::size_t k = 0; k < count; ++k) {
        const double at = years.front() + (years.back() - years.front()) * static_cast<double>(k) / double(count);
        while (i + 2 < years.size() && years[i + 1] <= at) ++i;
        even.push_back(y[i] + (y[i + 1] - y[i]) * (at - years[i]) / (years[i + 1] - years[i]));
    }
    return even;
}

// Highest and lowest of the season: of the curve, and of the averages of the months without the trend.
struct Swing {
    double range;
    int highest, lowest;  // months from 1
};

Swing SwingOfMonths(const double (&level)[12]) {
    const auto [low, high] = std::minmax_element(level, level + 12);
    return {*high - *low, static_cast<int>(high - level) + 1, static_cast<int>(low - level) + 1};
}

Swing OfCurve(const Fit& fit) {
    double level[12];
    for (int month = 0; month < 12; ++month) level[month] = fit.Season(1990.0 + (month + 0.5) / 12.0);
    return SwingOfMonths(level);
}

Swing OfMonths(const std::vector<double>& years, const std::vector<double>& y, const Fit& fit) {
    double level[12] = {};
    int count[12] = {};
    for (std::size_t i = 0; i < y.size(); ++i) {
        const int month = static_cast<int>(12.0 * (years[i] - std::floor(years[i])));
        level[month] += y[i] - fit.Trend(years[i]);
        ++count[month];
    }
    for (int month = 0; month < 12; ++month) level[month] /= count[month];
    return SwingOfMonths(level);
}

}  // namespace

void Trend() {
    Heading("trend", "carbon dioxide over Mauna Loa: growth and seasons");
    const Series series = ReadSeries(Example("co2.csv"));
    std::vector<double> years;
    for (const double date : series.x) years.push_back(Year(date));
    const std::vector<double>& y = series.y;
    const Fit fit = FitTerms(years, y);

    const std::vector<double> even = Resample(years, y, y.size() + series.gaps);
    const double step = (years.back() - years.front()) / static_cast<double>(even.size());
    std::printf("%s\n", DrawTrace(even, years.front(), step, "ppm", "year", {}).c_str());

    double t;  // 95 percent two-sided
    Check(QvDistTInverse(0.975, static_cast<std::int32_t>(y.size() - kTerms), &t));
    std::size_t inside = 0;
    double variances = 0.0;
    for (std::size_t i = 0; i < y.size(); ++i) {
        const double variance = fit.Variance(years[i]);
        variances += variance;
        inside += std::abs(y[i] - fit.fitted[i]) <= t * fit.deviation * std::sqrt(1.0 + variance);
    }

    const Swing curve = OfCurve(fit), months = OfMonths(years, y, fit);
    BesideColumns();
    const double m = static_cast<double>(y.size());
    Beside("growth around 1962", fit.Growth(1962.5), GrowthOfMonths(years, y, 1962, 2), "ppm/yr",
           "averages of the months");
    Beside("growth around 1998", fit.Growth(1998.5), GrowthOfMonths(years, y, 1998, 2), "ppm/yr",
           "averages of the months");
    Beside("swing of the seasons", curve.range, months.range, "ppm", "averages of the months");
    Beside("  month of the maximum", curve.highest, months.highest, "", "averages of the months");
    Beside("  month of the minimum", curve.lowest, months.lowest, "", "averages of the months");
    Beside("weeks in the 95 % band", 100.0 * static_cast<double>(inside) / m, 95.0, "%", "what it promises");
    Beside("band of the curve, rms half-width", t * fit.deviation * std::sqrt(variances / m),
           t * fit.deviation * std::sqrt(static_cast<double>(kTerms) / m), "ppm", "from the number of terms");
    Row("what is left, deviation", fit.deviation, "ppm");
    std::printf("\n  %zu weeks, %zu without a value. The band takes weeks as independent; they are not.\n",
                y.size() + series.gaps, series.gaps);
}

}  // namespace tour
