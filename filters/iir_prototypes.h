// Analog lowpass prototypes with a cutoff of 1 rad/s, as ordered lists of sections: never as one polynomial, so that
// high orders stay accurate.
#pragma once

#include "frame/types.h"

namespace quorvan {

enum class IirFamily {
    kEvenPole,          // poles on the unit circle with equally spaced imaginary parts
    kButterworth,       // poles on the unit circle with equally spaced angles
    kBessel,            // zeros of the reverse Bessel polynomial, scaled to -3 dB at the cutoff
    kChebyshev,         // equal ripple in the passband
    kInverseChebyshev,  // equal ripple in the stopband
    kElliptic,          // equal ripple in both
};

struct IirPrototype {
    IirFamily family;
    Count order;
    bool band;           // for bandpass or bandstop
    double ripple;       // in dB, where the family has one
    double attenuation;  // in dB, where the family has one
};

struct PrototypeSection {
    enum Shape { kRealPole, kTwoRealPoles, kPair, kPairWithZeros } shape;
    double rho, rho2;  // real poles at -rho and -rho2
    double sigma, q;   // a pair of poles at -sigma ± j omega; q = sigma² + omega²
    double zeta;       // a pair of zeros at ±j zeta
    double h;          // gain
};

// What takes the sections, one after another.
class SectionSink {
public:
    template <class Take>
    SectionSink(const Take& take) noexcept
        : context_(&take), call_([](const void* context, const PrototypeSection& section) {
              (*static_cast<const Take*>(context))(section);
          }) {}
    void operator()(const PrototypeSection& section) const { call_(context_, section); }

private:
    const void* context_;
    void (*call_)(const void*, const PrototypeSection&);
};

// (order + 1) / 2 sections; a real pole, which every odd order has, comes first. Only the Bessel family can fail, and
// then hands out no section.
Status IirPrototypeSections(const IirPrototype& prototype, SectionSink sink) noexcept;

// The two families that are computed numerically: see their units.
void IirEllipticSections(const IirPrototype& prototype, SectionSink sink) noexcept;
Status IirBesselSections(const IirPrototype& prototype, SectionSink sink) noexcept;

}  // namespace quorvan
