// The DFT of a prime length p by its defining sums, folded over their symmetry into products with two real matrices.
//
// With h = (p - 1)/2, sums a[j] = x[j] + x[p - j] and differences b[j] = x[j] - x[p - j]:
//     X[k], X[p - k] = x[0] + sum over j of cos(2 pi j k / p) a[j]  -+  i sum over j of sin(2 pi j k / p) b[j].
// That is p^2 multiply-adds, but they run on whole vectors of k and move nothing: as long as the matrices stay near the
// processor, no convolution is faster. With j and k in the order of Rader's index tables, j = g^-u and k = g^v, an
// entry depends on v - u alone: the rows are pieces of one sequence, and made as fast as they are copied.
#pragma once

#include "frame/targets.h"
#include "frame/types.h"
#include "transforms/rader_records.h"

namespace quorvan {

// The columns v = 0, 1, ... of the table: h of them and what fills the last vector of any instruction set. Those beyond
// h give bins of the upper half once more.
constexpr Count DirectColumns(Count p) { return (p / 2 + 7) / 8 * 8; }

// Row u = 0 to h - 1 of the table: cos(2 pi j k / p) of all columns and then -sin(2 pi j k / p) of all columns.
constexpr Size DirectTableLength(Count p) { return Size(p / 2) * 2 * DirectColumns(p); }

// Doubles of workspace for one transform.
constexpr Size DirectWorkLength(Count p) { return 4 * Size(DirectColumns(p)); }

struct DirectPrimes {
    // The table of p. The points exp(-2 pi i k / p), k = 1 to p - 1, stand at k - 1; `powers` are g^0, g^1, ...
    void (*fillTable)(Count p, const double* cosines, const double* sines, const Count* powers, double* table);
    // One DFT of length p; `inverses` are the powers of 1/g. The input may be the output.
    void (*complex)(const ComplexInput& x, const ComplexOutput& X, Count p, const Count* inverses, const Count* powers,
                    const double* table, double* work);
    // From reals to HalfComplex.
    void (*real)(const double* in, Size inStride, double* out, Size outStride, Count p, const Count* inverses,
                 const Count* powers, const double* table, double* work);
    // The largest prime that goes this way: in any case, and where transforms of length p - 1 are slow.
    Count largest, largestSlow;
};
QV_DECLARE_TARGETS(DirectPrimes, kDirectPrimes)

}  // namespace quorvan
