/* One of the public headers comes before this by the command line, and stands alone; here both come once more. */
#include "quorvan/quorvan.h"
#include "quorvan/types.h"

QvStatus Sum(const double* x, const double* y, int64_t n, double* out);
QvStatus Sum(const double* x, const double* y, int64_t n, double* out) { return QvArrAdd(x, y, n, out); }
