// A spectrum as columns of text.
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

}  // namespace tour
