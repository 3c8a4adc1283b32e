// Work areas that go to the provider, and the matrices copied for it: blocks of the provider's allocator, aligned to
// 32 bytes. They never mix with the general heap (frame/memory.h): each block is released by what made it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>

namespace quorvan {

inline constexpr std::size_t kProviderAlignment = 32;

// Null when memory is exhausted. A size of 0 gives a block of its own.
void* ProviderAllocate(std::size_t bytes) noexcept;
void ProviderFree(void* block) noexcept;

// `count` uninitialised elements from the provider's allocator, freed at the end of the scope. Test it before use.
template <class T>
class ProviderBlock {
    static_assert(std::is_trivially_copyable_v<T>);

public:
    ProviderBlock() = default;
    explicit ProviderBlock(std::size_t count) noexcept
        : data_(count > SIZE_MAX / sizeof(T) ? nullptr : static_cast<T*>(ProviderAllocate(count * sizeof(T)))) {}
    ProviderBlock(ProviderBlock&& other) noexcept : data_(other.data_) { other.data_ = nullptr; }
    ProviderBlock& operator=(ProviderBlock&& other) noexcept {
        T* taken = other.data_;
        other.data_ = nullptr;
        ProviderFree(data_);
        data_ = taken;
        return *this;
    }
    ~ProviderBlock() { ProviderFree(data_); }

    // A re-allocation frees first and then allocates anew: what was inside is lost.
    bool reallocate(std::size_t count) noexcept {
        ProviderFree(data_);
        data_ = nullptr;
        *this = ProviderBlock(count);
        return data_ != nullptr;
    }

    explicit operator bool() const noexcept { return data_ != nullptr; }
    operator T*() const noexcept { return data_; }
    T* get() const noexcept { return data_; }

private:
    T* data_ = nullptr;
};

}  // namespace quorvan
