#include "filters/iir_prototypes.h"

#include <cmath>

#include "frame/status.h"

namespace quorvan {
namespace {

PrototypeSection RealPole(double rho) { return {PrototypeSection::kRealPole, rho, 0, 0, 0, 0, 1}; }
PrototypeSection Pair(double sigma, double q) { return {PrototypeSection::kPair, 0, 0, sigma, q, 0, 1}; }

bool Odd(Count n) { return n % 2 != 0; }

// The angles of the pole pairs, from the pair nearest to the imaginary axis on.
template <class Take>
void ForEachAngle(Count n, Take take) {
    const double spacing = kPi / n;
    double theta = (spacing + kPi) / 2;
    for (Count k = 0; k < n >> 1; ++k, theta += spacing) take(k, theta);
}

// Not the Butterworth prototype, deliberately: the imaginary parts are equally spaced, and order 2 has the denominator
// s² + sqrt(3) s + 1.
Status EvenPole(const IirPrototype& prototype, SectionSink sink) {
    const Count n = prototype.order;
    if (Odd(n)) sink(RealPole(1));
    for (Count k = 0; k < n >> 1; ++k) {
        const double omega = 1 - (2.0 * k + 1) / n;
        sink(Pair(std::sqrt(1 - omega * omega), 1));
    }
    return status::kSuccess;
}

Status Butterworth(const IirPrototype& prototype, SectionSink sink) {
    if (Odd(prototype.order)) sink(RealPole(1));
    ForEachAngle(prototype.order, [&](Count, double theta) { sink(Pair(-std::cos(theta), 1)); });
    return status::kSuccess;
}

// sinh and cosh of ln(x) / n: the half axes of the ellipse on which Chebyshev poles lie.
struct Ellipse {
    double sh, ch;

    Ellipse(double x, Count n) {
        const double A = std::pow(x, 1.0 / n);
        sh = (A - 1 / A) / 2;
        ch = (A + 1 / A) / 2;
    }
};

// R. W. Hamming, Digital Filters, 3rd ed. (1989), 12.9: poles sh cos theta + j ch sin theta, with
// arsinh(1/epsilon) = ln((sqrt(1 + epsilon²) + 1) / epsilon).
Status Chebyshev(const IirPrototype& prototype, SectionSink sink) {
    const Count n = prototype.order;
    const double G = std::pow(10.0, prototype.ripple / 10), g = std::sqrt(G), epsilon = std::sqrt(G - 1);
    const Ellipse axes((g + 1) / epsilon, n);
    // A first-order band filter does not depend on the ripple, and a first-order lowpass or highpass does: deliberate.
    if (Odd(n)) sink(RealPole(n == 1 && prototype.band ? 1 : axes.sh));
    // The peaks of the passband are at 0 dB. Of an even order, the trough at frequency 0 is taken off in one section.
    const Count lowered = Odd(n) ? -1 : prototype.band ? (n >> 1) - 1 : 0;
    ForEachAngle(n, [&](Count k, double theta) {
        const double u = axes.sh * std::cos(theta), v = axes.ch * std::sin(theta);
        PrototypeSection section = Pair(-u, u * u + v * v);
        if (k == lowered) section.h = 1 / g;
        sink(section);
    });
    return status::kSuccess;
}

// The reciprocal of a Chebyshev prototype: the edge at 1 is that of the stopband. The pole nearest to the imaginary
// axis stands with the zero farthest out.
Status InverseChebyshev(const IirPrototype& prototype, SectionSink sink) {
    const Count n = prototype.order;
    const double epsilon = 1 / std::sqrt(std::pow(10.0, prototype.attenuation / 10) - 1);
    const Ellipse axes((std::sqrt(epsilon * epsilon + 1) + 1) / epsilon, n);
    if (Odd(n)) sink(RealPole(1 / axes.sh));
    Size i = Odd(n) ? 2 : 1;
    ForEachAngle(n, [&](Count, double theta) {
        const double u = axes.sh * std::cos(theta), v = axes.ch * std::sin(theta), m = u * u + v * v;
        PrototypeSection section = Pair(-u / m, 1 / m);
        section.shape = PrototypeSection::kPairWithZeros;
        section.zeta = 1 / std::sin(static_cast<double>(i) * kPi / (2.0 * n));
        i += 2;
        sink(section);
    });
    return status::kSuccess;
}

Status Elliptic(const IirPrototype& prototype, SectionSink sink) {
    IirEllipticSections(prototype, sink);
    return status::kSuccess;
}

}  // namespace

Status IirPrototypeSections(const IirPrototype& prototype, SectionSink sink) noexcept {
    constexpr Status (*kFamilies[])(const IirPrototype&, SectionSink) = {EvenPole,  Butterworth,      IirBesselSections,
                                                                         Chebyshev, InverseChebyshev, Elliptic};
    return kFamilies[static_cast<int>(prototype.family)](prototype, sink);
}

}  // namespace quorvan
