// The p-norms of vectors.
#include <cmath>
#include <limits>

#include "frame/status.h"
#include "linalg/element.h"
#include "linalg/lapack.h"
#include "linalg/norms.h"

namespace quorvan {
namespace {

using element::Magnitude;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kSelected[] = {1, 2, kInfinity, -kInfinity};
constexpr std::uint32_t kByArgument = 4;

// The magnitude that is best by `better`, over those that are numbers; NaN where none is.
template <class T, class Better>
double Extreme(const T* x, Count n, Better better) noexcept {
    double extreme = std::numeric_limits<double>::quiet_NaN();
    for (Count i = 0; i < n; ++i) {
        const double v = Magnitude(x[i]);
        if (better(v, extreme) || extreme != extreme) extreme = v;
    }
    return extreme;
}

template <class T, class Term>
double Sum(const T* x, Count n, Term term) noexcept {
    double sum = 0;
    for (Count i = 0; i < n; ++i) sum += term(Magnitude(x[i]));
    return sum;
}

}  // namespace

template <class T>
Status VecNorm(const T* x, Count n, std::uint32_t selector, double p, double* out) noexcept {
    if (selector > kByArgument) return status::kInvalidSelection;
    if (n < 1) return status::kSamplesNotPositive;
    if (selector != kByArgument) p = kSelected[selector];
    if (p != p) return status::kNonFiniteInput;
    if (p == 0) return status::kZeroNumber;
    if (p == kInfinity) {
        *out = Extreme(x, n, [](double a, double b) { return a > b; });
    } else if (p == -kInfinity) {
        *out = Extreme(x, n, [](double a, double b) { return a < b; });
    } else if (p == 1) {
        *out = Sum(x, n, [](double v) { return v; });
    } else if (p == 2) {
        *out = Nrm2(n, x);
    } else {
        *out = std::pow(Sum(x, n, [p](double v) { return std::pow(v, p); }), 1 / p);
    }
    return status::kSuccess;
}

template Status VecNorm(const double*, Count, std::uint32_t, double, double*) noexcept;
template Status VecNorm(const ComplexRecord*, Count, std::uint32_t, double, double*) noexcept;

}  // namespace quorvan
