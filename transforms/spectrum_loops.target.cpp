#include "transforms/spectrum_loops.h"

#include "transforms/vectors.h"

namespace quorvan::QV_TARGET {
namespace {

// out[i] = (re[count-1-i], -im[i]) or (re[i], im[count-1-i]).
enum class Order { kNatural, kShifted };
template <Order kOrder>
void JoinBins(const double* re, const double* im, Count count, double* out) {
    const auto join = [&](Count i) {
        const Count back = count - i - kWidth;
        if constexpr (kOrder == Order::kNatural)
            StoreInterleaved(out + 2 * Size{i}, Reversed(Load<Wide>(re + back)), -Load<Wide>(im + i));
        else
            StoreInterleaved(out + 2 * Size{i}, Load<Wide>(re + i), Reversed(Load<Wide>(im + back)));
    };
    Count i = 0;
    for (; i + kWidth <= count; i += kWidth) join(i);
    if (i < count && count >= kWidth) return join(count - kWidth);  // the last block overlaps the one before
    for (; i < count; ++i) {
        out[2 * Size{i}] = kOrder == Order::kNatural ? re[count - 1 - i] : re[i];
        out[2 * Size{i} + 1] = kOrder == Order::kNatural ? -im[i] : im[count - 1 - i];
    }
}

// out[count-1-i] = conj in[i], the records that were written first to the last place: what was written a moment ago can
// not be read at once at other boundaries.
void ConjugateBackwards(const double* in, Count count, double* out) {
    constexpr Count kRecords = kWidth / 2;
    const auto mirror = [&](Count i) {
        Store(out + 2 * Size{count - i - kRecords},
              ReversedRecords(Load<Wide>(in + 2 * Size{i})) * Alternating<Wide>(1, -1));
    };
    Count i = 0;
    for (; i + kRecords <= count; i += kRecords) mirror(i);
    if (i < count && count >= kRecords) return mirror(count - kRecords);
    for (; i < count; ++i)
        Store(out + 2 * Size{count - 1 - i}, Load<Pair>(in + 2 * Size{i}) * Alternating<Pair>(1, -1));
}

// One half of the bins lies behind the packed result and is written from it; the other half is its mirror image. X[0]
// and X[L/2] are real and stand alone.
template <Order kOrder>
void Expand(ComplexRecord* spectrum, Count length) {
    double* out = &spectrum->re;
    const Count pairs = (length - 1) / 2, middle = length / 2;
    const double zero = out[0], nyquist = out[middle];
    const auto join = JoinBins<kOrder>;
    const auto record = [out](Count k) { return out + 2 * Size{k}; };
    const auto real = [&](Count k, double value) {
        record(k)[0] = value;
        record(k)[1] = 0;
    };
    if constexpr (kOrder == Order::kNatural) {
        join(out + 1, out + length - pairs, pairs, record(length - pairs));
        ConjugateBackwards(record(length - pairs), pairs, record(1));
        if (length % 2 == 0) real(middle, nyquist);
        real(0, zero);
    } else {
        join(out + 1, out + length - pairs, pairs, record(middle + 1));
        ConjugateBackwards(record(middle + 1), pairs, record(middle - pairs));
        if (length % 2 == 0) real(0, nyquist);
        real(middle, zero);
    }
}

void MultiplyHalf(const double* __restrict a, const double* __restrict b, Count n, double* __restrict out) {
    out[0] = a[0] * b[0];
    for (Count k = 1; k <= (n - 1) / 2; ++k) {
        out[k] = a[k] * b[k] - a[n - k] * b[n - k];
        out[n - k] = a[k] * b[n - k] + a[n - k] * b[k];
    }
    if (n % 2 == 0) out[n / 2] = a[n / 2] * b[n / 2];
}

void PowerHalf(const double* __restrict a, Count n, double* __restrict out) {
    out[0] = a[0] * a[0];
    for (Count k = 1; k <= (n - 1) / 2; ++k) {
        out[k] = a[k] * a[k] + a[n - k] * a[n - k];
        out[n - k] = 0;
    }
    if (n % 2 == 0) out[n / 2] = a[n / 2] * a[n / 2];
}

void Multiply(const ComplexRecord* a, const ComplexRecord* b, Size n, ComplexRecord* out) {
    const double *const x = &a->re, *const y = &b->re;
    double* const to = &out->re;
    Size i = 0;
    for (; i + kWidth <= 2 * n; i += kWidth) Store(to + i, Product(FactorsOf(Load<Wide>(x + i)), Load<Wide>(y + i)));
    for (; i < 2 * n; i += 2) Store(to + i, Product(FactorsOf(Load<Pair>(x + i)), Load<Pair>(y + i)));
}

void Power(const double* __restrict re, const double* __restrict im, double scale, Count n, double* __restrict out) {
    for (Count k = 0; k < n; ++k) out[k] = (re[k] * re[k] + im[k] * im[k]) * scale;
}

void CrossPower(const double* xRe, const double* xIm, const double* yRe, const double* yIm, double scale, Count n,
                ComplexRecord* out) {
    double* to = &out->re;
    Count k = 0;
    for (; k + kWidth <= n; k += kWidth) {
        const Wide a = Load<Wide>(xRe + k), b = Load<Wide>(xIm + k), c = Load<Wide>(yRe + k), d = Load<Wide>(yIm + k);
        StoreInterleaved(to + 2 * Size{k}, (a * c + b * d) * scale, (a * d - b * c) * scale);
    }
    for (; k < n; ++k) {
        to[2 * Size{k}] = (xRe[k] * yRe[k] + xIm[k] * yIm[k]) * scale;
        to[2 * Size{k} + 1] = (xRe[k] * yIm[k] - xIm[k] * yRe[k]) * scale;
    }
}

}  // namespace

const SpectrumLoops kSpectrumLoops = {
    Expand<Order::kNatural>, Expand<Order::kShifted>, MultiplyHalf, PowerHalf, Multiply, Power, CrossPower};

}  // namespace quorvan::QV_TARGET
