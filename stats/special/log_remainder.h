// ln(1 + x) - x without cancellation.
#pragma once

namespace quorvan {

// With r = x / (2 + x): ln(1 + x) = 2 artanh r, so ln(1 + x) - x = r (2 r^2 (1/3 + r^2/5 + r^4/7 + ...) - x).
// The series serves -0.7 < x < 1.5, where r^2 stays below 0.3; beyond, little cancels and the logarithm serves.
double LogRemainder(double x) noexcept;

}  // namespace quorvan
