// Cumulative distribution functions of the normal, Student's t, chi-square and F distributions, and their inverses.
//
// The normal pair are short closed formulas, right to 1.2e-5 and 4.5e-4. The other inverses are bisections with the
// fixed tolerance 1e-4: robust, not accurate, and meant so. Statuses: -20052 for degrees of freedom out of range,
// -20053 for a probability outside [0, 1] (NaN too), -20104 for a NaN argument where told. A failing check leaves the
// output.
#pragma once

#include "frame/types.h"

namespace quorvan {

// Never fails.
Status DistNormalCdf(double x, double* out) noexcept;
Status DistNormalInverse(double p, double* out) noexcept;

// NaN gives NaN and -20104.
Status DistTCdf(double t, std::int32_t dof, double* out) noexcept;
Status DistTInverse(double p, std::int32_t dof, double* out) noexcept;

// No degrees of freedom are allowed here, and give what the incomplete gamma function gives: NaN above 0.
Status DistChiSquareCdf(double x, std::int32_t dof, double* out) noexcept;
Status DistChiSquareInverse(double p, std::int32_t dof, double* out) noexcept;

// NaN gives NaN and -20104.
Status DistFCdf(double x, std::int32_t dof1, std::int32_t dof2, double* out) noexcept;
Status DistFInverse(double p, std::int32_t dof1, std::int32_t dof2, double* out) noexcept;

}  // namespace quorvan
