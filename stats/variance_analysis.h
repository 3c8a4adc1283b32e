// Analysis of variance with one, two and three factors, on one-pass sums. Levels are any integers.
//
// Statuses: n below 1 gives -20003 before all others; more distinct levels than told give -20043; exhausted memory
// gives -20001. Nothing is written before all checks have passed, but for the total of the one-way form.
#pragma once

#include "frame/types.h"

namespace quorvan {

// One row of a table of variance. The row of the error has no F: that field is never written.
struct AnovaRow {
    double ss, dof, ms, f;
};

struct OneWayResult {
    double *ssA, *msA, *f, *significance, *ssError, *msError, *ssTotal;
};

// k levels, of any number of observations each. ssTotal is written before an empty level gives -20044.
Status AnovaOneWay(const double* y, const Count* level, Count n, Count k, const OneWayResult& out) noexcept;

// A negative number of levels marks a random factor. `m` observations in every cell.
// Rows: A, B, AB, error; significances: A, B, AB.
Status AnovaTwoWay(const double* y, const Count* levelA, const Count* levelB, Count n, Count m, Count levelsA,
                   Count levelsB, AnovaRow table[4], double* const significance[3]) noexcept;

// Rows: A, B, C, AB, AC, BC, ABC, error; significances: all but the last.
Status AnovaThreeWay(const double* y, const Count* levelA, const Count* levelB, const Count* levelC, Count n, Count m,
                     Count levelsA, Count levelsB, Count levelsC, AnovaRow table[8],
                     double* const significance[7]) noexcept;

}  // namespace quorvan
