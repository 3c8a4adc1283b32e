// The states of all threads: one process-wide ordered map under one mutex, filled on first use and cleaned at the end
// of each thread. No thread-local storage holds a state, so a call finds its own through here, once an array.
#pragma once

#include "frame/platform.h"
#include "frame/thread_map.h"
#include "frame/thread_state.h"

namespace quorvan {

struct ThreadRegistry {
    ThreadMap map;         // owns the states
    RecursiveMutex mutex;  // guards the map alone; never held together with the plan mutex
};

// The registry of the process. It is there before the first call and goes when the library is unloaded.
ThreadRegistry& ProcessThreadRegistry() noexcept;

// The state of the calling thread, made on its first call; it stays valid until the thread ends, since no other thread
// removes it. Null when memory is exhausted, and then the mutex stays with the thread: deliberate. Such a thread goes
// on, all others that need a state wait until it ends.
ThreadState* ThreadStateGet(ThreadRegistry& registry = ProcessThreadRegistry()) noexcept;

// Writes the initial values into storage for one record.
ThreadState* ThreadStateCreate(void* storage) noexcept;

// Frees the state of the calling thread, if any.
void ThreadStateRemove(ThreadRegistry& registry = ProcessThreadRegistry()) noexcept;

// Begin and end of a registry. The end frees the states of threads that still live, and waits for no one.
void ThreadRegistryStart(ThreadRegistry& registry) noexcept;
void ThreadRegistryStop(ThreadRegistry& registry) noexcept;

}  // namespace quorvan
