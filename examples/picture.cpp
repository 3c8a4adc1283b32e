#include "picture.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace tour {
namespace {

constexpr int kColumns = 72;
constexpr int kRows = 8;
constexpr int kMargin = 11;  // columns of text before the picture
constexpr int kEighths = 8;
const char* const kBlocks[kEighths + 1] = {" ", "▁", "▂", "▃", "▄", "▅", "▆", "▇", "█"};

template <class... Values>
std::string Text(const char* format, Values... values) {
    char text[64];
    std::snprintf(text, sizeof text, format, values...);
    return text;
}

// 1, 2 or 5 times a power of ten, so that about six steps cover the range.
double Step(double range) {
    const double power = std::pow(10.0, std::floor(std::log10(range / 6.0)));
    for (const double factor : {1.0, 2.0, 5.0})
        if (range / (factor * power) <= 7.0) return factor * power;
    return 10.0 * power;
}

void Put(std::string& line, std::size_t column, const std::string& text) {
    if (line.size() < column + text.size()) line.resize(column + text.size(), ' ');
    line.replace(column, text.size(), text);
}

}  // namespace

std::string DrawSpectrum(const std::vector<double>& values, double df, double lowest, double highest,
                         const std::string& unit, const Mark& mark) {
    const double width = (highest - lowest) / kColumns;  // Hz a column
    const auto column = [&](double frequency) { return static_cast<int>(std::floor((frequency - lowest) / width)); };
    const auto inside = [&](int c) { return c >= 0 && c < kColumns; };
    const auto bin = [&](double position) {
        return static_cast<std::size_t>(std::clamp(position, 0.0, static_cast<double>(values.size() - 1)));
    };

    // Where columns are narrower than bins, a column shows the bin that it lies nearest to.
    std::vector<double> columns(kColumns);
    for (int c = 0; c < kColumns; ++c) {
        const double from = (lowest + c * width) / df, to = (lowest + (c + 1) * width) / df;
        columns[c] = values[bin(std::round((from + to) / 2))];
        for (double k = std::ceil(from); k < to; ++k) columns[c] = std::max(columns[c], values[bin(k)]);
    }
    const double top = std::max(*std::max_element(columns.begin(), columns.end()), 1e-300);

    std::string out = "  " + unit + "\n";
    for (int row = kRows - 1; row >= 0; --row) {
        out += row == kRows - 1 ? Text("%9.3g ┤", top) : "          │";
        std::string bars;
        std::size_t used = 0;
        for (const double value : columns) {
            const int eighths = static_cast<int>(std::lround(value / top * kRows * kEighths)) - row * kEighths;
            bars += kBlocks[std::clamp(eighths, 0, kEighths)];
            if (eighths > 0) used = bars.size();
        }
        out += bars.substr(0, used) + "\n";
    }

    out += "        0 └";
    for (int c = 0; c < kColumns; ++c) out += "─";
    std::string numbers;
    const double step = Step(highest - lowest);
    const double lastNumber = highest - 6 * width;  // room for the unit
    for (double k = std::ceil(lowest / step); k * step < lastNumber; ++k)
        Put(numbers, kMargin + column(k * step), Text("%.4g", k * step));
    Put(numbers, kMargin + kColumns, "Hz");
    out += "\n" + numbers + "\n";
    if (inside(column(mark.frequency)))
        out += std::string(kMargin + column(mark.frequency), ' ') + "▲ " + mark.text + "\n";
    return out;
}

}  // namespace tour
