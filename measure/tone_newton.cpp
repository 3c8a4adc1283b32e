#include "measure/tone_newton.h"

#include <algorithm>
#include <cmath>

#include "frame/complex.h"

namespace quorvan {
namespace {

// The difference that derivatives are taken over.
constexpr double kHalfDifference = 9.313225746154785e-10, kDifference = 1.862645149230957e-09;

class Model {
public:
    Model(const ToneBins& record, const HanningKernel& kernel, bool real)
        : record_(record), kernel_(kernel), real_(real) {
        for (Count j = 0; j < record.count; ++j) magnitudes_[j] = CxMagnitude(record.bins[j]);
    }

    // G(f) = |E1 F2| - |E2 F1|: 0 where both estimates have one size.
    double difference(double f) const {
        const auto [all, fewer] = sums(f);
        return CxMagnitude(CxScale(all.E(), fewer.F())) - CxMagnitude(CxScale(fewer.E(), all.F()));
    }

    ComplexRecord amplitude(double f) const {
        const Sums all = sums(f).all;
        // At 0 and at half the rate tone and image coincide. Deliberately at the ends of every record, which only there
        // have a tone on them.
        const double lo = record_.base, hi = record_.base + 2 * record_.step, close = 1e-6 * record_.step;
        const bool halved = real_ && (std::fabs(f - lo) <= close || std::fabs(f - hi) <= close);
        const ComplexRecord E = halved ? CxScale(all.A, 0.5) : all.E();
        const double F = halved ? all.MM : all.F();
        return {E.re / F, E.im / F};
    }

    // The same from magnitudes alone: |sum of all but the last k| u - |sum of all k| v.
    double roughDifference(double f) const {
        double kernels = 0, bins = 0, kernelsBefore = 0, binsBefore = 0;
        for (Count j = 0; j < record_.count; ++j) {
            kernelsBefore = kernels;
            binsBefore = bins;
            kernels += std::fabs(kernel_(frequency(j) - f).factor);
            bins += magnitudes_[j];
        }
        return std::fabs(kernelsBefore * bins) - std::fabs(kernels * binsBefore);
    }

private:
    struct Sums {
        ComplexRecord A{}, B{};
        double MM = 0, PP = 0;
        ComplexRecord E() const { return CxSubtract(A, B); }
        double F() const { return MM - PP; }
    };

    struct BothSums {
        Sums all, fewer;
    };

    double frequency(Count j) const { return record_.base + j * record_.step; }

    // A = sum conj(M) S, B = sum conj(S) P, MM and PP the squares of M = K(g - f) and P = K(g + f), over all bins and
    // over all but the last. A complex record has no P.
    BothSums sums(double f) const {
        BothSums out;
        for (Count j = 0; j < record_.count; ++j) {
            Sums& sum = out.all;
            out.fewer = sum;
            const double g = frequency(j);
            const ComplexRecord S = record_.bins[j], M = kernel_(g - f).record();
            sum.A = CxAdd(sum.A, CxMultiply(CxConj(M), S));
            sum.MM += CxSquaredMagnitude(M);
            if (!real_) continue;
            const ComplexRecord P = kernel_(g + f).record();
            sum.B = CxAdd(sum.B, CxMultiply(CxConj(S), P));
            sum.PP += CxSquaredMagnitude(P);
        }
        return out;
    }

    const ToneBins& record_;
    const HanningKernel& kernel_;
    const bool real_;
    double magnitudes_[3];
};

template <class Function>
double Derivative(const Function& function, double f) {
    return (function(f + kHalfDifference) - function(f - kHalfDifference)) / kDifference;
}

// The secant between two points of the rough difference, on the side where it crosses zero.
double Start(const Model& model, const ToneBins& record) {
    const auto H = [&](double f) { return model.roughDifference(f); };
    const double lo = record.base, hi = lo + 2 * record.step, c = lo + record.step, q = lo + 0.75 * record.step;
    const double atC = Derivative(H, c), atQ = Derivative(H, q);
    const bool differ = (atC > 0 && atQ < 0) || (atC < 0 && atQ > 0);
    const double from = differ ? c : q, to = differ ? lo + 1.25 * record.step : c;
    const double hFrom = H(from), hTo = H(to);
    const double f = to - hTo * (to - from) / (hTo - hFrom);
    return f >= lo && f <= hi ? f : (lo + hi) / 2;
}

}  // namespace

Tone ToneNewton(const ToneBins& record, const HanningKernel& kernel, bool real) noexcept {
    const Model model(record, kernel, real);
    const auto G = [&](double f) { return model.difference(f); };
    const double lo = record.base, hi = lo + 2 * record.step;
    double f = Start(model, record);
    for (int round = 0; round < 100; ++round) {
        const double g = G(f);
        if (g == 0) break;
        const double step = g / Derivative(G, f), next = f - step;
        if (!(next >= lo && next <= hi)) {
            // A tone beyond the end of a complex spectrum stands less than a bin outside; what leads further is no
            // tone's. A real one has its image there.
            const double outside = real ? 0 : record.step;
            if (!std::isnan(next)) f = std::clamp(next, lo - outside, hi + outside);
            break;
        }
        f = next;
        if (std::fabs(step) <= 1e-8) break;
    }
    const ComplexRecord Z = model.amplitude(f);
    return {f, CxMagnitude(Z), CxPhase(Z) * 180 / kPi};
}

}  // namespace quorvan
