#include "filters/equiripple_taps.h"

#include <algorithm>
#include <cmath>

#include "frame/status.h"

namespace quorvan {
namespace {

// x = (t - b)/a is the cosine of the true frequency for t of the stretched one: the Hilbert band on the whole axis.
struct Stretch {
    double a = 1, b = 0;
    bool on = false;
};

// a[j] = the response at the frequency j/N2 of the stretched axis.
void Sample(const RemezInterpolant& form, Count r, const Stretch& stretch, double* a) {
    constexpr double kNear = 1e-6;
    const double step = 1.0 / (2 * r - 1);
    double t[kResponses] = {}, A[kResponses];
    Count waiting[kResponses], count = 0;
    const auto flush = [&] {
        form.responses(t, A);
        for (Count p = 0; p < count; ++p) a[waiting[p]] = A[p];
        count = 0;
    };
    const double* const x = form.x();
    Count l = 0;
    for (Count j = 0; j < r; ++j) {
        double f = j * step, xt = std::cos(kTwoPi * f);
        if (stretch.on) {
            xt = (xt - stretch.b) / stretch.a;
            f = std::acos(xt) / kTwoPi;
        }
        while (std::fabs(x[l] - xt) >= kNear && !(xt > x[l]) && l != r) ++l;
        if (std::fabs(x[l] - xt) >= kNear) {
            t[count] = std::cos(kTwoPi * f);
            waiting[count] = j;
            if (++count == kResponses) flush();
        } else {
            a[j] = form.y()[l];
        }
        if (l > 0) --l;
    }
    if (count > 0) flush();
}

// alpha[j] = (a[0] + 2 sum over k of a[k] cos(2 pi k j / N2)) / N2, twice that from j = 1 on. The cosines repeat: they
// come from a table with the phase reduced exactly.
void CosineCoefficients(const double* a, Count r, double* cosines, double* alpha) {
    const Count N2 = 2 * r - 1;
    const double d = kTwoPi / N2;
    for (Count m = 0; m < N2; ++m) cosines[m] = std::cos(m * d);
    for (Count j = 0; j < r; ++j) {
        double sum = 0;
        Count m = 0;
        for (Count k = 1; k < r; ++k) {
            m += j;
            if (m >= N2) m -= N2;
            sum += a[k] * cosines[m];
        }
        const double total = a[0] + 2 * sum;
        alpha[j] = (j == 0 ? total : 2 * total) / N2;
    }
}

// Substitutes x = (t - b)/a: the sum of cosines of the stretched frequency becomes one of the true frequency
// (a recurrence of Chebyshev polynomials of a linear argument).
void Unstretch(double aa, double bb, Count r, double* alpha, double* a, double* p, double* q) {
    p[0] = 2 * alpha[r - 1] * bb + alpha[r - 2];
    p[1] = 2 * aa * alpha[r - 1];
    q[0] = alpha[r - 3] - alpha[r - 1];
    for (Count j = 2; j < r; ++j) {
        if (j == r - 1) {
            aa /= 2;
            bb /= 2;
        }
        p[j] = 0;
        for (Count k = 0; k < j; ++k) {
            a[k] = p[k];
            p[k] = 2 * bb * a[k];
        }
        p[1] += 2 * aa * a[0];
        for (Count k = 0; k < j - 1; ++k) p[k] = p[k] + q[k] + aa * a[k + 1];
        for (Count k = 2; k <= j; ++k) p[k] += aa * a[k - 1];
        if (j == r - 1) break;
        for (Count k = 0; k < j; ++k) q[k] = -a[k];
        q[0] += alpha[r - 2 - j];
    }
    std::copy_n(p, r, alpha);
}

// The product of the sum of cosines and the factor of the symmetry, as taps.
void WriteTaps(const RemezRequest& request, const double* alpha, double* h) {
    const Count N = request.taps, r = request.functions();
    if (request.even() && request.odd_length()) {
        for (Count j = 0; j < r - 1; ++j) h[j] = h[N - 1 - j] = alpha[r - 1 - j] / 2;
        h[r - 1] = alpha[0];
    } else if (request.even()) {
        h[0] = h[N - 1] = alpha[r - 1] / 4;
        for (Count j = 1; j < r - 1; ++j) h[j] = h[N - 1 - j] = (alpha[r - 1 - j] + alpha[r - j]) / 4;
        h[r - 1] = h[r] = alpha[0] / 2 + alpha[1] / 4;
    } else if (request.odd_length()) {
        h[0] = alpha[r - 1] / 4;
        h[1] = alpha[r - 2] / 4;
        for (Count j = 2; j < r - 1; ++j) h[j] = (alpha[r - 1 - j] - alpha[r + 1 - j]) / 4;
        h[r - 1] = alpha[0] / 2 - alpha[2] / 4;
        h[r] = 0;
        for (Count j = 0; j < r; ++j) h[N - 1 - j] = -h[j];
    } else {
        h[0] = alpha[r - 1] / 4;
        for (Count j = 1; j < r - 1; ++j) h[j] = (alpha[r - 1 - j] - alpha[r - j]) / 4;
        h[r - 1] = (alpha[0] - alpha[1] / 2) / 2;
        for (Count j = 0; j < r; ++j) h[N - 1 - j] = -h[j];
    }
}

}  // namespace

Status RemezTaps(const RemezRequest& request, const RemezGrid& grid, const RemezInterpolant& form, double* h) noexcept {
    const Count r = request.functions();
    const std::size_t size = static_cast<std::size_t>(r) + 2;
    const Block<double> work(6 * size);
    if (!work) return status::kOutOfMemory;
    double *const alpha = work, *const a = alpha + size, *const p = a + size, *const q = p + size;
    double* const cosines = q + size;  // 2r - 1
    Stretch stretch;
    if (request.kind == kRemezHilbert) {
        const double t0 = grid.cosine[0], t1 = grid.cosine[grid.points - 1];
        stretch = {2 / (t0 - t1), -(t0 + t1) / (t0 - t1), true};
    }
    Sample(form, r, stretch, a);
    CosineCoefficients(a, r, cosines, alpha);
    if (stretch.on) Unstretch(stretch.a, stretch.b, r, alpha, a, p, q);
    if (r <= 3) alpha[r] = alpha[r + 1] = 0;
    WriteTaps(request, alpha, h);
    return status::kSuccess;
}

}  // namespace quorvan
