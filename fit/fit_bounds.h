// Confidence and prediction bands of a fitted model, by its linearisation at the coefficients.
#pragma once

#include "frame/types.h"

namespace quorvan {

enum BandType : std::uint32_t { kConfidenceBand, kPredictionBand };

struct BandInput {
    const double* x;
    const double* y;
    const double* weights;  // null: all 1
    Count n;
    std::uint32_t type;
    double level;
};

struct BandTargets {
    double* upper;
    double* lower;
    double* halfWidths[3];  // in the order of the coefficients; of the confidence band alone
};

// In order: -20061 for another type; -20007 (-20069 for the Gaussian) for n not above the coefficients; for the
// Gaussian -20026 for a width of 0; -20068 for a coefficient that is not finite; -20053 for a level outside (0, 1); for
// the power -20140 for an abscissa at or below 0; -20068 where the information matrix is not finite. Bands stay
// unwritten then; the half-widths of a confidence band become 0, except for -20061.
Status FitBoundsLine(const BandInput& input, double slope, double intercept, const BandTargets& out) noexcept;
Status FitBoundsExponential(const BandInput& input, double a, double b, const BandTargets& out) noexcept;
Status FitBoundsPower(const BandInput& input, double a, double b, const BandTargets& out) noexcept;
Status FitBoundsLogarithm(const BandInput& input, double base, double a, double b, const BandTargets& out) noexcept;
Status FitBoundsGaussian(const BandInput& input, double amplitude, double centre, double width,
                         const BandTargets& out) noexcept;

}  // namespace quorvan
