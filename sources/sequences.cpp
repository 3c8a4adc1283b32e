#include "sources/sequences.h"

#include <cmath>

#include "frame/status.h"
#include "frame/thread_registry.h"
#include "sources/random_loops.h"

namespace quorvan {
namespace {

// As many digits as an int32 has in base 2.
constexpr int kDigits = 32;

// J. G. van der Corput (1935), J. H. Halton (1960): the digits of m in base b, mirrored at the point. The sum runs from
// the lowest digit, whose weight is 1/b; the weights are accumulated products.
double RadicalInverse(std::int64_t m, std::int64_t base, double reciprocal) noexcept {
    double sum = 0.0, weight = reciprocal;
    do {
        sum += static_cast<double>(m % base) * weight;
        weight *= reciprocal;
        m /= base;
    } while (m != 0);
    return sum;
}

// The same for consecutive integers from `index` >= 0 on: the digits are counted up, and each keeps its term.
void RadicalInverses(std::int64_t index, std::int64_t base, double reciprocal, Count n, double* out) noexcept {
    std::int64_t digit[kDigits];
    double weight[kDigits], term[kDigits];
    int used = 0;
    for (double w = reciprocal; used == 0 || index != 0; w *= reciprocal, index /= base, ++used) {
        digit[used] = index % base;
        weight[used] = w;
        term[used] = static_cast<double>(digit[used]) * w;
    }
    for (Count i = 0; i < n; ++i) {
        double sum = 0.0;
        for (int k = 0; k < used; ++k) sum += term[k];
        out[i] = sum;
        int k = 0;
        for (; k < used && digit[k] == base - 1; ++k) {
            digit[k] = 0;
            term[k] = 0.0;
        }
        if (k == used) {
            weight[k] = weight[k - 1] * reciprocal;
            digit[k] = 0;
            ++used;
        }
        ++digit[k];
        term[k] = static_cast<double>(digit[k]) * weight[k];
    }
}

}  // namespace

Status GenHaltonSequence(Count n, std::int32_t base, std::int32_t reset, double* out) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    ThreadState* state = ThreadStateGet();
    if (!state) return status::kOutOfMemory;
    const bool start = state->haltonFirst || reset;
    const std::int64_t given = start ? base : state->haltonBase, magnitude = given < 0 ? -given : given;
    // Base 0 would divide by zero, base 1 never end.
    if (magnitude < 2) return status::kInvalidSelection;
    if (start) {
        state->haltonBase = base;
        state->haltonIndex = 0;
        state->haltonFirst = 0;
    }
    if (state->haltonIndex < 0) return status::kNegativeNumber;
    const double reciprocal = 1.0 / static_cast<double>(magnitude);
    const std::int64_t index = state->haltonIndex, room = (std::int64_t{1} << 31) - index;
    const Count counted = static_cast<Count>(n < room ? n : room);
    RadicalInverses(index, magnitude, reciprocal, counted, out);
    // The index has 32 bits and wraps: what stands behind 2^31 - 1 is negative, and so is the next call's index.
    for (Count i = counted; i < n; ++i)
        out[i] = RadicalInverse(static_cast<std::int32_t>(index + i), magnitude, reciprocal);
    state->haltonIndex = static_cast<std::int32_t>(index + n);
    return status::kSuccess;
}

// H. Weyl, Ueber die Gleichverteilung von Zahlen mod. Eins (1916).
Status GenWeylSequence(Count n, double step, std::int32_t reset, double* out) noexcept {
    if (n < 1) return status::kSamplesNotPositive;
    ThreadState* state = ThreadStateGet();
    if (!state) return status::kOutOfMemory;
    if (state->weylFirst || reset) {
        state->weylStep = step;
        state->weylValue = 0.0;
        state->weylFirst = 0;
    }
    if (state->weylValue < 0.0) return status::kNegativeNumber;
    state->weylValue = kRandomLoops().weyl(state->weylValue, std::fabs(state->weylStep), n, out);
    return status::kSuccess;
}

}  // namespace quorvan
