// Draws of one stream for a consumer that cannot tell how many it needs: made ahead in blocks, side by side in wide
// registers. When the consumer is done, the stream stands behind the draws that were taken, as if each had been made
// when it was needed.
#pragma once

#include "frame/types.h"
#include "sources/random_stream.h"

namespace quorvan {

class RandomDraws {
public:
    // `expected` is a guess from below; a call for one value makes no more than a few draws ahead.
    RandomDraws(RngStream* stream, Count expected) noexcept;
    RandomDraws(const RandomDraws&) = delete;
    RandomDraws& operator=(const RandomDraws&) = delete;
    ~RandomDraws() { RngSkip(taken_, stream_); }

    double Next() noexcept {
        if (taken_ == made_) Refill();
        return block_[taken_++];
    }

private:
    static constexpr Count kLeast = 4, kMost = 256;

    void Refill() noexcept;

    RngStream* stream_;  // in front of the block
    RngStream behind_;   // behind the block
    Count size_;         // of the next block
    Count made_ = 0, taken_ = 0;
    double block_[kMost];
};

}  // namespace quorvan
