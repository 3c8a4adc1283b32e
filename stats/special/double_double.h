// Sums and products in twice the precision of a double, for series that cancel.
#pragma once

#include <cmath>

namespace quorvan {

// The unevaluated sum of two doubles, the second at most half a last place of the first (T. J. Dekker, 1971).
struct DoubleDouble {
    double high, low;
};

// a + b exactly (D. E. Knuth's two-sum).
inline DoubleDouble ExactSum(double a, double b) noexcept {
    const double sum = a + b, from_b = sum - a;
    return {sum, (a - (sum - from_b)) + (b - from_b)};
}

inline DoubleDouble Renormalised(double high, double low) noexcept {
    const double sum = high + low;
    return {sum, low - (sum - high)};
}

inline DoubleDouble ExactProduct(double a, double b) noexcept {
    const double product = a * b;
    return {product, std::fma(a, b, -product)};
}

inline DoubleDouble operator+(DoubleDouble a, DoubleDouble b) noexcept {
    const DoubleDouble sum = ExactSum(a.high, b.high), rest = ExactSum(a.low, b.low);
    const DoubleDouble first = Renormalised(sum.high, sum.low + rest.high);
    return Renormalised(first.high, first.low + rest.low);
}

inline DoubleDouble operator*(DoubleDouble a, DoubleDouble b) noexcept {
    const DoubleDouble product = ExactProduct(a.high, b.high);
    return Renormalised(product.high, product.low + (a.high * b.low + a.low * b.high));
}

inline DoubleDouble operator/(DoubleDouble a, DoubleDouble b) noexcept {
    const double first = a.high / b.high;
    const DoubleDouble back = b * DoubleDouble{first, 0};
    const double rest = ((a.high - back.high) - back.low) + a.low;
    return Renormalised(first, rest / b.high);
}

}  // namespace quorvan
