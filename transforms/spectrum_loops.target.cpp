#include "transforms/spectrum_loops.h"

#include <utility>

#include "frame/complex.h"

namespace quorvan::QV_TARGET {
namespace {

#if defined(__AVX512F__)
constexpr int kWidth = 8;
#elif defined(__AVX2__)
constexpr int kWidth = 4;
#else
constexpr int kWidth = 2;
#endif

// As many doubles as a register holds, at any address.
typedef double Vector __attribute__((vector_size(8 * kWidth), aligned(8), may_alias));
using Lanes = std::make_integer_sequence<int, kWidth>;

Vector& At(double* p) { return *reinterpret_cast<Vector*>(p); }
const Vector& At(const double* p) { return *reinterpret_cast<const Vector*>(p); }

template <int... I>
QV_INLINE Vector Reverse(Vector v, std::integer_sequence<int, I...>) {
    return __builtin_shufflevector(v, v, (kWidth - 1 - I)...);
}
// Lanes a0 b0 a1 b1 ... from the lower (kFrom = 0) or upper (kWidth / 2) half of both.
template <int kFrom, int... I>
QV_INLINE Vector Interleave(Vector a, Vector b, std::integer_sequence<int, I...>) {
    return __builtin_shufflevector(a, b, (kFrom + I / 2 + I % 2 * kWidth)...);
}
// The records of v from the last to the first.
template <int... I>
QV_INLINE Vector ReverseRecords(Vector v, std::integer_sequence<int, I...>) {
    return __builtin_shufflevector(v, v, (kWidth - 2 - I + I % 2 * 2)...);
}
template <int... I>
QV_INLINE Vector ConjugateSigns(std::integer_sequence<int, I...>) {
    return Vector{(I % 2 ? -1.0 : 1.0)...};
}

// out[i] = (re[count-1-i], -im[i]) or (re[i], im[count-1-i]).
enum class Order { kNatural, kShifted };
template <Order kOrder>
void JoinBins(const double* re, const double* im, Count count, double* out) {
    Count i = 0;
    for (; i + kWidth <= count; i += kWidth) {
        const Count back = count - i - kWidth;
        const Vector a = kOrder == Order::kNatural ? Reverse(At(re + back), Lanes{}) : At(re + i);
        const Vector b = kOrder == Order::kNatural ? -At(im + i) : Reverse(At(im + back), Lanes{});
        At(out + 2 * Size{i}) = Interleave<0>(a, b, Lanes{});
        At(out + 2 * Size{i} + kWidth) = Interleave<kWidth / 2>(a, b, Lanes{});
    }
    for (; i < count; ++i) {
        out[2 * Size{i}] = kOrder == Order::kNatural ? re[count - 1 - i] : re[i];
        out[2 * Size{i} + 1] = kOrder == Order::kNatural ? -im[i] : im[count - 1 - i];
    }
}

// out[i] = conj in[count-1-i]
void ConjugateBackwards(const double* in, Count count, double* out) {
    const Vector signs = ConjugateSigns(Lanes{});
    constexpr Count kRecords = kWidth / 2;
    Count i = 0;
    for (; i + kRecords <= count; i += kRecords)
        At(out + 2 * Size{i}) = ReverseRecords(At(in + 2 * Size{count - i - kRecords}), Lanes{}) * signs;
    for (; i < count; ++i) {
        out[2 * Size{i}] = in[2 * Size{count - 1 - i}];
        out[2 * Size{i} + 1] = -in[2 * Size{count - 1 - i} + 1];
    }
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

void Multiply(ComplexRecord* __restrict a, const ComplexRecord* __restrict b, Size n) {
    for (Size k = 0; k < n; ++k) a[k] = CxMultiply(a[k], b[k]);
}

void Power(const double* __restrict re, const double* __restrict im, double scale, Count n, double* __restrict out) {
    for (Count k = 0; k < n; ++k) out[k] = (re[k] * re[k] + im[k] * im[k]) * scale;
}

void CrossPower(const double* __restrict xRe, const double* __restrict xIm, const double* __restrict yRe,
                const double* __restrict yIm, double scale, Count n, ComplexRecord* __restrict out) {
    for (Count k = 0; k < n; ++k)
        out[k] = {(xRe[k] * yRe[k] + xIm[k] * yIm[k]) * scale, (xRe[k] * yIm[k] - xIm[k] * yRe[k]) * scale};
}

}  // namespace

const SpectrumLoops kSpectrumLoops = {
    Expand<Order::kNatural>, Expand<Order::kShifted>, MultiplyHalf, PowerHalf, Multiply, Power, CrossPower};

}  // namespace quorvan::QV_TARGET
