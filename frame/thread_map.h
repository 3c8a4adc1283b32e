// An ordered map from thread identifiers to their states: a balanced tree over the general heap.
#pragma once

#include <cstdint>

#include "frame/thread_state.h"

namespace quorvan {

class ThreadMap {
public:
    struct Entry {
        std::uint32_t thread;
        std::int32_t level;
        Entry* left;
        Entry* right;
        ThreadState* state;
    };

    // The entry with the smallest identifier that is not below `thread`; null if there is none.
    Entry* LowerBound(std::uint32_t thread) const noexcept;
    // The entry of `thread` itself, or null.
    Entry* Find(std::uint32_t thread) const noexcept;

    // Makes the entry of a thread that has none. False when memory is exhausted; then nothing has changed.
    bool Insert(std::uint32_t thread, ThreadState* state) noexcept;

    // Erases the entry of `thread`, if any. The state stays with the caller.
    void Erase(std::uint32_t thread) noexcept;

    // The entry in the root; null when the map is empty.
    Entry* Any() const noexcept { return root_; }

private:
    Entry* root_ = nullptr;
};

}  // namespace quorvan
