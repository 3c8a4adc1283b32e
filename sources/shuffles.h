// Random orders of arrays, with a stream for each element type. perm[i] names the input element that now stands at
// place i; a null perm is not filled, and the draws are the same.
#pragma once

#include "frame/types.h"

namespace quorvan {

Status RngShuffleReal(double* data, Count n, std::int32_t seed, Count* perm) noexcept;
Status RngShuffleComplex(ComplexRecord* data, Count n, std::int32_t seed, Count* perm) noexcept;
Status RngShuffleInt(std::int32_t* data, Count n, std::int32_t seed, Count* perm) noexcept;

}  // namespace quorvan
