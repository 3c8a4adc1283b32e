// The system's part on Windows that every program needs; the module entry stands in frame/platform_windows_module.cpp.
#include "frame/platform_windows.h"

#include <atomic>
#include <windows.h>

#include "frame/platform.h"

namespace quorvan {
namespace {

constinit std::atomic<void (*)() noexcept> thread_end_handler{nullptr};

}  // namespace

void PlainMutex::lock() noexcept { AcquireSRWLockExclusive(reinterpret_cast<SRWLOCK*>(&slim_lock_)); }
void PlainMutex::unlock() noexcept { ReleaseSRWLockExclusive(reinterpret_cast<SRWLOCK*>(&slim_lock_)); }

PlainMutex& PlanMutex() noexcept {
    static constinit PlainMutex mutex;
    return mutex;
}

void RecursiveMutex::Create() noexcept {
    native_ = CreateMutexA(nullptr, FALSE, nullptr);
    created_ = native_ != nullptr;
}

void RecursiveMutex::Close() noexcept {
    if (created_) CloseHandle(native_);
    native_ = nullptr;
    created_ = false;
}

// An owner that ended abandons the mutex, and the wait gives it to the next: what it guards is whole all the same,
// since no owner ends in the middle of a change.
void RecursiveMutex::Lock() noexcept {
    if (!created_) return;
    if (WaitForSingleObject(native_, INFINITE) == WAIT_ABANDONED) holds_ = 0;
    ++holds_;
}

void RecursiveMutex::Unlock() noexcept {
    if (!created_) return;
    --holds_;
    ReleaseMutex(native_);
}

void RecursiveMutex::ReleaseAll() noexcept {
    if (!created_) return;
    Lock();
    for (int holds = holds_; holds > 0; --holds) Unlock();
}

std::uint32_t CurrentThread() noexcept { return GetCurrentThreadId(); }

void NoticeThreadEnds(void (*handler)() noexcept) noexcept { thread_end_handler = handler; }

// Large pages take a privilege here.
void PreferLargePages(void*, std::size_t) noexcept {}

// The system tells a module of the end of every thread, armed or not.
void NoticeEndOfThisThread() noexcept {}

void IgnoreThreadEnds() noexcept { thread_end_handler = nullptr; }

void ThisThreadEnds() noexcept {
    if (auto* handler = thread_end_handler.load()) handler();
}

}  // namespace quorvan
