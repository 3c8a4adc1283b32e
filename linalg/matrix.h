// What all matrix routines share: row-major storage without gaps (element (i, j) of m by n at i·n + j), the screen of
// their input, and the way to and from the provider's column-major blocks.
//
// To the provider a row-major m by n matrix is its n by m transpose. A routine that can work on the transpose passes a
// plain copy; where the orientation matters it passes a transposed one.
#pragma once

#include <cstddef>
#include <type_traits>

#include "frame/types.h"
#include "linalg/provider_memory.h"

namespace quorvan {

template <class T>
inline constexpr bool kIsComplex = std::is_same_v<T, ComplexRecord>;

// The number of elements of an m by n matrix, not wrapped; 0 for a size below 1.
constexpr std::size_t Elements(Count m, Count n) noexcept {
    return m < 1 || n < 1 ? 0 : static_cast<std::size_t>(m) * static_cast<std::size_t>(n);
}

// What to allocate for a matrix that the provider works on, with m elements to each of its n columns. A complex one
// gets a column more: zgemv of OpenBLAS (0.3.21, AVX2) loads the element behind a strided vector, to drop it.
template <class T>
constexpr std::size_t Room(Count m, Count n) noexcept {
    return Elements(m, n) + (kIsComplex<T> ? Elements(m, 1) : 0);
}

// Whether the number of elements has 32 bits: the provider counts with no more. Sizes below 1 are refused elsewhere.
constexpr bool ElementsFit(Count m, Count n) noexcept { return Elements(m, n) <= INT32_MAX; }

// Whether any element is NaN, infinite, DBL_MAX, or at or below -1.7976931348623e308 (ArrHasNonFinite's limits).
bool MatScreen(const double* a, std::size_t count) noexcept;
bool MatScreen(const ComplexRecord* a, std::size_t count) noexcept;

// Row-major m by n to n by m. `out` must not overlap `a`. The forms with leading dimensions take rows of `a` that stand
// lda elements apart, and put rows of `out` ldo apart.
void TransposeTo(const double* a, Count m, Count n, double* out) noexcept;
void TransposeTo(const ComplexRecord* a, Count m, Count n, ComplexRecord* out) noexcept;
void TransposeTo(const double* a, Count m, Count n, Count lda, double* out, Count ldo) noexcept;
void TransposeTo(const ComplexRecord* a, Count m, Count n, Count lda, ComplexRecord* out, Count ldo) noexcept;
// The same with the conjugate of each element.
void ConjugateTransposeTo(const ComplexRecord* a, Count m, Count n, ComplexRecord* out) noexcept;
inline void ConjugateTransposeTo(const double* a, Count m, Count n, double* out) noexcept { TransposeTo(a, m, n, out); }

// Copies in provider memory, as they stand and transposed; empty when memory is exhausted.
template <class T>
ProviderBlock<T> Copied(const T* a, Count m, Count n) noexcept;
template <class T>
ProviderBlock<T> Transposed(const T* a, Count m, Count n) noexcept;

// Transposes out of place, or through a temporary when `out` is null or equals `a`.
Status MatTranspose(double* a, Count m, Count n, double* out) noexcept;
Status MatTransposeComplex(ComplexRecord* a, Count m, Count n, ComplexRecord* out) noexcept;  // without conjugation
Status MatConjugateTranspose(ComplexRecord* a, Count m, Count n, ComplexRecord* out) noexcept;

}  // namespace quorvan
