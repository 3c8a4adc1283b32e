// Spectra and traces as text.
#pragma once

#include <string>
#include <vector>

namespace tour {

struct Mark {
    double frequency;  // Hz
    std::string text;
};

// Draws the bins between two frequencies, each column the largest of its bins, and a mark under the axis.
std::string DrawSpectrum(const std::vector<double>& values, double df, double lowest, double highest,
                         const std::string& unit, const Mark& mark);

// Draws a signal as a line of dots; sample i is at first + i step. Marks are places on the axis.
std::string DrawTrace(const std::vector<double>& values, double first, double step, const std::string& unit,
                      const std::string& axis, const std::vector<double>& marks);

}  // namespace tour
