// The entries of a kernel size, written once over the cores of a size and the widths of the instruction set.
//
// A leaf runs over adjacent transforms, a stage over adjacent columns: a block of them fills the lanes of one vector
// per element. Whole blocks in the usual layouts go from memory through the registers to memory; all other blocks
// (remainders, other strides, large sizes) go through a buffer on the stack.
#pragma once

#include "transforms/fft_plan_record.h"
#include "transforms/kernels/kernels.h"
#include "transforms/kernels/lanes.h"
#include "transforms/kernels/lone_leaf.h"
#include "transforms/kernels/rows.h"
#include "transforms/kernels/spectrum.h"

namespace quorvan::QV_TARGET {
namespace {

template <class D, int W>
struct BlockOf {
    using L = Lanes<W>;
    using V = typename L::V;
    static constexpr int f = D::kSize;
    // Larger sizes are worth one copy of the code only.
    static constexpr bool kDirect = f <= 18 || f == 32;
    static constexpr int kHalf = (f + 1) / 2;

    struct Buffer {
        V re[f], im[f];
        double* ReLanes(int k) { return reinterpret_cast<double*>(&re[k]); }
        double* ImLanes(int k) { return reinterpret_cast<double*>(&im[k]); }
    };

    QV_APART static void ComplexBuffered(const FftStage& stage, const Buffer& in, Buffer& out) {
        D::template Complex<V>(
            stage, [&](int k, V& re, V& im) QV_INLINE_LAMBDA { re = in.re[k], im = in.im[k]; },
            [&](int k, V re, V im) QV_INLINE_LAMBDA { out.re[k] = re, out.im[k] = im; });
    }
    QV_APART static void RealBuffered(const FftStage& stage, const V* in, Buffer& out) {
        D::template Real<V>(
            stage, [&](int k) QV_INLINE_LAMBDA { return in[k]; },
            [&](int k, V re, V im) QV_INLINE_LAMBDA { out.re[k] = re, out.im[k] = im; });
    }
    QV_APART static void MiddleBuffered(const FftStage& stage, const V* in, Buffer& out) {
        D::template Middle<V>(
            stage, [&](int k) QV_INLINE_LAMBDA { return in[k]; },
            [&](int k, V re, V im) QV_INLINE_LAMBDA { out.re[k] = re, out.im[k] = im; });
    }

    // --- leaves -----------------------------------------------------------------------------------------------------

    // In any layout; records go by PairsOf.
    QV_INLINE static void ComplexLeaf(const double* inRe, const double* inIm, double* outRe, double* outIm,
                                      Size inStride, Size outStride, int count, Size elementStride,
                                      const Count* positions, const FftStage& stage) {
        if constexpr (W == 1) {
            const Size base = positions[0] * outStride;
            D::template Complex<V>(
                stage,
                [&](int k, V& re, V& im) QV_INLINE_LAMBDA {
                    re = inRe[k * elementStride];
                    im = inIm[k * elementStride];
                },
                [&](int k, V re, V im) QV_INLINE_LAMBDA {
                    outRe[base + k * outStride] = re;
                    outIm[base + k * outStride] = im;
                });
            return;
        }
        Buffer in, out;
        for (int k = 0; k < f; ++k) {
            in.re[k] = in.im[k] = V{};
            for (int c = 0; c < count; ++c) {
                in.ReLanes(k)[c] = inRe[c * inStride + k * elementStride];
                in.ImLanes(k)[c] = inIm[c * inStride + k * elementStride];
            }
        }
        ComplexBuffered(stage, in, out);
        for (int c = 0; c < count; ++c) {
            const Size base = positions[c] * outStride;
            for (int k = 0; k < f; ++k) {
                outRe[base + k * outStride] = out.ReLanes(k)[c];
                outIm[base + k * outStride] = out.ImLanes(k)[c];
            }
        }
    }

    QV_INLINE static void RealLeaf(const double* in, double* out, Size inStride, Size outStride, int count,
                                   Size elementStride, const Count* positions, const FftStage& stage) {
        V h[f];  // HalfComplex
        const auto take = [&](int k, V re, V im) QV_INLINE_LAMBDA {
            h[k] = re;
            if (k > 0 && 2 * k < f) h[f - k] = im;
        };
        if (kDirect && inStride == 1 && count == W) {
            D::template Real<V>(
                stage, [&](int k) QV_INLINE_LAMBDA { return L::Load(in + k * elementStride); }, take);
        } else if (kDirect && inStride == 1 && W > 2) {
            D::template Real<V>(
                stage,
                [&](int k) QV_INLINE_LAMBDA {
                    return L::Load(in + k * elementStride, {0, count});
                },
                take);
        } else {
            V x[f];
            for (int k = 0; k < f; ++k) {
                if (inStride == 1) {
                    x[k] = L::Load(in + k * elementStride, {0, count});
                } else {
                    x[k] = V{};
                    for (int c = 0; c < count; ++c)
                        reinterpret_cast<double*>(&x[k])[c] = in[c * inStride + k * elementStride];
                }
            }
            Buffer spectrum;
            RealBuffered(stage, x, spectrum);
            for (int k = 0; 2 * k <= f; ++k) take(k, spectrum.re[k], spectrum.im[k]);
        }
        if (W > 1 && outStride == 1) {
            StoreRows(h, out, count, positions);
            return;
        }
        for (int c = 0; c < count; ++c)
            for (int k = 0; k < f; ++k)
                out[(Size(positions[c]) + k) * outStride] = reinterpret_cast<const double*>(&h[k])[c];
    }

    // Lane c of f vectors to f adjacent doubles at positions[c].
    QV_INLINE static void StoreRows(const V* h, double* out, int count, const Count* positions) {
        constexpr int kWhole = f / W * W, kRest = f % W;
        V rows[W];
        for (int k = 0; k < kWhole; k += W) {
            for (int i = 0; i < W; ++i) rows[i] = h[k + i];
            L::Transpose(rows);
            for (int c = 0; c < count; ++c) L::Store(out + positions[c] + k, rows[c]);
        }
        if constexpr (kRest == 2 && W > 2) {
            // Two elements are one pair a lane: no whole transpose.
            alignas(64) double pairs[2 * W];
            L::Store(pairs, L::EvenPairs(h[kWhole], h[kWhole + 1]));
            L::Store(pairs + W, L::OddPairs(h[kWhole], h[kWhole + 1]));
            for (int c = 0; c < count; ++c)
                Lanes<2>::Store(out + positions[c] + kWhole, Lanes<2>::Load(pairs + c % 2 * W + c / 2 * 2));
        } else if constexpr (kRest > 0) {
            for (int i = 0; i < W; ++i) rows[i] = i < kRest ? h[kWhole + i] : V{};
            L::Transpose(rows);
            for (int c = 0; c < count; ++c) L::Store(out + positions[c] + kWhole, {0, kRest}, rows[c]);
        }
    }

    // --- stages -----------------------------------------------------------------------------------------------------

    QV_INLINE static void ComplexStage(double* re, double* im, Size stride, Size m, int count, const double* table,
                                       const FftStage& stage) {
        const bool records = AreRecords(re, im, stride);
        if (kDirect && records && count == W)
            ComplexColumns(re, m, table, stage);
        else if (kDirect && records && W > 2)
            ComplexColumns(re, m, L::RecordsIn({0, count}), table, stage);
        else
            ComplexColumnsBuffered(re, im, stride, m, count, table, stage);
    }
    QV_APART static void ComplexColumns(double* z, Size m, const double* table, const FftStage& stage) {
        D::template Complex<V>(
            stage,
            [&](int k, V& x, V& y) QV_INLINE_LAMBDA {
                L::LoadRecords(z + k * 2 * m, x, y);
                if (k > 0) Twiddle<W>(table, k, x, y);
            },
            [&](int k, V x, V y) QV_INLINE_LAMBDA { L::StoreRecords(z + k * 2 * m, x, y); });
    }
    QV_APART static void ComplexColumns(double* z, Size m, typename L::Records columns, const double* table,
                                        const FftStage& stage) {
        D::template Complex<V>(
            stage,
            [&](int k, V& x, V& y) QV_INLINE_LAMBDA {
                L::LoadRecords(z + k * 2 * m, columns, x, y);
                if (k > 0) Twiddle<W>(table, k, x, y);
            },
            [&](int k, V x, V y) QV_INLINE_LAMBDA { L::StoreRecords(z + k * 2 * m, columns, x, y); });
    }
    QV_APART static void ComplexColumnsBuffered(double* re, double* im, Size stride, Size m, int count,
                                                const double* table, const FftStage& stage) {
        const bool records = AreRecords(re, im, stride);
        const typename L::Records columns = L::RecordsIn({0, count});
        Buffer in, out;
        for (int k = 0; k < f; ++k) {
            if (records) {
                L::LoadRecords(re + k * 2 * m, columns, in.re[k], in.im[k]);
            } else {
                in.re[k] = in.im[k] = V{};
                for (int lane = 0; lane < W; ++lane) {
                    const Size column = LaneColumn(W, lane);
                    if (column >= count) continue;
                    in.ReLanes(k)[lane] = re[(k * m + column) * stride];
                    in.ImLanes(k)[lane] = im[(k * m + column) * stride];
                }
            }
            if (k > 0) Twiddle<W>(table, k, in.re[k], in.im[k]);
        }
        ComplexBuffered(stage, in, out);
        for (int k = 0; k < f; ++k) {
            if (records) {
                L::StoreRecords(re + k * 2 * m, columns, out.re[k], out.im[k]);
                continue;
            }
            for (int lane = 0; lane < W; ++lane) {
                const Size column = LaneColumn(W, lane);
                if (column >= count) continue;
                re[(k * m + column) * stride] = out.ReLanes(k)[lane];
                im[(k * m + column) * stride] = out.ImLanes(k)[lane];
            }
        }
    }

    // Columns j to j + W - 1 of the HalfComplex blocks: the real part of column c stands at c, the imaginary part at
    // m - c; the results at k m + c and f m - k m - c, mirrored in the upper half.
    QV_INLINE static void RealStage(double* data, Size m, Size j, const double* table, const FftStage& stage) {
        const Size length = f * m;
        D::template Complex<V>(
            stage,
            [&](int k, V& re, V& im) QV_INLINE_LAMBDA {
                re = L::ToLanes(L::Load(data + k * m + j));
                im = L::ToLanesReversed(L::Load(data + (k + 1) * m - j - (W - 1)));
                if (k > 0) Twiddle<W>(table, k, re, im);
            },
            [&](int k, V re, V im) QV_INLINE_LAMBDA {
                L::Store(data + k * m + j, L::FromLanes(k < kHalf ? re : -im));
                L::Store(data + length - k * m - j - (W - 1), L::FromLanesReversed(k < kHalf ? im : re));
            });
    }

    // The same for a block with column 0, with the middle column of even m, or with fewer than W columns: `paired` is
    // the range of lanes with an imaginary part, `all` adds column 0 and the middle column. Their spectra are
    // HalfComplex themselves, so that the upper half of them repeats the lower one and is left out.
    QV_INLINE static void RealStageEdge(double* data, Size stride, Size m, Size j, LaneRange all, LaneRange paired,
                                        const double* table, const FftStage& stage) {
        const Size length = f * m;
        const auto rising = [&](int k) QV_INLINE_LAMBDA { return k < kHalf ? all : paired; };
        const auto falling = [&](int k) QV_INLINE_LAMBDA {
            LaneRange lanes = k < kHalf ? all : paired;
            if (k == 0) lanes.first = paired.first;                 // Im X[0] is not stored
            if (f % 2 && k == kHalf - 1) lanes.last = paired.last;  // nor Im X[f m / 2], of the middle column,
            if (f % 2 == 0 && k == kHalf) lanes.first = all.first;  // whose real part column 0 gives for even f
            return lanes;
        };
        if (kDirect && stride == 1 && W > 2) {
            D::template Complex<V>(
                stage,
                [&](int k, V& re, V& im) QV_INLINE_LAMBDA {
                    re = L::ToLanes(L::Load(data + (k * m + j), all));
                    im = L::ToLanesReversed(L::Load(data + ((k + 1) * m - j - (W - 1)), paired.Mirror(W)));
                    if (k > 0) Twiddle<W>(table, k, re, im);
                },
                [&](int k, V re, V im) QV_INLINE_LAMBDA {
                    L::Store(data + (k * m + j), rising(k), L::FromLanes(k < kHalf ? re : -im));
                    L::Store(data + (length - k * m - j - (W - 1)), falling(k).Mirror(W),
                             L::FromLanesReversed(k < kHalf ? im : re));
                });
            return;
        }
        Buffer in, out;
        for (int k = 0; k < f; ++k) {
            in.re[k] = in.im[k] = V{};
            for (int lane = 0; lane < W; ++lane) {
                const Count column = LaneColumn(W, lane);
                if (all.Has(column)) in.ReLanes(k)[lane] = data[(k * m + j + column) * stride];
                if (paired.Has(column)) in.ImLanes(k)[lane] = data[((k + 1) * m - j - column) * stride];
            }
            if (k > 0) Twiddle<W>(table, k, in.re[k], in.im[k]);
        }
        ComplexBuffered(stage, in, out);
        for (int k = 0; k < f; ++k) {
            if (k >= kHalf) out.im[k] = -out.im[k];
            const double* up = k < kHalf ? out.ReLanes(k) : out.ImLanes(k);
            const double* down = k < kHalf ? out.ImLanes(k) : out.ReLanes(k);
            for (int lane = 0; lane < W; ++lane) {
                const Count column = LaneColumn(W, lane);
                if (rising(k).Has(column)) data[(k * m + j + column) * stride] = up[lane];
                if (falling(k).Has(column)) data[(length - k * m - j - column) * stride] = down[lane];
            }
        }
    }
};

// Complex leaves by the real core: the real and the imaginary parts of W/2 transforms are W real sequences that stand
// side by side in the records as they are. X[k] = R[k] + i I[k], and X[f - k] = conj R[k] + i conj I[k].
template <class D, int W>
struct PairsOf {
    using L = Lanes<W>;
    using V = typename L::V;
    static constexpr int f = D::kSize, kGroup = W / 2;

    QV_INLINE static void ComplexLeaf(const double* in, double* outRe, double* outIm, Size outStride, int count,
                                      Size elementStride, const Count* positions, const FftStage& stage) {
        constexpr bool kDirect = BlockOf<D, W>::kDirect;
        if (!AreRecords(outRe, outIm, outStride)) {
            V rows[f];
            RowsBuffered(in, count, elementStride, stage, rows);
            StoreParts(rows, outRe, outIm, outStride, count, positions);
        } else if (kDirect && count == kGroup) {
            Leaf<true>(in, outRe, kGroup, elementStride, positions, stage);
        } else if (kDirect && W > 2 && f < 32) {
            Leaf<false>(in, outRe, count, elementStride, positions, stage);
        } else {
            V rows[f];
            RowsBuffered(in, count, elementStride, stage, rows);
            StoreRows(rows, outRe, count, positions);
        }
    }

private:
    // rows[k] of the real spectra R[k] and I[k] in its lanes.
    QV_INLINE static void Take(V* rows, int k, V re, V im) {
        if (k == 0 || 2 * k == f) {
            rows[k] = re;
            return;
        }
        const V turned = L::Turn(im);
        rows[k] = re + turned;
        rows[f - k] = re - turned;
    }

    template <bool kWhole>
    QV_APART static void Leaf(const double* in, double* out, int count, Size elementStride, const Count* positions,
                              const FftStage& stage) {
        V rows[f];
        D::template Real<V>(
            stage,
            [&](int k) QV_INLINE_LAMBDA {
                return kWhole ? L::Load(in + k * elementStride) : L::Load(in + k * elementStride, {0, 2 * count});
            },
            [&](int k, V re, V im) QV_INLINE_LAMBDA { Take(rows, k, re, im); });
        StoreRows(rows, out, kWhole ? kGroup : count, positions);
    }

    QV_APART static void RowsBuffered(const double* in, int count, Size elementStride, const FftStage& stage, V* rows) {
        V x[f];
        typename BlockOf<D, W>::Buffer spectrum;
        for (int k = 0; k < f; ++k) x[k] = L::Load(in + k * elementStride, {0, 2 * count});
        BlockOf<D, W>::RealBuffered(stage, x, spectrum);
        for (int k = 0; 2 * k <= f; ++k) Take(rows, k, spectrum.re[k], spectrum.im[k]);
    }

    QV_INLINE static void StoreRows(const V* rows, double* out, int count, const Count* positions) {
        int k = 0;
        for (; k + kGroup <= f; k += kGroup) {
            V group[kGroup];
            for (int i = 0; i < kGroup; ++i) group[i] = rows[k + i];
            L::TransposeRows(group);
            for (int c = 0; c < count; ++c) L::Store(out + 2 * (Size(positions[c]) + k), group[c]);
        }
        if (k == f) return;
        V group[kGroup] = {};
        for (int i = 0; k + i < f; ++i) group[i] = rows[k + i];
        L::TransposeRows(group);
        for (int c = 0; c < count; ++c) L::Store(out + 2 * (Size(positions[c]) + k), {0, 2 * (f - k)}, group[c]);
    }

    QV_APART static void StoreParts(const V* rows, double* outRe, double* outIm, Size outStride, int count,
                                    const Count* positions) {
        for (int c = 0; c < count; ++c)
            for (int k = 0; k < f; ++k) {
                const double* record = reinterpret_cast<const double*>(&rows[k]) + 2 * c;
                outRe[(Size(positions[c]) + k) * outStride] = record[0];
                outIm[(Size(positions[c]) + k) * outStride] = record[1];
            }
    }
};

template <class D>
void ComplexLeaf(const double* inRe, const double* inIm, double* outRe, double* outIm, Size inStride, Size outStride,
                 Count count, Size elementStride, const Count* positions, const FftStage& stage) {
    const bool records = kMaxWidth > 1 && AreRecords(inRe, inIm, inStride);
    for (Count t = 0; t < count;) {
        if (records) {
            WithBlockWidth(2 * (count - t), [&]<int W>() QV_INLINE_LAMBDA {
                if constexpr (W > 1) {
                    const int lanes = count - t < W / 2 ? count - t : W / 2;
                    PairsOf<D, W>::ComplexLeaf(inRe + t * inStride, outRe, outIm, outStride, lanes, elementStride,
                                               positions + t, stage);
                    t += lanes;
                }
            });
            continue;
        }
        WithBlockWidth(count - t, [&]<int W>() QV_INLINE_LAMBDA {
            const int lanes = count - t < W ? count - t : W;
            BlockOf<D, W>::ComplexLeaf(inRe + t * inStride, inIm + t * inStride, outRe, outIm, inStride, outStride,
                                       lanes, elementStride, positions + t, stage);
            t += lanes;
        });
    }
}

template <class D>
void ComplexStage(double* re, double* im, Size stride, Count m, const FftStage& stage) {
    const double* table = stage.blockedTwiddles;
    for (Count j = 0; j < m;) {
        WithBlockWidth(m - j, [&]<int W>() QV_INLINE_LAMBDA {
            const int lanes = m - j < W ? m - j : W;
            BlockOf<D, W>::ComplexStage(re + j * stride, im + j * stride, stride, m, lanes, table, stage);
            table += 2 * W * (D::kSize - 1);
            j += lanes;
        });
    }
}

template <class D>
void RealLeaf(const double* in, double* out, Size inStride, Size outStride, Count count, Size elementStride,
              const Count* positions, const FftStage& stage) {
    for (Count t = 0; t < count;) {
        WithBlockWidth(count - t, [&]<int W>() QV_INLINE_LAMBDA {
            const int lanes = count - t < W ? count - t : W;
            BlockOf<D, W>::RealLeaf(in + t * inStride, out, inStride, outStride, lanes, elementStride, positions + t,
                                    stage);
            t += lanes;
        });
    }
}

template <class D>
void RealStage(double* data, Size stride, Count m, const FftStage& stage) {
    constexpr int f = D::kSize;
    const double* table = stage.blockedTwiddles;
    const Count pairedEnd = (m + 1) / 2;  // columns 1 to pairedEnd - 1 pair with m - 1 down to m - pairedEnd + 1
    Count middle = m % 2 ? -1 : m / 2;
    Count j = 0;
    while (j < pairedEnd) {
        WithBlockWidth(m - j, [&]<int W>() QV_INLINE_LAMBDA {
            if (stride == 1 && j > 0 && j + W <= pairedEnd) {
                BlockOf<D, W>::RealStage(data, m, j, table, stage);
            } else {
                const LaneRange paired{j == 0 ? 1 : 0, pairedEnd - j < W ? pairedEnd - j : W};
                LaneRange all{0, paired.last};
                if (middle >= 0 && middle < j + W) {
                    ++all.last;
                    middle = -1;
                }
                BlockOf<D, W>::RealStageEdge(data, stride, m, j, all, paired, table, stage);
            }
            table += 2 * W * (f - 1);
            j += m - j < W ? m - j : W;
        });
    }
    if (middle < 0) return;

    // The middle column of even m alone: a DFT of real values, half a bin further up.
    const Size length = Size(f) * m;
    double in[f];
    typename BlockOf<D, 1>::Buffer out;
    for (int t = 0; t < f; ++t) in[t] = data[(t * Size(m) + middle) * stride];
    BlockOf<D, 1>::MiddleBuffered(stage, in, out);
    for (Size k = 0; k < (f + 1) / 2; ++k) {
        const Size q = middle + k * m;
        data[q * stride] = out.re[k];
        if (2 * q != length) data[(length - q) * stride] = out.im[k];
    }
}

template <class D>
constexpr FftKernel EntriesOf() {
    FftKernel kernel = {};
    kernel.leaf = ComplexLeaf<D>;
    kernel.stage = ComplexStage<D>;
    kernel.realLeaf = RealLeaf<D>;
    kernel.realStage = RealStage<D>;
    if constexpr (kMaxWidth == 8 && D::kSize == 32) kernel.loneLeaf = LoneLeafOf32;
    if constexpr (D::kSize % 2 == 0) {
        kernel.spectrumLeaf = SpectrumLeaf<D>;
        kernel.spectrumStage = SpectrumStage<D>;
        kernel.rowsStage = SpectrumOfRows<D>;
    }
    // The longer primes gain nothing.
    if constexpr (D::kSize >= kLeastRow && D::kSize <= 32) kernel.rows = SpectrumRows<D>;
    return kernel;
}
template <class D>
inline constexpr FftKernel kEntries = EntriesOf<D>();

}  // namespace
}  // namespace quorvan::QV_TARGET
