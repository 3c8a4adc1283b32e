#include "measure/peak_list.h"

#include "frame/status.h"

namespace quorvan {

PeakList::~PeakList() {
    while (Chunk* chunk = newest_) {
        newest_ = chunk->older;
        HeapFree(chunk);
    }
}

bool PeakList::add(const Peak& peak) noexcept {
    if (count_ % kChunk == 0) {
        Block<Chunk> chunk(1);
        if (!chunk) return false;
        chunk.get()->older = newest_;
        newest_ = chunk.release();
    }
    newest_->peaks[count_++ % kChunk] = peak;
    return true;
}

Status PeakList::copy(PeakArrays* arrays) const noexcept {
    *arrays = {};
    if (count_ == 0) return status::kSuccess;
    const std::size_t count = static_cast<std::size_t>(count_);
    Block<double> locations(count), amplitudes(count), seconds(count);
    if (!locations || !amplitudes || !seconds) return status::kOutOfMemory;
    // From the newest chunk, the only one that need not be full, to the oldest.
    std::size_t end = count;
    for (const Chunk* chunk = newest_; chunk; chunk = chunk->older) {
        const std::size_t start = (end - 1) / kChunk * kChunk;
        for (std::size_t k = start; k < end; ++k) {
            const Peak& peak = chunk->peaks[k - start];
            locations[k] = peak.location;
            amplitudes[k] = peak.amplitude;
            seconds[k] = peak.secondDerivative;
        }
        end = start;
    }
    *arrays = {count_, locations.release(), amplitudes.release(), seconds.release()};
    return status::kSuccess;
}

}  // namespace quorvan
