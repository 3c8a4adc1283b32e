// What the tests of decompositions and eigenproblems share: small products, in the widest arithmetic, and bounds.
#pragma once

#include <cfloat>
#include <cmath>
#include <complex>
#include <functional>
#include <type_traits>
#include <vector>

#include "quorvan/quorvan.h"
#include "tests/support/failing_heap.h"
#include "tests/support/guarded.h"

namespace quorvan::testing {

using Wide = std::complex<long double>;

inline Wide Widen(double v) { return v; }
inline Wide Widen(ComplexRecord v) { return {v.re, v.im}; }

template <class T>
Guarded<T> RandomMatrix(std::size_t count, unsigned seed) {
    if constexpr (std::is_same_v<T, double>)
        return RandomReals(count, seed);
    else
        return RandomRecords(count, seed);
}

template <class T>
Guarded<T> UnwrittenMatrix(std::size_t count) {
    if constexpr (std::is_same_v<T, double>)
        return Output(count);
    else
        return RecordOutput(count);
}

template <class T>
T Element(double v) {
    if constexpr (std::is_same_v<T, double>)
        return v;
    else
        return {v, 0};
}

// An n by n matrix without special features but a diagonal that makes it well conditioned.
template <class T>
Guarded<T> Sound(int n, unsigned seed = 1) {
    Guarded<T> a = RandomMatrix<T>(static_cast<std::size_t>(n) * n, seed);
    for (int i = 0; i < n; ++i) {
        T& d = a[i * n + i];
        if constexpr (std::is_same_v<T, double>)
            d += n + i;
        else
            d.re += n + i;
    }
    return a;
}

// G^H·G + 1, positive definite.
template <class T>
Guarded<T> Definite(int n, unsigned seed = 2) {
    const Guarded<T> g = RandomMatrix<T>(static_cast<std::size_t>(n) * n, seed);
    Guarded<T> a(static_cast<std::size_t>(n) * n);
    for (int i = 0; i < n; ++i)
        for (int j = 0; j < n; ++j) {
            Wide sum = i == j ? 1 : 0;
            for (int k = 0; k < n; ++k) sum += std::conj(Widen(g[k * n + i])) * Widen(g[k * n + j]);
            if constexpr (std::is_same_v<T, double>)
                a[i * n + j] = static_cast<double>(sum.real());
            else
                a[i * n + j] = {static_cast<double>(sum.real()), i == j ? 0.0 : static_cast<double>(sum.imag())};
        }
    return a;
}

template <class T>
bool Same(const Guarded<T>& a, const Guarded<T>& b) {
    return a.size() == b.size() && std::memcmp(a.data(), b.data(), a.size() * sizeof(T)) == 0;
}

// The largest element of |left·right - expected|, left m by k, right k by n.
template <class L, class R, class E>
double Misfit(const Guarded<L>& left, const Guarded<R>& right, const Guarded<E>& expected, int m, int k, int n) {
    long double worst = 0;
    for (int i = 0; i < m; ++i)
        for (int j = 0; j < n; ++j) {
            Wide sum = -Widen(expected[i * n + j]);
            for (int l = 0; l < k; ++l) sum += Widen(left[i * k + l]) * Widen(right[l * n + j]);
            worst = std::max(worst, std::abs(sum));
        }
    return static_cast<double>(worst);
}

// A backward error of the provider's on matrices of this size with elements of modulus up to `largest`.
inline double Bound(int n, double largest = 1) { return 10 * n * n * DBL_EPSILON * largest; }

// Each kind of element that the screen refuses.
inline std::vector<double> Refused() { return {kNaN, kInf, -kInf, DBL_MAX, -DBL_MAX, -1.7976931348623e308}; }

// `call(a)` must refuse every kind of element at the first, a middle and the last place, in either part.
template <class T>
void ExpectScreened(const Guarded<T>& sound, const std::function<Status(Guarded<T>&)>& call) {
    for (double bad : Refused())
        for (std::size_t place : {std::size_t{0}, sound.size() / 2, sound.size() - 1}) {
            Guarded<T> a = sound;
            if constexpr (std::is_same_v<T, double>) {
                a[place] = bad;
                EXPECT_EQ(call(a), -20068) << bad << " at " << place;
            } else {
                a[place].re = bad;
                EXPECT_EQ(call(a), -20068) << bad << " at " << place;
                a[place] = {0, bad};
                EXPECT_EQ(call(a), -20068) << bad << "i at " << place;
            }
        }
    Guarded<T> a = sound;
    EXPECT_NE(call(a), -20068);
}

// The smallest order of a square matrix whose elements need more than 32 bits to count.
inline constexpr Size kTooManyElements = 46341;

}  // namespace quorvan::testing
