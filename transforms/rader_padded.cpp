#include "transforms/rader_padded.h"

#include <cmath>
#include <cstring>
#include <initializer_list>

#include "frame/memory.h"
#include "frame/status.h"
#include "transforms/cache_lines.h"
#include "transforms/fft.h"
#include "transforms/rader_loops.h"

namespace quorvan {
namespace {

// exp(-pi i q / M) for q = 0 to M - 1, from a coarse and a fine table: one product an entry, and no error that grows.
void HalfBinTurns(Count M, double* turns) noexcept {
    constexpr Count kFine = 64;
    double fine[2 * kFine];
    const auto root = [M](Count q, double* at) {
        at[0] = std::cos(kPi * q / M);
        at[1] = -std::sin(kPi * q / M);
    };
    for (Count q = 0; q < kFine; ++q) root(q, fine + 2 * q);
    for (Size from = 0; from < M; from += kFine) {
        double coarse[2];
        root(static_cast<Count>(from), coarse);
        for (Size q = 0; q < kFine && from + q < M; ++q) {
            turns[2 * (from + q)] = coarse[0] * fine[2 * q] - coarse[1] * fine[2 * q + 1];
            turns[2 * (from + q) + 1] = coarse[0] * fine[2 * q + 1] + coarse[1] * fine[2 * q];
        }
    }
}

Status Forward(const FftPlan* plan, const double* in, double* out) noexcept {
    return FftComplex(plan, in, in + 1, out, out + 1, 2, 2, plan->size);
}

// M records each, one after the other.
struct Rows {
    double* first;
    Size M;
    double* operator[](int row) const noexcept { return first + 2 * M * row; }

    // Row `row` holds `count` records and ends in zeros.
    void Pad(int row, Count count) const noexcept {
        std::memset((*this)[row] + 2 * Size(count), 0, 2 * sizeof(double) * static_cast<std::size_t>(M - count));
    }
};

// What the sequence of the convolution is in one half: repeated after h places, with this sign.
struct Half {
    const double* sequence;
    double sign;
};

}  // namespace

Status MakePaddedTables(FftStage& stage, Count p, const double* sequence) noexcept {
    const FftPlan* plan = stage.paddedPlan;
    const Count h = p / 2, M = plan->size;
    const Block<double> rows(4 * std::size_t(M));
    if (!rows) return status::kOutOfMemory;
    stage.paddedTurns = LineStart(stage.paddedBlock);
    stage.paddedSpectrum = stage.paddedTurns + 2 * Size(M);
    HalfBinTurns(M, stage.paddedTurns);
    // The sequence carries 1/(p - 1) for the inverse of that length; here the inverse is of length 2M.
    const double scale = double(p - 1) / (2 * double(M));
    double *even = rows, *odd = rows + 2 * Size(M), *spectrum = stage.paddedSpectrum;
    for (const Half half : {Half{sequence, 1}, Half{sequence + p - 1, -1}}) {
        // The linear convolution needs entry q of the sequence for -h < q < h; those below 0 stand behind, at 2M + q.
        for (Count q = 0; q < M; ++q) {
            const Count behind = q + h - M;  // 2M + (behind - h) = M + q
            const double low = q < h ? half.sequence[q] * scale : 0;
            const double high = behind > 0 ? half.sign * half.sequence[behind] * scale : 0;
            even[2 * Size(q)] = low + high;
            odd[2 * Size(q)] = low - high;
            even[2 * Size(q) + 1] = odd[2 * Size(q) + 1] = 0;
        }
        kRaderLoops().turn(odd, stage.paddedTurns, M, odd);
        for (const double* bins : {even, odd}) {
            if (const Status status = Forward(plan, bins, spectrum); status < 0) return status;
            spectrum += 2 * Size(M);
        }
    }
    return status::kSuccess;
}

Size PaddedTableLength(const FftStage& stage) noexcept { return 10 * Size(stage.paddedPlan->size); }
Size PaddedWorkLength(const FftStage& stage) noexcept { return 10 * Size(stage.paddedPlan->size); }

Status PaddedTransform(const ComplexInput& in, const ComplexOutput& out, const FftStage& stage, Count p,
                       double* work) noexcept {
    const FftPlan* plan = stage.paddedPlan;
    const Count h = p / 2, M = plan->size;
    const Rows rows{work, M};
    const HalvesOfRecords halves{rows[0], rows[1], rows[2], rows[3]};
    double* spectrum = rows[4];
    const Record first = in[0];
    Record total = first;
    kRaderLoops().fold(in, stage.raderGather + 1, p, stage.paddedTurns, halves);
    for (int row = 0; row < 4; ++row) {
        rows.Pad(row, h);
        if (const Status status = Forward(plan, rows[row], spectrum); status < 0) return status;
        if (row == 0) total += LoadRecord(spectrum);
        kRaderLoops().conjugateRecordProduct(spectrum, stage.paddedSpectrum + 2 * Size(M) * row, M);
        if (const Status status = Forward(plan, spectrum, rows[row]); status < 0) return status;
    }
    out.Set(0, total);
    kRaderLoops().unfold(halves, stage.paddedTurns, first, stage.raderScatter + 1, p, out);
    return status::kSuccess;
}

// Sums and differences go through as the real and the imaginary parts of one sequence.
Status PaddedTransformReal(const double* in, Size inStride, double* out, Size outStride, const FftStage& stage, Count p,
                           double* work) noexcept {
    enum { kEven, kOdd, kSpectrum };
    const FftPlan* plan = stage.paddedPlan;
    const Count h = p / 2, M = plan->size;
    const Rows rows{work, M};
    double *even = rows[kEven], *odd = rows[kOdd], *spectrum = rows[kSpectrum];
    const double first = in[0];
    for (Count q = 0; q < h; ++q) {
        const Count j = stage.raderGather[q + 1];
        const double low = in[j * inStride], high = in[(p - j) * inStride];
        even[2 * Size(q)] = low + high;
        even[2 * Size(q) + 1] = low - high;
    }
    kRaderLoops().turn(even, stage.paddedTurns, h, odd);
    double total = first;
    for (int row : {kEven, kOdd}) {
        const double *cosines = stage.paddedSpectrum + 2 * Size(M) * row, *sines = cosines + 4 * Size(M);
        rows.Pad(row, h);
        if (const Status status = Forward(plan, rows[row], spectrum); status < 0) return status;
        if (row == kEven) total += spectrum[0];
        double* product = rows[kSpectrum + 1];
        kRaderLoops().pairProduct(spectrum, cosines, sines, row == kOdd, M, product);
        if (const Status status = Forward(plan, product, rows[row]); status < 0) return status;
    }
    kRaderLoops().turn(odd, stage.paddedTurns, h, odd);
    out[0] = total;
    for (Count q = 0; q < h; ++q) {
        const Size k = 2 * Size(q);
        // X[t] or its conjugate X[p - t], whichever comes first; chosen without a jump, since t is as good as random.
        const Count t = stage.raderScatter[q + 1], low = t < p - t ? t : p - t;
        out[low * outStride] = first + even[k] + odd[k];
        out[(p - low) * outStride] = (even[k + 1] + odd[k + 1]) * (low == t ? -1 : 1);
    }
    return status::kSuccess;
}

}  // namespace quorvan
