#include "transforms/twiddles.h"

namespace quorvan::QV_TARGET {
namespace {

void Advance(double* cosines, double* sines, Count count, Count rows, const double* versine, const double* sine) {
    for (Count j = 1; j < rows; ++j) {
        const double* __restrict c = cosines;
        const double* __restrict w = sines;
        double* __restrict nextC = cosines += count;
        double* __restrict nextW = sines += count;
        for (Count r = 0; r < count; ++r) {
            const double d = versine[r], t = sine[r];
            nextC[r] = c[r] - (c[r] * d + (-t) * w[r]);
            nextW[r] = w[r] - (w[r] * d - (-t) * c[r]);
        }
    }
}

}  // namespace

const TwiddleLoops kTwiddleLoops = {Advance};

}  // namespace quorvan::QV_TARGET
