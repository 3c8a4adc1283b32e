// Searches through whole arrays, compiled for each instruction set.
#pragma once

#include "frame/targets.h"
#include "frame/types.h"

namespace quorvan {

// The first of the largest and the first of the smallest elements. Where all are NaN: NaN, and -1 as index.
struct Extremes {
    double max, min;
    Count max_index, min_index;
};

struct ArraySearch {
    Extremes (*extremes)(const double* x, Count n);
    double (*peak)(const double* x, Count n);  // the largest magnitude; 0 where all are NaN
    bool (*has_non_finite)(const double* x, Size n);
};
QV_DECLARE_TARGETS(ArraySearch, kArraySearch)

}  // namespace quorvan
