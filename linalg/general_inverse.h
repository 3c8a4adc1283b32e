// The inverse of a square matrix by LU factors, in place in a provider's block.
#pragma once

#include "linalg/info.h"
#include "linalg/lapack.h"

namespace quorvan {

// -20041 for a singular matrix; what stands in `matrix` is then of no use. n at least 1, not screened.
template <class T>
Status InvertGeneral(T* matrix, Count n) noexcept;

}  // namespace quorvan
