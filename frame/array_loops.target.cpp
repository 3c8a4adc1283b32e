#include "frame/array_loops.h"

#include "frame/wide.h"

namespace quorvan::QV_TARGET {
namespace {

void Fill(double value, Count n, double* out) {
    const bool far = Far(n, RealSink{out});
    std::ptrdiff_t i = 0;
    for (; i < n && !WideAligned(out + i); ++i) out[i] = value;
    const Wide values = Like(Wide{}, value);
    if (far) {
        for (; i + kLanes <= n; i += kLanes) Stream(out + i, values);
        StreamEnd();
    }
    for (; i < n; ++i) out[i] = value;
}

void Reverse(double* x, Count n, double* out) {
    if (out == x) {
        for (Count i = 0; i < n / 2; ++i) {
            const double low = x[i];
            x[i] = x[n - 1 - i];
            x[n - 1 - i] = low;
        }
    } else {
        for (Count i = 0; i < n; ++i) out[i] = x[n - 1 - i];
    }
}

void Add(const double* x, const double* y, Count n, double* out) {
    Map(
        n, RealSink{out}, [](auto a, auto b) { return a + b; }, x, y);
}

void Subtract(const double* x, const double* y, Count n, double* out) {
    Map(
        n, RealSink{out}, [](auto a, auto b) { return a - b; }, x, y);
}

void Multiply(const double* x, const double* y, Count n, double* out) {
    Map(
        n, RealSink{out}, [](auto a, auto b) { return a * b; }, x, y);
}

bool HasZero(const double* y, std::ptrdiff_t first, std::ptrdiff_t last) {
    WideBits zeros{};
    for (; first + kLanes <= last; first += kLanes) zeros |= Load(y + first) == 0;
    bool rest = false;
    for (; first < last; ++first) rest |= y[first] == 0;
    return rest || Any(zeros);
}

// In blocks that stay in the first cache: one with a zero is divided up to it, element by element.
bool Divide(const double* x, const double* y, Count n, double* out) {
    constexpr std::ptrdiff_t kBlock = 512;
    const bool far = Far(n, RealSink{out}, x, y);
    for (std::ptrdiff_t first = 0; first < n; first += kBlock) {
        const std::ptrdiff_t last = first + kBlock < n ? first + kBlock : n;
        if (HasZero(y, first, last)) {
            for (std::ptrdiff_t i = first; y[i] != 0; ++i) out[i] = x[i] / y[i];
            return false;
        }
        MapRange(
            first, last, far, RealSink{out}, [](auto a, auto b) { return a / b; }, x, y);
    }
    return true;
}

void Negate(const double* x, Count n, double* out) {
    Map(
        n, RealSink{out}, [](auto v) { return -v; }, x);
}

void Absolute(const double* x, Count n, double* out) {
    Map(
        n, RealSink{out}, [](auto v) { return Abs(v); }, x);
}

void Offset(const double* x, Count n, double offset, double* out) {
    Map(
        n, RealSink{out}, [=](auto v) { return v - offset; }, x);
}

void OffsetScale(const double* x, Count n, double offset, double factor, double* out) {
    Map(
        n, RealSink{out}, [=](auto v) { return (v - offset) * factor; }, x);
}

void Scale(const double* x, Count n, double factor, double* out) {
    Map(
        n, RealSink{out}, [=](auto v) { return v * factor; }, x);
}

void Linear(const double* x, Count n, double a, double b, double* out) {
    Map(
        n, RealSink{out}, [=](auto v) { return a * v + b; }, x);
}

// Sum of coef[k] x^k in ascending order, each power from the one before.
void Polynomial(const double* x, Count n, const double* coef, Count count, double* out) {
    Map(
        n, RealSink{out},
        [=](auto v) {
            auto sum = Like(v, coef[0]);
            auto power = Like(v, 1.0);
            for (Count k = 1; k < count; ++k) {
                power *= v;
                sum += coef[k] * power;
            }
            return sum;
        },
        x);
}

void Clip(const double* x, Count n, double upper, double lower, double* out) {
    Map(
        n, RealSink{out},
        [=](auto v) {
            const auto high = Like(v, upper), low = Like(v, lower);
            return v > high ? high : low > v ? low : v;
        },
        x);
}

}  // namespace

const ArrayLoops kArrayLoops = {Fill,     Reverse, Add,         Subtract, Multiply, Divide,     Negate,
                                Absolute, Offset,  OffsetScale, Scale,    Linear,   Polynomial, Clip};

}  // namespace quorvan::QV_TARGET
