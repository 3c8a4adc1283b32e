// Truth for the transforms: defining sums in long double, and the bound of rounding that comparisons use.
#pragma once

#include <cmath>
#include <complex>
#include <numbers>
#include <vector>

#include "quorvan/quorvan.h"
#include "tests/support/guarded.h"

namespace quorvan::testing {

using Wide = std::complex<long double>;

inline Wide Widen(double v) { return v; }
inline Wide Widen(ComplexRecord v) { return {v.re, v.im}; }
inline double Energy(double v) { return v * v; }
inline double Energy(ComplexRecord v) { return v.re * v.re + v.im * v.im; }

// The 2-norm.
template <class T>
double Norm(const Guarded<T>& x) {
    double sum = 0;
    for (const T& v : x) sum += Energy(v);
    return std::sqrt(sum);
}

// exp(2 pi i turns / n), the angle reduced in integers.
inline Wide Root(long long turns, long long n) {
    const long double angle = 2 * std::numbers::pi_v<long double> * static_cast<long double>(turns % n) / n;
    return {std::cos(angle), std::sin(angle)};
}

// X[k] = sum over j of x[j] exp(sign 2 pi i j k / length), of x padded with zeros or cut.
template <class T>
std::vector<Wide> ReferenceDft(const Guarded<T>& x, int length, int sign = -1) {
    std::vector<Wide> out(length);
    for (int k = 0; k < length; ++k)
        for (int j = 0; j < std::min<int>(length, x.size()); ++j)
            out[k] += Widen(x[j]) * Root((static_cast<long long>(j) * k * sign % length + length) % length, length);
    return out;
}

// A transform of n points errs in each result by a few eps log2 n times the norm of its input (N. J. Higham, Accuracy
// and Stability of Numerical Algorithms, 24.1), if its twiddles are right to eps; twiddles by recurrence wander off by
// about eps sqrt(n). A chain of several transforms adds its bounds.
inline double Rounding(double n, double norm) { return 8 * kEpsilon * (std::log2(2 * n) + std::sqrt(n)) * norm; }

// Where X[k] stands in shifted order.
inline int ShiftedIndex(int k, int n) { return (k + n / 2) % n; }

inline double Distance(Wide expected, ComplexRecord got) {
    return static_cast<double>(std::abs(expected - Widen(got)));
}
inline double Distance(Wide expected, double got) { return static_cast<double>(std::abs(expected - Widen(got))); }

inline void ExpectSpectrum(const std::vector<Wide>& expected, const Records& got, bool shift, double tolerance) {
    const int n = static_cast<int>(expected.size());
    ASSERT_EQ(got.size(), expected.size());
    for (int k = 0; k < n; ++k)
        EXPECT_LE(Distance(expected[k], got[shift ? ShiftedIndex(k, n) : k]), tolerance) << "bin " << k << " of " << n;
}

template <class T>
void ExpectNear(const Guarded<T>& expected, const Guarded<T>& got, double tolerance) {
    ASSERT_EQ(got.size(), expected.size());
    for (std::size_t i = 0; i < got.size(); ++i)
        EXPECT_LE(Distance(Widen(expected[i]), got[i]), tolerance) << "element " << i << " of " << got.size();
}

// Whether the elements from `from` on are as before the call.
inline bool UntouchedFrom(const Records& x, std::size_t from) {
    return std::all_of(x.begin() + from, x.end(),
                       [](ComplexRecord v) { return v.re == kUnwritten && v.im == kUnwritten; });
}

// The size of a prime that no kernel has, so that a core takes workspace of its own.
inline constexpr int kLargePrime = 53;

}  // namespace quorvan::testing
