// Edges between a low and a high reference level.
#pragma once

#include "measure/crossings.h"

namespace quorvan {

// One completed edge. Indices are of the samples just after the crossings; times are in samples. First and second are
// the earlier and the later crossing: low and high of a rising edge, high and low of a falling one.
struct TransitionRecord {
    Count lowIndex, highIndex;
    Count firstIndex, secondIndex;
    double lowTime, highTime;
    double firstTime, secondTime;
    std::int32_t slope;
};

// The first `limit` edges or fewer; their number goes to found. -20313 unless low is below high.
Status TransitionFind(const double* x, Count n, double low, double high, TransitionRecord* records, Count limit,
                      Count* found) noexcept;

}  // namespace quorvan
