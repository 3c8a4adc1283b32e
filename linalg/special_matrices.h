// Matrices built from vectors: identity, diagonal, Toeplitz, Vandermonde, companion; T is double or ComplexRecord.
#pragma once

#include "frame/types.h"

namespace quorvan {

enum SpecialMatrix : std::uint32_t {
    kIdentityMatrix,
    kDiagonalMatrix,
    kToeplitzMatrix,
    kVandermondeMatrix,
    kCompanionMatrix
};

// identity: size by size; diagonal: firstLength squared, the first vector on the diagonal; Toeplitz: firstLength by
// secondLength, first(i - j) on and below the diagonal, second(j - i) above; Vandermonde: row i the powers of first(i),
// highest first; companion: first row -first(k + 1)/first(0), ones below the diagonal, firstLength - 1 squared. Only
// the sizes that a type uses are looked at: -20003, for the companion -20006 below 2; -20061 for another type. `out`
// may be one of the vectors.
template <class T>
Status MatBuildSpecial(std::uint32_t type, Count size, const T* first, Count firstLength, const T* second,
                       Count secondLength, T* out) noexcept;

}  // namespace quorvan
