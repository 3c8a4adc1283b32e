#include "transforms/rader_loops.h"

#include "transforms/vectors.h"

namespace quorvan::QV_TARGET {
namespace {

// Calls body.operator()<V>(place) for all n records, as many at once as a register holds.
template <class Body>
QV_INLINE void ForRecords(Count n, const Body& body) {
    Size i = 0;
    for (; i + kWidth <= 2 * Size(n); i += kWidth) body.template operator()<Wide>(i);
    for (; i < 2 * Size(n); i += 2) body.template operator()<Pair>(i);
}

template <class V>
QV_INLINE V Conjugate(V v) {
    return v * Alternating<V>(1, -1);
}
template <class V>
QV_INLINE V Swapped(V v) {
    return SwappedLanes(v, Lanes<V>{});
}

void ConjugateProduct(double* __restrict records, const double* __restrict re, const double* __restrict im, Count n) {
    for (Count k = 0; k < n; ++k) {
        const double x = records[2 * Size(k)], y = records[2 * Size(k) + 1];
        records[2 * Size(k)] = x * re[k] - y * im[k];
        records[2 * Size(k) + 1] = -(x * im[k] + y * re[k]);
    }
}

void ConjugateRecordProduct(double* records, const double* factors, Count n) {
    ForRecords(n, [=]<class V>(Size i) {
        Store(records + i, Conjugate(Product(FactorsOf(Load<V>(factors + i)), Load<V>(records + i))));
    });
}

void Turn(const double* records, const double* turns, Count n, double* out) {
    ForRecords(n,
               [=]<class V>(Size i) { Store(out + i, Product(FactorsOf(Load<V>(turns + i)), Load<V>(records + i))); });
}

void PairProduct(const double* spectrum, const double* cosines, const double* sines, bool odd, Count n, double* out) {
    const auto product = [=]<class V>(Size i, V bin, V mirror) {
        const V conjugate = Conjugate(mirror);
        const V result = Product(FactorsOf(Load<V>(cosines + i)), bin + conjugate) +
                         Product(FactorsOf(Load<V>(sines + i)), bin - conjugate);
        Store(out + i, result * Alternating<V>(0.5, -0.5));
    };
    const Count first = odd ? 0 : 1;
    if (!odd) product(0, Load<Pair>(spectrum), Load<Pair>(spectrum));
    const Size last = 2 * (Size(n) - 1);  // the mirror of the first bin that has one
    ForRecords(n - first, [=]<class V>(Size i) {
        const V mirror = ReversedRecords(Load<V>(spectrum + last - i - (kLanes<V> - 2)));
        product(2 * first + i, Load<V>(spectrum + 2 * first + i), mirror);
    });
}

void Fold(const ComplexInput& x, const Count* indices, Count p, const double* turns, const HalvesOfRecords& out) {
    WithLayout(x, [=](auto x) {
        ForRecords(p / 2, [=]<class V>(Size i) {
            const Count* j = indices + i / 2;
            const V low = Joined<V>([&](int r) { return x[j[r]]; });
            const V high = Joined<V>([&](int r) { return x[p - j[r]]; });
            const Factor<V> turn = FactorsOf(Load<V>(turns + i));
            Store(out.sums + i, low + high);
            Store(out.differences + i, low - high);
            Store(out.turnedSums + i, Product(turn, low + high));
            Store(out.turnedDifferences + i, Product(turn, low - high));
        });
    });
}

void Unfold(const HalvesOfRecords& in, const double* turns, Record first, const Count* indices, Count p,
            const ComplexOutput& X) {
    WithLayout(X, [=](auto X) {
        ForRecords(p / 2, [=]<class V>(Size i) {
            const Count* k = indices + i / 2;
            const Factor<V> turn = FactorsOf(Load<V>(turns + i));
            const V e = Load<V>(in.sums + i) + Product(turn, Load<V>(in.turnedSums + i));
            const V f = Load<V>(in.differences + i) + Product(turn, Load<V>(in.turnedDifferences + i));
            const V even = Alternating<V>(first[0], first[1]) + Conjugate(e), odd = Swapped(f);  // i conj f
            Part(even + odd, [&](int r, Pair value) { X.Set(k[r], value); });
            Part(even - odd, [&](int r, Pair value) { X.Set(p - k[r], value); });
        });
    });
}

}  // namespace

const RaderLoops kRaderLoops = {ConjugateProduct, ConjugateRecordProduct, Turn, PairProduct, Fold, Unfold};

}  // namespace quorvan::QV_TARGET
