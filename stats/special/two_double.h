// Sums of two doubles that together hold 106 bits, for the few sums that cancel more than a double can bear.
#pragma once

#include <cmath>

namespace quorvan {

// hi + lo, with |lo| at most half a unit in the last place of hi.
struct TwoDouble {
    double hi, lo;
};

// a + b without loss (D. E. Knuth, 1969).
inline TwoDouble TwoSum(double a, double b) noexcept {
    const double sum = a + b, from_b = sum - a;
    return {sum, (a - (sum - from_b)) + (b - from_b)};
}

inline TwoDouble operator-(TwoDouble a) noexcept { return {-a.hi, -a.lo}; }

inline TwoDouble operator+(TwoDouble a, TwoDouble b) noexcept {
    const TwoDouble hi = TwoSum(a.hi, b.hi), lo = TwoSum(a.lo, b.lo);
    const TwoDouble carried = TwoSum(hi.hi, hi.lo + lo.hi);
    return TwoSum(carried.hi, carried.lo + lo.lo);
}

inline TwoDouble operator+(TwoDouble a, double b) noexcept { return a + TwoDouble{b, 0}; }

// The product of the heads with what it rounds, and the mixed products (T. J. Dekker, 1971).
inline TwoDouble operator*(TwoDouble a, TwoDouble b) noexcept {
    const double head = a.hi * b.hi;
    return TwoSum(head, std::fma(a.hi, b.hi, -head) + (a.hi * b.lo + a.lo * b.hi));
}

inline TwoDouble operator*(TwoDouble a, double b) noexcept { return a * TwoDouble{b, 0}; }

// The quotient of the heads, and twice that of the remainder.
inline TwoDouble operator/(TwoDouble a, TwoDouble b) noexcept {
    const double first = a.hi / b.hi;
    const TwoDouble rest = a + -(b * first);
    const double second = rest.hi / b.hi;
    const TwoDouble last = rest + -(b * second);
    return TwoSum(first, second) + last.hi / b.hi;
}

}  // namespace quorvan
