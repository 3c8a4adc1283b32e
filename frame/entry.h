// What an entry function does before it calls an implementation: narrowing of sizes, size arrays and index outputs.
#pragma once

#include <cstddef>
#include <tuple>
#include <utility>

#include "frame/memory.h"
#include "frame/status.h"
#include "frame/types.h"
#include "quorvan/types.h"

#define QV_EXPORT extern "C" QV_API

// A second exported name for the same entry, at the same address.
#define QV_EXPORT_ALIAS(result, name, entry, ...) \
    extern "C" QV_API result name(__VA_ARGS__) __attribute__((alias(#entry), nothrow))

namespace quorvan {

// SizeNarrow: a size passes when it equals its own low 32 bits taken as a signed number.
constexpr bool SizeNarrow(Size value) noexcept { return value == static_cast<Count>(value); }

// Narrows any number of sizes and calls the body with them: narrowed(rows, cols, [&](Count rows, Count cols) {...}).
// If one of them does not fit, nothing at all is touched.
template <class... Arguments>
constexpr Status narrowed(const Arguments&... arguments) {
    constexpr std::size_t kSizes = sizeof...(Arguments) - 1;
    const auto pack = std::tie(arguments...);
    return [&]<std::size_t... I>(std::index_sequence<I...>)->Status {
        if (!(SizeNarrow(std::get<I>(pack)) && ...)) return status::kOverflow;
        return std::get<kSizes>(pack)(static_cast<Count>(std::get<I>(pack))...);
    }
    (std::make_index_sequence<kSizes>{});
}

// The element count of a 2-D array is formed in 32 bits, and wraps: deliberate, no 64-bit count exists behind the
// entry.
constexpr Count Product(Count rows, Count cols) noexcept {
    return static_cast<Count>(static_cast<std::uint32_t>(rows) * static_cast<std::uint32_t>(cols));
}

// Narrows an array of sizes. All elements are tested before the first is written. A null `in` does nothing.
Status SizeArrayNarrow(Count* out, const Size* in, Size count) noexcept;

// Widens an array of indices with their sign. A null `out` does nothing.
Status IndexArrayWiden(Size* out, const Count* in, Size count) noexcept;

}  // namespace quorvan
