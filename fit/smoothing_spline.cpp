#include "fit/smoothing_spline.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "fit/spline.h"
#include "frame/memory.h"
#include "frame/status.h"
#include "linalg/banded.h"
#include "linalg/solve.h"

namespace quorvan {
namespace {

constexpr double kNatural = 1e30;

// Systems up to this order go to the dense solver.
constexpr Count kDenseOrder = 4;

// C. H. Reinsch, Smoothing by spline functions (Numer. Math. 10, 1967). With S the diagonal of sigma and Q the second
// divided differences of the samples, (Q'S²Q + R) u = Q'y and s = y - S²Qu; here q holds the three bands of S·Q.
class Smoother {
public:
    // 3 bands of S·Q, 5 of the matrix, right-hand side and solution, sigma, h: at most 12 doubles a sample.
    static constexpr std::size_t kDoublesPerSample = 12;

    Smoother(const double* x, const double* y, Count n, double* work) : x_(x), y_(y), n_(n), order_(n - 2) {
        const auto take = [&](std::size_t count) { return std::exchange(work, work + count); };
        h_ = take(n);
        sigma_ = take(n);
        q_ = take(3 * static_cast<std::size_t>(order_));
        band_ = take(5 * static_cast<std::size_t>(order_));
        right_ = take(order_);
        u_ = take(order_);
    }

    Status Run(double balance, const double* weights, const double* smoothness, double* out) {
        for (Count i = 0; i < n_ - 1; ++i) {
            h_[i] = x_[i + 1] - x_[i];
            if (h_[i] <= 0) return status::kAbscissaeNotDistinct;
        }
        if (balance < 0 || balance > 1) {
            const double g = (x_[n_ - 1] - x_[0]) / n_;  // n, not the number of intervals: deliberate
            balance = 8 / (8 + g * g * g);
        }
        const double scale = std::sqrt(6 * (1 - balance));
        for (Count i = 0; i < n_; ++i) {
            if (weights && weights[i] == 0) return status::kZeroNumber;
            sigma_[i] = weights ? scale / std::sqrt(std::fabs(weights[i])) : scale;
        }
        if (smoothness && std::find(smoothness, smoothness + n_ - 1, 0.0) != smoothness + n_ - 1)
            return status::kZeroNumber;
        Build(balance, smoothness);
        const Status status = Solve();
        if (status < 0) return status;
        for (Count i = 0; i < n_; ++i) {
            double product = 0;  // entry i of S·Q·u: the knots j = i, i + 1, i + 2 of x(i - 2 .. i + 2) touch sample i
            for (Count band = 0; band < 3; ++band)
                if (const Count knot = i - band; knot >= 0 && knot < order_) product += q_[3 * knot + band] * u_[knot];
            out[i] = y_[i] - sigma_[i] * product;
        }
        return status::kSuccess;
    }

private:
    // Knot j, from 0, is sample j + 1 and touches the samples j, j + 1 and j + 2.
    void Build(double balance, const double* smoothness) {
        for (Count j = 0; j < order_; ++j) {
            const double left = 1 / h_[j], right = 1 / h_[j + 1];
            q_[3 * j] = left * sigma_[j];
            q_[3 * j + 1] = -(left + right) * sigma_[j + 1];
            q_[3 * j + 2] = right * sigma_[j + 2];
            right_[j] = (y_[j + 2] - y_[j + 1]) / h_[j + 1] - (y_[j + 1] - y_[j]) / h_[j];
        }
        if (smoothness)
            for (Count i = 0; i < n_ - 1; ++i) h_[i] /= std::fabs(smoothness[i]);
        // Row kBand + d of the band holds element (j + d, j) at column j.
        const auto set = [&](Count i, Count j, double value) {
            band_[static_cast<Size>(kBand + i - j) * order_ + j] = value;
            band_[static_cast<Size>(kBand + j - i) * order_ + i] = value;
        };
        for (Count j = 0; j < order_; ++j) {
            const double* q = q_ + 3 * j;
            set(j, j, q[0] * q[0] + q[1] * q[1] + q[2] * q[2] + 2 * balance * (h_[j] + h_[j + 1]));
            if (j + 1 < order_) set(j + 1, j, q[1] * q[3] + q[2] * q[4] + balance * h_[j + 1]);
            if (j + 2 < order_) set(j + 2, j, q[2] * q[6]);
        }
    }

    Status Solve() {
        if (order_ > kDenseOrder) return MatBandedSolve(band_, order_, kBand, kBand, right_, 1, u_);
        double dense[kDenseOrder * kDenseOrder] = {};
        for (Count i = 0; i < order_; ++i)
            for (Count j = std::max(0, i - kBand); j <= std::min(order_ - 1, i + kBand); ++j)
                dense[i * order_ + j] = band_[static_cast<Size>(kBand + i - j) * order_ + j];
        const Status status = SolveLeastSquares(dense, order_, order_, right_, 1, -1.0, u_);
        // Samples that are NaN or infinite go through the arithmetic here too, as they do in a long band.
        return status == status::kNonFiniteInput ? MatSolve(dense, right_, order_, u_) : status;
    }

    static constexpr Count kBand = 2;
    const double* x_;
    const double* y_;
    Count n_;
    Count order_;
    double* h_;
    double* sigma_;
    double* q_;
    double* band_;
    double* right_;
    double* u_;
};

}  // namespace

Status InterpSmoothingSpline(const double* x, double* y, const double* weights, Count n, double balance,
                             const double* smoothness, double* out) noexcept {
    if (n < 2) return status::kSamplesBelowTwo;
    if (!x) return status::kSequencesNotSameSize;
    if (n == 2) return status::kSuccess;
    Block<double> work(Smoother::kDoublesPerSample * static_cast<std::size_t>(n));
    if (!work) return status::kOutOfMemory;
    double* const smoothed = out ? out : y;
    if (balance == 1) {
        if (smoothed != y) std::copy_n(y, n, smoothed);
    } else {
        const Status status = Smoother(x, y, n, work).Run(balance, weights, smoothness, smoothed);
        if (status < 0) return status;
    }
    // Only the status of this sweep counts: with balance 1 it is the one test of x.
    return SplineSweep(x, y, n, kNatural, kNatural, work.get(), work.get() + n);
}

}  // namespace quorvan
