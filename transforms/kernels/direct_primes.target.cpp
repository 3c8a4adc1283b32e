#include "transforms/kernels/direct_primes.h"

#include "transforms/vectors.h"

namespace quorvan::QV_TARGET {
namespace {

// Vectors of columns that are summed side by side: as many as the registers hold, with two sums for each part.
constexpr int kMostVectors = kWidth == 8 ? 6 : 2;

// Measured against the convolutions. Two lanes lose against fast ones at any size.
constexpr Count kLargest = kWidth == 8 ? 79 : kWidth == 4 ? 61 : 0, kLargestSlow = 107;

void FillTable(Count p, const double* cosines, const double* sines, const Count* powers, double* table) {
    constexpr Count kMost = kLargestSlow;
    const Count h = p / 2, columns = DirectColumns(p);
    // The sequences from -h on: after h places the cosines repeat, the sines with the other sign.
    double c[kMost / 2 + DirectColumns(kMost)], s[kMost / 2 + DirectColumns(kMost)];
    for (Count v = 0; v < columns; ++v) {
        c[h + v] = cosines[powers[v] - 1];
        s[h + v] = sines[powers[v] - 1];
    }
    for (Count v = 0; v < h; ++v) {
        c[v] = c[h + v];
        s[v] = -s[h + v];
    }
    for (Count u = 0; u < h; ++u, table += 2 * columns)
        for (Count v = 0; v < columns; v += kWidth) {
            Store(table + v, Load<Wide>(c + h - u + v));
            Store(table + columns + v, Load<Wide>(s + h - u + v));
        }
}

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

// put(i, the i-th record) of vectors of real and imaginary parts.
template <class Put>
QV_INLINE void PartInterleaved(Wide re, Wide im, const Put& put) {
    Part(InterleavedLanes<0>(re, im, Lanes<Wide>{}), put);
    Part(InterleavedLanes<kWidth / 2>(re, im, Lanes<Wide>{}), [&](int i, Pair bin) { put(kWidth / 2 + i, bin); });
}

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

void Complex(const ComplexInput& x, const ComplexOutput& X, Count p, const Count* inverses, const Count* powers,
             const double* table, double* work) {
    const Count h = p / 2, columns = DirectColumns(p);
    const Record first = x[0];
    const double parts[] = {first[0], first[1]};
    Record total = first;
    WithLayout(x, [&](auto x) {
        for (Count u = 0; u < h; ++u) {
            const Record low = x[inverses[u]], high = x[p - inverses[u]];
            total += low + high;
            StoreRecord(work + 4 * u, low + high);
            StoreRecord(work + 4 * u + 2, low - high);
        }
    });
    X.Set(0, total);
    WithLayout(X, [&](auto X) {
        ForColumns(columns, [&]<int V>(Count column) {
            const Sums<V, 2> sums(parts, work, table + column, h, columns);
            for (int v = 0; v < V; ++v) {
                const Wide* even = sums.even[v];
                const Wide* odd = sums.odd[v];
                const Count* k = powers + column + v * kWidth;
                PartInterleaved(even[0] - odd[1], even[1] + odd[0], [&](int i, Pair bin) { X.Set(k[i], bin); });
                PartInterleaved(even[0] + odd[1], even[1] - odd[0], [&](int i, Pair bin) { X.Set(p - k[i], bin); });
            }
        });
    });
}

void Real(const double* in, Size inStride, double* out, Size outStride, Count p, const Count* inverses,
          const Count* powers, const double* table, double* work) {
    const Count h = p / 2, columns = DirectColumns(p);
    double *even = work + 2 * columns, *odd = even + columns;
    const double first = in[0];
    double total = first;
    for (Count u = 0; u < h; ++u) {
        const double low = in[inverses[u] * inStride], high = in[(p - inverses[u]) * inStride];
        total += low + high;
        work[2 * u] = low + high;
        work[2 * u + 1] = low - high;
    }
    ForColumns(columns, [&]<int V>(Count column) {
        const Sums<V, 1> sums(&first, work, table + column, h, columns);
        for (int v = 0; v < V; ++v) {
            Store(even + column + v * kWidth, sums.even[v][0]);
            Store(odd + column + v * kWidth, sums.odd[v][0]);
        }
    });
    out[0] = total;
    for (Count v = 0; v < h; ++v) {
        // X[k] or its conjugate X[p - k], whichever comes first; chosen without a jump, since k is as good as random.
        const Count k = powers[v], low = k < p - k ? k : p - k;
        out[low * outStride] = even[v];
        out[(p - low) * outStride] = odd[v] * (low == k ? 1 : -1);
    }
}

}  // namespace

const DirectPrimes kDirectPrimes = {FillTable, Complex, Real, kLargest, kLargestSlow};

}  // namespace quorvan::QV_TARGET
