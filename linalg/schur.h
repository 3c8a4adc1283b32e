// Schur forms A = Q·T·Q^H with the eigenvalues in a chosen order along the diagonal. Row major.
#pragma once

#include <type_traits>

#include "frame/types.h"
#include "linalg/provider.h"

namespace quorvan {

template <class T>
using EigenSelection = std::conditional_t<std::is_same_v<T, double>, provider::SelectReal, provider::SelectComplex>;

// T is double (quasi-triangular form, blocks of two rows for pairs) or ComplexRecord (triangular). Order 0 as produced,
// 1 and 2 by real part, 3 and 4 by modulus, ascending and descending; others -20061, before any other check. `vectors`
// may be null. -20003, -20068, -20062, -20001; the warning 20005 where the provider refuses an exchange: the form is
// valid, its order not complete.
//
// With a selection, the chosen eigenvalues come first, before any other order: -20073 where they cannot be brought
// there, -20074 where that changed them so that they would not be chosen any more.
template <class T>
Status MatSchur(const T* a, Count n, std::uint32_t order, T* vectors, T* t, ComplexRecord* values,
                EigenSelection<T> select = nullptr) noexcept;

}  // namespace quorvan
