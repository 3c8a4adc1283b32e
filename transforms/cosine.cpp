#include "transforms/cosine.h"

#include <algorithm>
#include <cmath>

#include "frame/memory.h"
#include "frame/status.h"
#include "transforms/columns.h"
#include "transforms/fft.h"
#include "transforms/phases.h"

namespace quorvan {
namespace {

// A line transform holds all that a transform of one length needs, so that two dimensions pay for it once:
//     Line line(length); if (!line) out of memory; line(x, n, out);
// out may be x.

// What both directions of the cosine transform share. With y[j] = x[2j] and y[L-1-j] = x[2j+1], the bins Y of the
// real transform of y, and theta = pi k / (2L), the results are real and imaginary parts of twisted bins (J. Makhoul,
// "A fast cosine transform in one and two dimensions", IEEE Trans. ASSP 28, 1980):
//     X[k] = s (Re Y[k] cos theta + Im Y[k] sin theta), X[L-k] = s (Re Y[k] sin theta - Im Y[k] cos theta),
// s = sqrt(2/L), which holds for odd and even L alike.
class CosineLine {
public:
    CosineLine(Count length, double scale) noexcept
        : length_(length), plan_(length), phases_(2 * bins()), work_(2 * static_cast<std::size_t>(length)) {
        if (phases_) FillPhases(kPi / (2.0 * length), scale, length / 2 + 1, phases_, phases_ + bins());
    }
    explicit operator bool() const noexcept { return plan_ && phases_ && work_; }
    Count length() const noexcept { return length_; }

protected:
    std::size_t bins() const noexcept { return static_cast<std::size_t>(length_ / 2) + 1; }
    const double* cosines() const noexcept { return phases_; }
    const double* sines() const noexcept { return phases_ + bins(); }
    double* samples() const noexcept { return work_; }
    double* spectrum() const noexcept { return work_ + length_; }

    Count length_;
    HeldPlan plan_;

private:
    Block<double> phases_, work_;
};

class DctLine : public CosineLine {
public:
    explicit DctLine(Count length) noexcept : CosineLine(length, std::sqrt(2.0 / length)) {}

    Status operator()(const double* x, Count n, double* out) const noexcept {
        const Count L = length_, used = std::min(n, L);
        double *y = samples(), *h = spectrum();
        std::fill(y, y + L, 0.0);
        for (Count j = 0; 2 * j < used; ++j) y[j] = x[2 * j];
        for (Count j = 0; 2 * j + 1 < used; ++j) y[L - 1 - j] = x[2 * j + 1];
        if (const Status failure = FftReal(plan_, y, h, 1, 1, L)) return failure;

        const double *c = cosines(), *s = sines();
        out[0] = h[0] * (1 / std::sqrt(static_cast<double>(L)));
        for (Count k = 1; k <= (L - 1) / 2; ++k) {
            const double re = h[k], im = h[L - k];
            out[k] = re * c[k] + im * s[k];
            out[L - k] = re * s[k] - im * c[k];
        }
        if (L % 2 == 0) out[L / 2] = h[L / 2] * c[L / 2];
        return status::kSuccess;
    }
};

class IdctLine : public CosineLine {
public:
    explicit IdctLine(Count length) noexcept : CosineLine(length, std::sqrt(length / 2.0)) {}

    Status operator()(const double* x, Count, double* out) const noexcept {
        const Count n = length_;
        double *y = samples(), *h = spectrum();
        const double *c = cosines(), *s = sines();
        h[0] = x[0] * std::sqrt(static_cast<double>(n));
        for (Count k = 1; k <= (n - 1) / 2; ++k) {
            h[k] = x[k] * c[k] + x[n - k] * s[k];
            h[n - k] = x[k] * s[k] - x[n - k] * c[k];
        }
        if (n % 2 == 0) h[n / 2] = x[n / 2] * (2 * c[n / 2]);
        if (const Status failure = FftRealInverse(plan_, h, y, 1, 1, n)) return failure;

        for (Count j = 0; 2 * j < n; ++j) out[2 * j] = y[j];
        for (Count j = 0; 2 * j + 1 < n; ++j) out[2 * j + 1] = y[n - 1 - j];
        return status::kSuccess;
    }
};

// Both directions of the sine transform: the real transform of the odd extension {0, x, 0, -reversed x} of 2L + 2
// points has the sums in its imaginary parts, -2 X.
class SineLine {
public:
    explicit SineLine(Count length) noexcept
        : length_(length), plan_(extended()), work_(2 * static_cast<std::size_t>(extended())) {}
    explicit operator bool() const noexcept { return plan_ && work_; }
    Count length() const noexcept { return length_; }

protected:
    Count extended() const noexcept { return 2 * length_ + 2; }

    // imaginary[-k] is Im Y[k], k = 1 to L.
    Status transform(const double* x, Count n, const double*& imaginary) const noexcept {
        const Count L = length_, used = std::min(n, L);
        double *y = work_, *h = work_ + extended();
        std::fill(y, y + extended(), 0.0);
        for (Count j = 0; j < used; ++j) {
            y[j + 1] = x[j];
            y[2 * L + 1 - j] = -x[j];
        }
        imaginary = h + extended();
        return FftReal(plan_, y, h, 1, 1, extended());
    }

    Count length_;

private:
    HeldPlan plan_;
    Block<double> work_;
};

class DstLine : public SineLine {
public:
    using SineLine::SineLine;

    Status operator()(const double* x, Count n, double* out) const noexcept {
        const double* imaginary;
        if (const Status failure = transform(x, n, imaginary)) return failure;
        for (Count k = 1; k <= length_; ++k) out[k - 1] = -0.5 * imaginary[-k];
        return status::kSuccess;
    }
};

class IdstLine : public SineLine {
public:
    using SineLine::SineLine;

    Status operator()(const double* x, Count n, double* out) const noexcept {
        const double* imaginary;
        if (const Status failure = transform(x, n, imaginary)) return failure;
        // Deliberate: the whole factor 2/(n + 1) lies in the inverse.
        for (Count k = 1; k <= length_; ++k) out[k - 1] = -imaginary[-k] / (length_ + 1.0);
        return status::kSuccess;
    }
};

template <class Line>
Status OneDimension(const double* x, Count n, Count length, double* out) {
    if (n < 1) return status::kSamplesNotPositive;
    if (length < 1) return status::kFftSizeNotPositive;
    const Line line(length);
    if (!line) return status::kOutOfMemory;
    return line(x, n, out);
}

template <class Line>
Status Rows(const Line& line, const double* x, Count rows, double* out) {
    const Size cols = line.length();
    for (Size r = 0; r < rows; ++r)
        if (const Status failure = line(x + r * cols, line.length(), out + r * cols)) return failure;
    return status::kSuccess;
}

template <class Line>
Status Columns(const Line& line, const double* x, Count cols, double* block, double* out) {
    const Count rows = line.length();
    return InColumnBlocks(cols, [&](Count first, Count width) -> Status {
        GatherColumns(x + first, cols, rows, 0, rows, width, block);
        for (Count c = 0; c < width; ++c) {
            double* column = block + Size{c} * rows;
            if (const Status failure = line(column, rows, column)) return failure;
        }
        ScatterColumns(block, rows, 0, width, out + first, cols);
        return status::kSuccess;
    });
}

enum class First { kRows, kColumns };

template <class Line, First kFirst>
Status TwoDimensions(const double* x, Count rows, Count cols, double* out) {
    if (rows < 1 || cols < 1) return status::kSamplesNotPositive;
    if (TooManyElements(rows, cols)) return status::kOverflow;
    const Line rowLine(cols), columnLine(rows);
    const Block<double> block(static_cast<std::size_t>(kColumnBlock) * rows);
    if (!rowLine || !columnLine || !block) return status::kOutOfMemory;
    if constexpr (kFirst == First::kRows) {
        if (const Status failure = Rows(rowLine, x, rows, out)) return failure;
        return Columns(columnLine, out, cols, block, out);
    } else {
        if (const Status failure = Columns(columnLine, x, cols, block, out)) return failure;
        return Rows(rowLine, out, rows, out);
    }
}

}  // namespace

Status TransformDct(const double* x, Count n, Count length, double* out) noexcept {
    return OneDimension<DctLine>(x, n, length, out);
}
Status TransformIdct(const double* x, Count n, double* out) noexcept { return OneDimension<IdctLine>(x, n, n, out); }
Status TransformDst(const double* x, Count n, Count length, double* out) noexcept {
    return OneDimension<DstLine>(x, n, length, out);
}
Status TransformIdst(const double* x, Count n, double* out) noexcept { return OneDimension<IdstLine>(x, n, n, out); }

Status TransformDct2D(const double* x, Count rows, Count cols, double* out) noexcept {
    return TwoDimensions<DctLine, First::kRows>(x, rows, cols, out);
}
Status TransformIdct2D(const double* x, Count rows, Count cols, double* out) noexcept {
    return TwoDimensions<IdctLine, First::kColumns>(x, rows, cols, out);
}
Status TransformDst2D(const double* x, Count rows, Count cols, double* out) noexcept {
    return TwoDimensions<DstLine, First::kRows>(x, rows, cols, out);
}
Status TransformIdst2D(const double* x, Count rows, Count cols, double* out) noexcept {
    return TwoDimensions<IdstLine, First::kRows>(x, rows, cols, out);
}

}  // namespace quorvan
