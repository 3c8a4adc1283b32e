// The types that every room shares.
#pragma once

#include <cstdint>

#include "quorvan/types.h"

namespace quorvan {

using Status = std::int32_t;
using Size = std::int64_t;   // an element count at the boundary
using Count = std::int32_t;  // an element count inside the library

using ComplexRecord = ::QvComplex;
using WinProperties = ::QvWindowProperties;

// The double epsilon, the limit of equality throughout the library.
inline constexpr double kEpsilon = 2.220446049250313e-16;

inline constexpr double kPi = 3.141592653589793;
inline constexpr double kTwoPi = 6.283185307179586;

}  // namespace quorvan
