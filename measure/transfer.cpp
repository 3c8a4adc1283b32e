#include "measure/transfer.h"

#include <cmath>
#include <cstring>
#include <limits>

#include "frame/complex.h"
#include "frame/memory.h"
#include "frame/status.h"
#include "measure/bin_power.h"
#include "measure/half_spectrum.h"
#include "measure/two_sided.h"

namespace quorvan {
namespace {

// Y / X with a stated order of rounding, and no test for zero.
ComplexRecord Quotient(ComplexRecord y, ComplexRecord x) noexcept {
    const double weight = 1.0 / CxSquaredMagnitude(x);
    return {(y.im * x.im + y.re * x.re) * weight, (y.im * x.re - y.re * x.im) * weight};
}

}  // namespace

Status SpecTransferFunction(const double* stimulus, const double* response, Count n, double dt, double* magnitude,
                            double* phase, double* df) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    const HalfSpectra spectra(n, stimulus, response);
    if (spectra.status < 0) return spectra.status;

    const double gain = spectra.y[0] / spectra.x[0];
    magnitude[0] = std::fabs(gain);
    phase[0] = std::atan2(0.0, gain);
    for (Count k = 1; k < n / 2; ++k) {
        const ComplexRecord transfer = Quotient(InnerBin(spectra.y, n, k), InnerBin(spectra.x, n, k));
        magnitude[k] = CxMagnitude(transfer);
        phase[k] = CxPhase(transfer);
    }
    *df = FrequencyStep(n, dt);
    return status::kSuccess;
}

Status SpecDeconvolve(const double* divisor, const double* signal, Count n, double* out) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    HalfSpectra spectra(n, divisor, signal);
    if (spectra.status < 0) return spectra.status;

    // The quotient takes the place of the signal's spectrum, in the layout that the inverse reads.
    spectra.y[0] = spectra.y[0] / spectra.x[0];
    for (Count k = 1; k <= (n - 1) / 2; ++k) {
        const ComplexRecord quotient = Quotient(InnerBin(spectra.y, n, k), InnerBin(spectra.x, n, k));
        spectra.y[k] = quotient.re;
        spectra.y[n - k] = quotient.im;
    }
    if (n % 2 == 0) spectra.y[n / 2] = Quotient({spectra.y[n / 2], 0}, {spectra.x[n / 2], 0}).re;

    if (n == 1) {
        out[0] = spectra.y[0];
        return status::kSuccess;
    }
    return FftRealInverse(spectra.plan, spectra.y, out, 1, 1, n);
}

namespace {

// The unnormalised sums of a network analysis over its frames, for the bins 0 to n/2. The other half mirrors them.
class PowerSums {
public:
    // 4n doubles of work.
    PowerSums(double* work, Count n) noexcept
        : n_(n), crossRe_(work), crossIm_(crossRe_ + n), stimulus_(crossIm_ + n), response_(stimulus_ + n) {
        std::memset(work, 0, 4 * sizeof(double) * static_cast<std::size_t>(n));
    }

    void add(const double* spectrumX, const double* spectrumY) noexcept {
        const double scale = 1.0 / SquaredLength(n_);
        addReal(spectrumX[0], spectrumY[0], 0, scale);
        for (Count k = 1; k <= (n_ - 1) / 2; ++k) {
            const ComplexRecord x = InnerBin(spectrumX, n_, k), y = InnerBin(spectrumY, n_, k);
            const ComplexRecord power = BinCrossPower(x, y, scale);
            crossRe_[k] += power.re;
            crossIm_[k] += power.im;
            stimulus_[k] += BinAutoPower(x, n_);
            response_[k] += BinAutoPower(y, n_);
        }
        if (n_ % 2 == 0) addReal(spectrumX[n_ / 2], spectrumY[n_ / 2], n_ / 2, scale);
    }

    ComplexRecord cross(Count k) const noexcept { return {crossRe_[k], crossIm_[k]}; }
    // Sxy / Sxx, each part for itself.
    ComplexRecord transfer(Count k) const noexcept { return {crossRe_[k] / stimulus_[k], crossIm_[k] / stimulus_[k]}; }
    double coherence(Count k) const noexcept { return CxSquaredMagnitude(cross(k)) / (stimulus_[k] * response_[k]); }

private:
    void addReal(double x, double y, Count k, double scale) noexcept {
        crossRe_[k] += BinCrossPower(x, y, scale);
        stimulus_[k] += BinAutoPower({x, 0}, n_);
        response_[k] += BinAutoPower({y, 0}, n_);
    }

    Count n_;
    double *crossRe_, *crossIm_, *stimulus_, *response_;
};

}  // namespace

Status SpecNetworkAnalysis(const double* stimulus, const double* response, Count n, Count frames, double dt,
                           const NetworkResult& result) noexcept {
    if (n < 1 || frames < 1) return status::kSamplesNotPositive;
    if (frames > std::numeric_limits<Count>::max() / n) return status::kOverflow;
    Block<double> work(6 * static_cast<std::size_t>(n));
    if (!work) return status::kOutOfMemory;
    double* const spectrumX = work;
    double* const spectrumY = spectrumX + n;
    double* const sumsWork = spectrumY + n;
    const HeldPlan plan(n);

    PowerSums sums(sumsWork, n);
    for (Size frame = 0; frame < frames; ++frame) {
        Status done = HalfSpectrum(plan, stimulus + frame * n, n, spectrumX);
        if (done >= 0) done = HalfSpectrum(plan, response + frame * n, n, spectrumY);
        if (done < 0) return done;
        sums.add(spectrumX, spectrumY);
    }

    for (Count k = 0; k == 0 || k < n / 2; ++k) {
        const ComplexRecord cross = sums.cross(k), transfer = sums.transfer(k);
        result.transferMagnitude[k] = CxMagnitude(transfer);
        result.transferPhase[k] = CxPhase(transfer);
        result.crossMagnitude[k] = k == 0 ? CxMagnitude(cross) / frames : CxMagnitude(cross) * 2 / frames;
        result.crossPhase[k] = CxPhase(cross);
        result.coherence[k] = sums.coherence(k);
    }
    *result.df = FrequencyStep(n, dt);

    // The transfer function over all bins becomes the impulse response. Its imaginary parts take the place of a
    // spectrum that is done with, the transform the place of the sums.
    double* const re = result.impulse;
    double* const im = spectrumX;
    for (Count k = 0; k <= n / 2; ++k) {
        const ComplexRecord transfer = sums.transfer(k);
        re[k] = transfer.re;
        im[k] = transfer.im;
        if (k > 0 && k < n - k) {
            re[n - k] = transfer.re;
            im[n - k] = -transfer.im;
        }
    }
    return n == 1 ? status::kSuccess : ComplexInverseWith(plan, re, im, n, sumsWork);
}

}  // namespace quorvan
