#include "transforms/fourier.h"

#include "frame/complex.h"
#include "frame/memory.h"
#include "frame/status.h"
#include "transforms/fft.h"
#include "transforms/spectrum_layout.h"
#include "transforms/spectrum_loops.h"

namespace quorvan {
namespace {

// The caller's plan, or one for the duration of the call.
class GivenPlan {
public:
    GivenPlan(const FftPlan* given, Count size) noexcept : own_(given ? nullptr : FftPlanCreate(size)), plan_(given) {
        if (!given) plan_ = own_;
    }
    GivenPlan(const GivenPlan&) = delete;
    GivenPlan& operator=(const GivenPlan&) = delete;
    ~GivenPlan() {
        if (own_) FftPlanRelease(own_);
    }

    explicit operator bool() const noexcept { return plan_ != nullptr; }
    operator const FftPlan*() const noexcept { return plan_; }

private:
    FftPlan* own_;
    const FftPlan* plan_;
};

constexpr bool Mismatch(const FftPlan* plan, Count length) noexcept { return plan && FftPlanSize(plan) != length; }

double InverseSquare(Count n) noexcept { return 1 / (static_cast<double>(n) * n); }

}  // namespace

Status TransformRealFft(const double* x, Count n, Count fftSize, const FftPlan* plan, bool shift,
                        ComplexRecord* out) noexcept {
    const Count length = TransformLength(n, fftSize);
    if (n < 1) return status::kSamplesNotPositive;
    if (Mismatch(plan, length)) return status::kSizesDiffer;
    if (plan) return SpectrumOfReals(plan, x, n, length, shift, out);
    const HeldPlan own(length, FftPlanUse::kSpectra);
    if (!own) return status::kOutOfMemory;
    return SpectrumOfReals(own, x, n, length, shift, out);
}

Status TransformComplexFft(const ComplexRecord* x, Count n, Count fftSize, const FftPlan* plan, bool shift,
                           ComplexRecord* out) noexcept {
    const Count length = TransformLength(n, fftSize);
    if (n < 1) return status::kSamplesNotPositive;
    if (Mismatch(plan, length)) return status::kSizesDiffer;
    {
        const GivenPlan used(plan, length);
        if (!used) return status::kOutOfMemory;
        Block<ComplexRecord> padded;
        if (length > n) {
            padded = Block<ComplexRecord>(static_cast<std::size_t>(length));
            if (!padded) return status::kOutOfMemory;
            CopyPadded(x, n, length, padded.get());
            x = padded;
        }
        if (const Status failure = RecordsThrough(FftComplex, used, x, out, length)) return failure;
    }
    if (!shift) return status::kSuccess;
    const Block<ComplexRecord> room(static_cast<std::size_t>(length - length / 2));
    if (!room) return status::kOutOfMemory;  // deliberate: the natural order stays in the output
    RotateToShifted(out, length, room);
    return status::kSuccess;
}

Status TransformRealIfft(const ComplexRecord* X, Count n, const FftPlan* plan, bool shift, double* out) noexcept {
    if (n < 0) return status::kSamplesNotPositive;  // deliberate: n = 0 fails for want of a plan
    if (Mismatch(plan, n)) return status::kSizesDiffer;
    const GivenPlan used(plan, n);
    if (!used) return status::kOutOfMemory;
    const Block<double> half(static_cast<std::size_t>(n));
    if (!half) return status::kOutOfMemory;

    const ComplexRecord* bins = shift ? X + n / 2 : X;
    half[0] = bins[0].re;
    for (Count k = 1; k <= (n - 1) / 2; ++k) {
        half[k] = bins[k].re;
        half[n - k] = bins[k].im;
    }
    if (n % 2 == 0) half[n / 2] = X[shift ? 0 : n / 2].re;
    return FftRealInverse(used, half, out, 1, 1, n);
}

Status TransformComplexIfft(const ComplexRecord* X, Count n, const FftPlan* plan, bool shift,
                            ComplexRecord* out) noexcept {
    if (n < 0) return status::kSamplesNotPositive;  // deliberate: n = 0 fails for want of a plan
    if (Mismatch(plan, n)) return status::kSizesDiffer;
    const GivenPlan used(plan, n);
    if (!used) return status::kOutOfMemory;
    Block<ComplexRecord> natural;
    if (shift) {
        natural = Block<ComplexRecord>(static_cast<std::size_t>(n));
        if (!natural) return status::kOutOfMemory;
        RotateFromShifted(X, n, natural);
        X = natural;
    }
    return RecordsThrough(FftComplexInverse, used, X, out, n);
}

Status TransformSplitFft(double* re, double* im, Count n) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    if (n == 1) return status::kSuccess;
    const HeldPlan plan(n);
    const Block<double> room(2 * static_cast<std::size_t>(n));
    if (!plan || !room) return status::kOutOfMemory;
    if (const Status failure = FftComplex(plan, re, im, room, room + n, 1, 1, n)) return failure;
    std::copy(room + 0, room + n, re);
    std::copy(room + n, room + 2 * Size{n}, im);
    return status::kSuccess;
}

Status PowerSpectrumComplex(const ComplexRecord* x, Count n, double* out) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    if (n == 1) {
        out[0] = CxSquaredMagnitude(x[0]);
        return status::kSuccess;
    }
    const HeldPlan plan(n);
    const Block<double> re(2 * static_cast<std::size_t>(n));
    if (!plan || !re) return status::kOutOfMemory;
    double* const im = re + n;
    if (const Status failure = FftComplex(plan, &x->re, &x->im, re, im, 2, 1, n)) return failure;
    kSpectrumLoops().power(re, im, InverseSquare(n), n, out);
    return status::kSuccess;
}

Status CrossPowerComplex(const ComplexRecord* x, const ComplexRecord* y, Count n, ComplexRecord* out) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    if (n == 1) {
        out[0] = CxMultiply(CxConj(x[0]), y[0]);
        return status::kSuccess;
    }
    const HeldPlan plan(n);
    const Block<double> room(4 * static_cast<std::size_t>(n));
    if (!plan || !room) return status::kOutOfMemory;
    double *const xRe = room, *const xIm = xRe + n, *const yRe = xIm + n, *const yIm = yRe + n;
    if (const Status failure = FftComplex(plan, &x->re, &x->im, xRe, xIm, 2, 1, n)) return failure;
    if (const Status failure = FftComplex(plan, &y->re, &y->im, yRe, yIm, 2, 1, n)) return failure;
    kSpectrumLoops().crossPower(xRe, xIm, yRe, yIm, InverseSquare(n), n, out);
    return status::kSuccess;
}

}  // namespace quorvan
