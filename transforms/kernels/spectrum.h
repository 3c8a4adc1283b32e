// The entries of an even kernel size that end a transform of reals in all of its bins.
//
// Adjacent reals x[2s], x[2s + 1] taken as one record, the f sub-transforms of reals that the last stage merges are f/2
// sub-transforms of records, Z = A + iB with the spectra A, B of two real sequences. The stage takes them apart,
//     A[j] = (Z[j] + conj Z[m - j]) / 2,   B[j] = (Z[j] - conj Z[m - j]) / 2i,
// merges columns 0 to m / 2 of them as those of a complex transform, and writes each bin together with its mirror image
// X[n - q] = conj X[q]. A column touches no place but its own and its mirror's, so the records may be the first half of
// the spectrum itself.
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

// A block of columns: W inner ones, W with column 0, or any range, with the middle column of even m or without.
enum class ColumnBlock { kInner, kFirst, kAny };

template <class D, int W>
struct SpectrumOf {
    using L = Lanes<W>;
    using V = typename L::V;
    using Records = typename L::Records;
    static constexpr int f = D::kSize, h = f / 2;

    // Columns j to j + W - 1. `paired` is the range of those that have a mirror image in other columns; `all` adds
    // column 0 and the middle one, whose spectra repeat their lower half in the upper, which is left out.
    template <ColumnBlock kBlock>
    QV_INLINE static void Stage(const double* z, Bins<f> bins, Size j, LaneRange all, LaneRange paired,
                                const double* table, const FftStage& stage) {
        const Records whole = L::RecordsIn(all), inner = L::RecordsIn(paired);
        const Records withFirst = L::RecordsIn({all.first, paired.last}), others = L::RecordsIn({0, all.last - 1});
        const Records withMiddle = L::RecordsIn({paired.first, all.last});
        V re[f], im[f];
        for (int s = 0; s < h; ++s) {
            const double* up = z + 2 * (s * bins.m + j);
            const double* down = z + 2 * ((s + 1) * bins.m - j);
            const bool withZero = kBlock == ColumnBlock::kFirst || (kBlock == ColumnBlock::kAny && j == 0);
            const double* first = withZero ? up : down;  // column 0 is its own mirror image
            V backRe, backIm;
            if constexpr (kBlock == ColumnBlock::kAny) {
                L::LoadRecords(up, whole, re[2 * s], im[2 * s]);
                L::LoadBackwards(first, down, others, backRe, backIm);
            } else {
                L::LoadRecords(up, re[2 * s], im[2 * s]);
                L::LoadBackwards(first, down, backRe, backIm);
            }
            Separate(re + 2 * s, im + 2 * s, backRe, backIm);
        }
        for (int k = 1; k < f; ++k) Twiddle<W>(table, k, re[k], im[k]);
        D::template Complex<V>(
            stage, [&](int k, V& x, V& y) QV_INLINE_LAMBDA { x = re[k], y = im[k]; },
            [&](int k, V x, V y) QV_INLINE_LAMBDA {
                double *up = bins.Rising(k) + 2 * j, *down = bins.Falling(k) - 2 * (j + W - 1);
                if (kBlock == ColumnBlock::kInner || (kBlock == ColumnBlock::kFirst && k <= h))
                    L::StoreRecords(up, x, y);
                else
                    L::StoreRecords(up, k < h ? whole : k == h ? withFirst : inner, x, y);
                if (kBlock == ColumnBlock::kInner || (kBlock == ColumnBlock::kFirst && k > 0 && k < h))
                    L::StoreConjugatesBackwards(down, x, y);
                else
                    L::StoreConjugatesBackwards(down, k == 0 ? withMiddle : k < h ? whole : inner, x, y);
            });
    }

private:
    // Z[j] and Z[m - j] become A[j] and B[j]. Halved first: the sums must not overflow where the bins do not.
    QV_INLINE static void Separate(V* re, V* im, V backRe, V backIm) {
        const V x = 0.5 * re[0], y = 0.5 * im[0], backX = 0.5 * backRe, backY = 0.5 * backIm;
        re[0] = x + backX, im[0] = y - backY;
        re[1] = y + backY, im[1] = backX - x;
    }
};

// The middle column of even m alone: its f values are real, and its bins are half a bin further up.
template <class D>
QV_INLINE void MiddleOfSpectrum(const double* z, Bins<D::kSize> bins, Count middle, const FftStage& stage) {
    const Size column = 2 * Size(middle);
    D::template Middle<double>(
        stage, [&](int k) QV_INLINE_LAMBDA { return z[k / 2 * 2 * bins.m + column + k % 2]; },
        [&](int k, double re, double im) QV_INLINE_LAMBDA {
            Lanes<1>::StoreRecords(bins.Rising(k) + column, re, im);
            Lanes<1>::StoreRecords(bins.Falling(k) - column, re, -im);
        });
}

template <class D>
void SpectrumStage(const double* z, double* low, double* high, Count m, const FftStage& stage) {
    constexpr int f = D::kSize;
    const Bins<f> bins{low, high, m};
    const double* table = stage.blockedTwiddles;
    const Count pairedEnd = (m + 1) / 2;  // columns 1 to pairedEnd - 1 have their mirror images in other columns
    Count middle = m % 2 ? -1 : m / 2;
    for (Count j = 0; j < pairedEnd;) {
        WithBlockWidth(m - j, [&]<int W>() QV_INLINE_LAMBDA {
            using S = SpectrumOf<D, W>;
            constexpr LaneRange kWhole{0, W};
            if (j + W <= pairedEnd && j > 0) {
                S::template Stage<ColumnBlock::kInner>(z, bins, j, kWhole, kWhole, table, stage);
            } else if (W > 2 && j + W <= pairedEnd) {
                S::template Stage<ColumnBlock::kFirst>(z, bins, 0, kWhole, {1, W}, table, stage);
            } else {
                const LaneRange paired{j == 0 ? 1 : 0, pairedEnd - j < W ? pairedEnd - j : W};
                LaneRange all{0, paired.last};
                if (middle >= 0 && middle < j + W) {
                    ++all.last;
                    middle = -1;
                }
                S::template Stage<ColumnBlock::kAny>(z, bins, j, all, paired, table, stage);
            }
            table += 2 * W * (f - 1);
            j += m - j < W ? m - j : W;
        });
    }
    if (middle >= 0) MiddleOfSpectrum<D>(z, bins, middle, stage);
    low[1] = high[1] = 0;  // X[0] and X[n/2] are real whatever the input, also for infinities
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
