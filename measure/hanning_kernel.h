// The spectrum of the Hanning window of n samples, at any distance from a tone.
#pragma once

#include <cmath>

#include "frame/types.h"

namespace quorvan {

// K(x) = D(x) - (D(x - 1/n) + D(x + 1/n)) / 2 with D(x) = e^(i(1-n) pi x) sin(n pi x) / (n sin(pi x)), x in cycles per
// sample. D(x) = w (cot(pi x) + i) / n with w = sin(n pi x) e^(-i n pi x), which is the same 1/n further on; so
//
//     K(x) = w / n * cos a sin^2 b / (sin a (sin^2 b - sin^2 a)),    a = pi x, b = pi / n
//
// in which nothing cancels. Its zero divided by zero at a = 0 and a = +-b is a plain sin(n y) / (n sin y) in the
// distance to the nearest of them. K has the period 1, and K(-x) is the conjugate of K(x).
class HanningKernel {
public:
    explicit HanningKernel(Count n) noexcept
        : n_(n), step_(1.0 / n), sin_(std::sin(kPi / n)), cos_(std::cos(kPi / n)) {}

    // factor * (cosine + i sine)
    struct Value {
        double factor, cosine, sine;
        ComplexRecord record() const noexcept { return {factor * cosine, factor * sine}; }
    };

    Value operator()(double x) const noexcept {
        x -= std::nearbyint(x);
        const double distance = std::fabs(x);
        const bool shifted = distance * n_ > 0.5;
        const double y = kPi * (shifted ? distance - step_ : distance), turned = n_ * y;
        const double s = std::sin(y), c = std::cos(y), sineN = std::sin(turned), cosineN = std::cos(turned);
        const double ratio = s == 0 ? 1 : sineN / (n_ * s);
        double factor;
        if (shifted) {  // a = b + y
            const double sineA = sin_ * c + cos_ * s, cosineA = cos_ * c - sin_ * s;
            factor = -ratio * cosineA * sin_ * sin_ / (sineA * (sineA * cos_ + cosineA * sin_));
        } else {  // a = y
            factor = ratio * c * sin_ * sin_ / ((sin_ - s) * (sin_ + s));
        }
        return {factor, cosineN, x < 0 ? sineN : -sineN};
    }

private:
    double n_, step_, sin_, cos_;
};

}  // namespace quorvan
