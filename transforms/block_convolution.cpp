#include "transforms/block_convolution.h"

#include <algorithm>
#include <cmath>

#include "frame/memory.h"
#include "frame/status.h"
#include "transforms/block_loops.h"
#include "transforms/spectrum_layout.h"

namespace quorvan {
namespace {

// `count` elements from place `from` on, with zeros outside the sequence: where they stand, or else copied to `room`.
template <class T>
const T* Window(const Sequence<T>& s, Size from, Count count, T* room) {
    const Size first = std::max<Size>(from, 0), last = std::min<Size>(from + count, s.length);
    if (!s.reversed && last - first == count) return s.data + from;
    std::fill(room, room + count, T{});
    if (first >= last) return room;
    if (s.reversed)
        std::reverse_copy(s.data + s.length - last, s.data + s.length - first, room + (first - from));
    else
        std::copy(s.data + first, s.data + last, room + (first - from));
    return room;
}

// Two blocks of reals, `step` apart, travel as the real and the imaginary part of one transform, and records alone.
const ComplexRecord* Pack(const Sequence<double>& s, Size from, Count step, Count n, ComplexRecord* out,
                          ComplexRecord* room) {
    double *const first = &room->re, *const second = first + n;
    kBlockLoops().join(Window(s, from, n, first), Window(s, from + step, n, second), n, out);
    return out;
}
const ComplexRecord* Pack(const Sequence<ComplexRecord>& s, Size from, Count, Count n, ComplexRecord* out,
                          ComplexRecord*) {
    return Window(s, from, n, out);
}

// The results of the blocks, `step` of each and `wanted` of all.
void Unpack(const ComplexRecord* results, Count step, Size wanted, double* out) {
    const Count first = static_cast<Count>(std::min<Size>(step, wanted));
    const Count second = static_cast<Count>(std::clamp<Size>(wanted - step, 0, step));
    kBlockLoops().partConjugate(results, second, out, out + step);
    for (Count k = second; k < first; ++k) out[k] = results[k].re;
}
void Unpack(const ComplexRecord* results, Count step, Size wanted, ComplexRecord* out) {
    kBlockLoops().conjugate(results, static_cast<Count>(std::min<Size>(step, wanted)), out);
}

template <class T>
constexpr Count kBlocksAtOnce = sizeof(ComplexRecord) / sizeof(T);

}  // namespace

// Counted in n (log2 n)^2, as our transforms take time from the first cache to the third. Blocks take two transforms
// each, one for the spectrum of the shorter sequence and about one for the tables. The whole, tables included, was
// measured as 3 of reals and 5 of records; blocks are taken where this estimate, which is right within a third to
// either side, gives them half of that. A short result is not worth their passes.
template <class T>
Count BlockLength(Count longer, Count shorter, Count S) noexcept {
    constexpr Size kShortest = 128;
    constexpr Count kShortResult = 1024;
    if (S < kShortResult) return 0;
    const auto work = [](Size n) {
        const double levels = std::log2(double(n));
        return double(n) * levels * levels;
    };
    const Size length = Size{longer} + shorter - 1;
    Size best = 0;
    double least = 0.5 * (kBlocksAtOnce<T> == 2 ? 3 : 5) * work(S);
    for (Size n = kShortest; n < S; n *= 2) {
        if (n < 2 * Size{shorter}) continue;
        const Size step = kBlocksAtOnce<T> * (n - shorter + 1);
        const double cost = 2.0 * double((length + step - 1) / step + 1) * work(n);
        if (cost < least) {
            least = cost;
            best = n;
        }
    }
    return static_cast<Count>(best);
}

// By sections (T. G. Stockham, High-speed convolution and correlation, 1966) that overlap: of the cyclic convolution of
// `block` samples those from shorter.length - 1 on are results. The forward transform of a conjugated spectrum is the
// conjugate of the inverse one, so that each block is conjugated twice and no inverse transform is needed.
template <class T>
Status ConvolveInBlocks(const Sequence<T>& longer, const Sequence<T>& shorter, Count block, T* out) noexcept {
    const HeldPlan plan(block);
    const Block<ComplexRecord> work(3 * static_cast<std::size_t>(block));
    if (!plan || !work) return status::kOutOfMemory;
    ComplexRecord *const factors = work, *const samples = factors + block, *const spectrum = samples + block;
    const auto forward = [&](const ComplexRecord* in, ComplexRecord* to) {
        return RecordsThrough(FftComplex, plan, in, to, block);
    };
    // Behind the sequence stand zeros, so that a block `block` further on has no part in its spectrum.
    if (const Status failure = forward(Pack(shorter, 0, block, block, samples, spectrum), factors)) return failure;
    const double scale = 1.0 / block;
    for (Count k = 0; k < block; ++k) factors[k] = {factors[k].re * scale, factors[k].im * scale};

    const Count past = shorter.length - 1, step = block - past;
    const Size length = Size{longer.length} + past;
    for (Size start = 0; start < length; start += Size{kBlocksAtOnce<T>} * step) {
        const ComplexRecord* in = Pack(longer, start - past, step, block, samples, spectrum);
        if (const Status failure = forward(in, spectrum)) return failure;
        kBlockLoops().conjugateProduct(spectrum, factors, block);
        if (const Status failure = forward(spectrum, samples)) return failure;
        Unpack(samples + past, step, length - start, out + start);
    }
    return status::kSuccess;
}

template Count BlockLength<double>(Count, Count, Count) noexcept;
template Count BlockLength<ComplexRecord>(Count, Count, Count) noexcept;
template Status ConvolveInBlocks(const Sequence<double>&, const Sequence<double>&, Count, double*) noexcept;
template Status ConvolveInBlocks(const Sequence<ComplexRecord>&, const Sequence<ComplexRecord>&, Count,
                                 ComplexRecord*) noexcept;

}  // namespace quorvan
