// The generalised eigenproblem A·x = lambda·B·x by the QZ method. Row major; T is double or ComplexRecord.
#pragma once

#include "frame/types.h"

namespace quorvan {

// Where the results go; null: not wanted. A = Q·S·Z^H, B = Q·T·Z^H, eigenvalue i is alpha[i] / beta[i]. A right vector
// x has beta·A·x = alpha·B·x, a left one y has beta·y^H·A = alpha·y^H·B; one a column, with the provider's
// normalisation.
template <class T>
struct QzResults {
    T *s, *t, *q, *z;
    ComplexRecord* alpha;
    T* beta;
    ComplexRecord *right, *left;
};

// Orders as in MatSchur; an eigenvalue with beta = 0 is infinite, the last ascending. -20061 for another order, before
// any other check; -20003, -20068 for either matrix, -20062, -20999, -20001. -20073 where the provider refuses to
// exchange eigenvalues that are too close, by both ways of factoring; the warning 20005, with valid results in an
// incomplete order, where the first way is refused and the second does not converge.
template <class T>
Status MatQz(const T* a, const T* b, Count n, std::uint32_t order, const QzResults<T>& results) noexcept;

// The quotients, as the division gives them. `right` and `left` may be null.
template <class T>
Status MatEigenGeneralised(const T* a, const T* b, Count n, ComplexRecord* values, ComplexRecord* right,
                           ComplexRecord* left) noexcept;

}  // namespace quorvan
