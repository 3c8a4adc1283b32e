// Windows whose factor is computed for each pair of mirrored samples: triangle, Kaiser, Gaussian.
#include <cmath>

#include "frame/status.h"
#include "sources/window_scale.h"
#include "sources/windows.h"

namespace quorvan {
namespace {

// The modified Bessel function of order zero by its power series, sum of ((x/2)^j / j!)^2: the term is carried on by
// x^2 over the square of the even number 2 j, until it falls to 1e-8 or after 25 terms, which is deliberate also for
// large x.
double BesselSeries(double x) noexcept {
    const double square = x * x;
    double sum = 1.0, term = 1.0, even = 0.0;
    int terms = 0;
    do {
        if (terms >= 25) break;
        even += 2.0;
        ++terms;
        term *= square / (even * even);
        sum += term;
    } while (term > 1e-8);
    return sum;
}

// exp(c d^2), c = -1 / (2 (sigma length)^2), at a distance d from the middle.
class Bell {
public:
    Bell(double sigma, double length) noexcept {
        if (sigma <= 0.0) sigma = 0.2;
        c_ = -0.5 / (sigma * sigma * (length * length));
    }
    double operator()(double d) const noexcept { return std::exp(c_ * (d * d)); }

private:
    double c_;
};

}  // namespace

// 2 k / n up to the middle. A single sample becomes 0, which is deliberate.
template <class T>
Status WinTriangle(T* x, Count n) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    Scale(x[0], 0.0);
    ScalePairs(x, n, [n](Count k) { return k * 2.0 / n; });
    return status::kSuccess;
}

// I0(beta sqrt(1 - t^2)) / I0(beta), t = 1 - 2 k / n. J. F. Kaiser, R. W. Schafer, IEEE Trans. ASSP 28 (1980).
template <class T>
Status WinKaiser(T* x, Count n, double beta) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    const double peak = BesselSeries(beta);
    Scale(x[0], BesselSeries(0.0) / peak);
    ScalePairs(x, n, [=](Count k) {
        const double t = 1.0 - k * 2.0 / n;
        return BesselSeries(std::sqrt(1.0 - t * t) * beta) / peak;
    });
    return status::kSuccess;
}

// The periodic form is the symmetric one of n + 1 samples without its last. For even n the middle has the factor 1,
// also where sigma is NaN or so small that c is infinite.
template <class T>
Status WinGaussian(T* x, Count n, double sigma) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    if (n == 1) return status::kSuccess;
    const Bell bell(sigma, n + 1.0);
    const double middle = n / 2.0;
    Scale(x[0], bell(middle));
    ScalePairs(x, n, [=](Count k) { return bell(k - middle); });
    return status::kSuccess;
}

Status WinGaussianSymmetric(double* x, Count n, double sigma) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    if (n == 1) return status::kSuccess;
    const Bell bell(sigma, n);
    const double middle = (n - 1) / 2.0;
    for (Count i = 0; i <= (n - 1) / 2; ++i) {
        const double w = bell(i - middle);
        Scale(x[i], w);
        if (i != n - 1 - i) Scale(x[n - 1 - i], w);
    }
    return status::kSuccess;
}

#define QV_INSTANTIATE(T)                                  \
    template Status WinTriangle(T*, Count) noexcept;       \
    template Status WinKaiser(T*, Count, double) noexcept; \
    template Status WinGaussian(T*, Count, double) noexcept;
QV_INSTANTIATE(double)
QV_INSTANTIATE(ComplexRecord)

}  // namespace quorvan
