// Entries of multiple polynomial roots and of lag products.
#include "poly/multiple_roots.h"

#include "frame/entry.h"
#include "linalg/lag_product.h"
#include "quorvan/quorvan.h"

using namespace quorvan;

QV_EXPORT Status ZemFunc300(const ComplexRecord* c, std::uint32_t n, ComplexRecord* roots) {
    return PolyRootsMultiple(c, static_cast<Count>(n), roots);
}

QV_EXPORT Status ZemFunc415(const double* x, Size n, Size p, std::uint32_t method, double* out) {
    return narrowed(n, p, [&](Count n, Count p) { return MatLagProduct(x, n, p, method, out); });
}

QV_EXPORT Status ZemFunc416(const ComplexRecord* x, Size n, Size p, std::uint32_t method, ComplexRecord* out) {
    return narrowed(n, p, [&](Count n, Count p) { return MatLagProduct(x, n, p, method, out); });
}
