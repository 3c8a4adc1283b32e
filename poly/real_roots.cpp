#include "poly/real_roots.h"

#include <algorithm>
#include <cmath>

#include "frame/complex.h"
#include "frame/memory.h"
#include "frame/status.h"
#include "linalg/matrix.h"
#include "poly/coefficient_span.h"
#include "poly/polynomial_matrices.h"
#include "poly/root_structure.h"

namespace quorvan {
namespace {

// C + B·x + A·x², without cancellation in a real root; a pair as -B/2A + i·s/2A, then its conjugate.
void PolyQuadratic(double constant, double linear, double square, ComplexRecord* roots) {
    const double discriminant = linear * linear - 4 * square * constant;
    if (discriminant >= 0) {
        const double s = std::sqrt(discriminant);
        const double t = linear > 0 ? -linear - s : s - linear;
        roots[0] = {t / (2 * square), 0};
        roots[1] = {2 * constant / t, 0};
        return;
    }
    const double re = -linear / (2 * square), im = std::sqrt(-discriminant) / (2 * square);
    roots[0] = {re, im};
    roots[1] = {re, -im};
}

// Exactly equal roots as one, in the order of their first occurrence.
Count Group(ComplexRecord* roots, Count* multiplicities, Count degree) {
    Count count = 0;
    for (Count i = 0; i < degree; ++i) {
        Count same = 0;
        while (same < count && !element::Equal(roots[same], roots[i])) ++same;
        if (same == count) {
            roots[count] = roots[i];
            multiplicities[count++] = 0;
        }
        ++multiplicities[same];
    }
    return count;
}

// A span of m coefficients, m above 3, without zeros at its ends.
Status HigherRoots(const double* c, Count m, Count zeros, ComplexRecord* roots, Count* multiplicities, Count* count) {
    Block<double> p(static_cast<std::size_t>(m));
    if (!p) return status::kOutOfMemory;
    const double scale = DescendScaled<double>(c, m, p);
    if (Status failed = PolyRootsStructure<double>(p, m - 1, kRootTolerance, roots, multiplicities, count))
        return failed;
    Size total = 0;
    for (Count i = 0; i < *count; ++i) {
        roots[i] = CxScale(roots[i], scale);
        total += multiplicities[i];
    }
    if (total == m - 1) {
        AddZeroRoot(zeros, roots, multiplicities, count);
        return status::kSuccess;
    }
    // Without a zero root, even where there is one: deliberate.
    Descend<double>(c, m, p);
    if (Status failed = PolyCompanionRoots<double>(p, m - 1, roots)) return failed;
    *count = Group(roots, multiplicities, m - 1);
    return status::kSuccess;
}

}  // namespace

Status PolyRootsCore(const double* c, Count n, ComplexRecord* roots, Count* multiplicities, Count* count) noexcept {
    CoefficientSpan<double> span;
    if (Status failed = FindSpan(c, n, &span)) return failed;
    *count = 0;
    if (span.count > 3) return HigherRoots(span.first, span.count, span.zeros, roots, multiplicities, count);
    *count = span.count - 1;
    std::fill_n(multiplicities, *count, 1);
    if (span.count == 2) roots[0] = {-span.first[0] / span.first[1], 0};
    if (span.count == 3) PolyQuadratic(span.first[0], span.first[1], span.first[2], roots);
    AddZeroRoot(span.zeros, roots, multiplicities, count);
    return status::kSuccess;
}

Status PolyRootsReal(const double* c, Count n, ComplexRecord* roots) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    const std::size_t degree = static_cast<std::size_t>(n) - 1;
    Block<ComplexRecord> distinct(degree);
    Block<Count> multiplicities(degree);
    if (!distinct || !multiplicities) return status::kOutOfMemory;
    Count count = 0;
    if (Status failed = PolyRootsCore(c, n, distinct, multiplicities, &count)) return failed;
    for (Count i = 0; i < count; ++i) roots = std::fill_n(roots, multiplicities[i], distinct[i]);
    return status::kSuccess;
}

}  // namespace quorvan
