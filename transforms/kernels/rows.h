// The first of two passes over n = f m reals: the spectra of the f adjacent sequences x[k f + t] of length m.
//
// A vector holds one element of W sequences, so they are transformed side by side as they stand in memory; transposed,
// it is W columns of one spectrum: what the second pass takes (SpectrumOfRows), with each row loaded as it was stored.
// Behind the rows of all blocks of columns stand the f values of the middle column where it would begin a block.
#pragma once

#include "transforms/fft_plan_record.h"
#include "transforms/kernels/lanes.h"

namespace quorvan::QV_TARGET {
namespace {

template <class D>
struct RowsOf {
    static constexpr int m = D::kSize, W = kMaxWidth;
    static constexpr bool kMiddleAlone = m % 2 == 0 && m / 2 % W == 0;
    static constexpr int kColumns = m / 2 + (kMiddleAlone ? 0 : 1), kBlocks = (kColumns + W - 1) / W;
    // Longer primes are worth one copy of the code only.
    static constexpr bool kDirect = m <= 17 || m % 2 == 0 || m % 3 == 0 || m % 5 == 0;
    using L = Lanes<W>;
    using V = typename L::V;

    // The place of column k among the vectors before they are transposed: the lane of LaneColumn that holds it.
    static constexpr int Slot(int k) {
        const int column = k % W, half = W / 2;
        return k - column + (W == 1 ? 0 : column < half ? 2 * column : 2 * (column - half) + 1);
    }

    template <class E>
    QV_APART static void Apart(const FftStage& stage, const typename E::V* x, typename E::V* re, typename E::V* im) {
        D::template Real<typename E::V>(
            stage, [&](int k) QV_INLINE_LAMBDA { return x[k]; },
            [&](int k, typename E::V a, typename E::V b) QV_INLINE_LAMBDA { re[k] = a, im[k] = b; });
    }

    // kCount sequences, a vector of them or less.
    template <int kCount>
    QV_APART static void Block(const double* x, Size f, double* rows, double* middle, const FftStage& stage) {
        using E = Lanes<kCount>;
        typename E::V re[kBlocks * W] = {}, im[kBlocks * W] = {};
        const auto in = [&](int k) QV_INLINE_LAMBDA { return E::Load(x + k * f); };
        const auto take = [&](int k, typename E::V a, typename E::V b) QV_INLINE_LAMBDA {
            if (k < kColumns)
                re[Slot(k)] = a, im[Slot(k)] = b;
            else
                E::Store(middle, a);
        };
        if constexpr (kDirect) {
            D::template Real<typename E::V>(stage, in, take);
        } else {
            typename E::V each[m], a[m / 2 + 1], b[m / 2 + 1];
            for (int k = 0; k < m; ++k) each[k] = in(k);
            Apart<E>(stage, each, a, b);
            for (int k = 0; k <= m / 2; ++k) take(k, a[k], b[k]);
        }
        for (int block = 0; block < kBlocks; ++block, rows += 2 * W * f) {
            V row[2 * kCount];
            L::JoinRows(re + block * W, im + block * W, row);
            for (int i = 0; i < 2 * kCount; ++i) L::Store(rows + W * i, row[i]);
        }
    }
};

template <class D>
void SpectrumRows(const double* x, Count f, double* rows, const FftStage& stage) {
    using R = RowsOf<D>;
    constexpr Count W = R::W;
    double* middle = rows + 2 * W * Size(R::kBlocks) * f;
    for (Count t = 0; t < f; t += W) {
        const auto block = [&]<int kCount>() QV_INLINE_LAMBDA {
            R::template Block<kCount>(x + t, f, rows + 2 * W * Size(t), middle + t, stage);
        };
        // f is even
        if (W > 2 && f - t == 2) {
            block.template operator()<(W > 2 ? 2 : W)>();
        } else if (W > 4 && f - t == 4) {
            block.template operator()<(W > 4 ? 4 : W)>();
        } else {
            if (f - t < W) t = f - W;  // some of them once more: the only f below W are 2 and 4
            block.template operator()<W>();
        }
    }
}

}  // namespace
}  // namespace quorvan::QV_TARGET
