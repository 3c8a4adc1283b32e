#include "transforms/convolution_2d.h"

#include <algorithm>

#include "frame/complex.h"
#include "transforms/convolution.h"
#include "transforms/direct_convolution.h"
#include "transforms/plane.h"

namespace quorvan {
namespace {

template <class T>
struct Array2D {
    const T* data;
    Count rows, cols;

    Size count() const { return Size{rows} * cols; }
    const T* row(Size r) const { return data + r * cols; }
};

void AddRow(const double* a, Count n, const double* b, Count m, double* out) {
    kDirectConvolution().reals(a, n, b, m, out);
}
void AddRow(const ComplexRecord* a, Count n, const ComplexRecord* b, Count m, ComplexRecord* out) {
    kDirectConvolution().records(a, n, b, m, out);
}

// Every output is a sum over the array with fewer elements, row by row in ascending order.
template <class T>
void Direct(Array2D<T> x, Array2D<T> y, Count R, Count C, T* full) {
    std::fill(full, full + Size{R} * C, T{});
    const Array2D<T>&few = x.count() < y.count() ? x : y, &many = x.count() < y.count() ? y : x;
    for (Size r = 0; r < R; ++r)
        for (Size i = std::max<Size>(0, r - many.rows + 1); i <= std::min<Size>(r, few.rows - 1); ++i)
            AddRow(few.row(i), few.cols, many.row(r - i), many.cols, full + r * C);
}

// The spectrum of padded reals, for the columns up to C / 2.
Status Spectrum(const Plane& plane, Array2D<double> x, Count C, ComplexRecord* half) {
    const Count H = C / 2 + 1;
    double *const samples = plane.realLine(), *const packed = samples + C;
    for (Count r = 0; r < x.rows; ++r) {
        CopyPadded(x.row(r), x.cols, C, samples);
        if (const Status failure = FftReal(plane.rowPlan(), samples, packed, 1, 1, C)) return failure;
        ComplexRecord* bins = half + Size{r} * H;
        bins[0] = {packed[0], 0};
        for (Count k = 1; k <= (C - 1) / 2; ++k) bins[k] = {packed[k], packed[C - k]};
        if (C % 2 == 0) bins[C / 2] = {packed[C / 2], 0};
    }
    return plane.columns(FftComplex, half, H, H, x.rows, 0, 0);
}

Status Samples(const Plane& plane, ComplexRecord* half, Count R, Count C, double* out) {
    const Count H = C / 2 + 1;
    if (const Status failure = plane.columns(FftComplexInverse, half, H, H, R, 0, 0)) return failure;
    double* const packed = plane.realLine();
    for (Count r = 0; r < R; ++r) {
        const ComplexRecord* bins = half + Size{r} * H;
        packed[0] = bins[0].re;
        for (Count k = 1; k <= (C - 1) / 2; ++k) {
            packed[k] = bins[k].re;
            packed[C - k] = bins[k].im;
        }
        if (C % 2 == 0) packed[C / 2] = bins[C / 2].re;
        if (const Status failure = FftRealInverse(plane.rowPlan(), packed, out + Size{r} * C, 1, 1, C)) return failure;
    }
    return status::kSuccess;
}

Status Spectrum(const Plane& plane, Array2D<ComplexRecord> x, Count C, ComplexRecord* spectrum) {
    for (Count r = 0; r < x.rows; ++r) {
        CopyPadded(x.row(r), x.cols, C, plane.line());
        if (const Status failure = RecordsThrough(FftComplex, plane.rowPlan(), plane.line(), spectrum + Size{r} * C, C))
            return failure;
    }
    return plane.columns(FftComplex, spectrum, C, C, x.rows, 0, 0);
}

Status Samples(const Plane& plane, ComplexRecord* spectrum, Count R, Count C, ComplexRecord* out) {
    if (const Status failure = plane.columns(FftComplexInverse, spectrum, C, C, R, 0, 0)) return failure;
    for (Size r = 0; r < R; ++r)
        if (const Status failure = plane.inverseRow(spectrum + r * C, false, out + r * C)) return failure;
    return status::kSuccess;
}

constexpr Count SpectrumColumns(const double*, Count C) { return C / 2 + 1; }
constexpr Count SpectrumColumns(const ComplexRecord*, Count C) { return C; }

template <class T>
Status ByFft(Array2D<T> x, Array2D<T> y, Count R, Count C, T* full) {
    const std::size_t bins = static_cast<std::size_t>(R) * SpectrumColumns(full, C);
    const Plane plane(R, C);
    const Block<ComplexRecord> work(2 * bins);
    if (!plane || !work) return status::kOutOfMemory;
    ComplexRecord *const first = work, *const second = first + bins;
    if (const Status failure = Spectrum(plane, x, C, first)) return failure;
    if (const Status failure = Spectrum(plane, y, C, second)) return failure;
    kSpectrumLoops().multiply(first, second, bins, first);
    return Samples(plane, first, R, C, full);
}

template <class T>
Status Full(Array2D<T> x, Array2D<T> y, Count R, Count C, std::uint32_t method, T* full) {
    if (method == kConvolveByFft) return ByFft(x, y, R, C, full);
    Direct(x, y, R, C, full);
    return status::kSuccess;
}

Status Check(Count rows1, Count cols1, Count rows2, Count cols2, std::uint32_t shape, std::uint32_t method) {
    if (rows1 < 1 || cols1 < 1 || rows2 < 1 || cols2 < 1) return status::kSamplesNotPositive;
    if (shape > kShapeInside || method > kConvolveByFft) return status::kInvalidSelection;
    if (shape == kShapeInside && (rows1 < rows2 || cols1 < cols2)) return status::kWrongDataCount;
    const Size R = ConvolvedLength(rows1, rows2), C = ConvolvedLength(cols1, cols2);
    return R > INT32_MAX || C > INT32_MAX || R * C > INT32_MAX ? status::kOverflow : status::kSuccess;
}

double Conjugate(double v) { return v; }
ComplexRecord Conjugate(ComplexRecord v) { return CxConj(v); }

}  // namespace

template <class T>
Status Convolve2D(const T* x, Count rows1, Count cols1, const T* y, Count rows2, Count cols2, std::uint32_t shape,
                  std::uint32_t method, T* out) noexcept {
    if (const Status failure = Check(rows1, cols1, rows2, cols2, shape, method)) return failure;
    const Count R = static_cast<Count>(ConvolvedLength(rows1, rows2));
    const Count C = static_cast<Count>(ConvolvedLength(cols1, cols2));
    const Array2D<T> first{x, rows1, cols1}, second{y, rows2, cols2};
    if (shape == kShapeFull) return Full(first, second, R, C, method, out);

    const Block<T> full(static_cast<std::size_t>(R) * C);
    if (!full) return status::kOutOfMemory;
    if (const Status failure = Full(first, second, R, C, method, full.get())) return failure;
    const bool same = shape == kShapeSame;
    const Count rows = same ? rows1 : rows1 - rows2 + 1, cols = same ? cols1 : cols1 - cols2 + 1;
    const Count top = same ? rows2 / 2 : rows2 - 1, left = same ? cols2 / 2 : cols2 - 1;
    for (Size r = 0; r < rows; ++r) {
        const T* row = full + (top + r) * C + left;
        std::copy(row, row + cols, out + r * cols);
    }
    return status::kSuccess;
}

template <class T>
Status Correlate2D(const T* x, Count rows1, Count cols1, const T* y, Count rows2, Count cols2, std::uint32_t method,
                   T* out) noexcept {
    if (const Status failure = Check(rows1, cols1, rows2, cols2, kShapeFull, method)) return failure;
    const Size count = Size{rows1} * cols1;
    const Block<T> reversed(static_cast<std::size_t>(count));
    if (!reversed) return status::kOutOfMemory;
    for (Size i = 0; i < count; ++i) reversed[i] = Conjugate(x[count - 1 - i]);
    return Convolve2D<T>(reversed, rows1, cols1, y, rows2, cols2, kShapeFull, method, out);
}

template Status Convolve2D(const double*, Count, Count, const double*, Count, Count, std::uint32_t, std::uint32_t,
                           double*) noexcept;
template Status Convolve2D(const ComplexRecord*, Count, Count, const ComplexRecord*, Count, Count, std::uint32_t,
                           std::uint32_t, ComplexRecord*) noexcept;
template Status Correlate2D(const double*, Count, Count, const double*, Count, Count, std::uint32_t, double*) noexcept;
template Status Correlate2D(const ComplexRecord*, Count, Count, const ComplexRecord*, Count, Count, std::uint32_t,
                            ComplexRecord*) noexcept;

}  // namespace quorvan
