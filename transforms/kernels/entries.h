// The four entries of a kernel size, written once over the cores of a size and the widths of the instruction set.
//
// A leaf runs over adjacent transforms, a stage over adjacent columns: a block of them fills the lanes of one vector
// per element. Whole blocks in the usual layouts go from memory through the registers to memory; all other blocks
// (remainders, other strides, large sizes) go through a buffer on the stack.
#pragma once

#include "transforms/fft_plan_record.h"
#include "transforms/kernels/kernels.h"
#include "transforms/kernels/lanes.h"

namespace quorvan::QV_TARGET {
namespace {

// Records: adjacent elements are adjacent (re, im) pairs. Packed: adjacent doubles.
QV_INLINE bool AreRecords(const double* re, const double* im, Size stride) { return im == re + 1 && stride == 2; }

template <class D, int W>
struct BlockOf {
    using L = Lanes<W>;
    using V = typename L::V;
    static constexpr int f = D::kSize;
    // Larger sizes are worth one copy of the code only.
    static constexpr bool kDirect = f <= 18 || f == 32;

    struct Buffer {
        V re[f], im[f];
        double* ReLanes(int k) { return reinterpret_cast<double*>(&re[k]); }
        double* ImLanes(int k) { return reinterpret_cast<double*>(&im[k]); }
    };

    __attribute__((noinline)) static void ComplexBuffered(const FftStage& stage, const Buffer& in, Buffer& out) {
        D::template Complex<V>(
            stage, [&](int k, V& re, V& im) QV_INLINE_LAMBDA { re = in.re[k], im = in.im[k]; },
            [&](int k, V re, V im) QV_INLINE_LAMBDA { out.re[k] = re, out.im[k] = im; });
    }
    __attribute__((noinline)) static void RealBuffered(const FftStage& stage, const V* in, Buffer& out) {
        D::template Real<V>(
            stage, [&](int k) QV_INLINE_LAMBDA { return in[k]; },
            [&](int k, V re, V im) QV_INLINE_LAMBDA { out.re[k] = re, out.im[k] = im; });
    }
    __attribute__((noinline)) static void MiddleBuffered(const FftStage& stage, const V* in, Buffer& out) {
        D::template Middle<V>(
            stage, [&](int k) QV_INLINE_LAMBDA { return in[k]; },
            [&](int k, V re, V im) QV_INLINE_LAMBDA { out.re[k] = re, out.im[k] = im; });
    }

    // --- leaves -----------------------------------------------------------------------------------------------------

    QV_INLINE static void ComplexLeaf(const double* inRe, const double* inIm, double* outRe, double* outIm,
                                      Size inStride, Size outStride, int count, Size elementStride,
                                      const Count* positions, const FftStage& stage) {
        Buffer out;
        const bool records = AreRecords(inRe, inIm, inStride);
        if (kDirect && records && count == W) {
            D::template Complex<V>(
                stage, [&](int k, V& re, V& im) QV_INLINE_LAMBDA { L::LoadRecords(inRe + k * elementStride, re, im); },
                [&](int k, V re, V im) QV_INLINE_LAMBDA { out.re[k] = re, out.im[k] = im; });
        } else {
            Buffer in;
            if (records) {
                for (int k = 0; k < f; ++k) L::LoadRecords(inRe + k * elementStride, count, in.re[k], in.im[k]);
            } else {
                for (int k = 0; k < f; ++k) {
                    in.re[k] = in.im[k] = V{};
                    for (int lane = 0; lane < W; ++lane) {
                        const Count column = LaneColumn(W, lane);
                        if (column >= count) continue;
                        in.ReLanes(k)[lane] = inRe[column * inStride + k * elementStride];
                        in.ImLanes(k)[lane] = inIm[column * inStride + k * elementStride];
                    }
                }
            }
            ComplexBuffered(stage, in, out);
        }
        if (W > 1 && AreRecords(outRe, outIm, outStride)) {
            StoreRecordRows(out, outRe, count, positions);
        } else {
            for (int lane = 0; lane < W; ++lane) {
                const Count column = LaneColumn(W, lane);
                if (column >= count) continue;
                const Size base = positions[column] * outStride;
                for (int k = 0; k < f; ++k) {
                    outRe[base + k * outStride] = out.ReLanes(k)[lane];
                    outIm[base + k * outStride] = out.ImLanes(k)[lane];
                }
            }
        }
    }

    QV_INLINE static void StoreRecordRows(const Buffer& block, double* out, int count, const Count* positions) {
        constexpr int kGroup = W > 1 ? W / 2 : 1;
        V rows[W];
        int k = 0;
        for (; k + kGroup <= f; k += kGroup) {
            L::TransposeRecords(&block.re[k], &block.im[k], rows);
            if (count == W) {
                for (int c = 0; c < W; ++c) L::Store(out + 2 * (Size(positions[c]) + k), rows[c]);
            } else {
                for (int c = 0; c < count; ++c) L::Store(out + 2 * (Size(positions[c]) + k), rows[c]);
            }
        }
        if (k == f) return;
        V re[kGroup] = {}, im[kGroup] = {};
        for (int i = 0; k + i < f; ++i) re[i] = block.re[k + i], im[i] = block.im[k + i];
        L::TransposeRecords(re, im, rows);
        for (int c = 0; c < count; ++c) L::Store(out + 2 * (Size(positions[c]) + k), 0, 2 * (f - k), rows[c]);
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
        } else {
            V x[f];
            for (int k = 0; k < f; ++k) {
                if (inStride == 1) {
                    x[k] = L::Load(in + k * elementStride, 0, count);
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
            int k = 0;
            for (; k + W <= f; k += W) {
                V rows[W];
                for (int i = 0; i < W; ++i) rows[i] = h[k + i];
                L::Transpose(rows);
                for (int c = 0; c < count; ++c) L::Store(out + positions[c] + k, rows[c]);
            }
            if (k == f) return;
            V rows[W] = {};
            for (int i = 0; k + i < f; ++i) rows[i] = h[k + i];
            L::Transpose(rows);
            for (int c = 0; c < count; ++c) L::Store(out + positions[c] + k, 0, f - k, rows[c]);
        } else {
            for (int c = 0; c < count; ++c)
                for (int k = 0; k < f; ++k)
                    out[(Size(positions[c]) + k) * outStride] = reinterpret_cast<const double*>(&h[k])[c];
        }
    }

    // --- stages -----------------------------------------------------------------------------------------------------

    // (re, im) times the twiddle of row k, from the block's table.
    QV_INLINE static void Twiddle(const double* table, int k, V& re, V& im) {
        if (k == 0) return;
        const V c = L::Load(table + 2 * W * (k - 1)), s = L::Load(table + 2 * W * (k - 1) + W);
        const V turned = re * c - im * s;
        im = re * s + im * c;
        re = turned;
    }

    QV_INLINE static void ComplexStage(double* re, double* im, Size stride, Size m, int count, const double* table,
                                       const FftStage& stage) {
        const bool records = AreRecords(re, im, stride);
        if (kDirect && records && count == W) {
            D::template Complex<V>(
                stage,
                [&](int k, V& x, V& y) QV_INLINE_LAMBDA {
                    L::LoadRecords(re + k * 2 * m, x, y);
                    Twiddle(table, k, x, y);
                },
                [&](int k, V x, V y) QV_INLINE_LAMBDA { L::StoreRecords(re + k * 2 * m, x, y); });
            return;
        }
        Buffer in, out;
        for (int k = 0; k < f; ++k) {
            if (records) {
                L::LoadRecords(re + k * 2 * m, count, in.re[k], in.im[k]);
            } else {
                in.re[k] = in.im[k] = V{};
                for (int lane = 0; lane < W; ++lane) {
                    const Size column = LaneColumn(W, lane);
                    if (column >= count) continue;
                    in.ReLanes(k)[lane] = re[(k * m + column) * stride];
                    in.ImLanes(k)[lane] = im[(k * m + column) * stride];
                }
            }
            Twiddle(table, k, in.re[k], in.im[k]);
        }
        ComplexBuffered(stage, in, out);
        for (int k = 0; k < f; ++k) {
            if (records) {
                L::StoreRecords(re + k * 2 * m, count, out.re[k], out.im[k]);
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

    // Columns j + first to j + last - 1 of the HalfComplex blocks: the real part of column c stands at c, the
    // imaginary part at m - c; the results at k m + c and f m - k m - c, mirrored in the upper half.
    QV_INLINE static void RealStage(double* data, Size stride, Size m, Size j, int first, int last, const double* table,
                                    const FftStage& stage) {
        constexpr int kHalf = (f + 1) / 2;
        const Size length = f * m;
        if (kDirect && stride == 1 && first == 0 && last == W) {
            D::template Complex<V>(
                stage,
                [&](int k, V& re, V& im) QV_INLINE_LAMBDA {
                    re = L::ToLanes(L::Load(data + k * m + j));
                    im = L::ToLanes(L::Reverse(L::Load(data + (k + 1) * m - j - (W - 1))));
                    Twiddle(table, k, re, im);
                },
                [&](int k, V re, V im) QV_INLINE_LAMBDA {
                    const V rising = L::FromLanes(k < kHalf ? re : -im);
                    const V falling = L::Reverse(L::FromLanes(k < kHalf ? im : re));
                    L::Store(data + k * m + j, rising);
                    L::Store(data + length - k * m - j - (W - 1), falling);
                });
            return;
        }
        Buffer in, out;
        for (int k = 0; k < f; ++k) {
            if (stride == 1) {
                in.re[k] = L::ToLanes(L::Load(data + (k * m + j), first, last));
                in.im[k] = L::ToLanes(L::Reverse(L::Load(data + ((k + 1) * m - j - (W - 1)), W - last, W - first)));
            } else {
                in.re[k] = in.im[k] = V{};
                for (int lane = 0; lane < W; ++lane) {
                    const Size column = LaneColumn(W, lane);
                    if (column < first || column >= last) continue;
                    in.ReLanes(k)[lane] = data[(k * m + j + column) * stride];
                    in.ImLanes(k)[lane] = data[((k + 1) * m - j - column) * stride];
                }
            }
            Twiddle(table, k, in.re[k], in.im[k]);
        }
        ComplexBuffered(stage, in, out);
        for (int k = 0; k < f; ++k) {
            V& rising = k < kHalf ? out.re[k] : out.im[k];
            V& falling = k < kHalf ? out.im[k] : out.re[k];
            if (k >= kHalf) rising = -rising;
            if (stride == 1) {
                L::Store(data + (k * m + j), first, last, L::FromLanes(rising));
                L::Store(data + (length - k * m - j - (W - 1)), W - last, W - first, L::Reverse(L::FromLanes(falling)));
                continue;
            }
            for (int lane = 0; lane < W; ++lane) {
                const Size column = LaneColumn(W, lane);
                if (column < first || column >= last) continue;
                data[(k * m + j + column) * stride] = reinterpret_cast<const double*>(&rising)[lane];
                data[(length - k * m - j - column) * stride] = reinterpret_cast<const double*>(&falling)[lane];
            }
        }
    }
};

template <class D>
void ComplexLeaf(const double* inRe, const double* inIm, double* outRe, double* outIm, Size inStride, Size outStride,
                 Count count, Size elementStride, const Count* positions, const FftStage& stage) {
    for (Count t = 0; t < count;) {
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
    constexpr int f = D::kSize, kNarrow = kMaxWidth == 1 ? 1 : 2;
    using Narrow = BlockOf<D, kNarrow>;
    const Size length = Size(f) * m;
    typename Narrow::V in[f];
    typename Narrow::Buffer out;

    // Column 0: a real DFT across the blocks.
    for (int t = 0; t < f; ++t) in[t] = typename Narrow::V{data[t * m * stride]};
    Narrow::RealBuffered(stage, in, out);
    for (Size k = 0; 2 * k <= f; ++k) {
        data[k * m * stride] = out.ReLanes(k)[0];
        if (k > 0 && 2 * k < f) data[(length - k * m) * stride] = out.ImLanes(k)[0];
    }

    // Columns that pair with another one.
    const double* table = stage.blockedTwiddles;
    for (Count j = 0, end = (m + 1) / 2; j < end;) {
        WithBlockWidth(m - j, [&]<int W>() QV_INLINE_LAMBDA {
            const int lanes = end - j < W ? end - j : W;
            BlockOf<D, W>::RealStage(data, stride, m, j, j == 0 ? 1 : 0, lanes, table, stage);
            table += 2 * W * (f - 1);
            j += m - j < W ? m - j : W;
        });
    }

    // The middle column of even m is real: a DFT half a bin further up.
    if (m % 2) return;
    for (int t = 0; t < f; ++t) in[t] = typename Narrow::V{data[(t * Size(m) + m / 2) * stride]};
    Narrow::MiddleBuffered(stage, in, out);
    for (Size k = 0; k < (f + 1) / 2; ++k) {
        const Size q = m / 2 + k * m;
        data[q * stride] = out.ReLanes(k)[0];
        if (2 * q != length) data[(length - q) * stride] = out.ImLanes(k)[0];
    }
}

template <class D>
inline constexpr FftKernel kEntries = {ComplexLeaf<D>, ComplexStage<D>, RealLeaf<D>, RealStage<D>};

}  // namespace
}  // namespace quorvan::QV_TARGET
