#include "measure/two_sided.h"

#include <cstring>

#include "frame/memory.h"
#include "frame/status.h"
#include "measure/bin_power.h"
#include "measure/half_spectrum.h"
#include "transforms/fft.h"

namespace quorvan {

Status SpecRealFft(double* x, double* im, Count n) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    const HeldPlan plan(n);
    const Status done = HalfSpectrum(plan, x, n, im);
    if (done < 0) return done;

    x[0] = im[0];
    im[0] = 0;
    for (Count k = 1; k <= (n - 1) / 2; ++k) {
        const ComplexRecord bin = InnerBin(im, n, k);
        x[k] = x[n - k] = bin.re;
        im[k] = bin.im;
        im[n - k] = -bin.im;
    }
    if (n % 2 == 0) {
        x[n / 2] = im[n / 2];
        im[n / 2] = 0;
    }
    return status::kSuccess;
}

Status SpecRealInverseFft(double* re, double* im, Count n) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    if (n == 1) return status::kSuccess;
    const HeldPlan plan(n);
    if (!plan) return status::kOutOfMemory;
    for (Count k = 0; k <= n / 2; ++k) im[k] = re[k];
    for (Count k = n / 2 + 1; k < n; ++k) im[k] = -im[k];
    return FftRealInverse(plan, im, re, 1, 1, n);
}

Status ComplexInverseWith(const FftPlan* plan, double* re, double* im, Count n, double* work) noexcept {
    if (!plan) return status::kOutOfMemory;
    const Status done = FftComplexInverse(plan, re, im, work, work + n, 1, 1, n);
    if (done < 0) return done;
    std::memcpy(re, work, sizeof(double) * static_cast<std::size_t>(n));
    std::memcpy(im, work + n, sizeof(double) * static_cast<std::size_t>(n));
    return status::kSuccess;
}

Status SpecComplexInverseFft(double* re, double* im, Count n) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    if (n == 1) return status::kSuccess;
    Block<double> work(2 * static_cast<std::size_t>(n));
    if (!work) return status::kOutOfMemory;
    return ComplexInverseWith(HeldPlan(n), re, im, n, work);
}

Status SpecAutoPower(double* x, Count n) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    const HalfSpectra spectrum(n, x);
    if (spectrum.status < 0) return spectrum.status;

    x[0] = BinAutoPower({spectrum.x[0], 0}, n);
    for (Count k = 1; k <= (n - 1) / 2; ++k) x[k] = x[n - k] = BinAutoPower(InnerBin(spectrum.x, n, k), n);
    if (n % 2 == 0) x[n / 2] = BinAutoPower({spectrum.x[n / 2], 0}, n);
    return status::kSuccess;
}

Status SpecCrossPower(const double* x, const double* y, Count n, double* re, double* im) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    const HalfSpectra spectra(n, x, y);
    if (spectra.status < 0) return spectra.status;

    const double scale = 1.0 / SquaredLength(n);
    re[0] = BinCrossPower(spectra.x[0], spectra.y[0], scale);
    im[0] = 0;
    for (Count k = 1; k <= (n - 1) / 2; ++k) {
        const ComplexRecord power = BinCrossPower(InnerBin(spectra.x, n, k), InnerBin(spectra.y, n, k), scale);
        re[k] = re[n - k] = power.re;
        im[k] = power.im;
        im[n - k] = -power.im;
    }
    if (n % 2 == 0) {
        re[n / 2] = BinCrossPower(spectra.x[n / 2], spectra.y[n / 2], scale);
        im[n / 2] = 0;
    }
    return status::kSuccess;
}

}  // namespace quorvan
