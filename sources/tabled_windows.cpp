// Windows that are first written down as a table: Bartlett-Hanning, Bohman, Parzen, Welch.
#include <cmath>

#include "frame/memory.h"
#include "frame/status.h"
#include "sources/window_scale.h"
#include "sources/windows.h"

namespace quorvan {
namespace {

// cos(2 pi k / n) and sin(2 pi k / n) for k = 1, 2, ...: one turn of the addition theorem each, no call per sample.
class Rotation {
public:
    explicit Rotation(Count n) noexcept : cosine_(std::cos(kTwoPi / n)), sine_(std::sin(kTwoPi / n)) {}

    double cosine() const noexcept { return c_; }
    double sine() const noexcept { return s_; }
    void advance() noexcept {
        const double c = c_ * cosine_ - s_ * sine_;
        s_ = s_ * cosine_ + c_ * sine_;
        c_ = c;
    }

private:
    double cosine_, sine_;
    double c_ = cosine_, s_ = sine_;
};

// Multiplies by the table with w[0] = 0 and w[k] = w[n - k] = factor(k), k = 1 to n / 2 in this order.
template <class T, class Factor>
Status MultiplyByTable(T* x, Count n, Factor factor) noexcept {
    if (n == 1) return status::kSuccess;
    Block<double> w(n);
    if (!w) return status::kOutOfMemory;
    w[0] = 0.0;
    for (Count k = 1; k <= n / 2; ++k) {
        const double value = factor(k);
        w[k] = value;
        w[n - k] = value;
    }
    for (Count i = 0; i < n; ++i) Scale(x[i], w[i]);
    return status::kSuccess;
}

}  // namespace

// 0.62 - 0.48 |k/n - 0.5| - 0.38 cos(2 pi k / n). Y. H. Ha, J. A. Pearce, "A new window and comparison to standard
// windows", IEEE Trans. ASSP 37 (1989).
template <class T>
Status WinBartlettHanning(T* x, Count n) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    return MultiplyByTable(x, n, [n, angle = Rotation(n)](Count k) mutable {
        const double w = 0.62 - 0.48 * std::fabs(static_cast<double>(k) / n - 0.5) - 0.38 * angle.cosine();
        angle.advance();
        return w;
    });
}

// sin(2 pi k / n) / pi - (2 k / n) cos(2 pi k / n), k up to n / 2. F. J. Harris, Proc. IEEE 66 (1978).
template <class T>
Status WinBohman(T* x, Count n) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    return MultiplyByTable(x, n, [n, angle = Rotation(n)](Count k) mutable {
        const double w = angle.sine() * 0.3183098861837907 - k * 2.0 / n * angle.cosine();
        angle.advance();
        return w;
    });
}

// With h = n / 2 and d = |k - h|: 2 (1 - d/h)^3 beyond h / 2, 1 - 6 d^2/h^2 + 6 d^3/h^3 within. F. J. Harris,
// Proc. IEEE 66 (1978).
template <class T>
Status WinParzen(T* x, Count n) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    const double h = n / 2.0, edge = h / 2.0, square = 6.0 / (h * h), cube = 6.0 / (h * h * h);
    return MultiplyByTable(x, n, [=](Count k) {
        const double d = std::fabs(k - h), t = 1.0 - d / h;
        const double outer = 2.0 * (t * t * t), inner = 1.0 - d * d * square + d * d * d * cube;
        return d > edge ? outer : inner;
    });
}

// 1 - (k - h)^2 / h^2, h = n / 2. P. D. Welch, IEEE Trans. Audio Electroacoust. 15 (1967).
template <class T>
Status WinWelch(T* x, Count n) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    const double h = n / 2.0, square = h * h;
    return MultiplyByTable(x, n, [=](Count k) {
        const double d = k - h;
        return 1.0 - d * d / square;
    });
}

#define QV_INSTANTIATE(T)                                   \
    template Status WinBartlettHanning(T*, Count) noexcept; \
    template Status WinBohman(T*, Count) noexcept;          \
    template Status WinParzen(T*, Count) noexcept;          \
    template Status WinWelch(T*, Count) noexcept;
QV_INSTANTIATE(double)
QV_INSTANTIATE(ComplexRecord)

}  // namespace quorvan
