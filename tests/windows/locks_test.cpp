// The locks and the identity of threads, as the system gives them.
#include <atomic>
#include <chrono>
#include <gtest/gtest.h>
#include <thread>

#include "frame/platform.h"
#include "tests/windows/import_slot.h"

namespace quorvan {
namespace {

int made = 0;
HANDLE answer = nullptr;

HANDLE WINAPI MakeMutex(SECURITY_ATTRIBUTES* security, BOOL owned, const char* name) {
    EXPECT_EQ(security, nullptr);
    EXPECT_EQ(owned, FALSE);
    EXPECT_EQ(name, nullptr);
    ++made;
    return answer;
}

// Both locks, made by a system that gives nothing.
template <class Body>
void WithoutMutexes(const Body& body) {
    made = 0;
    void* before = ReplaceImport(GetModuleHandleA(nullptr), "CreateMutexA", reinterpret_cast<void*>(&MakeMutex));
    ASSERT_NE(before, nullptr);
    RecursiveMutex recursive;
    PlainMutex plain;
    recursive.Create();
    plain.Create();
    ReplaceImport(GetModuleHandleA(nullptr), "CreateMutexA", before);
    body(recursive, plain);
    plain.Close();
    recursive.Close();
}

TEST(WindowsLocks, AreMadeWithoutANameAndWithoutAnOwner) {
    WithoutMutexes([](RecursiveMutex&, PlainMutex&) { EXPECT_EQ(made, 2); });
}

TEST(WindowsLocks, LockNothingWhereTheyCouldNotBeMade) {
    WithoutMutexes([](RecursiveMutex& recursive, PlainMutex& plain) {
        recursive.Lock();
        plain.lock();
        std::thread([&] {
            recursive.Lock();
            recursive.Unlock();
            plain.lock();
            plain.unlock();
        }).join();
        plain.unlock();
        recursive.Unlock();
    });
}

TEST(WindowsLocks, AreTakenAgainByTheirOwnerAndByOthersWhenAllIsGivenBack) {
    RecursiveMutex mutex;
    mutex.Create();
    mutex.Lock();
    mutex.Lock();
    std::atomic<bool> had{false};
    std::thread other([&] {
        mutex.Lock();
        had = true;
        mutex.Unlock();
    });
    mutex.Unlock();
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    EXPECT_FALSE(had) << "one hold is left";
    mutex.Unlock();
    other.join();
    EXPECT_TRUE(had);
    mutex.Close();
}

TEST(WindowsLocks, GoOnToTheNextWaiterWhenTheirOwnerEnds) {
    RecursiveMutex mutex;
    mutex.Create();
    std::thread([&] {
        mutex.Lock();
        mutex.Lock();
    }).join();
    mutex.Lock();
    mutex.Unlock();
    std::thread([&] {
        mutex.Lock();
        mutex.ReleaseAll();
    }).join();
    mutex.Lock();
    mutex.Close();
}

TEST(WindowsThreads, AreKnownByTheIdentifierOfTheSystem) {
    EXPECT_EQ(CurrentThread(), GetCurrentThreadId());
    std::thread([] { EXPECT_EQ(CurrentThread(), GetCurrentThreadId()); }).join();
}

}  // namespace
}  // namespace quorvan
