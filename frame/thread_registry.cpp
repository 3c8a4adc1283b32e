#include "frame/thread_registry.h"

#include <new>

#include "frame/memory.h"

namespace quorvan {
namespace {

constinit ThreadRegistry process_registry;

void RemoveAtThreadEnd() noexcept {
    ThreadStateRemove(process_registry);
    process_registry.mutex.ReleaseAll();
}

// The registry stands from the loading of the library to its unloading; the plan mutex comes after it and goes before.
struct RegistryLifetime {
    RegistryLifetime() noexcept {
        ThreadRegistryStart(process_registry);
        CreatePlanMutex();
        NoticeThreadEnds(RemoveAtThreadEnd);
    }
    ~RegistryLifetime() {
        IgnoreThreadEnds();
        ClosePlanMutex();
        ThreadRegistryStop(process_registry);
    }
} lifetime;

// What the peak detector owns is left behind, deliberately: its stream is ended by its caller.
void FreeState(ThreadState* state) noexcept {
    HeapFree(state->crossingStates);
    HeapFree(state);
}

}  // namespace

ThreadRegistry& ProcessThreadRegistry() noexcept { return process_registry; }

ThreadState* ThreadStateCreate(void* storage) noexcept { return new (storage) ThreadState; }

ThreadState* ThreadStateGet(ThreadRegistry& registry) noexcept {
    const std::uint32_t thread = CurrentThread();
    registry.mutex.Lock();
    const ThreadMap::Entry* entry = registry.map.Find(thread);
    if (!entry) {
        NoticeEndOfThisThread();
        // On exhausted memory the mutex stays held: deliberate.
        Block<ThreadState> storage(1);
        if (!storage) return nullptr;
        if (!registry.map.Insert(thread, ThreadStateCreate(storage.get()))) return nullptr;
        storage.release();
        entry = registry.map.Find(thread);
    }
    ThreadState* state = entry->state;
    registry.mutex.Unlock();
    return state;
}

void ThreadStateRemove(ThreadRegistry& registry) noexcept {
    const std::uint32_t thread = CurrentThread();
    registry.mutex.Lock();
    if (const ThreadMap::Entry* entry = registry.map.Find(thread)) {
        FreeState(entry->state);
        registry.map.Erase(thread);
    }
    registry.mutex.Unlock();
}

void ThreadRegistryStart(ThreadRegistry& registry) noexcept {
    registry.map = {};
    registry.mutex.Create();
}

void ThreadRegistryStop(ThreadRegistry& registry) noexcept {
    while (const ThreadMap::Entry* entry = registry.map.Any()) {
        FreeState(entry->state);
        registry.map.Erase(entry->thread);
    }
    registry.mutex.Close();
}

}  // namespace quorvan
