// Factorials and their logarithms.
#pragma once

#include <cstdint>

namespace quorvan {

// n!; NaN below 0, +Inf above 170.
double SpecFactorial(std::int64_t n) noexcept;

// ln n!
double SpecLnFactorial(std::uint32_t n) noexcept;

}  // namespace quorvan
