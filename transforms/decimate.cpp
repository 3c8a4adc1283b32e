#include "transforms/decimate.h"

#include <algorithm>
#include <cstddef>

#include "frame/status.h"
#include "frame/thread_registry.h"

namespace quorvan {
namespace {

void Add(double* sum, double x) noexcept { *sum += x; }
void Add(ComplexRecord* sum, const ComplexRecord& x) noexcept {
    sum->re += x.re;
    sum->im += x.im;
}
double Mean(double sum, double count) noexcept { return sum / count; }
ComplexRecord Mean(const ComplexRecord& sum, double count) noexcept { return {sum.re / count, sum.im / count}; }

template <class T>
T SumOnto(T sum, const T* x, std::ptrdiff_t count) noexcept {
    for (std::ptrdiff_t k = 0; k < count; ++k) Add(&sum, x[k]);
    return sum;
}

// out[i] = x[i factor]. out may be x.
template <class T>
void Pick(const T* x, std::ptrdiff_t factor, std::ptrdiff_t count, T* out) noexcept {
    for (std::ptrdiff_t i = 0; i < count; ++i) out[i] = x[i * factor];
}

// out[i] is the mean of block i, added in order. Four blocks at a time hide the latency of their additions. out may
// start at or before x + 1 for factors from 2 on: a block is read before a result reaches it.
template <class T>
void BlockMeans(const T* x, std::ptrdiff_t factor, std::ptrdiff_t count, T* out) noexcept {
    const double divisor = static_cast<double>(factor);
    std::ptrdiff_t i = 0;
    for (; i + 4 <= count; i += 4) {
        const T* block = x + i * factor;
        T a{}, b{}, c{}, d{};
        for (std::ptrdiff_t k = 0; k < factor; ++k) {
            Add(&a, block[k]);
            Add(&b, block[k + factor]);
            Add(&c, block[k + 2 * factor]);
            Add(&d, block[k + 3 * factor]);
        }
        out[i] = Mean(a, divisor);
        out[i + 1] = Mean(b, divisor);
        out[i + 2] = Mean(c, divisor);
        out[i + 3] = Mean(d, divisor);
    }
    for (; i < count; ++i) out[i] = Mean(SumOnto(T{}, x + i * factor, factor), divisor);
}

template <class T>
Status DecimateWhole(const T* x, Count n, Count factor, std::uint32_t average, T* out) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    if (factor < 1 || factor > n) return status::kDecimationOutOfRange;
    if (average) {
        BlockMeans(x, factor, n / factor, out);
    } else {
        Pick(x, factor, n / factor, out);
    }
    return status::kSuccess;
}

// One continuous decimation, taken from the state of the thread and put back there. In 64 bits, so that no sum of an
// offset and a size wraps.
template <class T>
struct Decimation {
    std::int64_t pending;  // samples of a block that is not full yet
    std::int64_t factor;
    std::int64_t offset;  // of the next sample to use in the next block
    T sum;                // of the pending samples

    std::int64_t OutputCount(std::int64_t n, bool average) const noexcept {
        if (average) return (pending ? pending + n : n - offset) / factor;
        return n <= offset ? 0 : (n - offset - 1) / factor + 1;
    }

    void PickBlock(T* x, std::int64_t n, std::int64_t outputs) noexcept {
        Pick(x + std::min(offset, n), factor, outputs, x);
        offset += std::max<std::int64_t>(outputs, 0) * factor - n;
    }

    // The samples that complete the pending block come first, then whole blocks, then what is left. A call that picked
    // samples in between may have moved the offset: then blocks end with the array at the latest.
    void MeanOfBlocks(T* x, std::int64_t n, std::int64_t outputs) noexcept {
        const bool joined = pending > 0;
        const std::int64_t begin = std::min(offset, n), blocks = outputs - joined;
        const std::int64_t whole = std::min(blocks, (n - begin) / factor);
        const T first = joined ? Mean(SumOnto(sum, x, begin), static_cast<double>(factor)) : T{};
        const std::int64_t rest = n - factor * blocks - offset;
        sum = SumOnto(T{}, x + (n - std::max<std::int64_t>(rest, 0)), rest);
        BlockMeans(x + begin, factor, whole, x + joined);
        if (joined) x[0] = first;
        pending = std::max<std::int64_t>(rest, 0);
        offset = (factor - pending) % factor;
    }

    void MeanOfNone(const T* x, std::int64_t n) noexcept {
        if (pending) {
            pending += n;
            sum = SumOnto(sum, x, n);
            offset -= n;
        } else if (n <= offset) {
            offset -= n;
        } else {
            pending = n - offset;
            sum = SumOnto(T{}, x + offset, pending);
            offset = factor - pending;
        }
    }
};

// Goes on with a decimation; `count` is set as soon as it can be formed.
template <class T>
Status DecimateBlock(Decimation<T>* decimation, T* x, Count n, bool average, Size* count) noexcept {
    *count = 0;
    if (decimation->factor < 1) return status::kNotPositive;
    const std::int64_t outputs = decimation->OutputCount(n, average);
    *count = outputs;
    if (decimation->offset < 0) return status::kNegativeNumber;
    if (!average) {
        decimation->PickBlock(x, n, outputs);
    } else if (outputs >= 1) {
        decimation->MeanOfBlocks(x, n, outputs);
    } else {
        decimation->MeanOfNone(x, n);
    }
    return status::kSuccess;
}

}  // namespace

Status Decimate(const double* x, Count n, Count factor, std::uint32_t average, double* out) noexcept {
    return DecimateWhole(x, n, factor, average, out);
}

Status DecimateComplex(ComplexRecord* x, Count n, Count factor, std::uint32_t average, ComplexRecord* out) noexcept {
    return DecimateWhole(x, n, factor, average, out ? out : x);
}

Status DecimateContinuous(double* x, Count n, Count factor, std::uint32_t average, std::int32_t offset,
                          std::int32_t reset, Size* count) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    ThreadState* state = ThreadStateGet();
    if (!state) return status::kOutOfMemory;
    Decimation<double> decimation = {state->decimPending, state->decimFactor, state->decimOffset, state->decimSum};
    if (state->decimFirst || reset) decimation = {0, factor, offset, 0.0};
    state->decimFirst = 0;
    const Status done = DecimateBlock(&decimation, x, n, average, count);
    state->decimPending = static_cast<std::int32_t>(decimation.pending);
    state->decimFactor = static_cast<std::int32_t>(decimation.factor);
    state->decimOffset = static_cast<std::int32_t>(decimation.offset);
    state->decimSum = decimation.sum;
    return done;
}

Status DecimateContinuousComplex(ComplexRecord* x, Count n, Count factor, std::uint32_t average, std::int32_t offset,
                                 std::int32_t reset, Size* count) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    ThreadState* state = ThreadStateGet();
    if (!state) return status::kOutOfMemory;
    Decimation<ComplexRecord> decimation = {state->cxDecimPending,
                                            state->cxDecimFactor,
                                            state->cxDecimOffset,
                                            {state->cxDecimSum[0], state->cxDecimSum[1]}};
    if (state->cxDecimFirst || reset) decimation = {0, factor, offset, {0.0, 0.0}};
    state->cxDecimFirst = 0;
    const Status done = DecimateBlock(&decimation, x, n, average, count);
    state->cxDecimPending = static_cast<std::int32_t>(decimation.pending);
    state->cxDecimFactor = static_cast<std::int32_t>(decimation.factor);
    state->cxDecimOffset = static_cast<std::int32_t>(decimation.offset);
    state->cxDecimSum[0] = decimation.sum.re;
    state->cxDecimSum[1] = decimation.sum.im;
    return done;
}

}  // namespace quorvan
