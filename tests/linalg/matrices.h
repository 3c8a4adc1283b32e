// Dense matrices of tests: the exports of both element types under one name, and plain arithmetic in extended precision
// to judge results by.
#pragma once

#include <cfloat>
#include <cmath>
#include <complex>
#include <functional>
#include <type_traits>

#include "quorvan/quorvan.h"
#include "tests/support/failing_heap.h"
#include "tests/support/guarded.h"

namespace quorvan::testing::dense {

using ElementTypes = ::testing::Types<double, ComplexRecord>;
struct ElementNames {
    template <class T>
    static std::string GetName(int) {
        return std::is_same_v<T, double> ? "Real" : "Complex";
    }
};

// Name<T>(...) is the export of the element type.
template <class T, class Real, class Complex>
constexpr auto ForElement(Real real, Complex complex) {
    if constexpr (std::is_same_v<T, double>)
        return real;
    else
        return complex;
}
#define QV_TWINS(name, real, complex) \
    template <class T>                \
    inline constexpr auto name = ForElement<T>(&ZemFunc##real, &ZemFunc##complex)
QV_TWINS(SolveMany, 241, 242);
QV_TWINS(SolveKind, 197, 218);
QV_TWINS(InverseKind, 198, 212);
QV_TWINS(DeterminantKind, 204, 220);
QV_TWINS(Trace, 175, 225);
QV_TWINS(Norm, 206, 223);
QV_TWINS(ConditionNumber, 205, 222);
QV_TWINS(Rank, 207, 215);
QV_TWINS(PseudoInverse, 200, 229);
QV_TWINS(IsPositiveDefinite, 209, 226);
QV_TWINS(Multiply, 119, 214);
QV_TWINS(VectorMultiply, 370, 371);
QV_TWINS(Dot, 191, 221);
QV_TWINS(OuterProduct, 203, 224);
QV_TWINS(Kronecker, 358, 359);
QV_TWINS(Turned, 177, 217);
QV_TWINS(BuildSpecial, 208, 227);
QV_TWINS(VectorNorm, 394, 395);
QV_TWINS(LagProduct, 415, 416);
QV_TWINS(SingularValues, 195, 216);
QV_TWINS(Svd, 193, 219);
QV_TWINS(SvdMode, 246, 247);
QV_TWINS(Lu, 118, 213);
QV_TWINS(Cholesky, 196, 210);
QV_TWINS(QrPivot, 243, 245);
QV_TWINS(Hessenberg, 254, 255);
QV_TWINS(Balance, 248, 249);
QV_TWINS(BalanceBack, 250, 251);
QV_TWINS(Schur, 258, 259);
QV_TWINS(Generalised, 252, 253);
QV_TWINS(QzForm, 256, 257);
#undef QV_TWINS

// An element; reals leave the imaginary part out.
template <class T>
T Element(double re, double im = 0) {
    if constexpr (std::is_same_v<T, double>)
        return re;
    else
        return {re, im};
}
template <class T>
Guarded<T> Elements(std::initializer_list<double> values) {
    Guarded<T> out(values.size());
    std::transform(values.begin(), values.end(), out.begin(), [](double v) { return Element<T>(v); });
    return out;
}

template <class T>
Guarded<T> Unwritten(std::size_t n) {
    return Guarded<T>(n, Element<T>(kUnwritten, kUnwritten));
}

template <class T>
Guarded<T> Random(std::size_t n, unsigned seed = 1) {
    if constexpr (std::is_same_v<T, double>)
        return RandomReals(n, seed);
    else
        return RandomRecords(n, seed);
}

using Long = std::complex<long double>;
inline Long Wide(double v) { return v; }
inline Long Wide(ComplexRecord v) { return {v.re, v.im}; }
inline void Narrow(Long v, double& out) { out = static_cast<double>(v.real()); }
inline void Narrow(Long v, ComplexRecord& out) { out = {static_cast<double>(v.real()), static_cast<double>(v.imag())}; }

inline constexpr double kEps = 0x1p-52;

// A matrix with its shape, in extended precision.
struct Dense {
    int rows, cols;
    std::vector<Long> at;

    Dense(int m, int n) : rows(m), cols(n), at(static_cast<std::size_t>(m) * n) {}
    template <class T>
    Dense(const Guarded<T>& a, int m, int n) : Dense(m, n) {
        for (std::size_t i = 0; i < at.size(); ++i) at[i] = Wide(a[i]);
    }
    Long& operator()(int i, int j) { return at[static_cast<std::size_t>(i) * cols + j]; }
    Long operator()(int i, int j) const { return at[static_cast<std::size_t>(i) * cols + j]; }
};

inline Dense operator*(const Dense& a, const Dense& b) {
    Dense out(a.rows, b.cols);
    for (int i = 0; i < a.rows; ++i)
        for (int k = 0; k < a.cols; ++k)
            for (int j = 0; j < b.cols; ++j) out(i, j) += a(i, k) * b(k, j);
    return out;
}
inline Dense operator-(Dense a, const Dense& b) {
    for (std::size_t i = 0; i < a.at.size(); ++i) a.at[i] -= b.at[i];
    return a;
}
inline Dense Adjoint(const Dense& a) {
    Dense out(a.cols, a.rows);
    for (int i = 0; i < a.rows; ++i)
        for (int j = 0; j < a.cols; ++j) out(j, i) = std::conj(a(i, j));
    return out;
}
inline Dense IdentityOf(int n) {
    Dense out(n, n);
    for (int i = 0; i < n; ++i) out(i, i) = 1;
    return out;
}
inline double Frobenius(const Dense& a) {
    long double sum = 0;
    for (Long v : a.at) sum += std::norm(v);
    return static_cast<double>(std::sqrt(sum));
}
template <class T>
Guarded<T> Rounded(const Dense& a) {
    Guarded<T> out(a.at.size());
    for (std::size_t i = 0; i < a.at.size(); ++i) Narrow(a.at[i], out[i]);
    return out;
}

// A matrix of a kind whose condition is modest: random, B·B^H + I, or a random triangle with a heavy diagonal. The
// triangle that a kind does not read can be filled with `rest`.
template <class T>
Guarded<T> OfKind(int kind, int n, unsigned seed, double rest = 0) {
    const Guarded<T> random = Random<T>(static_cast<std::size_t>(n) * n, seed);
    Dense a(random, n, n);
    if (kind == 1) {
        a = a * Adjoint(a);
        for (int i = 0; i < n; ++i) a(i, i) += 1;
    }
    for (int i = 0; i < n && kind > 1; ++i)
        for (int j = 0; j < n; ++j) {
            if (i == j) a(i, j) += static_cast<long double>(n);
            if (kind == 2 ? j > i : j < i) a(i, j) = rest;
        }
    Guarded<T> out = Rounded<T>(a);
    if (kind == 1)  // exactly Hermitian after rounding too
        for (int i = 0; i < n; ++i)
            for (int j = 0; j <= i; ++j) Narrow(std::conj(Wide(out[j * n + i])), out[i * n + j]);
    return out;
}

// An n by n matrix without special features but a diagonal that makes it well conditioned.
template <class T>
Guarded<T> Sound(int n, unsigned seed = 1) {
    Guarded<T> a = Random<T>(static_cast<std::size_t>(n) * n, seed);
    for (int i = 0; i < n; ++i) {
        T& d = a[i * n + i];
        if constexpr (std::is_same_v<T, double>)
            d += n + i;
        else
            d.re += n + i;
    }
    return a;
}

// B·B^H + I, positive definite.
template <class T>
Guarded<T> Definite(int n, unsigned seed = 2) {
    return OfKind<T>(1, n, seed);
}

template <class T>
bool SameElements(const Guarded<T>& a, const Guarded<T>& b) {
    return a.size() == b.size() && std::memcmp(a.data(), b.data(), a.size() * sizeof(T)) == 0;
}

// The largest element of |left·right - expected|, left m by k, right k by n.
template <class L, class R, class E>
double Misfit(const Guarded<L>& left, const Guarded<R>& right, const Guarded<E>& expected, int m, int k, int n) {
    long double worst = 0;
    for (int i = 0; i < m; ++i)
        for (int j = 0; j < n; ++j) {
            Long sum = -Wide(expected[i * n + j]);
            for (int l = 0; l < k; ++l) sum += Wide(left[i * k + l]) * Wide(right[l * n + j]);
            worst = std::max(worst, std::abs(sum));
        }
    return static_cast<double>(worst);
}

// A backward error of the provider's on matrices of this size with elements of modulus up to `largest`.
inline double Bound(int n, double largest = 1) { return 10 * n * n * DBL_EPSILON * largest; }

// Values that the screen refuses; half of them are finite.
inline const double kRefused[] = {
    kNaN, kInf, -kInf, 1.7976931348623157e308, -1.7976931348623e308, -1.7976931348623157e308};
// The largest that pass.
inline const double kBarelyPassed[] = {1.7976931348623155e308, -1.7976931348622998e308};

// `call(a)` must refuse every kind of element at the first, a middle and the last place, in either part.
template <class T>
void ExpectScreened(const Guarded<T>& sound, const std::function<Status(Guarded<T>&)>& call) {
    for (double bad : kRefused)
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

}  // namespace quorvan::testing::dense
