// A quicksort in registers. Short ranges go through Batcher's bitonic network (K. E. Batcher, Sorting networks and
// their applications, 1968), and so do the samples that the pivots are the medians of. Longer ranges are partitioned in
// place, registers at a time, without a branch that depends on the data. What the pivots divide badly is left to
// heapsort (D. R. Musser, Introspective sorting, 1997), so that no input takes quadratic time.
#include "frame/array_sort.h"

#include "frame/wide.h"

namespace quorvan::QV_TARGET {
namespace {

constexpr int kRegisters = 8;
constexpr std::ptrdiff_t kShort = kRegisters * kLanes;  // what the network sorts at once

constexpr int TopBit(int v) { return 1 << (31 - __builtin_clz(static_cast<unsigned>(v))); }

// The register with the element of lane i ^ flip in lane i.
template <int flip>
QV_INLINE Wide Flipped(Wide v) {
    WideBits from;
    for (int i = 0; i < kLanes; ++i) from[i] = i ^ flip;
    return flip ? __builtin_shuffle(v, from) : v;
}

// Compares each element e with element e ^ flip; the smaller one goes to the lower place. Min and Max each keep their
// second argument on equality, so that zeros of different sign change places, and neither is lost.
template <int registers, int flip>
QV_INLINE void CompareExchange(Wide (&v)[registers]) {
    constexpr int kLaneFlip = flip % kLanes, kRegisterFlip = flip / kLanes;
    if constexpr (kRegisterFlip == 0) {
        constexpr int kTop = TopBit(kLaneFlip);
        WideBits upper;
        for (int i = 0; i < kLanes; ++i) upper[i] = i & kTop ? -1 : 0;
        for (int r = 0; r < registers; ++r) {
            const Wide partner = Flipped<kLaneFlip>(v[r]);
            v[r] = upper ? Max(v[r], partner) : Min(v[r], partner);
        }
    } else {
        constexpr int kTop = TopBit(kRegisterFlip);
        for (int r = 0; r < registers; ++r) {
            if (r & kTop) continue;
            const Wide low = v[r], high = Flipped<kLaneFlip>(v[r ^ kRegisterFlip]);
            v[r] = Min(low, high);
            v[r ^ kRegisterFlip] = Flipped<kLaneFlip>(Max(high, low));
        }
    }
}

// From bitonic runs of 2 * distance elements to sorted ones.
template <int registers, int distance>
QV_INLINE void MergeRuns(Wide (&v)[registers]) {
    if constexpr (distance > 0) {
        CompareExchange<registers, distance>(v);
        MergeRuns<registers, distance / 2>(v);
    }
}

// Sorted runs of `run` elements become sorted runs of twice the length, until one is left. The first step meets the
// second run from its end: this makes two ascending runs bitonic.
template <int registers, int run = 1>
QV_INLINE void SortRegisters(Wide (&v)[registers]) {
    if constexpr (run < registers * kLanes) {
        CompareExchange<registers, 2 * run - 1>(v);
        MergeRuns<registers, run / 2>(v);
        SortRegisters<registers, 2 * run>(v);
    }
}

// Sorts up to registers * kLanes elements; infinities fill up the registers.
template <int registers>
void SortPadded(double* x, std::ptrdiff_t n) {
    Wide v[registers];
    double padded[registers * kLanes];
    for (int r = 0; r < registers; ++r) Store(padded + r * kLanes, Like(Wide{}, __builtin_inf()));
    __builtin_memcpy(padded, x, static_cast<std::size_t>(n) * sizeof(double));
    for (int r = 0; r < registers; ++r) v[r] = Load(padded + r * kLanes);
    SortRegisters<registers>(v);
    for (int r = 0; r < registers; ++r) Store(padded + r * kLanes, v[r]);
    __builtin_memcpy(x, padded, static_cast<std::size_t>(n) * sizeof(double));
}

void SortShort(double* x, std::ptrdiff_t n) {
    if (n <= kShort / 4) return SortPadded<kRegisters / 4>(x, n);
    if (n <= kShort / 2) return SortPadded<kRegisters / 2>(x, n);
    SortPadded<kRegisters>(x, n);
}

// The median of equally spaced samples.
double ChoosePivot(const double* x, std::ptrdiff_t n) {
    double samples[kShort];
    const std::ptrdiff_t count = n < 16 * kShort ? kShort / 4 : kShort, spacing = n / count;
    for (std::ptrdiff_t i = 0; i < count; ++i) samples[i] = x[i * spacing + spacing / 2];
    SortShort(samples, count);
    return samples[count / 2];
}

// Which elements go to the left of a pivot: the smaller ones, or the equal ones too.
struct Below {
    double pivot;
    bool operator()(double v) const { return v < pivot; }
    QV_INLINE WideBits operator()(Wide v) const { return v < pivot; }
};
struct NotAbove {
    double pivot;
    bool operator()(double v) const { return v <= pivot; }
    QV_INLINE WideBits operator()(Wide v) const { return v <= pivot; }
};

// Lomuto's partition of the elements first to last - 1, `boundary` being where the left ones end so far.
template <class GoesLeft>
std::ptrdiff_t PartitionRest(double* x, std::ptrdiff_t boundary, std::ptrdiff_t first, std::ptrdiff_t last,
                             GoesLeft goes_left) {
    for (; first < last; ++first) {
        const double v = x[first];
        x[first] = x[boundary];
        x[boundary] = v;
        boundary += goes_left(v);
    }
    return boundary;
}

#if defined(QV_TARGET_avx512) || defined(QV_TARGET_avx2)

#if defined(QV_TARGET_avx512)
QV_INLINE unsigned Mask(WideBits bits) { return _mm512_movepi64_mask(__m512i(bits)); }

// The lanes of the mask first, then the others.
QV_INLINE Wide Parted(Wide v, unsigned mask, int left) {
    const __m512d lower = _mm512_maskz_compress_pd(static_cast<__mmask8>(mask), v);
    const __m512d upper = _mm512_maskz_compress_pd(static_cast<__mmask8>(~mask), v);
    return _mm512_mask_expand_pd(lower, static_cast<__mmask8>(0xFF << left), upper);
}
#else
QV_INLINE unsigned Mask(WideBits bits) { return static_cast<unsigned>(_mm256_movemask_pd(__m256d(bits))); }

struct PartingTable {
    alignas(32) std::int32_t halves[16][8];
    constexpr PartingTable() : halves() {
        for (int mask = 0; mask < 16; ++mask) {
            int to = 0;
            for (int turn = 1; turn >= 0; --turn)
                for (int lane = 0; lane < 4; ++lane)
                    if ((mask >> lane & 1) == turn) {
                        halves[mask][to++] = 2 * lane;
                        halves[mask][to++] = 2 * lane + 1;
                    }
        }
    }
};
constexpr PartingTable kParting;

QV_INLINE Wide Parted(Wide v, unsigned mask, int) {
    const __m256i order = _mm256_load_si256(reinterpret_cast<const __m256i*>(kParting.halves[mask]));
    return Wide(_mm256_castsi256_pd(_mm256_permutevar8x32_epi32(_mm256_castpd_si256(v), order)));
}
#endif

// Parts a register and writes it whole at both ends of the gap: `left` of its elements count at the lower end, the
// others at the upper one, and the next writes cover what does not count.
struct Gap {
    double* lower;
    double* upper;

    template <class GoesLeft>
    QV_INLINE void put(Wide v, GoesLeft goes_left) {
        const unsigned mask = Mask(goes_left(v));
        const int left = __builtin_popcount(mask);
        const Wide parted = Parted(v, mask, left);
        Store(lower, parted);
        Store(upper - kLanes, parted);
        lower += left;
        upper -= kLanes - left;
    }
};

// Moves the elements that go left before the others; returns their count. Takes a chunk from each end aside, so that
// there is room for a chunk at each end from then on: the next chunk is read at the end where less room is left.
template <class GoesLeft>
std::ptrdiff_t Partition(double* x, std::ptrdiff_t n, GoesLeft goes_left) {
    constexpr int kTurns = 4;
    constexpr std::ptrdiff_t kChunk = kTurns * kLanes;
    if (n < 2 * kChunk) return PartitionRest(x, 0, 0, n, goes_left);
    const std::ptrdiff_t whole = n - n % kChunk;
    double* read_lower = x + kChunk;
    double* read_upper = x + whole - kChunk;
    Wide first[kTurns], last[kTurns];
    for (int t = 0; t < kTurns; ++t) {
        first[t] = Load(x + t * kLanes);
        last[t] = Load(read_upper + t * kLanes);
    }
    Gap gap{x, x + whole};
    while (read_lower < read_upper) {
        const bool from_lower = read_lower - gap.lower <= gap.upper - read_upper;
        read_upper -= from_lower ? 0 : kChunk;
        const double* chunk = from_lower ? read_lower : read_upper;
        read_lower += from_lower ? kChunk : 0;
        Wide v[kTurns];
        for (int t = 0; t < kTurns; ++t) v[t] = Load(chunk + t * kLanes);
        for (int t = 0; t < kTurns; ++t) gap.put(v[t], goes_left);
    }
    for (int t = 0; t < kTurns; ++t) gap.put(first[t], goes_left);
    for (int t = 0; t < kTurns; ++t) gap.put(last[t], goes_left);
    return PartitionRest(x, gap.lower - x, whole, n, goes_left);
}

#else

template <class GoesLeft>
std::ptrdiff_t Partition(double* x, std::ptrdiff_t n, GoesLeft goes_left) {
    return PartitionRest(x, 0, 0, n, goes_left);
}

#endif

void SiftDown(double* x, std::ptrdiff_t root, std::ptrdiff_t n) {
    const double sinking = x[root];
    for (std::ptrdiff_t child; (child = 2 * root + 1) < n; root = child) {
        if (child + 1 < n && x[child] < x[child + 1]) ++child;
        if (!(sinking < x[child])) break;
        x[root] = x[child];
    }
    x[root] = sinking;
}

void HeapSort(double* x, std::ptrdiff_t n) {
    for (std::ptrdiff_t root = n / 2; root-- > 0;) SiftDown(x, root, n);
    for (std::ptrdiff_t end = n; --end > 0;) {
        const double largest = x[0];
        x[0] = x[end];
        x[end] = largest;
        SiftDown(x, 0, end);
    }
}

// Recurses into the left part and goes on with the right one.
void SortRange(double* x, std::ptrdiff_t n, int levels) {
    while (n > kShort) {
        if (levels-- == 0) return HeapSort(x, n);
        const double pivot = ChoosePivot(x, n);
        std::ptrdiff_t left = Partition(x, n, Below{pivot});
        if (left > 0)
            SortRange(x, left, levels);
        else
            left = Partition(x, n, NotAbove{pivot});  // the pivot is the smallest: all that equal it are in place now
        x += left;
        n -= left;
    }
    if (n > 1) SortShort(x, n);
}

void SortAscending(double* x, Count n, int levels) { SortRange(x, n, levels); }

}  // namespace

const ArraySort kArraySort = {SortAscending};

}  // namespace quorvan::QV_TARGET
