#include "filters/fir_loops.h"

#include "frame/wide.h"

namespace quorvan::QV_TARGET {
namespace {

template <class V>
QV_INLINE V LoadAs(const double* from) {
    V v;
    __builtin_memcpy(&v, from, sizeof v);
    return v;
}

struct Filter {
    const double* recent;
    const double* history;
    const double* b;
    Count nb;
    Count stride;
    double* out;

    // kRegisters registers of outputs from d on, each lane with its terms in ascending order of the lag.
    template <class V, int kRegisters>
    QV_INLINE void block(Size d) const {
        constexpr Size kElements = sizeof(V) / sizeof(double);
        static_assert(kRegisters * kElements <= kFirPrefix);
        V sum[kRegisters];
        const double* from = recent + d;
        for (int r = 0; r < kRegisters; ++r) sum[r] = Like(V{}, b[0]) * LoadAs<V>(from + r * kElements);
        const Size near = (d + kFirPrefix) / stride + 1;
        const Count seam = static_cast<Count>(near < nb ? near : nb);
        const auto add = [&](Count k) __attribute__((always_inline)) {
            const V factor = Like(V{}, b[k]);
            for (int r = 0; r < kRegisters; ++r) sum[r] = sum[r] + factor * LoadAs<V>(from + r * kElements);
        };
        for (Count k = 1; k < seam; ++k) {
            from -= stride;
            add(k);
        }
        // The same place in the history, whose end stands where recent begins.
        from = history + Size{stride} * (nb - 1) + d - Size{stride} * (seam - 1);
        for (Count k = seam; k < nb; ++k) {
            from -= stride;
            add(k);
        }
        for (int r = 0; r < kRegisters; ++r) __builtin_memcpy(out + d + r * kElements, &sum[r], sizeof(V));
    }
};

void Run(const double* recent, const double* history, const double* b, Count nb, Count stride, Count doubles,
         double* out) {
    const Filter filter{recent, history, b, nb, stride, out};
    Count d = 0;
    for (; d + 4 * kLanes <= doubles; d += 4 * kLanes) filter.block<Wide, 4>(d);
    for (; d + kLanes <= doubles; d += kLanes) filter.block<Wide, 1>(d);
    for (; d < doubles; ++d) filter.block<double, 1>(d);
}

}  // namespace

const FirLoops kFirLoops = {Run};

}  // namespace quorvan::QV_TARGET
