// A stage waits for its own last sample and for the stage before it, so that neither samples nor stages can run side by
// side. What can is a slanted line across both: while one stage works on sample k, the next one works on sample k - 2,
// the one after that on k - 4. Each lane of a register is a stage (or the real or imaginary part of one), and after
// every step the outputs move on by one lane. Two samples apart, and not one, so that the way from stage to stage has
// two steps of time and only the recurrence within the stages is waited for.
//
// Lane 0 holds the last stage, so that the output leaves there.
#include "filters/cascade_loops.h"

#include "transforms/vectors.h"

#if defined(__SSE2__)
#include <immintrin.h>
#endif

namespace quorvan::QV_TARGET {
namespace {

constexpr double kSmallest = 2.2250738585072014e-308;  // DBL_MIN
constexpr double kNever = -1;                          // a limit that no magnitude is within
constexpr int kDistance = 2;                           // samples from stage to stage
constexpr std::uintptr_t kAhead = 2048;                // bytes
constexpr Count kFew = 8;  // samples for which filling and emptying the lanes takes longer than stage after stage
constexpr int kMostRegisters = 3;  // that side by side still keep their histories at hand

typedef double Quad __attribute__((vector_size(32)));
typedef double Octet __attribute__((vector_size(64)));

template <class V>
using Bits = decltype(V{} < V{});  // an integer of 64 bits in each lane

template <class V>
QV_INLINE V Magnitude(V v) {
    return V(Bits<V>(v) & INT64_MAX);
}

// `v` where its magnitude is above the limit, else 0. NaN stays.
template <class V>
QV_INLINE V Flushed(V v, V limit) {
    return Magnitude(v) <= limit ? V{} : v;
}

// Whether a lane is within its limit.
template <class V>
QV_INLINE bool AnyWithin(V v, V limit) {
#if defined(__AVX512F__)
    if constexpr (sizeof(V) == 64) return _mm512_cmp_pd_mask(__m512d(Magnitude(v)), __m512d(limit), _CMP_LE_OQ);
#endif
#if defined(__AVX__)
    if constexpr (sizeof(V) == 32) return _mm256_movemask_pd(__m256d(Magnitude(v) <= limit));
#endif
#if defined(__SSE2__)
    if constexpr (sizeof(V) == 16) return _mm_movemask_pd(__m128d(Magnitude(v) <= limit));
#endif
    const V magnitude = Magnitude(v);
    bool any = false;
    for (int i = 0; i < kLanes<V>; ++i) any |= magnitude[i] <= limit[i];
    return any;
}

template <class V, class Lane, int... I>
QV_INLINE V Made(Lane lane, std::integer_sequence<int, I...>) {
    return V{lane(I)...};
}

// The lanes of `low` from place kBy on, followed by those of `high`.
template <int kBy, class V, int... I>
QV_INLINE V MovedDown(V low, V high, std::integer_sequence<int, I...>) {
    return __builtin_shufflevector(low, high, (kBy + I)...);
}

// v and v again. GCC 12 takes a wider step than this through memory.
[[maybe_unused]] QV_INLINE Quad Twice(Pair v) { return __builtin_shufflevector(v, v, 0, 1, 0, 1); }
[[maybe_unused]] QV_INLINE Octet Twice(Quad v) { return __builtin_shufflevector(v, v, 0, 1, 2, 3, 0, 1, 2, 3); }

// The sample in every lane, or in every pair of lanes.
template <int kParts, class V>
QV_INLINE V SampleLanes(const double* x) {
    if constexpr (kParts == 1) {
        return *x - V{};
    } else {
        const Pair sample = Load<Pair>(x);
        if constexpr (sizeof(V) == 16) return sample;
        if constexpr (sizeof(V) == 32) return Twice(sample);
        if constexpr (sizeof(V) == 64) return Twice(Twice(sample));
    }
}

// The output of the last stage.
template <int kParts, class V>
QV_INLINE void PutSample(V v, double limit, double* y) {
    if constexpr (kParts == 2) {
        Store(y, Flushed(__builtin_shufflevector(v, v, 0, 1), Pair{} + limit));
    } else {
        const double out = v[0];
        *y = __builtin_fabs(out) <= limit ? 0.0 : out;
    }
}

#if defined(__SSE2__)
#define QV_KEEP_BRANCH(value) asm("" : "+x"(value))
#else
#define QV_KEEP_BRANCH(value)
#endif

enum class Form { kOne, kTwo };

// A history of samples moves on by one; where `works` says so, when it is a mask.
template <int kWidth, class V>
QV_INLINE void Push(V (&history)[kWidth], V newest) {
    for (int j = kWidth - 1; j > 0; --j) history[j] = history[j - 1];
    history[0] = newest;
}
template <int kWidth, class V, class Mask>
QV_INLINE void Push(V (&history)[kWidth], V newest, Mask works) {
    for (int j = kWidth - 1; j > 0; --j) history[j] = works ? history[j - 1] : history[j];
    history[0] = works ? newest : history[0];
}

// One register's worth of stages or a few, from first to last; `limit` is that of the output. Form one starts from rest
// and takes no state.
template <Form kForm, class V, int kRegisters, int kWidth, int kParts>
void Run(const double* a, const double* b, int stages, const double* x, std::ptrdiff_t n, double limit, double* state,
         double* y) {
    constexpr bool kTwo = kForm == Form::kTwo;
    constexpr int kLast = kRegisters - 1;
    const int used = stages * kParts;
    // value(stage, part) in the lane of that stage and part.
    const auto spread = [&](double unused, auto value, auto put) {
        for (int r = 0; r < kRegisters; ++r)
            put(r, Made<V>(
                       [&](int lane) {
                           const int i = r * kLanes<V> + lane;
                           return i < used ? value(stages - 1 - i / kParts, i % kParts) : unused;
                       },
                       Lanes<V>{}));
    };

    V feedback[kRegisters][kWidth], forward[kRegisters][kWidth + 1], limits[kRegisters], behind[kRegisters], first{};
    // In form two `past` is the delay line of a stage, in form one its inputs, and then `results` are its outputs.
    V past[kRegisters][kWidth] = {}, results[kRegisters][kWidth] = {};
    for (int j = 0; j < kWidth; ++j) {
        spread(
            0, [&](int s, int) { return a[s * kWidth + j]; }, [&](int r, V v) { feedback[r][j] = v; });
        if constexpr (kTwo)
            spread(
                0, [&](int s, int part) { return state[(s * kWidth + j) * kParts + part]; },
                [&](int r, V v) { past[r][j] = v; });
    }
    for (int j = 0; j <= kWidth; ++j)
        spread(
            0, [&](int s, int) { return b[s * (kWidth + 1) + j]; }, [&](int r, V v) { forward[r][j] = v; });
    spread(
        kNever, [](int, int) { return kSmallest; }, [&](int r, V v) { limits[r] = v; });
    spread(
        0, [](int s, int) { return -1.0 * kDistance * s; }, [&](int r, V v) { behind[r] = v; });
    // The first stage always stands in the last register.
    spread(
        0, [](int s, int) { return s == 0 ? 1.0 : 0.0; }, [&](int, V v) { first = v; });
    const auto enters = first != V{};
    V late[kRegisters] = {}, last[kRegisters] = {};  // the outputs of the last step but one, and of the last

    const std::ptrdiff_t lead = kDistance * (stages - 1);
    // At the ends some stages have no sample to work on: their histories stay.
    const auto step = [&](std::ptrdiff_t k, auto at_ends) __attribute__((always_inline)) {
        V v[kRegisters], newest[kRegisters];
        for (int r = 0; r < kRegisters; ++r) v[r] = MovedDown<kParts>(late[r], late[r < kLast ? r + 1 : r], Lanes<V>{});
        if (!at_ends || k < n) v[kLast] = enters ? SampleLanes<kParts, V>(x + k * kParts) : v[kLast];
        for (int r = 0; r < kRegisters; ++r) {
            V t = v[r];
            if constexpr (kTwo)
                for (int j = 0; j < kWidth; ++j) t = t - feedback[r][j] * past[r][j];
            v[r] = t * forward[r][0];
            for (int j = 0; j < kWidth; ++j) v[r] = v[r] + forward[r][j + 1] * past[r][j];
            if constexpr (!kTwo)
                for (int j = 0; j < kWidth; ++j) v[r] = v[r] - feedback[r][j] * results[r][j];
            newest[r] = t;
        }
        if constexpr (kTwo) {
            // A branch, and one that is easily foreseen: the next step begins before the comparison is done.
            bool any = false;
            for (int r = 0; r < kRegisters; ++r) any |= AnyWithin(newest[r], limits[r]);
            if (any) [[unlikely]]
                for (int r = 0; r < kRegisters; ++r) {
                    newest[r] = Flushed(newest[r], limits[r]);
                    QV_KEEP_BRANCH(newest[r]);
                }
        }
        for (int r = 0; r < kRegisters; ++r) {
            if constexpr (at_ends) {
                const V sample = behind[r] + static_cast<double>(k);
                const auto works = (sample >= V{}) & (sample < V{} + static_cast<double>(n));
                Push(past[r], newest[r], works);
                if constexpr (!kTwo) Push(results[r], v[r], works);
            } else {
                Push(past[r], newest[r]);
                if constexpr (!kTwo) Push(results[r], v[r]);
            }
            late[r] = last[r];
            last[r] = v[r];
        }
        if (!at_ends || k >= lead) PutSample<kParts>(v[0], limit, y + (k - lead) * kParts);
    };
    std::ptrdiff_t k = 0;
    for (; k < lead; ++k) step(k, std::true_type{});
    for (; k < n; ++k) {
        // Some samples take longer to come than the machine looks ahead by itself. Past the end it does no harm.
        __builtin_prefetch(reinterpret_cast<const void*>(reinterpret_cast<std::uintptr_t>(x + k * kParts) + kAhead));
        step(k, std::false_type{});
    }
    for (; k < n + lead; ++k) step(k, std::true_type{});

    if constexpr (kTwo)
        for (int j = 0; j < kWidth; ++j) {
            double lanes[kRegisters * kLanes<V>];
            for (int r = 0; r < kRegisters; ++r) Store(lanes + r * kLanes<V>, past[r][j]);
            for (int i = 0; i < used; ++i)
                state[((stages - 1 - i / kParts) * kWidth + j) * kParts + i % kParts] = lanes[i];
        }
}

// Registers for so many lanes.
template <Form kForm, int kWidth, int kParts, class... Arguments>
void RunLanes(int lanes, Arguments... arguments) {
    constexpr int kWidest = kLanes<Wide>;
    if (lanes <= 2) return Run<kForm, Pair, 1, kWidth, kParts>(arguments...);
    if constexpr (kWidest > 4)
        if (lanes <= 4) return Run<kForm, Quad, 1, kWidth, kParts>(arguments...);
    if constexpr (kWidest > 2)
        if (lanes <= kWidest) return Run<kForm, Wide, 1, kWidth, kParts>(arguments...);
    if (lanes <= 2 * kWidest) return Run<kForm, Wide, 2, kWidth, kParts>(arguments...);
    Run<kForm, Wide, kMostRegisters, kWidth, kParts>(arguments...);
}

// As many stages as the registers hold, or one, then the next ones on the result.
template <Form kForm, int kParts>
void Cascade(CascadeStages cascade, const double* x, Count n, double* state, double* y) {
    const Count most = n < kFew ? 1 : kMostRegisters * kLanes<Wide> / kParts;
    const Count width = cascade.width;
    for (std::ptrdiff_t first = 0; first < cascade.stages; first += most) {
        const bool ends = cascade.stages - first <= most;
        const int stages = ends ? static_cast<int>(cascade.stages - first) : most;
        const double limit = ends && kForm == Form::kTwo ? kSmallest : kNever;
        const double *const a = cascade.a + first * width, *const b = cascade.b + first * (width + 1);
        double* const delays = kForm == Form::kTwo ? state + first * width * kParts : nullptr;
        if (width == 2)
            RunLanes<kForm, 2, kParts>(stages * kParts, a, b, stages, x, n, limit, delays, y);
        else
            RunLanes<kForm, 4, kParts>(stages * kParts, a, b, stages, x, n, limit, delays, y);
        x = y;
    }
}

void Reals(CascadeStages cascade, const double* x, Count n, double* state, double* y) {
    Cascade<Form::kTwo, 1>(cascade, x, n, state, y);
}

void Records(CascadeStages cascade, const ComplexRecord* x, Count n, ComplexRecord* state, ComplexRecord* y) {
    Cascade<Form::kTwo, 2>(cascade, &x->re, n, &state->re, &y->re);
}

void FromRest(CascadeStages cascade, const double* x, Count n, double* y) {
    Cascade<Form::kOne, 1>(cascade, x, n, nullptr, y);
}

}  // namespace

const CascadeLoops kCascadeLoops = {Reals, Records, FromRest};

}  // namespace quorvan::QV_TARGET
