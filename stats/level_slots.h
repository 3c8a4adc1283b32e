// Numbers the levels of a factor: any integers, in the order in which they are first seen.
#pragma once

#include <algorithm>
#include <cstddef>

#include "frame/memory.h"
#include "frame/types.h"

namespace quorvan {

// An open-addressed table (D. E. Knuth, The Art of Computer Programming 3, 6.4), at most half full.
class LevelSlots {
public:
    // Room for `limit` >= 1 levels. Test it before use.
    explicit LevelSlots(Count limit) noexcept : limit_(limit), mask_(TableSize(limit) - 1), table_(mask_ + 1) {
        if (table_) std::fill(table_.get(), table_ + mask_ + 1, Entry{0, kFree});
    }
    explicit operator bool() const noexcept { return static_cast<bool>(table_); }

    // The slot of a level, a new one if it has none yet; -1 when there is no room for a new one.
    Count slot(Count level) noexcept {
        for (std::size_t at = Start(level);; at = (at + 1) & mask_) {
            Entry& entry = table_[at];
            if (entry.slot == kFree) {
                if (used_ == limit_) return -1;
                entry = {level, used_++};
                return entry.slot;
            }
            if (entry.level == level) return entry.slot;
        }
    }

private:
    struct Entry {
        Count level, slot;
    };
    static constexpr Count kFree = -1;

    static std::size_t TableSize(Count limit) noexcept {
        std::size_t size = 4;
        while (size < 2 * static_cast<std::size_t>(limit)) size *= 2;
        return size;
    }
    // Multiplicative hashing: the high half of the product with 2^64 over the golden ratio.
    std::size_t Start(Count level) const noexcept {
        return ((static_cast<std::uint32_t>(level) * std::uint64_t{0x9E3779B97F4A7C15}) >> 32) & mask_;
    }

    Count limit_, used_ = 0;
    std::size_t mask_;
    Block<Entry> table_;
};

}  // namespace quorvan
