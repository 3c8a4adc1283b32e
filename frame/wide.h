// One register of doubles of the instruction set that a unit is compiled for, and the loop that maps arrays through an
// operation register by register. For *.target.cpp units only.
#pragma once

#include <cstddef>
#include <cstdint>

#include "frame/targets.h"
#include "frame/types.h"

#if defined(__SSE2__)
#include <immintrin.h>
#endif

namespace quorvan::QV_TARGET {
namespace {

#if defined(QV_TARGET_avx512)
constexpr int kLanes = 8;
#elif defined(QV_TARGET_avx2)
constexpr int kLanes = 4;
#else
constexpr int kLanes = 2;
#endif
constexpr std::size_t kWideBytes = sizeof(double) * kLanes;

typedef double Wide __attribute__((vector_size(kWideBytes)));
typedef std::int64_t WideBits __attribute__((vector_size(kWideBytes)));  // a comparison: all bits or none in a lane

QV_INLINE Wide Load(const double* from) {
    Wide v;
    __builtin_memcpy(&v, from, sizeof v);
    return v;
}
QV_INLINE void Store(double* to, Wide v) { __builtin_memcpy(to, &v, sizeof v); }

// A scalar in the type of the first argument, for operations that are written once for lanes and for the rest.
QV_INLINE double Like(double, double value) { return value; }
QV_INLINE Wide Like(Wide, double value) { return value - Wide{}; }

QV_INLINE double Abs(double v) { return __builtin_fabs(v); }
QV_INLINE Wide Abs(Wide v) { return Wide(WideBits(v) & INT64_MAX); }

// a > b ? a : b and a < b ? a : b to the letter, NaN and zeros included: the second, where the two do not compare.
// Stream writes past the caches, to a place aligned to a register; StreamEnd makes such writes visible in order.
#if defined(QV_TARGET_avx512)
// The masked forms with all lanes on: about the plain ones GCC 12 warns wrongly.
QV_INLINE Wide Max(Wide a, Wide b) { return _mm512_maskz_max_pd(0xFF, a, b); }
QV_INLINE Wide Min(Wide a, Wide b) { return _mm512_maskz_min_pd(0xFF, a, b); }
QV_INLINE bool Any(WideBits mask) { return _mm512_test_epi64_mask(__m512i(mask), __m512i(mask)); }
QV_INLINE void Stream(double* to, Wide v) { _mm512_stream_pd(to, v); }
QV_INLINE void StreamEnd() { _mm_sfence(); }
#elif defined(QV_TARGET_avx2)
QV_INLINE Wide Max(Wide a, Wide b) { return _mm256_max_pd(a, b); }
QV_INLINE Wide Min(Wide a, Wide b) { return _mm256_min_pd(a, b); }
QV_INLINE bool Any(WideBits mask) { return _mm256_movemask_pd(__m256d(mask)); }
QV_INLINE void Stream(double* to, Wide v) { _mm256_stream_pd(to, v); }
QV_INLINE void StreamEnd() { _mm_sfence(); }
#elif defined(__SSE2__)
QV_INLINE Wide Max(Wide a, Wide b) { return _mm_max_pd(a, b); }
QV_INLINE Wide Min(Wide a, Wide b) { return _mm_min_pd(a, b); }
QV_INLINE bool Any(WideBits mask) { return _mm_movemask_pd(__m128d(mask)); }
QV_INLINE void Stream(double* to, Wide v) { _mm_stream_pd(to, v); }
QV_INLINE void StreamEnd() { _mm_sfence(); }
#else
QV_INLINE Wide Max(Wide a, Wide b) { return a > b ? a : b; }
QV_INLINE Wide Min(Wide a, Wide b) { return a < b ? a : b; }
QV_INLINE bool Any(WideBits mask) { return mask[0] | mask[1]; }
QV_INLINE void Stream(double* to, Wide v) { Store(to, v); }
QV_INLINE void StreamEnd() {}
#endif

QV_INLINE bool WideAligned(const double* p) { return reinterpret_cast<std::uintptr_t>(p) % kWideBytes == 0; }

// Where a map writes: one array, or the two of a split complex result.
struct RealSink {
    double* out;

    bool aligned(std::ptrdiff_t i) const { return WideAligned(out + i); }
    bool can_stream(std::ptrdiff_t i) const { return aligned(i); }
    bool is(const double* in) const { return out == in; }
    QV_INLINE void put(std::ptrdiff_t i, double v) const { out[i] = v; }
    QV_INLINE void put(std::ptrdiff_t i, Wide v) const { Store(out + i, v); }
    QV_INLINE void stream(std::ptrdiff_t i, Wide v) const { Stream(out + i, v); }
};

template <class T>
struct Split {
    T re, im;
};

struct SplitSink {
    double* re;
    double* im;

    bool aligned(std::ptrdiff_t i) const { return WideAligned(re + i); }
    bool can_stream(std::ptrdiff_t i) const { return aligned(i) && WideAligned(im + i); }
    bool is(const double* in) const { return re == in || im == in; }
    QV_INLINE void put(std::ptrdiff_t i, Split<double> v) const { re[i] = v.re, im[i] = v.im; }
    QV_INLINE void put(std::ptrdiff_t i, Split<Wide> v) const { Store(re + i, v.re), Store(im + i, v.im); }
    QV_INLINE void stream(std::ptrdiff_t i, Split<Wide> v) const { Stream(re + i, v.re), Stream(im + i, v.im); }
};

// Whether the arrays are so large that what is written is gone from the caches before anyone reads it again. Streaming
// then saves reading the output first; an output that is an input has been read anyway.
template <class Sink, class... Inputs>
QV_INLINE bool Far(Count n, [[maybe_unused]] Sink sink, const Inputs*... in) {
    constexpr std::size_t kFarBytes = std::size_t{24} << 20;
    constexpr std::size_t kArrays = sizeof...(in) + sizeof(Sink) / sizeof(double*);
    return kArrays * sizeof(double) * static_cast<std::size_t>(n) >= kFarBytes && !(sink.is(in) || ...);
}

// sink[i] = operation(in[i]...) for the elements first to last - 1. An element, or a register of them, is read from all
// inputs before it is written, so that the sink may be any of the inputs.
template <class Sink, class Operation, class... Inputs>
QV_INLINE void MapRange(std::ptrdiff_t first, std::ptrdiff_t last, bool far, Sink sink, Operation operation,
                        const Inputs*... in) {
    std::ptrdiff_t i = first;
    for (; i < last && !sink.aligned(i); ++i) sink.put(i, operation(in[i]...));
    if (far && sink.can_stream(i)) {
        for (; i + kLanes <= last; i += kLanes) sink.stream(i, operation(Load(in + i)...));
        StreamEnd();
    } else {
        for (; i + kLanes <= last; i += kLanes) sink.put(i, operation(Load(in + i)...));
    }
    for (; i < last; ++i) sink.put(i, operation(in[i]...));
}

template <class Sink, class Operation, class... Inputs>
QV_INLINE void Map(Count n, Sink sink, Operation operation, const Inputs*... in) {
    MapRange(0, n, Far(n, sink, in...), sink, operation, in...);
}

}  // namespace
}  // namespace quorvan::QV_TARGET
