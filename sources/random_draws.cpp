#include "sources/random_draws.h"

#include <algorithm>

#include "sources/random_loops.h"

namespace quorvan {

RandomDraws::RandomDraws(RngStream* stream, Count expected) noexcept
    : stream_(stream), behind_(*stream), size_(std::clamp(expected, kLeast, kMost)) {}

void RandomDraws::Refill() noexcept {
    *stream_ = behind_;
    kRandomLoops().uniform(&behind_, size_, block_);
    made_ = size_;
    taken_ = 0;
    size_ = std::min(2 * size_, kMost);
}

}  // namespace quorvan
