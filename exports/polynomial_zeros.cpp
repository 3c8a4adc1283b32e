// Entry of the complex zeros of a polynomial.
#include "frame/entry.h"
#include "poly/complex_zeros.h"
#include "quorvan/quorvan.h"

using namespace quorvan;

QV_EXPORT Status ZemFunc231(const double* c, std::int32_t m, ComplexRecord* z) { return PolyZeros(c, m, z); }
