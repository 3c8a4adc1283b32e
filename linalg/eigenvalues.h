// Standard eigenproblems over the provider. Row major; vectors are the right eigenvectors of the caller's matrix, one a
// column, with the provider's normalisation. Statuses common to all: -20003 for n below 1, -20061 for a flag above 1,
// -20068 for a matrix that does not pass MatScreen, -20062 without convergence, -20999, -20001.
#pragma once

#include "frame/types.h"

namespace quorvan {

Status MatEigenGeneral(const double* a, Count n, std::uint32_t wantVectors, ComplexRecord* values,
                       ComplexRecord* vectors) noexcept;

// Reads the upper triangle; ascending eigenvalues.
Status MatEigenSymmetric(const double* a, Count n, std::uint32_t wantVectors, double* values, double* vectors) noexcept;

// Kind 0 general, 1 Hermitian (real eigenvalues, ascending, as pairs), others -20061.
Status MatEigenComplex(const ComplexRecord* a, Count n, Count kind, std::uint32_t wantVectors, ComplexRecord* values,
                       ComplexRecord* vectors) noexcept;

}  // namespace quorvan
