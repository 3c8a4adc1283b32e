#include "filters/equiripple_loops.h"

#include "frame/wide.h"

namespace quorvan::QV_TARGET {
namespace {

constexpr int kRegisters = kResponses / kLanes;
constexpr int kProducts = 4;  // registers that hide each other's latency
static_assert(kProducts * kLanes <= kProductRoom && kResponses % kLanes == 0);

void Products(const double* x, Count count, double* product) {
    constexpr Count kBlock = kProducts * kLanes;
    for (Count base = 0; base < count; base += kBlock) {
        Wide at[kProducts], p[kProducts];
        for (int r = 0; r < kProducts; ++r) {
            at[r] = Load(x + base + r * kLanes);
            p[r] = Like(Wide{}, 1.0);
        }
        const auto multiply = [&](Count first, Count last) __attribute__((always_inline)) {
            for (Count j = first; j < last; ++j)
                for (int r = 0; r < kProducts; ++r) p[r] *= at[r] - Like(Wide{}, x[j]);
        };
        const Count end = base + kBlock < count ? base + kBlock : count;
        multiply(0, base);
        // Here each lane meets itself, and leaves itself out.
        double near[kBlock];
        for (int r = 0; r < kProducts; ++r) Store(near + r * kLanes, p[r]);
        for (Count i = base; i < end; ++i)
            for (Count j = base; j < end; ++j)
                if (j != i) near[i - base] *= x[i] - x[j];
        for (int r = 0; r < kProducts; ++r) p[r] = Load(near + r * kLanes);
        multiply(end, count);
        for (int r = 0; r < kProducts; ++r) Store(product + base + r * kLanes, p[r]);
    }
}

void Responses(const Barycentric& form, const double* t, double* A) {
    Wide at[kRegisters], above[kRegisters] = {}, below[kRegisters] = {};
    for (int r = 0; r < kRegisters; ++r) at[r] = Load(t + r * kLanes);
    for (Count k = 0; k < form.count; ++k) {
        const Wide x = Like(Wide{}, form.x[k]), weight = Like(Wide{}, form.weights[k]),
                   weighted = Like(Wide{}, form.weighted[k]);
        for (int r = 0; r < kRegisters; ++r) {
            const Wide distance = at[r] - x;
            above[r] += weighted / distance;
            below[r] += weight / distance;
        }
    }
    for (int r = 0; r < kRegisters; ++r) Store(A + r * kLanes, above[r] / below[r]);
}

}  // namespace

const EquirippleLoops kEquirippleLoops = {Products, Responses};

}  // namespace quorvan::QV_TARGET
