// Values that come with an estimate of their relative error, for functions that try several forms and take the best.
#pragma once

#include <cmath>
#include <limits>

#include "frame/types.h"

namespace quorvan {

struct Estimate {
    double value, error;

    // Within 4 epsilon: no other form needs to be tried.
    bool Good() const noexcept { return error <= 8.881784197001252e-16; }

    // NaN where no digit need hold: what cancellation leaves looks as if it had one or two.
    double Usable() const noexcept { return error < 1e-3 ? value : std::numeric_limits<double>::quiet_NaN(); }

    Estimate Times(double weight) const noexcept {
        const double product = weight * value;
        return {product, std::isnan(product) ? std::numeric_limits<double>::infinity() : error};
    }
};

inline Estimate Better(Estimate a, Estimate b) noexcept { return b.error < a.error ? b : a; }

// A sum with what rounding of its largest term, and the neglected rest, leave of it.
inline Estimate Judged(double sum, double largest, double rest) noexcept {
    constexpr double kInf = std::numeric_limits<double>::infinity();
    if (!std::isfinite(sum) || !std::isfinite(largest)) return {sum, kInf};
    if (sum == 0) return {0, kInf};
    return {sum, kEpsilon + (kEpsilon * largest + rest) / std::fabs(sum)};
}

// The same of a sum in pairs of doubles: some 2^-98 of the largest term for each of the many roundings. What cancels to
// exactly 0 is a zero of the function, as far as pairs can tell.
inline Estimate JudgedPair(double sum, double largest) noexcept {
    if (sum == 0) return {0, 0x1p-98 * largest};
    return Judged(sum, 0, 0x1p-98 * largest);
}

}  // namespace quorvan
