#include "fit/gaussian_loops.h"

#include "frame/wide.h"

namespace quorvan::QV_TARGET {
namespace {

constexpr int kPartial = 8;  // sums in turn, as many on every set, so that the result is one
constexpr int kRegisters = kPartial / kLanes;
constexpr int kAtOnce = 4;               // registers, whose exponentials overlap
using Index = std::ptrdiff_t;            // passes the greatest count
constexpr Index kBlock = 64 * kPartial;  // samples between two looks at the sum

typedef std::uint64_t WideUnsigned __attribute__((vector_size(kWideBytes)));

constexpr double kNormal = 1416;  // exp(-u/2) is a normal number up to here

// exp(-u/2) of lanes at or above 0, or NaN. With k the integer nearest to -u / (2 ln 2) and t = u + 2k ln 2, ln 2 in
// two parts (W. J. Cody and W. Waite, 1980), it is 2^k exp(-t/2), |t| at most 0.7. Of exp(-t/2) = 1 - t/2 + t² p(t) the
// even and the odd powers go side by side; p, by Remez's exchange with its first coefficient 1/8, leaves 6e-18. Without
// kFar no lane is beyond kNormal, and k goes straight to the exponent. With it the power is applied in two halves, so
// that what is below the normal numbers comes out rounded once.
template <bool kFar>
QV_INLINE Wide ExpOfMinusHalf(Wide u) {
    constexpr double kShift = 6755399441055744.0;  // 1.5·2^52: the sum has no bits behind the point
    constexpr double kMinusHalfLog2E = -0.7213475204444817;
    constexpr double kTwoLn2High = 2 * 6.93147180369123816490e-01, kTwoLn2Low = 2 * 1.90821492927058770002e-10;
    constexpr double kZero = 1492;  // exp gives 0 from here
    constexpr double kEven[] = {2.6977702429681004e-10, 9.688089348544659e-08, 2.170138894805605e-05,
                                0.002604166666662754, 0.125};
    constexpr double kOdd[] = {-1.2196500407604882e-11, -5.382351669158447e-09, -1.550099177091772e-06,
                               -0.0002604166666718647, -0.020833333333333044};
    if constexpr (kFar) {
        const Wide most = Like(u, kZero);
        u = u > most ? most : u;
    }
    const Wide shifted = u * kMinusHalfLog2E + kShift, k = shifted - kShift;
    const Wide t = (u + k * kTwoLn2High) + k * kTwoLn2Low, t2 = t * t;
    Wide even = Like(u, kEven[0]), odd = Like(u, kOdd[0]);
#pragma GCC unroll 4
    for (int j = 1; j < 5; ++j) {
        even = even * t2 + kEven[j];
        odd = odd * t2 + kOdd[j];
    }
    const Wide power = 1 + ((even + odd * t) * t2 - 0.5 * t);
    const WideUnsigned bits = reinterpret_cast<WideUnsigned>(shifted);
    if constexpr (!kFar) return reinterpret_cast<Wide>(reinterpret_cast<WideUnsigned>(power) + (bits << 52));

    // k + 2048 in the low bits, whatever is above them.
    const WideUnsigned total = ((bits & 0xFFFF) + 2048) & 0xFFFF, half = total >> 1;
    const WideUnsigned first = (half - 1024 + 1023) << 52, second = (total - half - 1024 + 1023) << 52;
    return power * reinterpret_cast<Wide>(first) * reinterpret_cast<Wide>(second);
}

// The samples of one register or more.
struct Samples {
    const double* x;
    const double* y;
    const double* weights;
    double* shape;
};

struct ErrorTerms {
    static constexpr int kTerms = 1;
    double a, m, s;

    template <int kCount>
    QV_INLINE void operator()(const Samples& at, Wide (&terms)[kTerms][kCount]) const {
        Wide u[kCount], shape[kCount];
        WideBits far = {};
        for (int q = 0; q < kCount; ++q) {
            const Wide z = (Load(at.x + q * kLanes) - m) / s;
            u[q] = z * z;
            far |= ~(u[q] <= Like(z, kNormal));  // NaN too
        }
        if (Any(far)) {
            for (int q = 0; q < kCount; ++q) shape[q] = ExpOfMinusHalf<true>(u[q]);
        } else {
            for (int q = 0; q < kCount; ++q) shape[q] = ExpOfMinusHalf<false>(u[q]);
        }
        for (int q = 0; q < kCount; ++q) {
            Store(at.shape + q * kLanes, shape[q]);
            const Wide y = Load(at.y + q * kLanes), f = a * shape[q];
            terms[0][q] = (f - 2 * y) * f + y * y;
            if (at.weights) terms[0][q] = Abs(Load(at.weights + q * kLanes)) * terms[0][q];
        }
    }
};

struct GradientTerms {
    static constexpr int kTerms = 3;
    double a, m, s;

    template <int kCount>
    QV_INLINE void operator()(const Samples& at, Wide (&terms)[kTerms][kCount]) const {
        for (int q = 0; q < kCount; ++q) {
            const Wide shape = Load(at.shape + q * kLanes), distance = Load(at.x + q * kLanes) - m;
            Wide r = Load(at.y + q * kLanes) - a * shape;
            if (at.weights) r *= Abs(Load(at.weights + q * kLanes));
            terms[0][q] = r * shape;
            terms[1][q] = r * distance * a * shape / (s * s);
            terms[2][q] = terms[1][q] * distance / s;
        }
    }
};

// Sums of Terms over samples.
template <class Terms>
class Sums {
public:
    Sums(const GaussianSamples& samples, const double* c) : samples_(samples), terms_{c[0], c[1], c[2]} {}

    void Add(Index first, Index last) {
        Index i = first;
        for (; i + kAtOnce * kLanes <= last; i += kAtOnce * kLanes) AddTerms<kAtOnce>(From(i));
        for (; i + kPartial <= last; i += kPartial) AddTerms<kRegisters>(From(i));
        if (i < last) AddRest(From(i), static_cast<int>(last - i));
    }

    double Total(int term) const {
        double sum = 0;
        for (const Wide& partial : sums_[term])
            for (int l = 0; l < kLanes; ++l) sum += partial[l];
        return sum;
    }

private:
    Samples From(Index i) const {
        const auto [x, y, weights, shape, n] = samples_;
        return {x + i, y + i, weights ? weights + i : nullptr, shape + i};
    }

    template <int kCount>
    QV_INLINE void AddTerms(const Samples& at, int wanted = kCount * kLanes) {
        Wide terms[Terms::kTerms][kCount];
        terms_(at, terms);
        for (int t = 0; t < Terms::kTerms; ++t) {
            for (int j = wanted; j < kCount * kLanes; ++j) terms[t][j / kLanes][j % kLanes] = 0;
            for (int q = 0; q < kCount; ++q) sums_[t][q % kRegisters] += terms[t][q];
        }
    }

    // Fewer samples than partial sums.
    void AddRest(const Samples& at, int rest) {
        double x[kPartial] = {}, y[kPartial] = {}, weights[kPartial] = {}, shape[kPartial] = {};
        for (int j = 0; j < rest; ++j) {
            x[j] = at.x[j], y[j] = at.y[j], shape[j] = at.shape[j];
            if (at.weights) weights[j] = at.weights[j];
        }
        AddTerms<kRegisters>({x, y, at.weights ? weights : nullptr, shape}, rest);
        for (int j = 0; j < rest; ++j) at.shape[j] = shape[j];
    }

    const GaussianSamples samples_;
    const Terms terms_;
    Wide sums_[Terms::kTerms][kRegisters] = {};
};

double Error(const GaussianSamples& samples, const double* c, double enough) {
    Sums<ErrorTerms> sums(samples, c);
    double total = 0;
    for (Index first = 0; first < samples.n && !(total > enough); first += kBlock) {
        sums.Add(first, first + kBlock < samples.n ? first + kBlock : samples.n);
        total = sums.Total(0);
    }
    return total;
}

void Gradient(const GaussianSamples& samples, const double* c, double* gradient) {
    Sums<GradientTerms> sums(samples, c);
    sums.Add(0, samples.n);
    for (int t = 0; t < GradientTerms::kTerms; ++t) gradient[t] = sums.Total(t);
}

}  // namespace

const GaussianLoops kGaussianLoops = {Error, Gradient};

}  // namespace quorvan::QV_TARGET
