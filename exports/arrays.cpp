// Entries of the array primitives.
#include "frame/arrays.h"

#include "frame/entry.h"
#include "quorvan/quorvan.h"

using namespace quorvan;

// Filling and moving

QV_EXPORT Status ZemFunc29(double* x, Size n) {
    return narrowed(n, [&](Count n) { return ArrClear(x, n); });
}

QV_EXPORT Status ZemFunc155(double* x, Size n, double value) {
    return narrowed(n, [&](Count n) { return ArrFill(x, n, value); });
}

QV_EXPORT Status ZemFunc34(const double* x, Size n, double* out) {
    return narrowed(n, [&](Count n) { return ArrCopy(x, n, out); });
}

QV_EXPORT Status ZemFunc169(const double* x, Size n, Size index, Size length, double* out) {
    return narrowed(n, index, length,
                    [&](Count n, Count index, Count length) { return ArrSubset(x, n, index, length, out); });
}

QV_EXPORT Status ZemFunc149(double* x, Size n, double* out) {
    return narrowed(n, [&](Count n) { return ArrReverse(x, n, out); });
}

QV_EXPORT Status ZemFunc156(double* x, Size n, Size shift, double* out) {
    return narrowed(n, shift, [&](Count n, Count shift) { return ArrShift(x, n, shift, out); });
}

QV_EXPORT Status ZemFunc160(double* x, Size n, std::uint32_t direction, double* out) {
    return narrowed(n, [&](Count n) { return ArrSort(x, n, direction, out); });
}

// Arithmetic

QV_EXPORT Status ZemFunc3(const double* x, const double* y, Size n, double* out) {
    return narrowed(n, [&](Count n) { return ArrAdd(x, y, n, out); });
}

QV_EXPORT Status ZemFunc4(const double* x, const double* y, Size rows, Size cols, double* out) {
    return narrowed(rows, cols, [&](Count rows, Count cols) { return ArrAdd(x, y, Product(rows, cols), out); });
}

QV_EXPORT Status ZemFunc167(const double* x, const double* y, Size n, double* out) {
    return narrowed(n, [&](Count n) { return ArrSubtract(x, y, n, out); });
}

QV_EXPORT Status ZemFunc168(const double* x, const double* y, Size rows, Size cols, double* out) {
    return narrowed(rows, cols, [&](Count rows, Count cols) { return ArrSubtract(x, y, Product(rows, cols), out); });
}

QV_EXPORT Status ZemFunc126(const double* x, const double* y, Size n, double* out) {
    return narrowed(n, [&](Count n) { return ArrMultiply(x, y, n, out); });
}

QV_EXPORT Status ZemFunc127(const double* x, const double* y, Size rows, Size cols, double* out) {
    return narrowed(rows, cols, [&](Count rows, Count cols) { return ArrMultiply(x, y, Product(rows, cols), out); });
}

QV_EXPORT Status ZemFunc57(const double* x, const double* y, Size n, double* out) {
    return narrowed(n, [&](Count n) { return ArrDivide(x, y, n, out); });
}

// Deliberately the one entry that looks for a size below 1 before it narrows.
QV_EXPORT Status ZemFunc58(const double* x, const double* y, Size rows, Size cols, double* out) {
    if (rows < 1 || cols < 1) return status::kSamplesNotPositive;
    return narrowed(rows, cols, [&](Count rows, Count cols) { return ArrDivide(x, y, Product(rows, cols), out); });
}

QV_EXPORT Status ZemFunc128(double* x, Size n, double* out) {
    return narrowed(n, [&](Count n) { return ArrNegate(x, n, out); });
}

QV_EXPORT Status ZemFunc1(double* x, Size n, double* out) {
    return narrowed(n, [&](Count n) { return ArrAbs(x, n, out); });
}

QV_EXPORT Status ZemFunc170(const double* x, Size n, double* sum) {
    return narrowed(n, [&](Count n) { return ArrSum(x, n, sum); });
}

QV_EXPORT Status ZemFunc171(const double* x, Size rows, Size cols, double* sum) {
    return narrowed(rows, cols, [&](Count rows, Count cols) { return ArrSum(x, Product(rows, cols), sum); });
}

QV_EXPORT Status ZemFunc140(const double* x, Size n, double* product) {
    return narrowed(n, [&](Count n) { return ArrProduct(x, n, product); });
}

// Extremes and scaling

QV_EXPORT Status ZemFunc120(const double* x, Size n, double* max, Size* maxIndex, double* min, Size* minIndex) {
    return narrowed(n, [&](Count n) {
        Count atMax, atMin;
        const Status status = ArrMaxMin(x, n, max, &atMax, min, &atMin);
        if (status < 0) return status;
        *maxIndex = atMax;
        *minIndex = atMin;
        return status;
    });
}

QV_EXPORT Status ZemFunc121(const double* x, Size rows, Size cols, double* max, Size* maxRow, Size* maxCol, double* min,
                            Size* minRow, Size* minCol) {
    return narrowed(rows, cols, [&](Count rows, Count cols) {
        Count ofMax[2], ofMin[2];
        const Status status = ArrMaxMin2D(x, rows, cols, max, &ofMax[0], &ofMax[1], min, &ofMin[0], &ofMin[1]);
        if (status < 0) return status;
        *maxRow = ofMax[0];
        *maxCol = ofMax[1];
        *minRow = ofMin[0];
        *minCol = ofMin[1];
        return status;
    });
}

QV_EXPORT Status ZemFunc153(double* x, Size n, double* out, double* offset, double* scale) {
    return narrowed(n, [&](Count n) { return ArrScale(x, n, out, offset, scale); });
}

QV_EXPORT Status ZemFunc154(double* x, Size rows, Size cols, double* out, double* offset, double* scale) {
    return narrowed(rows, cols,
                    [&](Count rows, Count cols) { return ArrScale(x, Product(rows, cols), out, offset, scale); });
}

QV_EXPORT Status ZemFunc143(double* x, Size n, double* out, double* peak) {
    return narrowed(n, [&](Count n) { return ArrQuickScale(x, n, out, peak); });
}

QV_EXPORT Status ZemFunc144(double* x, Size rows, Size cols, double* out, double* peak) {
    return narrowed(rows, cols,
                    [&](Count rows, Count cols) { return ArrQuickScale(x, Product(rows, cols), out, peak); });
}

QV_EXPORT Status ZemFunc132(double* x, Size n, double* out, double* mean, double* stdDev) {
    return narrowed(n, [&](Count n) { return ArrNormalize(x, n, out, mean, stdDev); });
}

QV_EXPORT Status ZemFunc133(double* x, Size rows, Size cols, double* out, double* mean, double* stdDev) {
    return narrowed(rows, cols, [&](Count rows, Count cols) {
        if (rows < 1 || cols < 1) return status::kSamplesNotPositive;
        return ArrNormalize(x, Product(rows, cols), out, mean, stdDev);
    });
}

// Evaluation and limits

QV_EXPORT Status ZemFunc115(double* x, Size n, double a, double b, double* out) {
    return narrowed(n, [&](Count n) { return ArrLinearEval(x, n, a, b, out); });
}

QV_EXPORT Status ZemFunc116(double* x, Size rows, Size cols, double a, double b, double* out) {
    return narrowed(rows, cols,
                    [&](Count rows, Count cols) { return ArrLinearEval(x, Product(rows, cols), a, b, out); });
}

QV_EXPORT Status ZemFunc135(double* x, Size n, const double* coef, Count count, double* out) {
    return narrowed(n, [&](Count n) { return ArrPolyEval(x, n, coef, count, out); });
}

QV_EXPORT Status ZemFunc136(double* x, Size rows, Size cols, const double* coef, Count count, double* out) {
    return narrowed(rows, cols,
                    [&](Count rows, Count cols) { return ArrPolyEval(x, Product(rows, cols), coef, count, out); });
}

QV_EXPORT Status ZemFunc30(double* x, Size n, double upper, double lower, double* out) {
    return narrowed(n, [&](Count n) { return ArrClip(x, n, upper, lower, out); });
}
