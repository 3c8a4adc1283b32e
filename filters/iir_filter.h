// The recursive filter as an object: its kind, order, stages and delay lines in one block of memory, and the delay
// lines that complex data needs beside it.
#pragma once

#include "filters/iir_kind.h"
#include "frame/memory.h"
#include "frame/types.h"

namespace quorvan {

using IirFilter = ::QvIirFilter;
using IirStateComplex = ::QvIirStateComplex;

// Coefficients of one stage: w feedback, w + 1 feedforward. Band kinds have twice the analog order, in as many stages.
constexpr Count StageWidth(std::uint32_t kind) noexcept { return IsBand(kind) ? 4 : 2; }
constexpr Size StageCount(Count order) noexcept { return (Size{order} + 1) >> 1; }

// Null for an order below 1, an unknown kind, and when memory runs out. The coefficients are not set.
IirFilter* IirFilterCreate(std::uint32_t kind, Count order) noexcept;
IirStateComplex* IirStateComplexCreate(std::uint32_t kind, Count order) noexcept;

// The next application clears the delay lines first. A null filter is ignored.
void IirFilterReset(IirFilter* filter) noexcept;

// An object for the time of one call.
template <class T>
class Held {
public:
    explicit Held(T* object) noexcept : object_(object) {}
    Held(const Held&) = delete;
    Held& operator=(const Held&) = delete;
    ~Held() { HeapFree(object_); }

    explicit operator bool() const noexcept { return object_ != nullptr; }
    T& operator*() const noexcept { return *object_; }
    T* operator->() const noexcept { return object_; }

private:
    T* object_;
};

}  // namespace quorvan
