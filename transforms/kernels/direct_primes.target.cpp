#include "transforms/kernels/direct_primes.h"

#include "transforms/vectors.h"

namespace quorvan::QV_TARGET {
namespace {

// Vectors of columns that are summed side by side: as many as the registers hold, with two sums for each part.
constexpr int kMostVectors = kWidth == 8 ? 6 : 2;

// Measured against the convolutions.
constexpr Count kLargest = kWidth == 8 ? 103 : kWidth == 4 ? 79 : 61, kLargestRough = 107;

QV_INLINE Wide Broadcast(double value) { return value - Wide{}; }

// The sums of V vectors of columns, for each of the kParts parts of the data: even = first + sum of cosines times a,
// odd = sum of negative sines times b. A row of `folded` holds the parts of a[j], then those of b[j].
template <int V, int kParts>
struct Sums {
    Wide even[V][kParts], odd[V][kParts];

    QV_INLINE Sums(const double* first, const double* folded, const double* table, Count h, Count columns) {
        for (int v = 0; v < V; ++v)
            for (int part = 0; part < kParts; ++part) {
                even[v][part] = Broadcast(first[part]);
                odd[v][part] = Wide{};
            }
        for (Count j = 0; j < h; ++j, folded += 2 * kParts, table += 2 * columns) {
            for (int v = 0; v < V; ++v) {
                const Wide c = Load<Wide>(table + v * kWidth), s = Load<Wide>(table + columns + v * kWidth);
                for (int part = 0; part < kParts; ++part) {
                    even[v][part] += c * Broadcast(folded[part]);
                    odd[v][part] += s * Broadcast(folded[kParts + part]);
                }
            }
        }
    }
};

// Calls body.operator()<V>(column) over all columns.
template <class Body>
QV_INLINE void ForColumns(Count columns, const Body& body) {
    Count vectors = columns / kWidth, column = 0;
    for (Count rounds = (vectors + kMostVectors - 1) / kMostVectors; rounds > 0; --rounds) {
        const Count v = (vectors + rounds - 1) / rounds;
        switch (v) {
            case 1: body.template operator()<1>(column); break;
            case 2: body.template operator()<2>(column); break;
#if defined(__AVX512F__)
            case 3: body.template operator()<3>(column); break;
            case 4: body.template operator()<4>(column); break;
            case 5: body.template operator()<5>(column); break;
            case 6: body.template operator()<6>(column); break;
#endif
            default: break;
        }
        column += v * kWidth;
        vectors -= v;
    }
}

QV_INLINE Pair Record(const double* re, const double* im) { return Pair{*re, *im}; }

// The first record and the folded ones; returns their sum.
template <bool kAdjacent>
QV_INLINE Pair Fold(const double* inRe, const double* inIm, Size stride, Count p, double* folded) {
    const auto record = [=](Size j) {
        return kAdjacent ? Load<Pair>(inRe + j * stride) : Record(inRe + j * stride, inIm + j * stride);
    };
    Pair total = record(0);
    for (Count j = 1; 2 * j < p; ++j, folded += 4) {
        const Pair low = record(j), high = record(p - j);
        total += low + high;
        Store(folded, low + high);
        Store(folded + 2, low - high);
    }
    return total;
}

void Complex(const double* inRe, const double* inIm, Size inStride, double* out, Count p, const double* table,
             double* work) {
    const Count columns = DirectColumns(p);
    const double first[] = {*inRe, *inIm};
    const Pair total =
        inIm == inRe + 1 ? Fold<true>(inRe, inIm, inStride, p, work) : Fold<false>(inRe, inIm, inStride, p, work);
    Store(out, total);
    // A vector that reaches beyond column h stores right bins there, which their mirrors give once more.
    ForColumns(columns, [&]<int V>(Count column) {
        const Sums<V, 2> sums(first, work, table + column, p / 2, columns);
        for (int v = 0; v < V; ++v) {
            const Wide* even = sums.even[v];
            const Wide* odd = sums.odd[v];
            const Size k = 1 + column + v * kWidth;
            StoreInterleaved(out + 2 * k, even[0] - odd[1], even[1] + odd[0]);
            StoreInterleaved(out + 2 * (p - k - kWidth + 1), Reversed(even[0] + odd[1]), Reversed(even[1] - odd[0]));
        }
    });
}

void Real(const double* in, Size inStride, double* out, Size outStride, Count p, const double* table, double* work) {
    const Count columns = DirectColumns(p), h = p / 2;
    double *even = work + 2 * columns, *odd = even + columns;
    const double first = in[0];
    double total = first;
    for (Count j = 1; j <= h; ++j) {
        const double low = in[j * inStride], high = in[(p - j) * inStride];
        total += low + high;
        work[2 * (j - 1)] = low + high;
        work[2 * (j - 1) + 1] = low - high;
    }
    ForColumns(columns, [&]<int V>(Count column) {
        const Sums<V, 1> sums(&first, work, table + column, h, columns);
        for (int v = 0; v < V; ++v) {
            Store(even + column + v * kWidth, sums.even[v][0]);
            Store(odd + column + v * kWidth, sums.odd[v][0]);
        }
    });
    out[0] = total;
    for (Size k = 1; k <= h; ++k) {
        out[k * outStride] = even[k - 1];
        out[(p - k) * outStride] = odd[k - 1];
    }
}

}  // namespace

const DirectPrimes kDirectPrimes = {Complex, Real, kLargest, kLargestRough};

}  // namespace quorvan::QV_TARGET
