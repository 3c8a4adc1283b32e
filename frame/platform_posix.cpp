#include <atomic>
#include <cerrno>
#include <cstdlib>
#include <sys/mman.h>
#include <unistd.h>

#include "frame/platform.h"

namespace quorvan {
namespace {

constinit pthread_key_t thread_end_key = 0;
constinit bool thread_ends_noticed = false;
constinit std::atomic<void (*)() noexcept> thread_end_handler{nullptr};

// Any address but null marks a thread as armed.
constinit char armed = 0;

extern "C" void QuorvanThreadEnded(void*) {
    if (auto* handler = thread_end_handler.load()) handler();
}

}  // namespace

PlainMutex& PlanMutex() noexcept {
    static constinit PlainMutex mutex;
    return mutex;
}

void RecursiveMutex::Create() noexcept {
    pthread_mutexattr_t attributes;
    if (pthread_mutexattr_init(&attributes) != 0) return;
    pthread_mutexattr_settype(&attributes, PTHREAD_MUTEX_RECURSIVE);
    pthread_mutexattr_setrobust(&attributes, PTHREAD_MUTEX_ROBUST);
    created_ = pthread_mutex_init(&native_, &attributes) == 0;
    pthread_mutexattr_destroy(&attributes);
}

void RecursiveMutex::Close() noexcept {
    if (created_) pthread_mutex_destroy(&native_);
    created_ = false;
}

void RecursiveMutex::Lock() noexcept {
    if (!created_) return;
    // The last owner ended with it: what it guards is whole all the same, since no owner ends in the middle of a
    // change.
    if (pthread_mutex_lock(&native_) == EOWNERDEAD) {
        pthread_mutex_consistent(&native_);
        holds_ = 0;
    }
    ++holds_;
}

void RecursiveMutex::Unlock() noexcept {
    if (!created_) return;
    --holds_;
    pthread_mutex_unlock(&native_);
}

void RecursiveMutex::ReleaseAll() noexcept {
    if (!created_) return;
    Lock();
    for (int holds = holds_; holds > 0; --holds) Unlock();
}

std::uint32_t CurrentThread() noexcept { return static_cast<std::uint32_t>(gettid()); }

void NoticeThreadEnds(void (*handler)() noexcept) noexcept {
    thread_end_handler = handler;
    thread_ends_noticed = pthread_key_create(&thread_end_key, QuorvanThreadEnded) == 0;
}

void NoticeEndOfThisThread() noexcept {
    if (thread_ends_noticed) pthread_setspecific(thread_end_key, &armed);
}

void IgnoreThreadEnds() noexcept {
    if (thread_ends_noticed) pthread_key_delete(thread_end_key);
    thread_ends_noticed = false;
    thread_end_handler = nullptr;
}

void PreferLargePages(void* block, std::size_t bytes) noexcept {
#ifdef MADV_HUGEPAGE
    const int earlier = errno;
    const std::uintptr_t page = static_cast<std::uintptr_t>(sysconf(_SC_PAGESIZE));
    const std::uintptr_t start = reinterpret_cast<std::uintptr_t>(block);
    const std::uintptr_t first = (start + page - 1) / page * page, last = (start + bytes) / page * page;
    if (first < last) madvise(reinterpret_cast<void*>(first), last - first, MADV_HUGEPAGE);
    errno = earlier;
#else
    static_cast<void>(block), static_cast<void>(bytes);
#endif
}

void* AlignedAllocate(std::size_t bytes, std::size_t alignment) noexcept {
    void* block = nullptr;
    return posix_memalign(&block, alignment, bytes) == 0 ? block : nullptr;
}

void AlignedFree(void* block) noexcept { std::free(block); }

}  // namespace quorvan
