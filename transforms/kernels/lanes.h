// Vectors of W doubles for the kernels: one set of operations, for each width that the instruction set has.
//
// A block of W adjacent complex numbers becomes one vector of real and one of imaginary parts. Its lanes stand in the
// order that a single unpack leaves, column (lane % 2) * W/2 + lane / 2, so that taking records apart and putting them
// together costs one shuffle a vector. Split and real data, which stand in natural order, pay one permutation instead.
//
// Operations on a range of lanes, or on the Records of a range of columns, touch no memory outside it. Loaded reversed
// or stored backwards, the last record in memory belongs to column 0. Loaded backwards, column 0 is the record at
// `first`, column c the c-th before `end`: W records are read there, or those of columns 1 to c for the Records of {0,
// c}. In rows of whole vectors such a load begins where a store began: of data that is still on its way to memory, a
// load can have what one store wrote, but not parts of two. Stored after column 0, all columns of the Records but that
// one go backwards; column 1 must be among them, and no instruction reaches beyond it: where a page ends there, even a
// masked one may take long.
#pragma once

#include "frame/targets.h"
#include "frame/types.h"

#if defined(__SSE2__)
#include <immintrin.h>
#endif

#define QV_INLINE_LAMBDA __attribute__((always_inline))

// For each kind of block that an entry knows: within one function, GCC 12 makes common what the kinds share, and the
// addresses that it then keeps on the stack cost as much as the sums.
#define QV_APART __attribute__((noinline))

namespace quorvan::QV_TARGET {
namespace {

// Adjacent elements are adjacent (re, im) pairs.
QV_INLINE bool AreRecords(const double* re, const double* im, Size stride) { return im == re + 1 && stride == 2; }

template <int W>
struct Lanes;

// The lanes [first, last) of a vector.
struct LaneRange {
    int first, last;
    QV_INLINE bool Has(int lane) const { return lane >= first && lane < last; }
    QV_INLINE LaneRange Mirror(int width) const { return {width - last, width - first}; }
};

constexpr Count LaneColumn(Count width, Count lane) { return width == 1 ? 0 : (lane % 2) * (width / 2) + lane / 2; }

template <>
struct Lanes<1> {
    using V = double;

    using Records = bool;
    QV_INLINE static Records RecordsIn(LaneRange r) { return r.Has(0); }

    QV_INLINE static void LoadRecords(const double* p, V& re, V& im) { re = p[0], im = p[1]; }
    QV_INLINE static void LoadRecords(const double* p, Records records, V& re, V& im) {
        re = im = 0;
        if (records) LoadRecords(p, re, im);
    }
    QV_INLINE static void LoadReversed(const double* p, V& re, V& im) { LoadRecords(p, re, im); }
    QV_INLINE static void LoadBackwards(const double* first, const double*, V& re, V& im) {
        LoadRecords(first, re, im);
    }
    QV_INLINE static void LoadBackwards(const double* first, const double*, Records, V& re, V& im) {
        LoadRecords(first, re, im);
    }
    QV_INLINE static void StoreRecords(double* p, V re, V im) { p[0] = re, p[1] = im; }
    QV_INLINE static void StoreRecords(double* p, Records records, V re, V im) {
        if (records) StoreRecords(p, re, im);
    }
    QV_INLINE static void StoreConjugatesBackwards(double* p, V re, V im) { StoreRecords(p, re, -im); }
    QV_INLINE static void StoreConjugatesBackwards(double* p, Records records, V re, V im) {
        StoreRecords(p, records, re, -im);
    }
    QV_INLINE static void StoreConjugatesAfterFirst(double*, Records, V, V) {}
    QV_INLINE static V Load(const double* p) { return *p; }
    QV_INLINE static V Load(const double* p, LaneRange r) { return r.first < r.last ? *p : 0.0; }
    QV_INLINE static void Store(double* p, V v) { *p = v; }
    QV_INLINE static void Store(double* p, LaneRange r, V v) {
        if (r.first < r.last) *p = v;
    }
    QV_INLINE static V ToLanes(V v) { return v; }
    QV_INLINE static V FromLanes(V v) { return v; }
    QV_INLINE static V ToLanesReversed(V v) { return v; }
    QV_INLINE static V FromLanesReversed(V v) { return v; }
    QV_INLINE static void Transpose(V*) {}
    QV_INLINE static void JoinRows(const V* re, const V* im, V* rows) { rows[0] = *re, rows[1] = *im; }
};

#if defined(__SSE2__)

template <>
struct Lanes<2> {
    using V = __m128d;

    struct Records {
        bool first, second;
    };
    QV_INLINE static Records RecordsIn(LaneRange r) { return {r.Has(0), r.Has(1)}; }

    QV_INLINE static void LoadRecords(const double* p, V& re, V& im) {
        const V a = _mm_loadu_pd(p), b = _mm_loadu_pd(p + 2);
        re = _mm_unpacklo_pd(a, b);
        im = _mm_unpackhi_pd(a, b);
    }
    QV_INLINE static void LoadRecords(const double* p, Records r, V& re, V& im) {
        const V a = r.first ? _mm_loadu_pd(p) : V{}, b = r.second ? _mm_loadu_pd(p + 2) : V{};
        re = _mm_unpacklo_pd(a, b);
        im = _mm_unpackhi_pd(a, b);
    }
    QV_INLINE static void LoadReversed(const double* p, V& re, V& im) {
        const V a = _mm_loadu_pd(p + 2), b = _mm_loadu_pd(p);
        re = _mm_unpacklo_pd(a, b);
        im = _mm_unpackhi_pd(a, b);
    }
    QV_INLINE static void LoadBackwards(const double* first, const double* end, V& re, V& im) {
        const V a = _mm_loadu_pd(first), b = _mm_loadu_pd(end - 2);
        re = _mm_unpacklo_pd(a, b);
        im = _mm_unpackhi_pd(a, b);
    }
    QV_INLINE static void LoadBackwards(const double* first, const double* end, Records r, V& re, V& im) {
        const V a = _mm_loadu_pd(first), b = r.first ? _mm_loadu_pd(end - 2) : V{};
        re = _mm_unpacklo_pd(a, b);
        im = _mm_unpackhi_pd(a, b);
    }
    QV_INLINE static void StoreRecords(double* p, V re, V im) {
        _mm_storeu_pd(p, _mm_unpacklo_pd(re, im));
        _mm_storeu_pd(p + 2, _mm_unpackhi_pd(re, im));
    }
    QV_INLINE static void StoreRecords(double* p, Records r, V re, V im) {
        if (r.first) _mm_storeu_pd(p, _mm_unpacklo_pd(re, im));
        if (r.second) _mm_storeu_pd(p + 2, _mm_unpackhi_pd(re, im));
    }
    QV_INLINE static V Conjugate(V record) { return _mm_xor_pd(record, _mm_set_pd(-0.0, 0.0)); }
    QV_INLINE static void StoreConjugatesBackwards(double* p, V re, V im) {
        _mm_storeu_pd(p, Conjugate(_mm_unpackhi_pd(re, im)));
        _mm_storeu_pd(p + 2, Conjugate(_mm_unpacklo_pd(re, im)));
    }
    QV_INLINE static void StoreConjugatesBackwards(double* p, Records r, V re, V im) {
        if (r.second) _mm_storeu_pd(p, Conjugate(_mm_unpackhi_pd(re, im)));
        if (r.first) _mm_storeu_pd(p + 2, Conjugate(_mm_unpacklo_pd(re, im)));
    }
    QV_INLINE static void StoreConjugatesAfterFirst(double* p, Records r, V re, V im) {
        if (r.second) _mm_storeu_pd(p, Conjugate(_mm_unpackhi_pd(re, im)));
    }
    QV_INLINE static V Load(const double* p) { return _mm_loadu_pd(p); }
    QV_INLINE static V Load(const double* p, LaneRange r) {
        return _mm_set_pd(r.last > 1 ? p[1] : 0.0, r.first < 1 ? p[0] : 0.0);
    }
    QV_INLINE static void Store(double* p, V v) { _mm_storeu_pd(p, v); }
    QV_INLINE static void Store(double* p, LaneRange r, V v) {
        if (r.first < 1 && r.last > 0) _mm_storel_pd(p, v);
        if (r.last > 1) _mm_storeh_pd(p + 1, v);
    }
    QV_INLINE static V ToLanes(V v) { return v; }
    QV_INLINE static V FromLanes(V v) { return v; }
    QV_INLINE static V ToLanesReversed(V v) { return _mm_shuffle_pd(v, v, 1); }
    QV_INLINE static V FromLanesReversed(V v) { return _mm_shuffle_pd(v, v, 1); }
    // Lanes as records: i times each of them.
    QV_INLINE static V Turn(V v) { return _mm_xor_pd(_mm_shuffle_pd(v, v, 1), _mm_set_pd(0.0, -0.0)); }
    // W/2 vectors of records: the i-th takes the i-th record of each.
    QV_INLINE static void TransposeRows(V*) {}

    // W vectors of real and W of imaginary parts of the same numbers, a sequence in each lane: a row of both for each
    // sequence. There may be fewer lanes than W.
    QV_INLINE static void JoinRows(const V* re, const V* im, V* rows) {
        rows[0] = _mm_unpacklo_pd(re[0], re[1]);
        rows[1] = _mm_unpacklo_pd(im[0], im[1]);
        rows[2] = _mm_unpackhi_pd(re[0], re[1]);
        rows[3] = _mm_unpackhi_pd(im[0], im[1]);
    }
    QV_INLINE static void Transpose(V* v) {
        const V a = _mm_unpacklo_pd(v[0], v[1]);
        v[1] = _mm_unpackhi_pd(v[0], v[1]);
        v[0] = a;
    }
};

#endif

#if defined(__AVX2__)

template <>
struct Lanes<4> {
    using V = __m256d;

    // All bits set in the lanes [first, last).
    QV_INLINE static __m256i Mask(int first, int last) {
        const __m256i lane = _mm256_set_epi64x(3, 2, 1, 0);
        return _mm256_andnot_si256(_mm256_cmpgt_epi64(_mm256_set1_epi64x(first), lane),
                                   _mm256_cmpgt_epi64(_mm256_set1_epi64x(last), lane));
    }
    QV_INLINE static void LoadRecords(const double* p, V& re, V& im) {
        const V a = _mm256_loadu_pd(p), b = _mm256_loadu_pd(p + 4);
        re = _mm256_unpacklo_pd(a, b);
        im = _mm256_unpackhi_pd(a, b);
    }
    struct Records {
        __m256i a, b, backA, backB;
    };
    QV_INLINE static Records RecordsIn(LaneRange r) {
        const LaneRange back = r.Mirror(4);
        return {Mask(2 * r.first, 2 * r.last), Mask(2 * r.first - 4, 2 * r.last - 4),
                Mask(2 * back.first, 2 * back.last), Mask(2 * back.first - 4, 2 * back.last - 4)};
    }
    QV_INLINE static void LoadRecords(const double* p, Records records, V& re, V& im) {
        const V a = _mm256_maskload_pd(p, records.a), b = _mm256_maskload_pd(p + 4, records.b);
        re = _mm256_unpacklo_pd(a, b);
        im = _mm256_unpackhi_pd(a, b);
    }
    QV_INLINE static V ReversedRecords(V v) { return _mm256_permute2f128_pd(v, v, 0x01); }
    QV_INLINE static void LoadReversed(const double* p, V& re, V& im) {
        const V a = ReversedRecords(_mm256_loadu_pd(p + 4)), b = ReversedRecords(_mm256_loadu_pd(p));
        re = _mm256_unpacklo_pd(a, b);
        im = _mm256_unpackhi_pd(a, b);
    }
    QV_INLINE static void LoadBackwards(const double* first, const double* end, V& re, V& im) {
        JoinBackwards(first, _mm256_loadu_pd(end - 4), _mm256_loadu_pd(end - 8), re, im);
    }
    QV_INLINE static void LoadBackwards(const double* first, const double* end, Records records, V& re, V& im) {
        JoinBackwards(first, _mm256_maskload_pd(end - 4, records.backB), _mm256_maskload_pd(end - 8, records.backA), re,
                      im);
    }
    QV_INLINE static void JoinBackwards(const double* first, V near, V far, V& re, V& im) {
        const V a = _mm256_blend_pd(_mm256_castpd128_pd256(_mm_loadu_pd(first)), near, 0b1100);
        const V b = _mm256_blend_pd(near, far, 0b1100);
        re = _mm256_unpacklo_pd(a, b);
        im = _mm256_unpackhi_pd(a, b);
    }
    QV_INLINE static void StoreRecords(double* p, V re, V im) {
        _mm256_storeu_pd(p, _mm256_unpacklo_pd(re, im));
        _mm256_storeu_pd(p + 4, _mm256_unpackhi_pd(re, im));
    }
    QV_INLINE static void StoreRecords(double* p, Records records, V re, V im) {
        _mm256_maskstore_pd(p, records.a, _mm256_unpacklo_pd(re, im));
        _mm256_maskstore_pd(p + 4, records.b, _mm256_unpackhi_pd(re, im));
    }
    QV_INLINE static V ConjugatesBackwards(V v) {
        return _mm256_xor_pd(ReversedRecords(v), _mm256_set_pd(-0.0, 0.0, -0.0, 0.0));
    }
    QV_INLINE static void StoreConjugatesBackwards(double* p, V re, V im) {
        _mm256_storeu_pd(p, ConjugatesBackwards(_mm256_unpackhi_pd(re, im)));
        _mm256_storeu_pd(p + 4, ConjugatesBackwards(_mm256_unpacklo_pd(re, im)));
    }
    QV_INLINE static void StoreConjugatesBackwards(double* p, Records records, V re, V im) {
        _mm256_maskstore_pd(p, records.backA, ConjugatesBackwards(_mm256_unpackhi_pd(re, im)));
        _mm256_maskstore_pd(p + 4, records.backB, ConjugatesBackwards(_mm256_unpacklo_pd(re, im)));
    }
    QV_INLINE static void StoreConjugatesAfterFirst(double* p, Records records, V re, V im) {
        _mm256_maskstore_pd(p, records.backA, ConjugatesBackwards(_mm256_unpackhi_pd(re, im)));
        _mm_storeu_pd(p + 4, _mm256_castpd256_pd128(ConjugatesBackwards(_mm256_unpacklo_pd(re, im))));
    }
    QV_INLINE static V Load(const double* p) { return _mm256_loadu_pd(p); }
    QV_INLINE static V Load(const double* p, LaneRange r) { return _mm256_maskload_pd(p, Mask(r.first, r.last)); }
    QV_INLINE static void Store(double* p, V v) { _mm256_storeu_pd(p, v); }
    QV_INLINE static void Store(double* p, LaneRange r, V v) { _mm256_maskstore_pd(p, Mask(r.first, r.last), v); }
    QV_INLINE static V ToLanes(V v) { return _mm256_permute4x64_pd(v, 0b11'01'10'00); }
    QV_INLINE static V FromLanes(V v) { return _mm256_permute4x64_pd(v, 0b11'01'10'00); }
    QV_INLINE static V ToLanesReversed(V v) { return _mm256_permute4x64_pd(v, 0b00'10'01'11); }
    QV_INLINE static V FromLanesReversed(V v) { return _mm256_permute4x64_pd(v, 0b00'10'01'11); }
    QV_INLINE static V Turn(V v) {
        return _mm256_xor_pd(_mm256_permute_pd(v, 0b0101), _mm256_set_pd(0.0, -0.0, 0.0, -0.0));
    }
    // (a, b) of the even lanes, and of the odd ones.
    QV_INLINE static V EvenPairs(V a, V b) { return _mm256_unpacklo_pd(a, b); }
    QV_INLINE static V OddPairs(V a, V b) { return _mm256_unpackhi_pd(a, b); }
    QV_INLINE static void TransposeRows(V* v) {
        const V a = _mm256_permute2f128_pd(v[0], v[1], 0x20);
        v[1] = _mm256_permute2f128_pd(v[0], v[1], 0x31);
        v[0] = a;
    }

    QV_INLINE static V JoinHalves(__m128d low, __m128d high) {
        return _mm256_insertf128_pd(_mm256_castpd128_pd256(low), high, 1);
    }
    QV_INLINE static void JoinRows(const V* re, const V* im, V* rows) {
        V a[4] = {re[0], re[1], re[2], re[3]}, b[4] = {im[0], im[1], im[2], im[3]};
        Transpose(a);
        Transpose(b);
        for (int t = 0; t < 4; ++t) rows[2 * t] = a[t], rows[2 * t + 1] = b[t];
    }
    QV_INLINE static void JoinRows(const __m128d* re, const __m128d* im, V* rows) {
        V both[4];
        for (int i = 0; i < 4; ++i) both[i] = JoinHalves(re[i], im[i]);
        Transpose(both);
        for (int t = 0; t < 2; ++t) rows[2 * t] = both[t], rows[2 * t + 1] = both[t + 2];
    }
    QV_INLINE static void Transpose(V* v) {
        const V a = _mm256_unpacklo_pd(v[0], v[1]), b = _mm256_unpackhi_pd(v[0], v[1]);
        const V c = _mm256_unpacklo_pd(v[2], v[3]), d = _mm256_unpackhi_pd(v[2], v[3]);
        v[0] = _mm256_permute2f128_pd(a, c, 0x20);
        v[1] = _mm256_permute2f128_pd(b, d, 0x20);
        v[2] = _mm256_permute2f128_pd(a, c, 0x31);
        v[3] = _mm256_permute2f128_pd(b, d, 0x31);
    }
};

#endif

#if defined(__AVX512F__)

template <>
struct Lanes<8> {
    using V = __m512d;

    QV_INLINE static __mmask8 Mask(int first, int last) {
        const unsigned below = last <= 0 ? 0u : last >= 8 ? 0xFFu : (1u << last) - 1;
        return static_cast<__mmask8>(below & (0xFFu << first));
    }
    struct Records {
        __mmask8 a, b, backA, backB;
    };
    // By halves: where the compiler knows that one is whole, its operations need no mask.
    QV_INLINE static Records RecordsIn(LaneRange r) {
        const auto from = [](int count) QV_INLINE_LAMBDA { return 0xFFu << 2 * count; };
        const unsigned a = r.last >= 4 ? 0xFFu : ~from(r.last), b = r.last >= 4 ? ~from(r.last - 4) : 0u;
        const unsigned nearEnd = r.last >= 4 ? 0xFFu : from(4 - r.last), farEnd = r.last >= 4 ? from(8 - r.last) : 0u;
        return {static_cast<__mmask8>(a & from(r.first)), static_cast<__mmask8>(b), static_cast<__mmask8>(farEnd),
                static_cast<__mmask8>(nearEnd & (0xFFu >> 2 * r.first))};
    }
    QV_INLINE static void LoadRecords(const double* p, V& re, V& im) {
        const V a = _mm512_loadu_pd(p), b = _mm512_loadu_pd(p + 8);
        re = _mm512_unpacklo_pd(a, b);
        im = _mm512_unpackhi_pd(a, b);
    }
    QV_INLINE static void LoadRecords(const double* p, Records records, V& re, V& im) {
        const V a = _mm512_maskz_loadu_pd(records.a, p), b = _mm512_maskz_loadu_pd(records.b, p + 8);
        re = _mm512_unpacklo_pd(a, b);
        im = _mm512_unpackhi_pd(a, b);
    }
    QV_INLINE static V ReversedRecords(V v) { return _mm512_shuffle_f64x2(v, v, 0b00'01'10'11); }
    QV_INLINE static void LoadReversed(const double* p, V& re, V& im) {
        const V a = ReversedRecords(_mm512_loadu_pd(p + 8)), b = ReversedRecords(_mm512_loadu_pd(p));
        re = _mm512_unpacklo_pd(a, b);
        im = _mm512_unpackhi_pd(a, b);
    }
    QV_INLINE static void LoadBackwards(const double* first, const double* end, V& re, V& im) {
        JoinBackwards(first, _mm512_loadu_pd(end - 8), _mm512_loadu_pd(end - 16), re, im);
    }
    QV_INLINE static void LoadBackwards(const double* first, const double* end, Records records, V& re, V& im) {
        JoinBackwards(first, _mm512_maskz_loadu_pd(records.backB, end - 8),
                      _mm512_maskz_loadu_pd(records.backA, end - 16), re, im);
    }
    QV_INLINE static void JoinBackwards(const double* first, V near, V far, V& re, V& im) {
        const __m512i joined = _mm512_set_epi64(11, 10, 13, 12, 15, 14, 1, 0);
        const V a = _mm512_permutex2var_pd(_mm512_castpd128_pd512(_mm_loadu_pd(first)), joined, near);
        const V b = _mm512_permutex2var_pd(near, joined, far);
        re = _mm512_unpacklo_pd(a, b);
        im = _mm512_unpackhi_pd(a, b);
    }
    QV_INLINE static void StoreRecords(double* p, V re, V im) {
        _mm512_storeu_pd(p, _mm512_unpacklo_pd(re, im));
        _mm512_storeu_pd(p + 8, _mm512_unpackhi_pd(re, im));
    }
    QV_INLINE static void StoreRecords(double* p, Records records, V re, V im) {
        _mm512_mask_storeu_pd(p, records.a, _mm512_unpacklo_pd(re, im));
        _mm512_mask_storeu_pd(p + 8, records.b, _mm512_unpackhi_pd(re, im));
    }
    QV_INLINE static V ConjugatesBackwards(V v) {
        return _mm512_xor_pd(ReversedRecords(v), _mm512_set_pd(-0.0, 0.0, -0.0, 0.0, -0.0, 0.0, -0.0, 0.0));
    }
    QV_INLINE static void StoreConjugatesBackwards(double* p, V re, V im) {
        _mm512_storeu_pd(p, ConjugatesBackwards(_mm512_unpackhi_pd(re, im)));
        _mm512_storeu_pd(p + 8, ConjugatesBackwards(_mm512_unpacklo_pd(re, im)));
    }
    QV_INLINE static void StoreConjugatesBackwards(double* p, Records records, V re, V im) {
        _mm512_mask_storeu_pd(p, records.backA, ConjugatesBackwards(_mm512_unpackhi_pd(re, im)));
        _mm512_mask_storeu_pd(p + 8, records.backB, ConjugatesBackwards(_mm512_unpacklo_pd(re, im)));
    }
    QV_INLINE static void StoreConjugatesAfterFirst(double* p, Records records, V re, V im) {
        _mm512_mask_storeu_pd(p, records.backA, ConjugatesBackwards(_mm512_unpackhi_pd(re, im)));
        const V near = ConjugatesBackwards(_mm512_unpacklo_pd(re, im));
        _mm256_mask_storeu_pd(p + 8, records.backB, _mm512_castpd512_pd256(near));
        _mm_storeu_pd(p + 12, _mm512_extractf64x2_pd(near, 2));
    }
    QV_INLINE static V Load(const double* p) { return _mm512_loadu_pd(p); }
    QV_INLINE static V Load(const double* p, LaneRange r) { return _mm512_maskz_loadu_pd(Mask(r.first, r.last), p); }
    QV_INLINE static void Store(double* p, V v) { _mm512_storeu_pd(p, v); }
    QV_INLINE static void Store(double* p, LaneRange r, V v) { _mm512_mask_storeu_pd(p, Mask(r.first, r.last), v); }
    QV_INLINE static V ToLanes(V v) { return _mm512_permutexvar_pd(_mm512_set_epi64(7, 3, 6, 2, 5, 1, 4, 0), v); }
    QV_INLINE static V FromLanes(V v) { return _mm512_permutexvar_pd(_mm512_set_epi64(7, 5, 3, 1, 6, 4, 2, 0), v); }
    QV_INLINE static V ToLanesReversed(V v) {
        return _mm512_permutexvar_pd(_mm512_set_epi64(0, 4, 1, 5, 2, 6, 3, 7), v);
    }
    QV_INLINE static V FromLanesReversed(V v) {
        return _mm512_permutexvar_pd(_mm512_set_epi64(0, 2, 4, 6, 1, 3, 5, 7), v);
    }
    QV_INLINE static V Turn(V v) {
        const V sign = _mm512_set_pd(0.0, -0.0, 0.0, -0.0, 0.0, -0.0, 0.0, -0.0);
        return _mm512_xor_pd(_mm512_permute_pd(v, 0b01010101), sign);
    }
    QV_INLINE static V EvenPairs(V a, V b) { return _mm512_unpacklo_pd(a, b); }
    QV_INLINE static V OddPairs(V a, V b) { return _mm512_unpackhi_pd(a, b); }
    QV_INLINE static V JoinHalves(__m256d low, __m256d high) {
        return _mm512_insertf64x4(_mm512_castpd256_pd512(low), high, 1);
    }
    QV_INLINE static void JoinRows(const V* re, const V* im, V* rows) {
        V a[8], b[8];
        for (int i = 0; i < 8; ++i) a[i] = re[i], b[i] = im[i];
        Transpose(a);
        Transpose(b);
        for (int t = 0; t < 8; ++t) rows[2 * t] = a[t], rows[2 * t + 1] = b[t];
    }
    QV_INLINE static void JoinRows(const __m256d* re, const __m256d* im, V* rows) {
        V both[8];
        for (int i = 0; i < 8; ++i) both[i] = JoinHalves(re[i], im[i]);
        Transpose(both);
        for (int t = 0; t < 4; ++t) rows[2 * t] = both[t], rows[2 * t + 1] = both[t + 4];
    }
    QV_INLINE static void JoinRows(const __m128d* re, const __m128d* im, V* rows) {
        __m256d low[4], high[4];  // the first and the second sequence, real parts below, for two columns each
        for (int i = 0; i < 4; ++i) {
            const __m256d a = Lanes<4>::JoinHalves(re[2 * i], im[2 * i]);
            const __m256d b = Lanes<4>::JoinHalves(re[2 * i + 1], im[2 * i + 1]);
            low[i] = _mm256_unpacklo_pd(a, b);
            high[i] = _mm256_unpackhi_pd(a, b);
        }
        JoinPairs(low, rows);
        JoinPairs(high, rows + 2);
    }
    QV_INLINE static void JoinPairs(const __m256d* columns, V* row) {
        const V a = JoinHalves(columns[0], columns[1]), b = JoinHalves(columns[2], columns[3]);
        row[0] = _mm512_shuffle_f64x2(a, b, 0b10'00'10'00);
        row[1] = _mm512_shuffle_f64x2(a, b, 0b11'01'11'01);
    }
    QV_INLINE static void TransposeRows(V* v) { TransposePairs(v[0], v[1], v[2], v[3], v); }

    QV_INLINE static void TransposePairs(V a, V b, V c, V d, V* rows) {
        const V ab0 = _mm512_shuffle_f64x2(a, b, 0b01'00'01'00), ab1 = _mm512_shuffle_f64x2(a, b, 0b11'10'11'10);
        const V cd0 = _mm512_shuffle_f64x2(c, d, 0b01'00'01'00), cd1 = _mm512_shuffle_f64x2(c, d, 0b11'10'11'10);
        rows[0] = _mm512_shuffle_f64x2(ab0, cd0, 0b10'00'10'00);
        rows[1] = _mm512_shuffle_f64x2(ab0, cd0, 0b11'01'11'01);
        rows[2] = _mm512_shuffle_f64x2(ab1, cd1, 0b10'00'10'00);
        rows[3] = _mm512_shuffle_f64x2(ab1, cd1, 0b11'01'11'01);
    }
    QV_INLINE static void Transpose(V* v) {
        V even[4], odd[4], low[4], high[4];
        for (int i = 0; i < 4; ++i) {
            even[i] = _mm512_unpacklo_pd(v[2 * i], v[2 * i + 1]);
            odd[i] = _mm512_unpackhi_pd(v[2 * i], v[2 * i + 1]);
        }
        TransposePairs(even[0], even[1], even[2], even[3], low);
        TransposePairs(odd[0], odd[1], odd[2], odd[3], high);
        for (int i = 0; i < 4; ++i) {
            v[2 * i] = low[i];
            v[2 * i + 1] = high[i];
        }
    }
};

inline constexpr Count kMaxWidth = 8;
#elif defined(__AVX2__)
inline constexpr Count kMaxWidth = 4;
#elif defined(__SSE2__)
inline constexpr Count kMaxWidth = 2;
#else
inline constexpr Count kMaxWidth = 1;
#endif

// The narrowest vector that takes all that is left, or the widest one.
constexpr Count BlockWidth(Count left) {
    if (kMaxWidth == 8 && left > 4) return 8;
    if (kMaxWidth >= 4 && left > 2) return 4;
    return kMaxWidth >= 2 && left > 1 ? 2 : 1;
}

// (re, im) times the twiddle of row k > 0, from the table of a block of W columns.
template <int W>
QV_INLINE void Twiddle(const double* table, int k, typename Lanes<W>::V& re, typename Lanes<W>::V& im) {
    using L = Lanes<W>;
    const auto c = L::Load(table + 2 * W * (k - 1)), s = L::Load(table + 2 * W * (k - 1) + W);
    const auto turned = re * c - im * s;
    im = re * s + im * c;
    re = turned;
}

// Calls body.template operator()<W>() with the W that BlockWidth gives.
template <class Body>
QV_INLINE void WithBlockWidth(Count left, const Body& body) {
    switch (BlockWidth(left)) {
#if defined(__AVX512F__)
        case 8: body.template operator()<8>(); break;
#endif
#if defined(__AVX2__)
        case 4: body.template operator()<4>(); break;
#endif
#if defined(__SSE2__)
        case 2: body.template operator()<2>(); break;
#endif
        default: body.template operator()<1>();
    }
}

}  // namespace
}  // namespace quorvan::QV_TARGET
