// The divergent series that the asymptotic forms of the confluent functions are made of.
#pragma once

#include "stats/special/estimate.h"

namespace quorvan {

// 2F0(p, q; ; z) = 1 + p q z + p(p+1) q(q+1) z^2/2! + ..., down to its smallest term. The error is absolute, beside a
// first term of 1.
Estimate DivergentSeries(double p, double q, double z) noexcept;

}  // namespace quorvan
