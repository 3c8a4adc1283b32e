// The few things that differ between operating systems: locks, and later the identity and the end of a thread and the
// module entry. No other unit knows which system it runs on.
#pragma once

#include <mutex>

namespace quorvan {

// Guards the FFT plan list and all reference counts. Usable before and after every static object of the library.
std::mutex& PlanMutex() noexcept;

}  // namespace quorvan
