#include "stats/special/temme.h"

#include <cmath>

#include "stats/special/polynomial.h"

namespace quorvan {

TemmeGamma TemmeGammaOf(double mu) noexcept {
    // In powers of mu^2, from the coefficients of 1/Gamma(1 + mu) = 1 + 0.5772... mu - 0.6558... mu^2 - ...
    static constexpr double kGamma1[] = {
        -7.782263439905071254e-12,  1.1812745704870201446e-9,  -6.1160951044814158179e-9, -1.1330272319816958824e-6,
        0.000020134854780788238656, 0.00021524167411495097282, -0.0072189432466630995424, 0.042197734555544336748,
        0.042002635034095235529,    -0.57721566490153286061};
    static constexpr double kGamma2[] = {1.0434267116911005105e-10, 5.0020076444692229301e-9,
                                         -2.0563384169776071035e-7, -1.2504934821426706573e-6,
                                         0.00012805028238811618615, -0.0011651675918590651121,
                                         -0.0096219715278769735621, 0.1665386113822914895,
                                         -0.65587807152025388108,   1.0};
    const double square = mu * mu, gamma1 = Polynomial(square, kGamma1), gamma2 = Polynomial(square, kGamma2);
    return {gamma1, gamma2, 1 / (gamma2 - mu * gamma1), 1 / (gamma2 + mu * gamma1)};
}

Hyperbolic HyperbolicOf(double x, double power) noexcept {
    const double cosine = 0.5 * (power + 1 / power);
    if (std::fabs(x) > 1) return {cosine, 0.5 * (power - 1 / power) / x};
    return {cosine, std::fabs(x) < 1e-8 ? 1 : std::sinh(x) / x};
}

}  // namespace quorvan
