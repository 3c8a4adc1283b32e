// What N. M. Temme's series for orders beside 0 are made of.
#pragma once

namespace quorvan {

struct TemmeGamma {
    double gamma1;  // (1/Gamma(1-mu) - 1/Gamma(1+mu)) / (2 mu)
    double gamma2;  // (1/Gamma(1-mu) + 1/Gamma(1+mu)) / 2
    double plus;    // Gamma(1 + mu)
    double minus;   // Gamma(1 - mu)
};

// For |mu| <= 1/2, from the Taylor series of 1/Gamma(1 + mu) (A&S 6.1.34).
TemmeGamma TemmeGammaOf(double mu) noexcept;

struct Hyperbolic {
    double cosine, sine_ratio;  // cosh x, sinh(x)/x
};

// At x = ln(power): a large power is known better than its logarithm.
Hyperbolic HyperbolicOf(double x, double power) noexcept;

}  // namespace quorvan
