// Routines of the provider that a test puts its own in the place of, by defining them under their names.
#pragma once

#ifdef _WIN32
#include <windows.h>
// The module under test asks the program first (tests/windows/failing_heap_module.cpp).
#define QV_REPLACEMENT __declspec(dllexport)
#else
#include <dlfcn.h>
#define QV_REPLACEMENT
#endif

namespace quorvan::testing {

// The provider's own.
template <class Function>
Function* Replaced(Function*, const char* name) {
#ifdef _WIN32
    void* routine = reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA("ZR150000_BLASLAPACK.dll"), name));
#else
    void* routine = dlsym(RTLD_NEXT, name);
#endif
    return reinterpret_cast<Function*>(routine);
}

}  // namespace quorvan::testing

// `routine` as it is declared, a CBLAS name or one in QV_LAPACK.
#define QV_REPLACED(routine) quorvan::testing::Replaced(&routine, QV_TEXT_OF(routine))
#define QV_TEXT_OF(name) QV_TEXT_OF_(name)
#define QV_TEXT_OF_(name) #name
