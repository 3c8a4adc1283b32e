// An input of an operation whose output may stand in its place.
#pragma once

#include <cstddef>
#include <cstring>

#include "linalg/provider_memory.h"

namespace quorvan {

// The input itself, or a copy of it where it is the output. Test it before use.
template <class T>
class Apart {
public:
    Apart(const T* input, std::size_t count, const T* out) noexcept : data_(input) {
        if (input != out) return;
        copy_ = ProviderBlock<T>(count);
        data_ = copy_;
        if (copy_) std::memcpy(copy_.get(), input, count * sizeof(T));
    }
    Apart(const Apart&) = delete;
    Apart& operator=(const Apart&) = delete;

    explicit operator bool() const noexcept { return data_ != nullptr; }
    operator const T*() const noexcept { return data_; }

private:
    ProviderBlock<T> copy_;
    const T* data_;
};

}  // namespace quorvan
