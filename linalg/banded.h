// Systems with a band matrix.
#pragma once

#include "frame/types.h"

namespace quorvan {

// Solves A·X = B for a matrix of kl sub- and ku super-diagonals. `band` has kl + ku + 1 rows of `order` elements,
// element (i, j) of A in row ku + i - j at column j; b and x are row major, order by nrhs. -20003 for an order or nrhs
// below 1, -20008 for a band wider than the matrix, -20041 for a singular matrix, -20001.
Status MatBandedSolve(const double* band, Count order, Count kl, Count ku, const double* b, Count nrhs,
                      double* x) noexcept;

}  // namespace quorvan
