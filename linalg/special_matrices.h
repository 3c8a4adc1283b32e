// Matrices built from vectors: identity, diagonal, Toeplitz, Vandermonde, companion; T is double or ComplexRecord.
#pragma once

#include "frame/types.h"

namespace quorvan {

template <class T>
Status MatBuildSpecial(std::uint32_t type, Count size, const T* first, Count firstLength, const T* second,
                       Count secondLength, T* out) noexcept;

}  // namespace quorvan
