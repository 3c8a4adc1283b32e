// What the robust fits and the confidence bands make of the rows of derivatives of a model: the information matrix and
// the variance at a row, in units of that of the observations.
#pragma once

#include "frame/types.h"

namespace quorvan {

// information += weight·row'·row, of k coefficients.
template <Count k>
void AddInformation(const double* row, double weight, double* information) noexcept {
    for (Count p = 0; p < k; ++p)
        for (Count q = 0; q < k; ++q) information[p * k + q] += weight * row[p] * row[q];
}

// row·inverse·row'.
template <Count k>
double RowVariance(const double* row, const double* inverse) noexcept {
    double variance = 0;
    for (Count p = 0; p < k; ++p)
        for (Count q = 0; q < k; ++q) variance += row[p] * inverse[p * k + q] * row[q];
    return variance;
}

}  // namespace quorvan
