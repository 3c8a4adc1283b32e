// One right-hand side on a square matrix or on the factors of one: unscreened, the work horses of the fits.
#include <cstring>

#include "frame/arrays.h"
#include "frame/memory.h"
#include "frame/status.h"
#include "linalg/info.h"
#include "linalg/lapack.h"
#include "linalg/matrix.h"
#include "linalg/products.h"
#include "linalg/solve.h"

namespace quorvan {
namespace {

std::size_t RowStart(Count i, Count n) noexcept { return static_cast<std::size_t>(i) * static_cast<std::size_t>(n); }

// The sum over `count` elements, 0 for none.
double DotOrZero(const double* x, const double* y, Count count) noexcept {
    double sum = 0;
    if (count > 0) VecDot(x, y, count, &sum);
    return sum;
}

}  // namespace

Status MatSolve(const double* a, double* b, Count n, double* x) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    ProviderBlock<double> factors = Transposed(a, n, n), column = Copied(b, n, 1);
    Block<Count> pivots(static_cast<std::size_t>(n));
    if (!factors || !column || !pivots) return status::kOutOfMemory;
    const Count info = Gesv(n, 1, factors, n, pivots, column, n);
    if (Status failed = StatusOf(info, info::kSolve)) return failed;
    std::memcpy(InPlaceIfNull(x, b), column.get(), static_cast<std::size_t>(n) * sizeof(double));
    return status::kSuccess;
}

Status MatSolveUpperTriangular(const double* r, double* b, Count n, double* x) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    x = InPlaceIfNull(x, b);
    for (Count i = n - 1; i >= 0; --i) {
        const double* row = r + RowStart(i, n);
        if (row[i] == 0) return status::kSingularMatrix;
        x[i] = (b[i] - DotOrZero(row + i + 1, x + i + 1, n - 1 - i)) / row[i];
    }
    return status::kSuccess;
}

Status MatSolveUnitLower(const double* l, double* b, Count n, double* x, const Count* pivots) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    for (Count i = 0; pivots && i < n; ++i)
        if (pivots[i] < 0 || pivots[i] >= n) return status::kIndexOutOfRange;
    x = InPlaceIfNull(x, b);
    if (x != b) std::memcpy(x, b, static_cast<std::size_t>(n) * sizeof(double));
    for (Count i = 0; pivots && i < n; ++i) {
        const double swapped = x[i];
        x[i] = x[pivots[i]];
        x[pivots[i]] = swapped;
    }
    for (Count i = 1; i < n; ++i) x[i] -= DotOrZero(l + RowStart(i, n), x, i);
    return status::kSuccess;
}

}  // namespace quorvan
