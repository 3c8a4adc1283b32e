// The few things that differ between operating systems: locks, the identity of a thread and the notice of its end,
// large pages, and how the linear algebra provider is reached. No other unit knows which system it runs on:
// frame/platform_posix.cpp and frame/platform_windows*.cpp stand behind this, and the build takes the one or the
// others.
#pragma once

#include <cstddef>
#include <cstdint>

#ifdef _WIN32
// How the linker knows a Fortran routine of the provider.
#define QV_LAPACK(name) name
#else
#include <mutex>
#include <pthread.h>
#define QV_LAPACK(name) name##_
#endif

namespace quorvan {

// A plain lock, for std::lock_guard. Usable before and after every static object of the library.
#ifdef _WIN32
class PlainMutex {
public:
    void lock() noexcept;
    void unlock() noexcept;

private:
    void* slim_lock_ = nullptr;
};
using NativeMutex = void*;  // a handle
#else
using PlainMutex = std::mutex;
using NativeMutex = pthread_mutex_t;
#endif

// Guards the FFT plan list and all reference counts.
PlainMutex& PlanMutex() noexcept;

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
    NativeMutex native_{};
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

// A wish: that the system backs the inner whole pages of a fresh large block with large ones. No answer, no effect but
// on speed.
void PreferLargePages(void* block, std::size_t bytes) noexcept;

// The aligned allocator that belongs to the provider; null when memory is exhausted.
void* AlignedAllocate(std::size_t bytes, std::size_t alignment) noexcept;
void AlignedFree(void* block) noexcept;

}  // namespace quorvan
