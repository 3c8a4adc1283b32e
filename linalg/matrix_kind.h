// The kinds of matrix among which solve, inverse and determinant choose.
#pragma once

#include "frame/types.h"

namespace quorvan {

inline constexpr std::uint32_t kGeneral = 0;
inline constexpr std::uint32_t kPositiveDefinite = 1;  // only one triangle is read
inline constexpr std::uint32_t kLowerTriangular = 2;   // the other triangle is not read
inline constexpr std::uint32_t kUpperTriangular = 3;

}  // namespace quorvan
