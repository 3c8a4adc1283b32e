// The distinct roots of a polynomial with their multiplicities, from a chain of approximate greatest common divisors
// with the derivative: Z. Zeng, Computing multiple roots of inexact polynomials (Math. Comp. 74, 2005).
#pragma once

#include "frame/types.h"

namespace quorvan {

// p is monic, in descending powers, of degree g; T is double or ComplexRecord. Roots and multiplicities have room for
// g. `tolerance` bounds the residual at which a divisor is accepted. For real polynomials a structure whose conjugate
// roots differ in multiplicity is refused: then, as for a polynomial without multiple roots, all g roots come back
// simple.
template <class T>
Status PolyRootsStructure(const T* p, Count g, double tolerance, ComplexRecord* roots, Count* multiplicities,
                          Count* count) noexcept;

}  // namespace quorvan
