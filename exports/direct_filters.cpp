// Entries of direct-form, zero-phase, smoothing and median filters.
#include "filters/direct_filter.h"
#include "filters/median.h"
#include "filters/savitzky_golay.h"
#include "frame/entry.h"
#include "quorvan/quorvan.h"

using namespace quorvan;

QV_EXPORT Status ZemFunc352(const double* x, Size n, const double* b, double* inputState, std::int32_t nb, double* y) {
    return narrowed(n, [&](Count n) { return FilterFir(x, n, b, inputState, nb, y); });
}

QV_EXPORT Status ZemFunc92(const double* x, Size n, const double* a, double* outputState, std::int32_t na,
                           const double* b, double* inputState, std::int32_t nb, double* y) {
    return narrowed(n, [&](Count n) { return FilterDirect(x, n, a, outputState, na, b, inputState, nb, y); });
}

QV_EXPORT Status ZemFunc353(const ComplexRecord* x, Size n, const double* b, ComplexRecord* inputState, std::int32_t nb,
                            ComplexRecord* y) {
    return narrowed(n, [&](Count n) { return FilterFirComplex(x, n, b, inputState, nb, y); });
}

QV_EXPORT Status ZemFunc354(const ComplexRecord* x, Size n, const double* a, ComplexRecord* outputState,
                            std::int32_t na, const double* b, ComplexRecord* inputState, std::int32_t nb,
                            ComplexRecord* y) {
    return narrowed(n, [&](Count n) { return FilterDirectComplex(x, n, a, outputState, na, b, inputState, nb, y); });
}

QV_EXPORT Status ZemFunc385(const double* x, Size n, const double* a, std::int32_t na, const double* b, std::int32_t nb,
                            double* y) {
    return narrowed(n, [&](Count n) { return FilterZeroPhase(x, n, a, na, b, nb, y); });
}

QV_EXPORT Status ZemFunc355(std::int32_t order, std::int32_t side, const double* weights, std::int32_t wantDerivatives,
                            double* smoother, double* derivatives) {
    return SavitzkyGolayDesign(order, side, weights, wantDerivatives, smoother, derivatives);
}

QV_EXPORT Status ZemFunc356(const double* x, Size n, std::int32_t order, std::int32_t side, const double* weights,
                            double* y) {
    return narrowed(n, [&](Count n) { return SavitzkyGolayFilter(x, n, order, side, weights, y); });
}

QV_EXPORT Status ZemFunc357(const ComplexRecord* x, Size n, std::int32_t order, std::int32_t side,
                            const double* weights, ComplexRecord* y) {
    return narrowed(n, [&](Count n) { return SavitzkyGolayFilterComplex(x, n, order, side, weights, y); });
}

QV_EXPORT Status ZemFunc407(const double* x, Size n, std::int32_t leftRank, std::int32_t rightRank, double* y) {
    return narrowed(n, [&](Count n) { return FilterMedian(x, n, leftRank, rightRank, y); });
}
