// The two sums over all extremal points that an exchange spends its time in, compiled for each instruction set. Lanes
// hold different results, so that each result is formed in the same order everywhere.
#pragma once

#include "frame/targets.h"
#include "frame/types.h"

namespace quorvan {

// Points whose responses are formed at once.
inline constexpr Count kResponses = 8;

// The barycentric form over `count` abscissae x, with the weights and weight times value.
struct Barycentric {
    const double* x;
    const double* weights;
    const double* weighted;
    Count count;
};

struct EquirippleLoops {
    // product[i] = product over j != i of (x[i] - x[j]), in ascending order of j; room for count rounded up to 32 in
    // both arrays.
    void (*products)(const double* x, Count count, double* product);
    // A[p] = (sum over k of weighted[k] / (t[p] - x[k])) / (sum over k of weights[k] / (t[p] - x[k])); NaN where t[p]
    // is one of the abscissae.
    void (*responses)(const Barycentric& form, const double* t, double* A);
};
QV_DECLARE_TARGETS(EquirippleLoops, kEquirippleLoops)

inline constexpr Count kProductRoom = 32;

}  // namespace quorvan
