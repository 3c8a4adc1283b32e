// Entry of the roots of a real polynomial.
#include "frame/entry.h"
#include "poly/real_roots.h"
#include "quorvan/quorvan.h"

using namespace quorvan;

QV_EXPORT Status ZemFunc299(const double* c, std::uint32_t n, ComplexRecord* roots) {
    return PolyRootsReal(c, static_cast<Count>(n), roots);
}
