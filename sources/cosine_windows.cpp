// Windows that are sums of a few cosines: one evaluation, and the coefficients and properties of the named ones.
#include <cmath>

#include "frame/memory.h"
#include "frame/status.h"
#include "sources/window_scale.h"
#include "sources/window_tables.h"
#include "sources/windows.h"

namespace quorvan {
namespace {

// One cosine of the sum: cosine = (-1)^k a[k] cos(k t) and sine = (-1)^k a[k] sin(k t) at the present sample, turned on
// by the angle p = 2 pi k / n with versine = 1 - cos p = 2 sin^2(p / 2) and sin p. The versine keeps small angles exact
// (Singleton 1967), so no cosine is taken.
struct Term {
    double cosine, sine, versine, sinStep;

    void rotate() {
        const double c = cosine - (sinStep * sine + versine * cosine);
        sine = sine - (versine * sine - sinStep * cosine);
        cosine = c;
    }
};

// `Fixed` terms when that is not 0, so that the usual sums stay in registers; else `count`.
template <std::uint32_t Fixed, class T>
void MultiplyByTerms(T* x, Count n, Term* terms, std::uint32_t count) {
    Term local[Fixed ? Fixed : 1];
    if constexpr (Fixed != 0) {
        for (std::uint32_t k = 0; k < Fixed; ++k) local[k] = terms[k];
        terms = local;
        count = Fixed;
    }
    const auto sum = [&] {
        double w = terms[0].cosine;
        for (std::uint32_t k = 1; k < count; ++k) w += terms[k].cosine;
        return w;
    };
    const auto rotate = [&] {
        for (std::uint32_t k = 1; k < count; ++k) terms[k].rotate();
    };
    Scale(x[0], sum());
    for (Count i = 1; i <= (n - 1) / 2; ++i) {
        rotate();
        const double w = sum();
        Scale(x[i], w);
        Scale(x[n - i], w);
    }
    if (n % 2 == 0) {
        rotate();
        Scale(x[n / 2], sum());
    }
}

}  // namespace

template <class T>
Status WinCosineSum(T* x, Count n, WinCoefficients coefficients, bool unitGain) noexcept {
    const auto [a, count] = coefficients;
    if (n < 1) return status::kSamplesNotPositive;
    if (n == 1) return status::kSuccess;
    if (count < 1) return status::kSamplesNotPositive;
    if (count == 1 && a[0] == 1.0) return status::kSuccess;
    Block<Term> terms(count);
    if (!terms) return status::kOutOfMemory;
    for (std::uint32_t k = 0; k < count; ++k) {
        const double amplitude = unitGain ? a[k] / a[0] : a[k];
        const double halfStep = std::sin(k * kPi / n);
        terms[k] = {k % 2 ? -amplitude : amplitude, 0.0, 2.0 * halfStep * halfStep, std::sin(kTwoPi * k / n)};
    }
    switch (count) {
        case 2: MultiplyByTerms<2>(x, n, terms, count); break;
        case 3: MultiplyByTerms<3>(x, n, terms, count); break;
        case 4: MultiplyByTerms<4>(x, n, terms, count); break;
        case 5: MultiplyByTerms<5>(x, n, terms, count); break;
        case 7: MultiplyByTerms<7>(x, n, terms, count); break;
        default: MultiplyByTerms<0>(x, n, terms, count);
    }
    return status::kSuccess;
}
template Status WinCosineSum(double*, Count, WinCoefficients, bool) noexcept;
template Status WinCosineSum(ComplexRecord*, Count, WinCoefficients, bool) noexcept;

}  // namespace quorvan
