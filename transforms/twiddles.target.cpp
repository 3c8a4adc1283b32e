#include "transforms/twiddles.h"

#include "transforms/kernels/lanes.h"

namespace quorvan::QV_TARGET {
namespace {

using L = Lanes<kMaxWidth>;
using V = L::V;

// The recurrences of all r side by side, from column to column.
class Columns {
public:
    Columns(const double* versine, const double* sine, Count count) : versine_(versine), sine_(sine), count_(count) {
        for (Count r = 0; r < kTwiddleRoom; ++r) {
            cosines_[0][r] = 1;
            sines_[0][r] = 0;
        }
    }

    // The next kMaxWidth columns. Each register stays in the chain of its own r: the chains overlap.
    void Turn() {
        for (Count r = 0; r < count_; r += kMaxWidth) {
            const V d = L::Load(versine_ + r), t = L::Load(sine_ + r);
            V c = L::Load(cosines_[next_] + r), w = L::Load(sines_[next_] + r);
            for (int j = 0; j < kMaxWidth; ++j) {
                L::Store(cosines_[j] + r, c);
                L::Store(sines_[j] + r, w);
                const V turned = c - (c * d + (-t) * w);
                w = w - (w * d - (-t) * c);
                c = turned;
            }
            L::Store(cosines_[kMaxWidth] + r, c);
            L::Store(sines_[kMaxWidth] + r, w);
        }
        next_ = kMaxWidth;
    }
    const double* cosines(Count column) const { return cosines_[column]; }
    const double* sines(Count column) const { return sines_[column]; }

private:
    const double *versine_, *sine_;
    Count count_, next_ = 0;
    alignas(64) double cosines_[kMaxWidth + 1][kTwiddleRoom], sines_[kMaxWidth + 1][kTwiddleRoom];
};

void Rows(const double* versine, const double* sine, Count count, Count m, double* cosines, double* sines) {
    Columns columns(versine, sine, count);
    for (Count first = 0; first < m; first += kMaxWidth) {
        columns.Turn();
        for (Count j = first ? 0 : 1; j < kMaxWidth && first + j < m; ++j)
            for (Count r = 0; r < count; ++r) {
                *cosines++ = columns.cosines(j)[r];
                *sines++ = columns.sines(j)[r];
            }
    }
}

// The first W of the columns, from lanes of r to lanes of columns.
template <int W>
QV_INLINE void StoreBlock(const Columns& columns, Count count, double* out) {
    for (Count r = 0; r < count; r += W) {
        typename Lanes<W>::V c[W], w[W];
        for (int lane = 0; lane < W; ++lane) {
            c[lane] = Lanes<W>::Load(columns.cosines(LaneColumn(W, lane)) + r);
            w[lane] = Lanes<W>::Load(columns.sines(LaneColumn(W, lane)) + r);
        }
        Lanes<W>::Transpose(c);
        Lanes<W>::Transpose(w);
        for (int i = 0; i < W && r + i < count; ++i) {
            Lanes<W>::Store(out + 2 * W * (r + i), c[i]);
            Lanes<W>::Store(out + 2 * W * (r + i) + W, w[i]);
        }
    }
}

void Blocked(const double* versine, const double* sine, Count count, Count m, double* out) {
    Columns columns(versine, sine, count);
    for (Count j = 0; j < m;) {
        columns.Turn();
        WithBlockWidth(m - j, [&]<int W>() QV_INLINE_LAMBDA {
            StoreBlock<W>(columns, count, out);
            out += 2 * W * Size(count);
            j += W;
        });
    }
}

}  // namespace

const TwiddleLoops kTwiddleLoops = {Rows, Blocked};

}  // namespace quorvan::QV_TARGET
