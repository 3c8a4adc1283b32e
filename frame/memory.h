// The general heap behind one pair of functions, and the RAII block that all temporaries live in.
//
// A test build links another implementation of the pair, in which the k-th allocation fails.
#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>

namespace quorvan {

// Null when memory is exhausted. A size of 0 gives a block of its own.
void* HeapAllocate(std::size_t bytes) noexcept;
void HeapFree(void* block) noexcept;

// `count` uninitialised elements from the general heap, freed at the end of the scope. Test it before use:
//     Block<double> work(2 * std::size_t(n));
//     if (!work) return status::kOutOfMemory;
template <class T>
class Block {
    static_assert(std::is_trivially_copyable_v<T> && alignof(T) <= alignof(std::max_align_t));

public:
    Block() = default;
    explicit Block(std::size_t count) noexcept
        : data_(count > SIZE_MAX / sizeof(T) ? nullptr : static_cast<T*>(HeapAllocate(count * sizeof(T)))) {}
    Block(Block&& other) noexcept : data_(other.release()) {}
    Block& operator=(Block&& other) noexcept {
        T* taken = other.release();
        HeapFree(data_);
        data_ = taken;
        return *this;
    }
    ~Block() { HeapFree(data_); }

    explicit operator bool() const noexcept { return data_ != nullptr; }
    operator T*() const noexcept { return data_; }
    T* get() const noexcept { return data_; }

    // Hands the block over to the caller.
    T* release() noexcept {
        T* data = data_;
        data_ = nullptr;
        return data;
    }

private:
    T* data_ = nullptr;
};

}  // namespace quorvan
