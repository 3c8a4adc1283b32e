// The few things that differ between operating systems: locks, the identity of a thread and the notice of its end.
// No other unit knows which system it runs on.
#pragma once

#include <cstdint>
#include <mutex>
#include <pthread.h>

namespace quorvan {

// Guards the FFT plan list and all reference counts. Usable before and after every static object of the library.
std::mutex& PlanMutex() noexcept;

// A lock that its owner may take again, and that goes on to the next waiter when its owner ends without releasing it.
// Before Create and after Close, and if Create failed, it locks nothing.
class RecursiveMutex {
public:
    void Create() noexcept;
    void Close() noexcept;
    void Lock() noexcept;
    void Unlock() noexcept;
    // Whatever the calling thread holds of it.
    void ReleaseAll() noexcept;

private:
    pthread_mutex_t mutex_{};
    int holds_ = 0;  // of the owner
    bool created_ = false;
};

// The identifier of the calling thread, unique among the living threads of the system.
std::uint32_t CurrentThread() noexcept;

// The notice of thread ends. After NoticeThreadEnds(handler), the handler runs at the end of every thread that called
// NoticeEndOfThisThread, on that thread. A handler that arms its thread again runs again.
void NoticeThreadEnds(void (*handler)() noexcept) noexcept;
void NoticeEndOfThisThread() noexcept;
void IgnoreThreadEnds() noexcept;

}  // namespace quorvan
