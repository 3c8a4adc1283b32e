// Running integrals of sampled data.
#pragma once

#include "frame/types.h"

namespace quorvan {

enum class IntegrationRule : std::int32_t { kTrapezoid, kSimpson, kSimpsonSecond, kBoole };

// out[i] = out[i - 1] + term(i), where the term of a rule combines sample i and its neighbours. In front of the array
// stands initial (1, 1, 2, 2 values), behind it final (0, 1, 1, 2 values). out may be x.
Status Integrate(const double* x, Count n, double dt, const double* initial, const double* final, IntegrationRule rule,
                 double* out) noexcept;

// The rule of Simpson with one value at either end. A null out means x.
Status IntegrateSimpson(double* x, Count n, double dt, double initial, double final, double* out) noexcept;

}  // namespace quorvan
