#include "filters/direct_filter.h"

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <cstring>

#include "filters/fir_loops.h"
#include "frame/arrays.h"
#include "frame/memory.h"
#include "frame/status.h"

namespace quorvan {
namespace {

constexpr Count kBlock = 512;  // doubles that are filtered at a time

// Past values, the oldest first: `count` doubles, of which a block pushes out as many as it brings.
struct History {
    double* values;
    Size count;

    void push(const double* block, Count size) const {
        if (size >= count) {
            std::copy_n(block + (size - count), count, values);
            return;
        }
        std::memmove(values, values + size, static_cast<std::size_t>(count - size) * sizeof(double));
        std::copy_n(block, size, values + (count - size));
    }
};

// Filters real data (stride 1) or interleaved complex data (stride 2) block by block, so that y may be x. `feedback`
// turns the sums over the inputs into outputs, in place.
template <class Feedback>
Status InBlocks(const double* x, Count n, const double* b, double* state, Count nb, Count stride, double* y,
                const Feedback& feedback) {
    if (nb < 1 || n < 1) return status::kSamplesNotPositive;
    const History inputs{state, Size{stride} * (nb - 1)};
    double room[kFirPrefix + kBlock];
    double* const recent = room + kFirPrefix;
    double sums[kBlock];
    const Size doubles = Size{stride} * n;
    for (Size done = 0; done < doubles;) {
        const auto size = static_cast<Count>(std::min<Size>(kBlock, doubles - done));
        const Size seam = std::min<Size>(kFirPrefix, inputs.count);
        std::copy_n(inputs.values + (inputs.count - seam), seam, recent - seam);
        std::copy_n(x + done, size, recent);
        kFirLoops().run(recent, inputs.values, b, nb, stride, size, sums);
        inputs.push(recent, size);
        feedback(sums, size);
        std::copy_n(sums, size, y + done);
        done += size;
    }
    return status::kSuccess;
}

Status WithoutFeedback(const double* x, Count n, const double* b, double* state, Count nb, Count stride, double* y) {
    return InBlocks(x, n, b, state, nb, stride, y, [](double*, Count) {});
}

Status WithFeedback(const double* x, Count n, const double* a, double* outputState, Count na, const double* b,
                    double* inputState, Count nb, Count stride, double* y) {
    const History outputs{outputState, Size{stride} * (na - 1)};
    const auto feedback = [&](double* block, Count size) {
        for (Count d = 0; d < size; ++d) {
            double s = block[d];
            const Count seam = std::min(na, d / stride + 1);
            const double* past = block + d;
            for (Count k = 1; k < seam; ++k) s -= a[k] * *(past -= stride);
            past = outputs.values + outputs.count + d - Size{stride} * (seam - 1);
            for (Count k = seam; k < na; ++k) s -= a[k] * *(past -= stride);
            s /= a[0];
            block[d] = std::fabs(s) <= DBL_MIN ? 0.0 : s;
        }
        outputs.push(block, size);
    };
    return InBlocks(x, n, b, inputState, nb, stride, y, feedback);
}

const double* Doubles(const ComplexRecord* z) { return reinterpret_cast<const double*>(z); }
double* Doubles(ComplexRecord* z) { return reinterpret_cast<double*>(z); }

}  // namespace

Status FilterFir(const double* x, Count n, const double* b, double* inputState, Count nb, double* y) noexcept {
    return WithoutFeedback(x, n, b, inputState, nb, 1, y);
}

Status FilterFirComplex(const ComplexRecord* x, Count n, const double* b, ComplexRecord* inputState, Count nb,
                        ComplexRecord* y) noexcept {
    return WithoutFeedback(Doubles(x), n, b, Doubles(inputState), nb, 2, Doubles(y));
}

Status FilterDirect(const double* x, Count n, const double* a, double* outputState, Count na, const double* b,
                    double* inputState, Count nb, double* y) noexcept {
    if (na < 1 || !a || !outputState) return FilterFir(x, n, b, inputState, nb, y);
    return WithFeedback(x, n, a, outputState, na, b, inputState, nb, 1, y);
}

Status FilterDirectComplex(const ComplexRecord* x, Count n, const double* a, ComplexRecord* outputState, Count na,
                           const double* b, ComplexRecord* inputState, Count nb, ComplexRecord* y) noexcept {
    if (na < 1 || !a || !outputState) return FilterFirComplex(x, n, b, inputState, nb, y);
    return WithFeedback(Doubles(x), n, a, Doubles(outputState), na, b, Doubles(inputState), nb, 2, Doubles(y));
}

Status FilterZeroPhase(const double* x, Count n, const double* a, Count na, const double* b, Count nb,
                       double* y) noexcept {
    if (n < 1 || na < 1 || nb < 1) return status::kSamplesNotPositive;
    const Count margin = std::max(na, nb);
    const Size padded = n + 2 * Size{margin};
    if (padded > INT32_MAX) return status::kOverflow;
    const auto length = static_cast<Count>(padded);
    const std::size_t states = static_cast<std::size_t>(na) + static_cast<std::size_t>(nb);
    Block<double> work(static_cast<std::size_t>(length) + states);
    if (!work) return status::kOutOfMemory;
    double* const signal = work;
    double* const outputState = signal + length;
    double* const inputState = outputState + na;
    std::fill_n(signal, margin, 0.0);
    std::copy_n(x, n, signal + margin);
    std::fill_n(signal + margin + n, margin, 0.0);
    for (int pass = 0; pass < 2; ++pass) {
        std::fill_n(outputState, states, 0.0);
        FilterDirect(signal, length, a, outputState, na, b, inputState, nb, signal);
        ArrReverse(signal, length, nullptr);
    }
    std::copy_n(signal + margin, n, y);
    return status::kSuccess;
}

}  // namespace quorvan
