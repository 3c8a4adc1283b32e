// The test for positive definiteness; T is double or ComplexRecord.
#pragma once

#include "frame/types.h"

namespace quorvan {

// *flag is 1 where A equals its (conjugate) transpose to the last bit and every eigenvalue exceeds the largest
// magnitude of them times the double epsilon, else 0. Untouched for n below 1.
template <class T>
Status MatIsPositiveDefinite(const T* a, Count n, std::uint32_t* flag) noexcept;

}  // namespace quorvan
