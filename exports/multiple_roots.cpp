// Entries of lag products.
#include "frame/entry.h"
#include "linalg/lag_product.h"
#include "quorvan/quorvan.h"

using namespace quorvan;

QV_EXPORT Status ZemFunc415(const double* x, Size n, Size p, std::uint32_t method, double* out) {
    return narrowed(n, p, [&](Count n, Count p) { return MatLagProduct(x, n, p, method, out); });
}

QV_EXPORT Status ZemFunc416(const ComplexRecord* x, Size n, Size p, std::uint32_t method, ComplexRecord* out) {
    return narrowed(n, p, [&](Count n, Count p) { return MatLagProduct(x, n, p, method, out); });
}
