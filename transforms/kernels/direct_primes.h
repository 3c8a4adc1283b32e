// The DFT of a prime length p by its defining sums, folded over their symmetry into products with two real matrices.
//
// With h = (p - 1)/2, sums a[j] = x[j] + x[p - j] and differences b[j] = x[j] - x[p - j]:
//     X[k], X[p - k] = x[0] + sum over j of cos(2 pi j k / p) a[j]  -+  i sum over j of sin(2 pi j k / p) b[j].
// That is p^2 multiply-adds, but they run on whole vectors of k and move nothing: as long as the matrices stay near the
// processor, no convolution is faster.
#pragma once

#include "frame/targets.h"
#include "frame/types.h"

namespace quorvan {

// The columns k = 1, 2, ... of the table: h of them and what fills the last vector of any instruction set. The columns
// beyond h repeat the bins of the upper half.
constexpr Count DirectColumns(Count p) { return (p / 2 + 7) / 8 * 8; }

// Row j = 1 to h of the table: cos(2 pi j k / p) of all columns and then -sin(2 pi j k / p) of all columns.
constexpr Size DirectTableLength(Count p) { return Size(p / 2) * 2 * DirectColumns(p); }

// Doubles of workspace for one transform.
constexpr Size DirectWorkLength(Count p) { return 4 * Size(DirectColumns(p)); }

struct DirectPrimes {
    // From element j at j * inStride to p records. The input may be the output.
    void (*complex)(const double* inRe, const double* inIm, Size inStride, double* out, Count p, const double* table,
                    double* work);
    // From reals to HalfComplex.
    void (*real)(const double* in, Size inStride, double* out, Size outStride, Count p, const double* table,
                 double* work);
    // The largest prime that goes this way: in any case, and where p - 1 has a large prime factor itself.
    Count largest, largestRough;
};
QV_DECLARE_TARGETS(DirectPrimes, kDirectPrimes)

}  // namespace quorvan
