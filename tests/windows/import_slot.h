/* The place in the import table of a loaded module through which it calls a function of another one. C99 and C++. */
#pragma once

#include <stdint.h>
#include <string.h>
#include <windows.h>

/* Null where the module imports no such name. */
static inline void** ImportSlot(HMODULE module, const char* name) {
    uint8_t* base = (uint8_t*)module;
    const IMAGE_NT_HEADERS* head = (const IMAGE_NT_HEADERS*)(base + ((const IMAGE_DOS_HEADER*)base)->e_lfanew);
    const IMAGE_DATA_DIRECTORY* table = &head->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    const IMAGE_IMPORT_DESCRIPTOR* from = (const IMAGE_IMPORT_DESCRIPTOR*)(base + table->VirtualAddress);
    for (; from->Name != 0; ++from) {
        const uintptr_t* names = (const uintptr_t*)(base + from->OriginalFirstThunk);
        void** slots = (void**)(base + from->FirstThunk);
        for (; *names != 0; ++names, ++slots) {
            if (*names >> 63) continue; /* by ordinal */
            if (strcmp((const char*)((const IMAGE_IMPORT_BY_NAME*)(base + *names))->Name, name) == 0) return slots;
        }
    }
    return NULL;
}

/* Puts another function there and returns the one before; null where there is no such place. */
static inline void* ReplaceImport(HMODULE module, const char* name, void* function) {
    void** slot = ImportSlot(module, name);
    DWORD protection;
    if (!slot || !VirtualProtect(slot, sizeof *slot, PAGE_READWRITE, &protection)) return NULL;
    void* before = *slot;
    *slot = function;
    VirtualProtect(slot, sizeof *slot, protection, &protection);
    return before;
}
