// QR by plane rotations, the library's own: it needs no provider. Full form, A = Q·R, Q m by m, R m by n; Q null: not
// formed; R null: over A. -20003, -20068, -20001.
//
// Below the diagonal R keeps what rounding leaves of the eliminated elements, deliberately.
#pragma once

#include "frame/types.h"

namespace quorvan {

Status GivensQr(double* a, Count m, Count n, double* q, double* r) noexcept;

// Without square roots in the rotations (M. Gentleman, 1973; Golub and Van Loan, Matrix Computations, 5.1.13): rows
// carry a squared scale each, which is divided out at the end. Rows may differ from those of GivensQr in sign.
Status FastGivensQr(double* a, Count m, Count n, double* q, double* r) noexcept;

}  // namespace quorvan
