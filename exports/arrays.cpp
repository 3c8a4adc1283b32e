// Entries of the array primitives.
#include "frame/arrays.h"

#include "frame/entry.h"
#include "quorvan/quorvan.h"

using namespace quorvan;

QV_EXPORT Status ZemFunc3(const double* x, const double* y, Size n, double* out) {
    return narrowed(n, [&](Count n) { return ArrAdd(x, y, n, out); });
}

QV_EXPORT Status ZemFunc4(const double* x, const double* y, Size rows, Size cols, double* out) {
    return narrowed(rows, cols, [&](Count rows, Count cols) { return ArrAdd(x, y, Product(rows, cols), out); });
}
