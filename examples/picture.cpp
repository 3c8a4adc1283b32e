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

// The line under a picture, and the numbers under that.
std::string Axis(double lowest, double highest, const std::string& unit) {
    const double width = (highest - lowest) / kColumns;
    std::string line, numbers;
    for (int c = 0; c < kColumns; ++c) line += "─";
    const double step = Step(highest - lowest);
    const double lastNumber = highest - 6 * width;  // room for the unit
    for (int k = static_cast<int>(std::ceil(lowest / step)); k * step < lastNumber; ++k)
        Put(numbers, kMargin + static_cast<std::size_t>((k * step - lowest) / width), Text("%.4g", k * step));
    Put(numbers, kMargin + kColumns, unit);
    return line + "\n" + numbers + "\n";
}

// Dots, two by four a character: the braille patterns from U+2800 on.
class Dots {
public:
    static constexpr int kWide = 2 * kColumns, kHigh = 4 * kRows;

    void Set(int x, int y) {  // from the lower left
        constexpr unsigned kBits[4][2] = {{0x40, 0x80}, {0x04, 0x20}, {0x02, 0x10}, {0x01, 0x08}};
        cells_[y / 4][x / 2] |= kBits[y % 4][x % 2];
    }
    std::string Row(int row) const {
        std::string text;
        std::size_t used = 0;
        for (const unsigned bits : cells_[row]) {
            text += {char(0xE2), char(0xA0 + (bits >> 6)), char(0x80 + (bits & 0x3F))};
            if (bits != 0) used = text.size();
        }
        return text.substr(0, used);
    }

private:
    unsigned cells_[kRows][kColumns] = {};
};

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

    out += "        0 └" + Axis(lowest, highest, "Hz");
    if (inside(column(mark.frequency)))
        out += std::string(kMargin + column(mark.frequency), ' ') + "▲ " + mark.text + "\n";
    return out;
}

std::string DrawTrace(const std::vector<double>& values, double first, double step, const std::string& unit,
                      const std::string& axis, const std::vector<double>& marks) {
    const auto [least, most] = std::minmax_element(values.begin(), values.end());
    const double low = *least, range = std::max(*most - low, 1e-300);
    const double share = static_cast<double>(Dots::kWide) / static_cast<double>(values.size());
    const auto height = [&](double value) {
        return static_cast<int>(std::lround((value - low) / range * (Dots::kHigh - 1)));
    };

    // Each dot column holds the range of its samples, and reaches to the sample before, so that the line has no holes.
    Dots dots;
    for (std::size_t i = 0; i < values.size(); ++i) {
        const int x = static_cast<int>(static_cast<double>(i) * share);
        const int to = height(values[i]), from = i == 0 ? to : height(values[i - 1]);
        for (int y = std::min(from, to); y <= std::max(from, to); ++y) dots.Set(x, y);
    }

    std::string out = "  " + unit + "\n";
    for (int row = kRows - 1; row >= 0; --row) {
        if (row == kRows - 1)
            out += Text("%9.3g ┤", *most);
        else if (row == 0)
            out += Text("%9.3g ┤", low);
        else
            out += "          │";
        out += dots.Row(row) + "\n";
    }
    const double last = first + step * static_cast<double>(values.size());
    out += "          └" + Axis(first, last, axis);

    std::vector<std::string> under(kColumns, " ");
    for (const double mark : marks) {
        const double column = (mark - first) / (last - first) * kColumns;
        if (column >= 0.0 && column < kColumns) under[static_cast<std::size_t>(column)] = "▲";
    }
    if (!marks.empty()) {
        out += std::string(kMargin, ' ');
        for (const std::string& character : under) out += character;
        out.erase(out.find_last_not_of(' ') + 1);
        out += "\n";
    }
    return out;
}

}  // namespace tour
