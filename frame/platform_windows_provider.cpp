// The names of the linear algebra provider, each bound at its first call, through the module that is in memory.
//
// Every name is a jump through a slot. The slot leads to the binding first, and to the provider's routine from then on.
// A binding in the middle of a call keeps all registers in which arguments come, those of doubles too. A name that the
// provider lacks raises, at that call, what the system's delayed import raises.
// clang-format off
#include <windows.h>
#include <delayimp.h>
// clang-format on

#include <atomic>
#include <cstddef>

#include "frame/platform.h"
#include "frame/platform_windows.h"

namespace quorvan {

extern void* provider_module;

namespace {

struct Slot {
    std::atomic<FARPROC> routine;
    const char* name;
};

// The codes of the delayed import: a failed search for the module and for the name.
constexpr DWORD DelayCode(DWORD error) { return 0xC0000000 | 0x6D << 16 | error; }

[[noreturn]] void Raise(const char* name, HMODULE module, DWORD error) noexcept {
    DelayLoadInfo info{};
    info.cb = sizeof info;
    info.szDll = kProviderFile;
    info.dlp.fImportByName = TRUE;
    info.dlp.szProcName = name;
    info.hmodCur = module;
    info.dwLastError = error;
    const ULONG_PTR argument = reinterpret_cast<ULONG_PTR>(&info);
    RaiseException(DelayCode(error), 0, 1, &argument);
    TerminateProcess(GetCurrentProcess(), DelayCode(error));
    __builtin_unreachable();
}

}  // namespace

extern "C" FARPROC QuorvanBind(Slot* slot) {
    // A program without the module entry has not searched: there the system does.
    HMODULE module = static_cast<HMODULE>(provider_module);
    if (!module) module = LoadLibraryA(kProviderFile);
    if (!module) Raise(slot->name, module, ERROR_MOD_NOT_FOUND);
    const FARPROC routine = GetProcAddress(module, slot->name);
    if (!routine) Raise(slot->name, module, ERROR_PROC_NOT_FOUND);
    slot->routine.store(routine, std::memory_order_relaxed);
    return routine;
}

asm(R"(
    .text
    .p2align 4
    .def quorvan_bind; .scl 3; .type 32; .endef
    .seh_proc quorvan_bind
quorvan_bind:
    subq $104, %rsp
    .seh_stackalloc 104
    .seh_endprologue
    movq %rcx, 112(%rsp)
    movq %rdx, 120(%rsp)
    movq %r8, 128(%rsp)
    movq %r9, 136(%rsp)
    movaps %xmm0, 32(%rsp)
    movaps %xmm1, 48(%rsp)
    movaps %xmm2, 64(%rsp)
    movaps %xmm3, 80(%rsp)
    movq %rax, %rcx
    call QuorvanBind
    movq 112(%rsp), %rcx
    movq 120(%rsp), %rdx
    movq 128(%rsp), %r8
    movq 136(%rsp), %r9
    movaps 32(%rsp), %xmm0
    movaps 48(%rsp), %xmm1
    movaps 64(%rsp), %xmm2
    movaps 80(%rsp), %xmm3
    addq $104, %rsp
    jmp *%rax
    .seh_endproc

    .macro quorvan_name name
    .text
    .p2align 4
    .globl \name
    .def \name; .scl 2; .type 32; .endef
\name:
    jmp *quorvan_slot_\name(%rip)
quorvan_bind_\name:
    leaq quorvan_slot_\name(%rip), %rax
    jmp quorvan_bind
    .section .rdata,"dr"
quorvan_text_\name:
    .asciz "\name"
    .data
    .p2align 4
quorvan_slot_\name:
    .quad quorvan_bind_\name, quorvan_text_\name
    .text
    .endm
)");

#define QV_PROVIDER_NAME(name) asm("    quorvan_name " #name);
#include "provider_names.inc"

// The allocator is the provider's too.
extern "C" void* MKL_malloc(std::size_t bytes, int alignment);
extern "C" void MKL_free(void* block);

void* AlignedAllocate(std::size_t bytes, std::size_t alignment) noexcept {
    return MKL_malloc(bytes, static_cast<int>(alignment));
}

void AlignedFree(void* block) noexcept { MKL_free(block); }

}  // namespace quorvan
