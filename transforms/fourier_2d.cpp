#include "transforms/fourier_2d.h"

#include "frame/complex.h"
#include "transforms/fourier.h"
#include "transforms/plane.h"

namespace quorvan {
namespace {

// Where the bin of the opposite frequency stands, among `length` bins. The lowest bin of an even shifted order is its
// own opposite.
constexpr Count Mirror(Count index, Count length, bool shift) noexcept {
    if (shift && length % 2 != 0) return length - 1 - index;
    return index == 0 ? 0 : length - index;
}

// The columns of negative frequency from those of positive: X(-r, -c) = conj X(r, c).
void FillFromMirror(ComplexRecord* spectrum, Count rows, Count cols, bool shift) {
    const Count middle = cols / 2, begin = shift ? (cols + 1) % 2 : middle + 1, end = shift ? middle : cols;
    for (Count r = 0; r < rows; ++r) {
        ComplexRecord* row = spectrum + Size{r} * cols;
        const ComplexRecord* mirror = spectrum + Size{Mirror(r, rows, shift)} * cols;
        for (Count c = begin; c < end; ++c) row[c] = CxConj(mirror[Mirror(c, cols, shift)]);
    }
}

Status RowOfRecords(const Plane& plane, const ComplexRecord* x, Count n, Count length, bool shift, ComplexRecord* out) {
    if (length > n) {
        CopyPadded(x, n, length, plane.line());
        x = plane.line();
    }
    if (const Status failure = RecordsThrough(FftComplex, plane.rowPlan(), x, out, length)) return failure;
    if (shift) RotateToShifted(out, length, plane.line());
    return status::kSuccess;
}

}  // namespace

// The output is the workspace of both passes.
Status TransformRealFft2D(const double* x, Count rows, Count cols, Count fftRows, Count fftCols, bool shift,
                          ComplexRecord* out) noexcept {
    if (rows < 1 || cols < 1) return status::kSamplesNotPositive;
    const Count R = TransformLength(rows, fftRows), C = TransformLength(cols, fftCols), used = std::min(rows, R);
    if (TooManyElements(R, C)) return status::kOverflow;
    if (R == 1 && C == 1) {
        out[0] = {x[0], 0};
        return status::kSuccess;
    }
    const Plane plane(R, C, FftPlanUse::kSpectra);
    if (!plane) return status::kOutOfMemory;
    for (Size r = 0; r < used; ++r)
        if (const Status failure = SpectrumOfReals(plane.rowPlan(), x + r * cols, cols, C, shift, out + r * C))
            return failure;

    // Only the columns of the frequencies 0 to C / 2 go through the second pass; of an even shifted order the last of
    // them is column 0.
    const Count to = shift ? R / 2 : 0, first = shift ? C / 2 : 0;
    const Count count = shift ? C - C / 2 : C / 2 + 1;
    if (const Status failure = plane.columns(FftComplex, out + first, C, count, used, 0, to)) return failure;
    if (shift && C % 2 == 0)
        if (const Status failure = plane.columns(FftComplex, out, C, 1, used, 0, to)) return failure;
    FillFromMirror(out, R, C, shift);
    return status::kSuccess;
}

Status TransformComplexFft2D(const ComplexRecord* x, Count rows, Count cols, Count fftRows, Count fftCols, bool shift,
                             ComplexRecord* out) noexcept {
    if (rows < 1 || cols < 1) return status::kSamplesNotPositive;
    const Count R = TransformLength(rows, fftRows), C = TransformLength(cols, fftCols), used = std::min(rows, R);
    if (TooManyElements(R, C)) return status::kOverflow;
    if (R == 1 && C == 1) {
        out[0] = x[0];
        return status::kSuccess;
    }
    const Plane plane(R, C);
    if (!plane) return status::kOutOfMemory;
    for (Size r = 0; r < used; ++r)
        if (const Status failure = RowOfRecords(plane, x + r * cols, cols, C, shift, out + r * C)) return failure;
    return plane.columns(FftComplex, out, C, C, used, 0, shift ? R / 2 : 0);
}

// The result is real, so only the rows of the frequencies 0 to R / 2 are read.
Status TransformRealIfft2D(const ComplexRecord* X, Count rows, Count cols, bool shift, double* out) noexcept {
    if (rows < 1 || cols < 1) return status::kSamplesNotPositive;
    if (TooManyElements(rows, cols)) return status::kOverflow;
    const Count halfRows = rows / 2 + 1;
    const Plane plane(rows, cols);
    const Block<ComplexRecord> half(static_cast<std::size_t>(halfRows) * cols);
    if (!plane || !half) return status::kOutOfMemory;
    for (Count r = 0; r < halfRows; ++r) {
        const Count row = shift ? (rows / 2 + r) % rows : r;
        if (const Status failure = plane.inverseRow(X + Size{row} * cols, shift, half + Size{r} * cols)) return failure;
    }

    double* const packed = &plane.block()->re;
    double* const columns = packed + Size{kColumnBlock} * rows;
    return InColumnBlocks(cols, [&](Count first, Count width) -> Status {
        for (Count r = 0; r < halfRows; ++r) {
            const ComplexRecord* bins = half + Size{r} * cols + first;
            for (Count c = 0; c < width; ++c) {
                packed[Size{c} * rows + r] = bins[c].re;
                if (r > 0 && 2 * r < rows) packed[Size{c + 1} * rows - r] = bins[c].im;
            }
        }
        for (Size c = 0; c < width; ++c)
            if (const Status failure =
                    FftRealInverse(plane.columnPlan(), packed + c * rows, columns + c * rows, 1, 1, rows))
                return failure;
        ScatterColumns(columns, rows, 0, width, out + first, cols);
        return status::kSuccess;
    });
}

Status TransformComplexIfft2D(const ComplexRecord* X, Count rows, Count cols, bool shift, ComplexRecord* out) noexcept {
    if (rows < 1 || cols < 1) return status::kSamplesNotPositive;
    if (TooManyElements(rows, cols)) return status::kOverflow;
    const Plane plane(rows, cols);
    if (!plane) return status::kOutOfMemory;
    for (Size r = 0; r < rows; ++r)
        if (const Status failure = plane.inverseRow(X + r * cols, shift, out + r * cols)) return failure;
    return plane.columns(FftComplexInverse, out, cols, cols, rows, shift ? rows / 2 : 0, 0);
}

}  // namespace quorvan
