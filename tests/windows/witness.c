/* A provider that, while it is loaded, calls the library that loads it: the registry of threads and the plans must
 * stand already. */
#include <stdint.h>
#include <stdio.h>
#include <windows.h>

typedef int32_t (*Random)(int64_t, int32_t, double*);
typedef void* (*Create)(int64_t);
typedef int32_t (*Release)(void*);

BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, void* reserved);
BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, void* reserved) {
    (void)module, (void)reserved;
    if (reason != DLL_PROCESS_ATTACH) return TRUE;
    const HMODULE library = GetModuleHandleA("quorvan.dll");
    const Random draw = (Random)(void*)GetProcAddress(library, "ZemFunc182");
    const Create create = (Create)(void*)GetProcAddress(library, "ZemFunc260");
    const Release release = (Release)(void*)GetProcAddress(library, "ZemFunc261");
    if (!draw || !create || !release) return FALSE;
    double first = 0, second = 0;
    const int32_t status = draw(1, 0, &first) | draw(1, 0, &second);
    void* plan = create(12);
    if (plan) release(plan);
    printf("witness %ld %s %s\n", (long)status, first == second ? "no stream" : "stream", plan ? "plan" : "no plan");
    fflush(stdout);
    return TRUE;
}
