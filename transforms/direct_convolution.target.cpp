#include "transforms/direct_convolution.h"

#include "frame/complex.h"

namespace quorvan::QV_TARGET {
namespace {

// An array, or the same array from its end.
template <class T, bool kReversed>
struct Reader {
    const T* data;
    Count count;
    QV_INLINE T operator[](Size i) const { return data[kReversed ? count - 1 - i : i]; }
};

QV_INLINE double Plus(double sum, double a, double b) { return sum + a * b; }
QV_INLINE ComplexRecord Plus(ComplexRecord sum, ComplexRecord a, ComplexRecord b) {
    return CxAdd(sum, CxMultiply(a, b));
}

// Adds the rows outer[i] inner[l - i], i in the given order, in groups of four rows: where all four overlap, each
// output is loaded and stored once for four terms.
template <bool kAscending, class T, class Outer, class Inner>
void AddRows(Outer outer, Inner inner, T* __restrict out) {
    constexpr Count kGroup = 4;
    const Count rows = outer.count, length = inner.count;
    Count done = 0;
    for (; done + kGroup <= rows && length >= kGroup; done += kGroup) {
        const Count base = kAscending ? done : rows - done - kGroup;  // the lowest row of the group
        const T a0 = outer[base], a1 = outer[base + 1], a2 = outer[base + 2], a3 = outer[base + 3];
        const auto edge = [&](Size begin, Size end) {
            for (Size l = begin; l < end; ++l)
                for (Count step = 0; step < kGroup; ++step) {
                    const Size i = base + (kAscending ? step : kGroup - 1 - step), j = l - i;
                    if (j >= 0 && j < length) out[l] = Plus(out[l], outer[i], inner[j]);
                }
        };
        const Size first = Size{base} + kGroup - 1, last = Size{base} + length;
        edge(base, first);
        T* __restrict const to = out + first;
        for (Size j = 0; j < last - first; ++j) {
            T sum = to[j];
            if constexpr (kAscending) {
                sum = Plus(sum, a0, inner[j + 3]);
                sum = Plus(sum, a1, inner[j + 2]);
                sum = Plus(sum, a2, inner[j + 1]);
                sum = Plus(sum, a3, inner[j]);
            } else {
                sum = Plus(sum, a3, inner[j]);
                sum = Plus(sum, a2, inner[j + 1]);
                sum = Plus(sum, a1, inner[j + 2]);
                sum = Plus(sum, a0, inner[j + 3]);
            }
            to[j] = sum;
        }
        edge(last, last + kGroup - 1);
    }
    for (; done < rows; ++done) {
        const Count i = kAscending ? done : rows - done - 1;
        const T a = outer[i];
        T* __restrict const to = out + i;
        for (Count j = 0; j < length; ++j) to[j] = Plus(to[j], a, inner[j]);
    }
}

// The shorter sequence goes outside, so that the inner loops are long. Ascending terms of a are descending ones of b.
template <class T, bool kReversed>
void Convolve(const T* a, Count n, const T* b, Count m, T* out) {
    const Reader<T, false> first{a, n};
    const Reader<T, kReversed> second{b, m};
    if (n <= m)
        AddRows<true>(first, second, out);
    else
        AddRows<false>(second, first, out);
}

}  // namespace

const DirectConvolution kDirectConvolution = {Convolve<double, false>, Convolve<double, true>,
                                              Convolve<ComplexRecord, false>};

}  // namespace quorvan::QV_TARGET
