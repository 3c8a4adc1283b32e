// Arrays as the contenders share them: aligned to a cache line or a page, large ones on huge pages, as NumPy has its
// own.
#pragma once

#include <cstddef>
#include <cstdint>

namespace bench {

// Ends the program when memory is exhausted.
void* AlignedBytes(std::size_t bytes);
void ReleaseBytes(void* bytes);

template <typename T>
class Buffer {
public:
    explicit Buffer(std::int64_t count)
        : data_(static_cast<T*>(AlignedBytes(static_cast<std::size_t>(count) * sizeof(T)))) {}
    Buffer(const Buffer&) = delete;
    Buffer& operator=(const Buffer&) = delete;
    ~Buffer() { ReleaseBytes(data_); }
    operator T*() const { return data_; }
    T* get() const { return data_; }

private:
    T* data_;
};

}  // namespace bench
