// The kernel table of one instruction set.
#include "transforms/kernels/kernels.h"
#include "transforms/kernels/lanes.h"

#define QV_KERNEL_SIZES(X) \
    X(2)                   \
    X(3) X(4) X(5) X(7) X(8) X(9) X(10) X(11) X(13) X(14) X(16) X(17) X(18) X(19) X(29) X(31) X(32) X(37) X(41) X(43)
#define QV_GENERIC_PRIMES(X) X(23) X(47)
#define QV_ROW_LENGTHS(X) \
    X(12) X(15) X(20) X(21) X(24) X(25) X(27) X(28) X(30) X(33) X(35) X(36) X(39) X(40) X(45) X(50)

namespace quorvan::QV_TARGET {

#define QV_DECLARE(n) extern const FftKernel kDft##n;
QV_KERNEL_SIZES(QV_DECLARE)
QV_GENERIC_PRIMES(QV_DECLARE)
#undef QV_DECLARE
#define QV_DECLARE(n) extern const SpectrumRowsKernel kRows##n;
QV_ROW_LENGTHS(QV_DECLARE)
#undef QV_DECLARE

namespace {

const FftKernel* KernelOf(Count factor) {
    switch (factor) {
#define QV_CASE(n) \
    case n: return &kDft##n;
        QV_KERNEL_SIZES(QV_CASE)
        QV_GENERIC_PRIMES(QV_CASE)
#undef QV_CASE
        default: return nullptr;
    }
}

SpectrumRowsKernel RowsOfLength(Count m) {
    switch (m) {
#define QV_CASE(n) \
    case n: return kRows##n;
        QV_ROW_LENGTHS(QV_CASE)
#undef QV_CASE
        default: {
            const FftKernel* kernel = KernelOf(m);
            return kernel ? kernel->rows : nullptr;
        }
    }
}

}  // namespace

const FftKernelTable kFftKernels = {KernelOf, RowsOfLength, BlockWidth, LaneColumn};

}  // namespace quorvan::QV_TARGET
