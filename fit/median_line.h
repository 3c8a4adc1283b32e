// The line of least absolute residuals by weighted medians.
#pragma once

#include "fit/model_engines.h"
#include "frame/types.h"

namespace quorvan {

// Alternates between the slope that is best for the intercept and the intercept that is best for the slope. Of n = 2
// not to be asked. The residue is the mean absolute error. -20055 where two and more abscissas are 0.
Status FitMedianLine(const ModelSamples& samples, double tolerance, const ModelOutputs& out) noexcept;

// Sorts the keys in ascending order, the companions with them. NaN stands anywhere.
void SortPairs(double* keys, double* companions, Count n) noexcept;

}  // namespace quorvan
