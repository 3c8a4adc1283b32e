// Where a function of the library stands.
#pragma once

#include <cstdint>
#include <cstring>

namespace quorvan::testing {

template <class Function>
std::uintptr_t EntryAddress(Function* function) {
    const auto address = reinterpret_cast<std::uintptr_t>(function);
#ifdef _WIN32
    // A program that imports it knows a jump of its own, jmp *offset(%rip), through its import table.
    const auto* code = reinterpret_cast<const unsigned char*>(address);
    if (code[0] == 0xFF && code[1] == 0x25) {
        std::int32_t offset;
        std::memcpy(&offset, code + 2, sizeof offset);
        std::uintptr_t target;
        std::memcpy(&target, code + 6 + offset, sizeof target);
        return target;
    }
#endif
    return address;
}

}  // namespace quorvan::testing
