#include "filters/savitzky_golay.h"

#include <algorithm>
#include <cmath>

#include "filters/direct_filter.h"
#include "frame/memory.h"
#include "frame/status.h"
#include "linalg/decompositions.h"
#include "linalg/lapack.h"
#include "linalg/matrix.h"
#include "linalg/solve.h"

namespace quorvan {
namespace {

using provider::Transposition;

// The size of a frame is odd by its making.
Status CheckOrder(Count order, Size frame) {
    if (order < 1) return status::kInvalidPolynomial;
    return frame <= order ? status::kPointsNotAboveOrder : status::kSuccess;
}

Size FrameOf(Count side) { return 2 * Size{side} + 1; }

// With V(i, j) = (i - side)^j and W the weights, the polynomial through a frame x has the coefficients
// (V'WV)⁻¹V'W x = R⁻¹R⁻ᵀV'W x, R the triangle of sqrt(W)·V.
Status Design(Count order, Count frame, const double* weights, double* smoother, double* derivatives) {
    const Count columns = order + 1;
    ProviderBlock<double> powers(Elements(frame, columns)), scaled(Elements(frame, columns));
    ProviderBlock<double> triangle(Elements(columns, columns)), normal(Elements(columns, columns));
    ProviderBlock<double> coefficients(Elements(columns, frame));
    if (!powers || !scaled || !triangle || !normal || !coefficients) return status::kOutOfMemory;
    const Count middle = frame / 2;
    for (Count i = 0; i < frame; ++i) {
        const double root = weights ? std::sqrt(std::fabs(weights[i])) : 1.0;
        const Size row = Size{i} * columns;
        double power = 1;
        for (Count j = 0; j < columns; ++j, power *= i - middle) {
            powers[row + j] = power;
            scaled[row + j] = power * root;
        }
    }
    if (Status failed = MatQr<double>(scaled, frame, columns, true, nullptr, triangle)) return failed;
    if (Status failed = MatInverseKind<double>(triangle, columns, 3, nullptr)) return failed;
    Gemm(Transposition::kNone, Transposition::kTransposed, columns, columns, columns, triangle, columns, triangle,
         columns, normal, columns);
    Gemm(Transposition::kNone, Transposition::kTransposed, columns, frame, columns, normal, columns, powers, columns,
         coefficients, frame);
    if (weights)
        for (Count k = 0; k < columns; ++k)
            for (Count i = 0; i < frame; ++i) coefficients[Size{k} * frame + i] *= std::fabs(weights[i]);
    Gemm(Transposition::kNone, Transposition::kNone, frame, frame, columns, powers, columns, coefficients, frame,
         smoother, frame);
    if (derivatives) std::copy_n(coefficients.get(), Elements(columns, frame), derivatives);
    return status::kSuccess;
}

// The smoother of a frame, ready to run over signals.
class Smoother {
public:
    Status Prepare(Count order, Count side, const double* weights, Count n) {
        const Size frame = FrameOf(side);
        if (Status failed = CheckOrder(order, frame)) return failed;
        if (n < frame) return status::kWrongDataCount;
        frame_ = static_cast<Count>(frame);
        rows_ = Block<double>(Elements(frame_, frame_));
        taps_ = Block<double>(2 * static_cast<std::size_t>(frame_));
        if (!rows_ || !taps_) return status::kOutOfMemory;
        if (Status failed = Design(order, frame_, weights, rows_, nullptr)) return failed;
        std::reverse_copy(Row(side), Row(side) + frame_, taps_.get());
        return status::kSuccess;
    }

    // y must not be x.
    void Run(const double* x, Count n, double* y) {
        const Count side = frame_ / 2;
        for (Count i = 0; i < side; ++i) y[i] = Dot(Row(i), x);
        double* const past = taps_ + frame_;
        std::copy_n(x, frame_ - 1, past);
        FilterFir(x + (frame_ - 1), n - (frame_ - 1), taps_, past, frame_, y + side);
        for (Count i = 0; i < side; ++i) y[n - side + i] = Dot(Row(side + 1 + i), x + (n - frame_));
    }

private:
    const double* Row(Count i) const { return rows_ + Size{i} * frame_; }
    double Dot(const double* row, const double* x) const {
        double sum = 0;
        for (Count i = 0; i < frame_; ++i) sum += row[i] * x[i];
        return sum;
    }

    Count frame_ = 0;
    Block<double> rows_;
    Block<double> taps_;  // the middle row from its end, and room for its state
};

}  // namespace

Status SavitzkyGolayDesign(Count order, Count side, const double* weights, Count wantDerivatives, double* smoother,
                           double* derivatives) noexcept {
    const Size frame = FrameOf(side);
    if (Status failed = CheckOrder(order, frame)) return failed;
    if (frame > INT32_MAX) return status::kOverflow;
    return Design(order, static_cast<Count>(frame), weights, smoother, wantDerivatives ? derivatives : nullptr);
}

Status SavitzkyGolayFilter(const double* x, Count n, Count order, Count side, const double* weights,
                           double* y) noexcept {
    Smoother smoother;
    if (Status failed = smoother.Prepare(order, side, weights, n)) return failed;
    if (x != y) {
        smoother.Run(x, n, y);
        return status::kSuccess;
    }
    Block<double> copy(static_cast<std::size_t>(n));
    if (!copy) return status::kOutOfMemory;
    std::copy_n(x, n, copy.get());
    smoother.Run(copy, n, y);
    return status::kSuccess;
}

Status SavitzkyGolayFilterComplex(const ComplexRecord* x, Count n, Count order, Count side, const double* weights,
                                  ComplexRecord* y) noexcept {
    Smoother smoother;
    if (Status failed = smoother.Prepare(order, side, weights, n)) return failed;
    Block<double> work(4 * static_cast<std::size_t>(n));
    if (!work) return status::kOutOfMemory;
    double *re = work, *im = re + n, *smooth_re = im + n, *smooth_im = smooth_re + n;
    for (Count i = 0; i < n; ++i) re[i] = x[i].re, im[i] = x[i].im;
    smoother.Run(re, n, smooth_re);
    smoother.Run(im, n, smooth_im);
    for (Count i = 0; i < n; ++i) y[i] = {smooth_re[i], smooth_im[i]};
    return status::kSuccess;
}

}  // namespace quorvan
