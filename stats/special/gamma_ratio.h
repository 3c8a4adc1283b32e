// Weights of asymptotic expansions and connection formulas: products of an exponential, a power and Gammas.
#pragma once

#include "stats/special/double_double.h"

namespace quorvan {

// 1 / Gamma(x), 0 at the poles.
double ReciprocalGamma(double x) noexcept;

bool IsPole(double x) noexcept;  // 0, -1, -2, ...

// 1 / Gamma(z) as factor / Gamma(argument). Beside a pole what rounding took from a difference z counts over the small
// distance to the pole; there the argument, which is not at the pole unless z is, and the factor put it back.
struct BelowGamma {
    double argument, factor;
};
BelowGamma BesidePole(DoubleDouble z) noexcept;

// e^exponent base^power Gamma(above[0]) Gamma(above[1]) / (Gamma(below[0]) Gamma(below[1])) for base > 0; 0 where one
// below is at a pole, though one above is too. Directly where nothing overflows, otherwise through logarithms, with an
// error of about 2e-16 for each unit of the largest of them. Pass 1 for a Gamma that is not wanted.
double GammaWeight(double exponent, double base, double power, double above0, double above1, double below0,
                   double below1) noexcept;

}  // namespace quorvan
