// The chi-square test of a contingency table.
#pragma once

#include "frame/types.h"

namespace quorvan {

// Whether rows and columns of a table of counts are independent: sum of (observed - expected)^2 / expected, and the
// probability of at least that much by chance. rows x columns counts, row-major.
Status ContingencyChiSquare(Count rows, Count columns, const std::int32_t* counts, double* chiSquare,
                            double* significance) noexcept;

}  // namespace quorvan
