// The entries of an even kernel size that end a transform of reals in all of its bins.
//
// Adjacent reals x[2s], x[2s + 1] taken as one record, the f sub-transforms of reals that the last stage merges are f/2
// sub-transforms of records, Z = A + iB with the spectra A, B of two real sequences. The stage takes them apart,
//     A[j] = (Z[j] + conj Z[m - j]) / 2,   B[j] = (Z[j] - conj Z[m - j]) / 2i,
// merges columns 0 to m / 2 of them as those of a complex transform, and writes each bin together with its mirror image
// X[n - q] = conj X[q]. A column touches no place but its own and its mirror's, so the records may be the first half of
// the spectrum itself. From the rows of kernels/rows.h, which are such spectra already, the stage merges at once.
#pragma once

#include "transforms/fft_plan_record.h"
#include "transforms/kernels/lanes.h"

namespace quorvan::QV_TARGET {
namespace {

// The places of a spectrum of f blocks of m bins: the lower half of the bins from `low` on, the upper one from `high`.
template <int f>
struct Bins {
    static constexpr int h = f / 2;
    double *low, *high;
    Size m;

    // Bin k m.
    QV_INLINE double* Rising(int k) const { return k < h ? low + 2 * k * m : high + 2 * (k - h) * m; }
    // Bin (f - k) m, behind which the mirror images of block k go down.
    QV_INLINE double* Falling(int k) const { return k < h ? high + 2 * (h - k) * m : low + 2 * (f - k) * m; }
};

// A block of columns: W that have mirror images in other columns all; W with column 0; what is left behind such blocks,
// with the middle column of even m; and all of less than W, half a block or more, or less. What takes the columns that
// are left takes any others too: large sizes go by it alone, so that their code stays in the instruction cache.
enum class ColumnBlock { kInner, kFirst, kLast, kOnly, kFew };

// Columns j to j + W - 1 of a last stage.
template <class D, int W>
struct SpectrumOf {
    using L = Lanes<W>;
    using V = typename L::V;
    using Records = typename L::Records;
    static constexpr int f = D::kSize, h = f / 2;
    static constexpr bool IsFirst(ColumnBlock b) { return b != ColumnBlock::kInner && b != ColumnBlock::kLast; }
    static constexpr bool IsWhole(ColumnBlock b) { return b == ColumnBlock::kInner || b == ColumnBlock::kFirst; }

    template <ColumnBlock kBlock>
    QV_APART static void FromRecords(const double* z, double* low, double* high, Size m, Size j,
                                     const FftStage& stage) {
        const LaneRange all = Range<kBlock>(m, j).all;
        const Records whole = L::RecordsIn(all), others = L::RecordsIn({0, all.last - 1});
        V re[f], im[f];
        for (int s = 0; s < h; ++s) {
            const double* up = z + 2 * (s * m + j);
            const double* down = z + 2 * ((s + 1) * m - j);
            const bool withZero = IsFirst(kBlock) || (kBlock == ColumnBlock::kLast && j == 0);
            const double* first = withZero ? up : down;  // column 0 is its own mirror image
            V backRe, backIm;
            if constexpr (kBlock == ColumnBlock::kInner) {
                L::LoadRecords(up, re[2 * s], im[2 * s]);
                L::LoadReversed(down - 2 * (W - 1), backRe, backIm);
            } else if constexpr (kBlock == ColumnBlock::kFirst) {
                L::LoadRecords(up, re[2 * s], im[2 * s]);
                L::LoadBackwards(first, down, backRe, backIm);
            } else {
                L::LoadRecords(up, whole, re[2 * s], im[2 * s]);
                L::LoadBackwards(first, down, others, backRe, backIm);
            }
            Separate(re + 2 * s, im + 2 * s, backRe, backIm);
        }
        Merge<kBlock>({low, high, m}, j, stage, [&](int k, V& x, V& y) QV_INLINE_LAMBDA { x = re[k], y = im[k]; });
    }

    template <ColumnBlock kBlock>
    QV_APART static void FromRows(const double* rows, double* low, double* high, Size m, Size j,
                                  const FftStage& stage) {
        Merge<kBlock>({low, high, m}, j, stage, [&](int k, V& x, V& y) QV_INLINE_LAMBDA {
            x = L::Load(rows + 2 * W * k);
            y = L::Load(rows + 2 * W * k + W);
        });
    }

private:
    // The lanes of columns that have a mirror image in other columns; and those with column 0 and the middle one, whose
    // spectra repeat their lower half in the upper, which is left out.
    struct Ranges {
        LaneRange all, paired;
    };
    template <ColumnBlock kBlock>
    QV_INLINE static Ranges Range(Size m, Size j) {
        if constexpr (IsWhole(kBlock)) return {{0, W}, {IsFirst(kBlock), W}};
        const int left = static_cast<int>((m + 1) / 2 - j), last = left < W ? left : W;
        if (kBlock == ColumnBlock::kOnly && last < W / 2) __builtin_unreachable();
        return {{0, last + (m % 2 == 0 && left < W)}, {IsFirst(kBlock) || j == 0, last}};
    }

    template <ColumnBlock kBlock, class In>
    QV_INLINE static void Merge(const Bins<f> bins, const Size j, const FftStage& stage, const In& in) {
        const auto [all, paired] = Range<kBlock>(bins.m, j);
        const Records whole = L::RecordsIn(all), inner = L::RecordsIn(paired);
        const Records withFirst = L::RecordsIn({all.first, paired.last});
        const Records withMiddle = L::RecordsIn({paired.first, all.last});
        const double* const table = stage.blockedTwiddles + 2 * (f - 1) * j;
        D::template Complex<V>(
            stage,
            [&](int k, V& x, V& y) QV_INLINE_LAMBDA {
                in(k, x, y);
                if (k > 0) Twiddle<W>(table, k, x, y);
            },
            [&](int k, V x, V y) QV_INLINE_LAMBDA {
                double *up = bins.Rising(k) + 2 * j, *down = bins.Falling(k) - 2 * (j + W - 1);
                if (IsWhole(kBlock) && (!IsFirst(kBlock) || k <= h))
                    L::StoreRecords(up, x, y);
                else
                    L::StoreRecords(up, k < h ? whole : k == h ? withFirst : inner, x, y);
                if (IsFirst(kBlock) && k == 0)
                    L::StoreConjugatesAfterFirst(down, withMiddle, x, y);  // the mirror of X[0] is beyond the spectrum
                else if (IsWhole(kBlock) && (!IsFirst(kBlock) || k < h))
                    L::StoreConjugatesBackwards(down, x, y);
                else
                    L::StoreConjugatesBackwards(down, k == 0 ? withMiddle : k < h ? whole : inner, x, y);
            });
    }

    // Z[j] and Z[m - j] become A[j] and B[j]. Halved first: the sums must not overflow where the bins do not.
    QV_INLINE static void Separate(V* re, V* im, V backRe, V backIm) {
        const V x = 0.5 * re[0], y = 0.5 * im[0], backX = 0.5 * backRe, backY = 0.5 * backIm;
        re[0] = x + backX, im[0] = y - backY;
        re[1] = y + backY, im[1] = backX - x;
    }
};

// The middle column of even m alone: its f values are real, and its bins are half a bin further up.
template <class D, class In>
QV_INLINE void MiddleOfSpectrum(const In& in, Bins<D::kSize> bins, Count middle, const FftStage& stage) {
    const Size column = 2 * Size(middle);
    D::template Middle<double>(stage, in, [&](int k, double re, double im) QV_INLINE_LAMBDA {
        Lanes<1>::StoreRecords(bins.Rising(k) + column, re, im);
        Lanes<1>::StoreRecords(bins.Falling(k) - column, re, -im);
    });
}

// Calls take<W, kBlock>(j) for the blocks of columns 0 to m / 2, in the widths of the blocks of all m columns or all of
// the widest; the answer is whether the middle column of even m stands behind them.
template <int f, bool kWidest, class Take>
QV_INLINE bool ForBlocksOfSpectrum(Count m, const Take& take) {
    constexpr bool kLarge = f > 18;
    const Count pairedEnd = (m + 1) / 2;  // columns 1 to pairedEnd - 1 have their mirror images in other columns
    Count j = 0;
    while (j < pairedEnd) {
        WithBlockWidth(kWidest ? kMaxWidth : m - j, [&]<int W>() QV_INLINE_LAMBDA {
            const bool whole = j + W <= pairedEnd;
            if (j > 0 && whole && !kLarge)
                take.template operator()<W, ColumnBlock::kInner>(j);
            else if (j > 0 || kLarge)
                take.template operator()<W, ColumnBlock::kLast>(j);
            else if (whole && W > 2)
                take.template operator()<W, ColumnBlock::kFirst>(j);
            else if (pairedEnd >= W / 2)
                take.template operator()<W, ColumnBlock::kOnly>(j);
            else
                take.template operator()<W, ColumnBlock::kFew>(j);
            j += W;
        });
    }
    return m % 2 == 0 && j == pairedEnd;
}

template <class D>
void SpectrumStage(const double* z, double* low, double* high, Count m, const FftStage& stage) {
    const bool middleLeft =
        ForBlocksOfSpectrum<D::kSize, false>(m, [&]<int W, ColumnBlock kBlock>(Count j) QV_INLINE_LAMBDA {
            SpectrumOf<D, W>::template FromRecords<kBlock>(z, low, high, m, j, stage);
        });
    if (middleLeft) {
        const auto in = [z, m](int k) QV_INLINE_LAMBDA { return z[(k / 2 * 2 + 1) * Size(m) + k % 2]; };
        MiddleOfSpectrum<D>(in, {low, high, m}, m / 2, stage);
    }
    low[1] = high[1] = 0;  // X[0] and X[n/2] are real whatever the input, also for infinities
}

template <class D>
void SpectrumOfRows(const double* rows, double* low, double* high, Count m, const FftStage& stage) {
    const bool middleLeft =
        ForBlocksOfSpectrum<D::kSize, true>(m, [&]<int W, ColumnBlock kBlock>(Count j) QV_INLINE_LAMBDA {
            if constexpr (W == kMaxWidth) {
                SpectrumOf<D, W>::template FromRows<kBlock>(rows, low, high, m, j, stage);
                rows += 2 * W * D::kSize;
            }
        });
    if (middleLeft)
        MiddleOfSpectrum<D>([rows](int k) QV_INLINE_LAMBDA { return rows[k]; }, {low, high, m}, m / 2, stage);
    low[1] = high[1] = 0;
}

template <class D>
void SpectrumLeaf(const double* x, double* low, double* high, const FftStage& stage) {
    constexpr int f = D::kSize;
    const Bins<f> bins{low, high, 1};
    D::template Real<double>(
        stage, [&](int k) QV_INLINE_LAMBDA { return x[k]; },
        [&](int k, double re, double im) QV_INLINE_LAMBDA {
            Lanes<1>::StoreRecords(bins.Rising(k), re, im);
            if (k > 0 && 2 * k < f) Lanes<1>::StoreRecords(bins.Falling(k), re, -im);
        });
}

}  // namespace
}  // namespace quorvan::QV_TARGET
