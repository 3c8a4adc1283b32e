// The elliptic prototype, by elliptic functions: A. Antoniou, Digital Filters: Analysis, Design, and Applications, 2nd
// ed. (1993), 5.5; H. J. Orchard and A. N. Willson, Elliptic functions for filter design, IEEE Trans. Circuits and
// Systems I 44 (1997).
#include <cmath>

#include "filters/elliptic_functions.h"
#include "filters/iir_prototypes.h"

namespace quorvan {

// The edge at 1 is that of the passband; the edge of the stopband is what order and levels give. Sections go from the
// low poles towards the edge.
void IirEllipticSections(const IirPrototype& prototype, SectionSink sink) noexcept {
    const Count n = prototype.order;
    const double epsilon = std::sqrt(std::pow(10.0, prototype.ripple / 10) - 1);
    const double k1 = epsilon / std::sqrt(std::pow(10.0, prototype.attenuation / 10) - 1);
    const double K1 = EllipticK(std::sqrt(1 - k1 * k1)), K1c = EllipticK(k1);
    // The degree equation, n K(kc) / K(k) = K1c / K1.
    const double k = EllipticNomeModulus(K1c / K1 / n), kc = std::sqrt(1 - k * k);
    const double K = EllipticK(kc);
    const double u0 = EllipticArcSc(1 / epsilon, k1) * (K / n) / K1;
    const auto [s0, c0, d0] = JacobiSnCnDn(u0, k);

    const bool odd = n % 2 != 0;
    if (odd) sink({PrototypeSection::kRealPole, s0 * c0 / (1 - s0 * s0), 0, 0, 0, 0, 1});
    // Of an even order the trough at frequency 0, to which the ripple goes down, is taken off in the first section.
    double h = odd ? 1 : 1 / std::sqrt(epsilon * epsilon + 1);
    for (Size j = odd ? 2 : 1; j <= n - 1; j += 2) {
        const auto [s, c, d] = JacobiSnCnDn(static_cast<double>(j) * K / n, kc);
        const double E = 1 - d * d * (s0 * s0);
        const double sigma = c * d * s0 * c0 / E, omega = s * d0 / E;
        sink({PrototypeSection::kPairWithZeros, 0, 0, sigma, omega * omega + sigma * sigma, 1 / (k * s), h});
        h = 1;
    }
}

}  // namespace quorvan
