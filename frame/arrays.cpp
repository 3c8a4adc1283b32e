#include "frame/arrays.h"

#include <cstring>

#include "frame/array_loops.h"
#include "frame/status.h"

namespace quorvan {
namespace {

std::size_t Bytes(Count n) noexcept { return sizeof(double) * static_cast<std::size_t>(n); }

}  // namespace

Status ArrClear(double* x, Count n) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    std::memset(x, 0, Bytes(n));
    return status::kSuccess;
}

Status ArrFill(double* x, Count n, double value) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    kArrayLoops().fill(value, n, x);
    return status::kSuccess;
}

Status ArrCopy(const double* x, Count n, double* out) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    std::memmove(out, x, Bytes(n));
    return status::kSuccess;
}

Status ArrSubset(const double* x, Count n, Count index, Count length, double* out) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    if (index < 0 || index >= n) return status::kIndexOutOfRange;
    if (length < 1) return status::kSamplesNotPositive;
    if (length > n - index) return status::kIndexLengthOutOfRange;  // reaching the end is allowed, deliberately
    std::memmove(out, x + index, Bytes(length));
    return status::kSuccess;
}

Status ArrReverse(double* x, Count n, double* out) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    kArrayLoops().reverse(x, n, InPlaceIfNull(out, x));
    return status::kSuccess;
}

// Shifting everything out, by n, is allowed, deliberately.
Status ArrShift(double* x, Count n, Count shift, double* out) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    if (shift > n || shift < -n) return status::kShiftOutOfRange;
    out = InPlaceIfNull(out, x);
    const Count places = shift < 0 ? -shift : shift, kept = n - places;
    if (shift >= 0) {
        std::memmove(out + places, x, Bytes(kept));
        std::memset(out, 0, Bytes(places));
    } else {
        std::memmove(out, x + places, Bytes(kept));
        std::memset(out + kept, 0, Bytes(places));
    }
    return status::kSuccess;
}

Status ArrAdd(const double* x, const double* y, Count n, double* out) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    kArrayLoops().add(x, y, n, out);
    return status::kSuccess;
}

Status ArrSubtract(const double* x, const double* y, Count n, double* out) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    kArrayLoops().subtract(x, y, n, out);
    return status::kSuccess;
}

Status ArrMultiply(const double* x, const double* y, Count n, double* out) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    kArrayLoops().multiply(x, y, n, out);
    return status::kSuccess;
}

Status ArrDivide(const double* x, const double* y, Count n, double* out) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    return kArrayLoops().divide(x, y, n, out) ? status::kSuccess : status::kDivideByZero;
}

Status ArrNegate(double* x, Count n, double* out) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    kArrayLoops().negate(x, n, InPlaceIfNull(out, x));
    return status::kSuccess;
}

Status ArrAbs(double* x, Count n, double* out) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    kArrayLoops().abs(x, n, InPlaceIfNull(out, x));
    return status::kSuccess;
}

Status ArrLinearEval(double* x, Count n, double a, double b, double* out) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    kArrayLoops().linear(x, n, a, b, InPlaceIfNull(out, x));
    return status::kSuccess;
}

Status ArrPolyEval(double* x, Count n, const double* coef, Count count, double* out) noexcept {
    if (n < 1 || count < 1) return status::kSamplesNotPositive;
    kArrayLoops().polynomial(x, n, coef, count, InPlaceIfNull(out, x));
    return status::kSuccess;
}

Status ArrClip(double* x, Count n, double upper, double lower, double* out) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    if (lower > upper) return status::kUpperBelowLower;
    kArrayLoops().clip(x, n, upper, lower, InPlaceIfNull(out, x));
    return status::kSuccess;
}

Status ArrSum(const double* x, Count n, double* sum) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    double total = 0;
    for (Count i = 0; i < n; ++i) total += x[i];
    *sum = total;
    return status::kSuccess;
}

Status ArrProduct(const double* x, Count n, double* product) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    double total = 1;
    for (Count i = 0; i < n; ++i) total *= x[i];
    *product = total;
    return status::kSuccess;
}

}  // namespace quorvan
