// Peaks as they are found, in chunks, so that none is moved until their number is known.
#pragma once

#include "frame/memory.h"
#include "frame/types.h"

namespace quorvan {

struct Peak {
    double location, amplitude, secondDerivative;
};

// Three arrays from the general heap, null for a count of 0.
struct PeakArrays {
    Count count = 0;
    double* locations = nullptr;
    double* amplitudes = nullptr;
    double* secondDerivatives = nullptr;
};

class PeakList {
public:
    PeakList() = default;
    PeakList(const PeakList&) = delete;
    PeakList& operator=(const PeakList&) = delete;
    ~PeakList();

    // The peak added last, null before the first.
    Peak* last() noexcept { return count_ > 0 ? &newest_->peaks[(count_ - 1) % kChunk] : nullptr; }
    // False when memory is exhausted.
    bool add(const Peak& peak) noexcept;
    // Hands out copies in arrays of exactly their number; -20001.
    Status copy(PeakArrays* arrays) const noexcept;

private:
    static constexpr Count kChunk = 512;
    struct Chunk {
        Chunk* older;
        Peak peaks[kChunk];
    };
    Chunk* newest_ = nullptr;
    Count count_ = 0;
};

}  // namespace quorvan
