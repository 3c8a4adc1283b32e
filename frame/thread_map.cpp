// A. Andersson, Balanced search trees made simple (1993): every node has a level, 1 for leaves. A left child lies one
// level below its parent, a right child at most one below, a right grandchild strictly below; so the depth is at most
// twice the logarithm of the size, and two rotations restore all of it.
#include "frame/thread_map.h"

#include <algorithm>
#include <utility>

#include "frame/memory.h"

namespace quorvan {
namespace {

using Entry = ThreadMap::Entry;

std::int32_t Level(const Entry* entry) noexcept { return entry ? entry->level : 0; }

// A left child on the level of its parent: rotate it up.
Entry* Skew(Entry* root) noexcept {
    if (!root || Level(root->left) != root->level) return root;
    Entry* up = root->left;
    root->left = up->right;
    up->right = root;
    return up;
}

// Two right children on one level: rotate the first one up, and raise it.
Entry* Split(Entry* root) noexcept {
    if (!root || !root->right || Level(root->right->right) != root->level) return root;
    Entry* up = root->right;
    root->right = up->left;
    up->left = root;
    ++up->level;
    return up;
}

Entry* Inserted(Entry* root, Entry* entry) noexcept {
    if (!root) return entry;
    Entry*& side = entry->thread < root->thread ? root->left : root->right;
    side = Inserted(side, entry);
    return Split(Skew(root));
}

// After one side has lost a level.
Entry* Lowered(Entry* root) noexcept {
    const std::int32_t level = std::min(Level(root->left), Level(root->right)) + 1;
    if (level < root->level) {
        root->level = level;
        if (root->right) root->right->level = std::min(root->right->level, level);
    }
    root = Skew(root);
    root->right = Skew(root->right);
    if (root->right) root->right->right = Skew(root->right->right);
    root = Split(root);
    root->right = Split(root->right);
    return root;
}

// An inner entry trades its content with its neighbour in order, which lies further down, until a leaf can go.
Entry* Erased(Entry* root, std::uint32_t thread) noexcept {
    if (!root) return nullptr;
    if (thread != root->thread) {
        Entry*& side = thread < root->thread ? root->left : root->right;
        side = Erased(side, thread);
        return Lowered(root);
    }
    if (!root->left && !root->right) {
        HeapFree(root);
        return nullptr;
    }
    Entry* neighbour = root->left ? root->left : root->right;
    if (root->left) {
        while (neighbour->right) neighbour = neighbour->right;
    } else {
        while (neighbour->left) neighbour = neighbour->left;
    }
    const std::uint32_t moved = neighbour->thread;
    Entry*& side = root->left ? root->left : root->right;
    root->state = neighbour->state;
    side = Erased(side, moved);
    root->thread = moved;
    return Lowered(root);
}

}  // namespace

ThreadMap::Entry* ThreadMap::LowerBound(std::uint32_t thread) const noexcept {
    Entry* bound = nullptr;
    for (Entry* entry = root_; entry;) {
        const bool below = entry->thread < thread;
        if (!below) bound = entry;
        entry = below ? entry->right : entry->left;
    }
    return bound;
}

ThreadMap::Entry* ThreadMap::Find(std::uint32_t thread) const noexcept {
    Entry* bound = LowerBound(thread);
    return bound && bound->thread == thread ? bound : nullptr;
}

bool ThreadMap::Insert(std::uint32_t thread, ThreadState* state) noexcept {
    Block<Entry> entry(1);
    if (!entry) return false;
    *entry = {thread, 1, nullptr, nullptr, state};
    root_ = Inserted(root_, entry.release());
    return true;
}

void ThreadMap::Erase(std::uint32_t thread) noexcept { root_ = Erased(root_, thread); }

}  // namespace quorvan
