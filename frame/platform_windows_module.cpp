// The module entry of quorvan.dll. The C runtime around it constructs the library's static objects before the attach
// of the process and destroys them after its detach.
#include <windows.h>

#include "frame/platform_windows.h"

extern "C" BOOL WINAPI DllMain(HINSTANCE, DWORD reason, void*) {
    switch (reason) {
        case DLL_PROCESS_ATTACH: return quorvan::LoadProvider();
        case DLL_PROCESS_DETACH: quorvan::FreeProvider(); break;
        case DLL_THREAD_DETACH: quorvan::ThisThreadEnds(); break;
        default: break;  // the state of a thread comes on demand
    }
    return TRUE;
}
