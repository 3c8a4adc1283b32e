// Factorials and their logarithms.
#pragma once

#include <cstdint>

namespace quorvan {

// n!; NaN below 0, +Inf above 170. To 33 a table, exact to the last bit; above Gamma(n + 1), peak 4.2e-16.
double SpecFactorial(std::int64_t n) noexcept;

// ln n! = ln Gamma(n + 1), peak 3.1e-16.
double SpecLnFactorial(std::uint32_t n) noexcept;

}  // namespace quorvan
