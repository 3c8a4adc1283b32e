// Entries of the windows: each real one beside its complex twin.
#include "sources/windows.h"

#include "frame/entry.h"
#include "quorvan/quorvan.h"

using namespace quorvan;

QV_EXPORT Status ZemFunc89(double* x, Size n) {
    return narrowed(n, [&](Count n) { return WinHanning(x, n); });
}
QV_EXPORT Status ZemFunc430(ComplexRecord* x, Size n) {
    return narrowed(n, [&](Count n) { return WinHanning(x, n); });
}
