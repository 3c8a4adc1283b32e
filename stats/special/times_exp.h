// A product with an exponential that alone would leave the range of doubles.
#pragma once

namespace quorvan {

// value * e^x * 2^exponent, each power formed only together with the others.
double TimesExp(double value, double x, int exponent = 0) noexcept;

}  // namespace quorvan
