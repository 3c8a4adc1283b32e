#include "measure/tone_harmonics.h"

#include <algorithm>
#include <cmath>

#include "frame/complex.h"
#include "frame/memory.h"
#include "frame/moments.h"
#include "frame/status.h"
#include "measure/half_spectrum.h"
#include "measure/sine_crest.h"
#include "sources/generators.h"
#include "sources/windows.h"

namespace quorvan {
namespace {

constexpr double kDegrees = 57.29577951308232;

// The bins below half the rate under a Hanning window, scaled to the rms amplitude of a sine. `work` has 2n doubles.
Status ToneHanningSpectrum(const FftPlan* plan, const double* x, Count n, double* work, ComplexRecord* bins) {
    std::copy(x, x + n, work);
    if (const Status failure = WinHanning(work, n)) return failure;
    const double scale = kSineCrest * 2 / n;
    for (Count i = 0; i < n; ++i) work[i] *= scale;
    double* const half = work + n;
    if (const Status failure = HalfSpectrum(plan, work, n, half)) return failure;
    bins[0] = {half[0] * (kSineCrest * 0.5), 0};
    for (Count k = 1; k < n - n / 2; ++k) bins[k] = InnerBin(half, n, k);
    return status::kSuccess;
}

enum class Side { kBelow, kNone, kAbove };

struct Line {
    double position, amplitude;  // bins; rms
};

// Two bins of a sine under a Hanning window have the ratio (1 + d) / (2 - d), with d the distance of the sine from the
// larger one towards the other (V. K. Jain, W. L. Collins and D. C. Davis, 1979). At d = 0 the amplitude is that of the
// bin, the limit of the formula.
Line ToneHanningInterpolate(double a0, double a1, double a2, Side side, Count i) {
    if (side == Side::kNone) return {static_cast<double>(i), a0};
    const double r = a0 / (side == Side::kBelow ? a1 : a2);
    const double d = side == Side::kBelow ? (r - 2) / (r + 1) : (2 - r) / (r + 1);
    return {i + d, d == 0 ? a0 : (1 - d * d) * a0 * kPi * d / std::sin(kPi * d)};
}

// |sin(pi g) / (pi g) / (g^2 - 1)|: the response of the Hanning window at a distance of g bins, with its limits.
double Leakage(double g) {
    if (g == 0) return 1;
    if (g == 1 || g == -1) return 0.5;
    return std::fabs(std::sin(g * kPi) / (g * kPi) / (g * g - 1));
}

// A spectrum of which up to three bins are replaced by corrected ones.
struct CorrectedBins {
    const ComplexRecord* S;
    Count size, first;
    Count count;
    ComplexRecord bins[3];

    ComplexRecord operator[](Count k) const { return k >= first && k < first + count ? bins[k - first] : S[k]; }
    // The bin below a position, or the nearest one there is.
    ComplexRecord below(double position) const {
        return (*this)[static_cast<Count>(std::clamp(std::floor(position), 0.0, size - 1.0))];
    }
};

// Takes what the negative-frequency image of the line leaks into the bins around it off them.
CorrectedBins ToneRemoveImage(const ComplexRecord* S, Count H, Count n, const Line& line, Side side) {
    CorrectedBins out{S, H, 0, 0, {}};
    const double phase = CxPhase(out.below(line.position));
    const double start = std::floor(line.position) - (side == Side::kBelow ? 0 : 1);
    const double first = std::max(start, 0.0), last = std::min(start + 2, H - 1.0);
    if (!(first <= last)) return out;
    const Count from = static_cast<Count>(first), count = static_cast<Count>(last) - from + 1;
    for (Count j = 0; j < count; ++j) out.bins[j] = S[from + j];
    out.first = from;
    out.count = count;
    const ComplexRecord opposite = CxFromPolar(1, -(phase + kPi)), same = CxFromPolar(1, -phase);
    for (Count j = 0; j < count; ++j) {
        const double e = Leakage(from + j + line.position) * line.amplitude;
        out.bins[j] = CxSubtract(out.bins[j], CxScale(opposite, e));
    }
    for (Count j = 0; j < count; ++j) {
        const double e = Leakage(static_cast<double>(from + j) - n + line.position) * line.amplitude;
        out.bins[j] = CxSubtract(out.bins[j], CxScale(same, e));
    }
    return out;
}

struct Sine {
    double frequency, amplitude, phase;  // unit of fs, peak, degrees
    double position;                     // cycles in the record
};

// The strongest line of bins up to H - 1 within `widthPercent` of the record's bins around f, at least one either side.
Status ToneExtractBin(const ComplexRecord* S, Count H, double fs, Count n, double f, double widthPercent, Sine* sine) {
    const auto magnitude = [S](Count k) { return k < 2 ? 0.0 : CxMagnitude(S[k]); };
    const double df = fs > 0 ? fs / n : 1;
    const double w = std::max(std::trunc(n * widthPercent * 0.01), 1.0);
    const double start = std::trunc(f / df) - w, lo = start > 1 ? start : 1;
    if (lo >= H - 1) return status::kIndexOutOfRange;
    const Count hi = static_cast<Count>(std::min(lo + 2 * w, H - 1.0));
    Count i = static_cast<Count>(lo);
    double a0 = magnitude(i);
    for (Count k = i + 1; k <= hi; ++k) {
        const double m = magnitude(k);
        if (m > a0) {
            a0 = m;
            i = k;
        }
    }
    if (i >= H - 1) return status::kIndexOutOfRange;

    const double a1 = magnitude(i - 1), a2 = magnitude(i + 1);
    const Side side = a1 > a2 ? Side::kBelow : a2 > a1 ? Side::kAbove : Side::kNone;
    const Line rough = ToneHanningInterpolate(a0, a1, a2, side, i);
    if (!std::isfinite(rough.position)) return status::kDivideByZero;
    const CorrectedBins C = ToneRemoveImage(S, H, n, rough, side);
    const Line line = ToneHanningInterpolate(CxMagnitude(C[i]), CxMagnitude(C[i - 1]), CxMagnitude(C[i + 1]), side, i);
    if (!std::isfinite(line.position)) return status::kDivideByZero;
    sine->position = line.position;
    sine->amplitude = kSineCrest * line.amplitude;
    sine->frequency = line.position * df;
    sine->phase = CxPhase(C.below(line.position)) * kDegrees - (line.position - std::floor(line.position)) * 180 + 90;
    if (!std::isfinite(sine->amplitude) || !std::isfinite(sine->phase)) return status::kDivideByZero;
    if (sine->frequency <= 0 || sine->frequency > fs / 2) return status::kCutoffOutOfRange;
    return status::kSuccess;
}

double SquaresAbout(double mean, const double* x, Count n) {
    double sum = 0;
    for (Count i = 0; i < n; ++i) sum += (x[i] - mean) * (x[i] - mean);
    return sum;
}

}  // namespace

Status SpecToneHarmonics(const double* x, Count n, std::int32_t harmonics, double fs, double fundamental, double* amp,
                         double* freq, double* thd, double* thdPlusNoise) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    if (fs <= 0 || fundamental <= 0) return status::kNegativeNumber;
    std::fill(amp, amp + std::max(harmonics, 0), 0.0);
    std::fill(freq, freq + std::max(harmonics, 0), 0.0);
    *thd = *thdPlusNoise = 0;

    const Count H = n - n / 2;
    const HeldPlan plan(n);
    const Block<double> work(3 * static_cast<std::size_t>(n));
    const Block<ComplexRecord> spectra(2 * static_cast<std::size_t>(H));
    if (!work || !spectra) return status::kOutOfMemory;
    double* const sine = work + 2 * Size{n};
    ComplexRecord *const S = spectra, *const ofSine = S + H;
    if (const Status failure = ToneHanningSpectrum(plan, x, n, work, S)) return failure;
    Sine first;
    if (const Status failure = ToneExtractBin(S, H, fs, n, fundamental, 5.0, &first)) return failure;
    if (const Status failure = GenSinePattern(n, first.amplitude, first.phase, first.position, sine)) return failure;
    if (const Status failure = ToneHanningSpectrum(plan, sine, n, work, ofSine)) return failure;
    for (Count k = 0; k < H; ++k) S[k] = CxSubtract(S[k], ofSine[k]);

    for (Count i = 0; i < n; ++i) sine[i] = x[i] - sine[i];
    const double whole = SquaresAbout(MeanOf(x, n), x, n), rest = SquaresAbout(MeanOf(sine, n), sine, n);
    if (whole == 0) return status::kDivideByZero;
    *thdPlusNoise = std::sqrt(rest / whole) * 100;
    amp[0] = first.amplitude;
    freq[0] = first.frequency;

    const double reach = std::floor(fs / (2 * first.frequency));
    const bool all = harmonics < 1;
    if (all || harmonics > reach) harmonics = reach < n ? static_cast<std::int32_t>(reach) : n;
    if (all) {  // their number has not been known before
        const std::int32_t found = std::min(harmonics, 1);
        std::fill(amp + found, amp + harmonics, 0.0);
        std::fill(freq + found, freq + harmonics, 0.0);
    }
    double squares = 0;
    for (std::int32_t j = 2; j <= harmonics; ++j) {
        const double turns = j * first.frequency / fs, u = turns - std::floor(turns);
        Sine overtone;
        if (const Status failure = ToneExtractBin(S, H, fs, n, (u > 0.5 ? 1 - u : u) * fs, 0, &overtone))
            return failure;
        amp[j - 1] = overtone.amplitude;
        freq[j - 1] = overtone.frequency;
        squares += overtone.amplitude * overtone.amplitude;
    }
    if (amp[0] == 0) return status::kDivideByZero;
    *thd = std::sqrt(squares) / amp[0] * 100;
    return status::kSuccess;
}

}  // namespace quorvan
