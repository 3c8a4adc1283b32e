// The normal matrix of linear prediction; T is double or ComplexRecord.
#pragma once

#include "frame/types.h"

namespace quorvan {

// out = X^H·X, p + 1 square, where row t of X holds x(t), x(t-1), ..., x(t-p). Methods: 0 autocorrelation, t from 0 to
// n - 1 + p, samples outside x being 0; 1 prewindowed, t from 0 to n - 1; 2 postwindowed, t from p to n - 1 + p;
// 3 covariance, t from p to n - 1; 4 modified covariance, the rows of 3 and each of them conjugated and turned round.
// -20003 for n below 1, -20059 for a negative p, -20037 for p at or above n in 3 and 4, -20061 above 4, -20046 if the
// elements of `out` do not have 32 bits. `out` may be x.
template <class T>
Status MatLagProduct(const T* x, Count n, Count p, std::uint32_t method, T* out) noexcept;

}  // namespace quorvan
