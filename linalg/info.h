// What becomes of the provider's `info`: the one place that turns it into a status.
//
// A negative info names an illegal argument, a positive one a failure of the computation; each family of routines has a
// rule of its own, and the factorisations ignore a negative one, deliberately.
#pragma once

#include "frame/status.h"
#include "frame/types.h"

namespace quorvan {

struct InfoRule {
    Status below;
    Status above;
};

namespace info {

inline constexpr InfoRule kSolve{status::kSuccess, status::kSingularMatrix};          // getrf, getri, gesv, gbsv
inline constexpr InfoRule kExposedLu{status::kSuccess, status::kWarnSingular};        // getrf, factors to the caller
inline constexpr InfoRule kCholesky{status::kSuccess, status::kNotPositiveDefinite};  // potrf, posv
inline constexpr InfoRule kTriangle{status::kSuccess, status::kSingularMatrix};       // potri, trtri, tptrs
inline constexpr InfoRule kSingularValues{status::kTooManyIterations, status::kTooManyIterations};  // gesdd, gelsd
inline constexpr InfoRule kEigenvalues{status::kAlgorithmFailure,
                                       status::kTooManyIterations};                  // geev, syevd, gges, hgeqz
inline constexpr InfoRule kHermitian{status::kSuccess, status::kTooManyIterations};  // heevd
inline constexpr InfoRule kBalance{status::kAlgorithmFailure, status::kSuccess};     // gebal: above cannot arise

}  // namespace info

constexpr Status StatusOf(Count info, InfoRule rule) noexcept {
    return info < 0 ? rule.below : info > 0 ? rule.above : status::kSuccess;
}

}  // namespace quorvan
