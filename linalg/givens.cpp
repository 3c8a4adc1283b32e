#include "linalg/givens.h"

#include <cmath>
#include <cstring>

#include "frame/memory.h"
#include "frame/status.h"
#include "linalg/decompositions.h"
#include "linalg/matrix.h"
#include "linalg/provider.h"

namespace quorvan {
namespace {

// (upper, lower) := (p·upper + s·lower, c·lower + t·upper)
struct Rotation {
    double p, s, c, t;

    void apply(double* upper, double* lower, std::ptrdiff_t from, std::ptrdiff_t to) const noexcept {
        for (std::ptrdiff_t i = from; i < to; ++i) {
            const double above = upper[i], below = lower[i];
            upper[i] = p * above + s * below;
            lower[i] = c * below + t * above;
        }
    }
};

// Rotates b into a by a plain rotation; each form divides the smaller element by the larger.
class PlainRotations {
public:
    static constexpr bool kScaled = false;
    explicit PlainRotations(double*) noexcept {}

    Rotation eliminate(double a, double b, std::ptrdiff_t) const noexcept {
        double c = 1, s = 0;
        if (b == 0) return {c, s, c, -s};
        if (std::fabs(b) > std::fabs(a)) {
            const double u = a / b;
            s = 1 / std::sqrt(u * u + 1);
            c = u * s;
        } else {
            const double u = b / a;
            c = 1 / std::sqrt(u * u + 1);
            s = u * c;
        }
        return {c, s, c, -s};
    }
};

// The same with factors alpha and beta beside ones, the rows being right up to 1 / sqrt(scale).
class FastRotations {
public:
    static constexpr bool kScaled = true;
    explicit FastRotations(double* scales) noexcept : scales_(scales) {}

    // Between the rows `row` - 1 and `row`.
    Rotation eliminate(double a, double b, std::ptrdiff_t row) const noexcept {
        if (b == 0) return {1, 0, 1, 0};
        double &d1 = scales_[row - 1], &d2 = scales_[row];
        double alpha = -a / b;
        double beta = -alpha * d2 / d1;
        const double g = -alpha * beta;
        if (g > 1) {
            alpha = 1 / alpha;
            beta = 1 / beta;
            d1 *= 1 + 1 / g;
            d2 *= 1 + 1 / g;
            return {1, beta, 1, alpha};
        }
        const double scaled = d1 * (1 + g);
        d1 = d2 * (1 + g);
        d2 = scaled;
        return {beta, 1, alpha, 1};
    }

private:
    double* scales_;
};

// A row and its scale grow with the fast rotations. Powers of two take them back before they overflow, and change no
// bit of a quotient.
constexpr double kLargeScale = 0x1p+400;

struct Matrices {
    double* r;
    double* q;  // transposed; may be null
    std::ptrdiff_t m, n;

    void shrink(std::ptrdiff_t row, double& scale) const noexcept {
        if (!(scale > kLargeScale)) return;
        scale *= 0x1p-400;
        multiplyRow(row, 0x1p-200);
    }

    void multiplyRow(std::ptrdiff_t row, double factor) const noexcept {
        for (std::ptrdiff_t i = 0; i < n; ++i) r[row * n + i] *= factor;
        for (std::ptrdiff_t i = 0; q && i < m; ++i) q[row * m + i] *= factor;
    }
};

double ColumnNorm(const Matrices& w, std::ptrdiff_t column) noexcept {
    return provider::cblas_dnrm2(static_cast<Count>(w.m), w.r + column, static_cast<Count>(w.n));
}

// Column by column from the bottom up, each element into the one above it. `row` counts the pivots found, `remaining`
// the rows below them; a column of zeros is passed over and leaves both.
template <class Rotations>
void Reduce(const Matrices& w, double* scales) noexcept {
    const Rotations rotations(scales);
    std::ptrdiff_t row = 0, remaining = w.m;
    for (std::ptrdiff_t column = 0; column < w.n && row < w.m; ++column) {
        const double norm = ColumnNorm(w, column);
        if (norm == 0) continue;
        // In the first column the limit is 0 and nothing lies below it, deliberately: all its rotations are made.
        const double limit = norm * kEpsilon * static_cast<double>(column) / std::sqrt(static_cast<double>(remaining));
        const auto is_zero = [limit](double v) { return v > -limit && v < limit; };

        bool found = !is_zero(w.r[row * w.n + column]);
        for (std::ptrdiff_t i = w.m - 1; i > row; --i) {
            double *upper = w.r + (i - 1) * w.n, *lower = w.r + i * w.n;
            if (is_zero(lower[column])) continue;
            found = true;
            const Rotation rotation = rotations.eliminate(upper[column], lower[column], i);
            rotation.apply(upper, lower, column, w.n);
            if (w.q) rotation.apply(w.q + (i - 1) * w.m, w.q + i * w.m, 0, w.m);
            if constexpr (Rotations::kScaled) {
                w.shrink(i - 1, scales[i - 1]);
                w.shrink(i, scales[i]);
            }
        }
        if (found) {
            --remaining;
            ++row;
        } else {
            for (std::ptrdiff_t i = row; i < w.m; ++i) w.r[i * w.n + column] = 0;
        }
    }
}

template <class Rotations>
Status QrByRotations(double* a, Count m, Count n, double* q, double* r) noexcept {
    if (m < 1 || n < 1) return status::kSamplesNotPositive;
    if (!ElementsFit(m, n) || (q && !ElementsFit(m, m))) return status::kOverflow;
    if (MatScreen(a, Elements(m, n))) return status::kNonFiniteInput;
    const auto rows = static_cast<std::size_t>(m);
    const Block<double> turned(q ? Elements(m, m) : 0), scales(rows);
    if (!turned || !scales) return status::kOutOfMemory;

    double* triangle = r ? r : a;
    if (triangle != a) std::memcpy(triangle, a, Elements(m, n) * sizeof(double));
    if (q) std::memset(turned.get(), 0, Elements(m, m) * sizeof(double));
    for (std::size_t i = 0; i < rows; ++i) {
        if (q) turned[i * rows + i] = 1;
        scales[i] = 1;
    }
    const Matrices work{triangle, q ? turned.get() : nullptr, m, n};
    Reduce<Rotations>(work, scales);
    if constexpr (Rotations::kScaled)
        for (std::ptrdiff_t i = 0; i < work.m; ++i) work.multiplyRow(i, 1 / std::sqrt(scales[i]));
    if (q) TransposeTo(turned.get(), m, m, q);
    return status::kSuccess;
}

}  // namespace

Status GivensQr(double* a, Count m, Count n, double* q, double* r) noexcept {
    return QrByRotations<PlainRotations>(a, m, n, q, r);
}

Status FastGivensQr(double* a, Count m, Count n, double* q, double* r) noexcept {
    return QrByRotations<FastRotations>(a, m, n, q, r);
}

Status MatQrMethod(double* a, Count m, Count n, std::uint32_t method, double* q, double* r) noexcept {
    if (m < 1 || n < 1) return status::kSamplesNotPositive;
    switch (method) {
        case 0: return MatQr(a, m, n, false, q, r);
        case 1: return GivensQr(a, m, n, q, r);
        case 2: return FastGivensQr(a, m, n, q, r);
        default: return status::kInvalidSelection;
    }
}

}  // namespace quorvan
