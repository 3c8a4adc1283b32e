#include "fit/gaussian_loops.h"

#include "frame/wide.h"

namespace quorvan::QV_TARGET {
namespace {

constexpr int kBlock = 128, kTerms = 3;
constexpr int kPartial = 8;  // sums in turn, as many on every set, so that the result is one

typedef std::uint64_t WideUnsigned __attribute__((vector_size(kWideBytes)));

// exp of lanes at or below 0, or NaN. With k the integer nearest to v / ln 2 and r = v - k ln 2, ln 2 in two parts
// (W. J. Cody and W. Waite, 1980), exp v = 2^k exp r; |r| is at most 0.35, where Taylor's series to r^13 leaves 4e-18.
// The power is applied in two halves, so that what is below the normal numbers comes out rounded once.
Wide ExpOfNegative(Wide v) {
    constexpr double kShift = 6755399441055744.0;  // 1.5·2^52: the sum has no bits behind the point
    constexpr double kLn2High = 6.93147180369123816490e-01, kLn2Low = 1.90821492927058770002e-10;
    constexpr double kSmallest = -746;  // exp gives 0 from here
    constexpr double kInverses[] = {1.0 / 6227020800, 1.0 / 479001600, 1.0 / 39916800, 1.0 / 3628800,
                                    1.0 / 362880,     1.0 / 40320,     1.0 / 5040,     1.0 / 720,
                                    1.0 / 120,        1.0 / 24,        1.0 / 6,        0.5};
    const Wide least = Like(v, kSmallest);
    v = v < least ? least : v;
    const Wide shifted = v * 1.4426950408889634 + kShift;
    const Wide k = shifted - kShift;
    const Wide r = (v - k * kLn2High) - k * kLn2Low;
    Wide p = Like(v, kInverses[0]);
    for (int j = 1; j < 12; ++j) p = p * r + kInverses[j];
    p = (p * r * r + r) + 1;

    // k + 2048 in the low bits, whatever is above them.
    const WideUnsigned biased = (reinterpret_cast<WideUnsigned>(shifted) & 0xFFFF) + 2048;
    const WideUnsigned total = biased & 0xFFFF, half = total >> 1;
    const WideUnsigned first = (half - 1024 + 1023) << 52, second = (total - half - 1024 + 1023) << 52;
    return p * reinterpret_cast<Wide>(first) * reinterpret_cast<Wide>(second);
}

void Shape(const double* x, Count n, const double* c, double* shape) {
    const auto lanes = [&](const double* from, double* to) {
        const Wide z = (Load(from) - c[1]) / c[2];
        Store(to, ExpOfNegative(-0.5 * (z * z)));
    };
    Count i = 0;
    for (; i + kLanes <= n; i += kLanes) lanes(x + i, shape + i);
    if (i == n) return;
    double rest[kLanes] = {}, out[kLanes];
    for (Count j = i; j < n; ++j) rest[j - i] = x[j];
    lanes(rest, out);
    for (Count j = i; j < n; ++j) shape[j] = out[j - i];
}

void Gradient(const double* x, const double* y, const double* weights, const double* shape, Count n, const double* c,
              double* gradient) {
    const double a = c[0], m = c[1], s = c[2], square = s * s;
    double terms[kTerms][kBlock], sums[kTerms][kPartial] = {};
    for (Count first = 0; first < n; first += kBlock) {
        const Count count = n - first < kBlock ? n - first : kBlock;
        for (Count j = 0; j < count; ++j) {
            const Count i = first + j;
            double r = y[i] - a * shape[i];
            if (weights) r *= __builtin_fabs(weights[i]);
            const double distance = x[i] - m;
            terms[0][j] = r * shape[i];
            terms[1][j] = r * distance * a * shape[i] / square;
            terms[2][j] = terms[1][j] * distance / s;
        }
        const Count padded = (count + kPartial - 1) / kPartial * kPartial;
        for (int t = 0; t < kTerms; ++t) {
            for (Count j = count; j < padded; ++j) terms[t][j] = 0;
            for (Count j = 0; j < padded; j += kPartial)
                for (int l = 0; l < kPartial; ++l) sums[t][l] += terms[t][j + l];
        }
    }
    for (int t = 0; t < kTerms; ++t) {
        double sum = 0;
        for (int l = 0; l < kPartial; ++l) sum += sums[t][l];
        gradient[t] = sum;
    }
}

}  // namespace

const GaussianLoops kGaussianLoops = {Shape, Gradient};

}  // namespace quorvan::QV_TARGET
