// The notice of thread ends for a program that has the library's objects inside itself, as the test programs have: the
// system calls it where it would call a module entry.
#include <windows.h>

#include "frame/platform_windows.h"

namespace {

void NTAPI AtThreadEnd(void*, DWORD reason, void*) {
    if (reason == DLL_THREAD_DETACH) quorvan::ThisThreadEnds();
}

__attribute__((section(".CRT$XLF"), used)) const PIMAGE_TLS_CALLBACK at_thread_end = AtThreadEnd;

}  // namespace
