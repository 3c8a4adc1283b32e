/* Loads the module as a program would and tells what came of it, a line for each step:
 *
 *     loader quorvan=PATH [sibling=PATH] [hold=PATH | lend=PATH] [registry=VALUE | registry-bytes=HEX | registry-key]
 *            [call=WHAT]... [twice]
 *
 * sibling     loads merovant.dll first
 * hold, lend  keeps a file open, for itself or for whoever else reads and writes it
 * registry    sets the value that the search reads, before; without it neither key nor value exist;
 *             registry-key makes a key without the value
 * call        add: a sum that needs no provider; dot: one of the provider's routines with doubles by value and back;
 *             entry: the module entry, told of the begin and the end of this thread;
 *             threads: a thousand threads with states of their own; stay: one that goes on while the module goes;
 *             watch: what the module gives back when it goes, in order; exit: the end of the program with the module
 *             loaded
 * twice       loads it once more after it was freed
 */
#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <windows.h>

#include "import_slot.h"

#define KEY "SOFTWARE\\Corvelix\\Common\\Installer"

typedef struct {
    DWORD by_name;
    const char* name;
} Procedure;
/* What the system's delayed import hands over with its exception. */
typedef struct {
    DWORD size;
    const void* descriptor;
    FARPROC* slot;
    const char* module;
    Procedure procedure;
    HMODULE handle;
    FARPROC routine;
    DWORD error;
} DelayLoad;

static LONG CALLBACK Tell(EXCEPTION_POINTERS* pointers) {
    const EXCEPTION_RECORD* record = pointers->ExceptionRecord;
    if ((record->ExceptionCode & 0xFFFF0000u) != 0xC06D0000u) return EXCEPTION_CONTINUE_SEARCH;
    const DelayLoad* load = (const DelayLoad*)record->ExceptionInformation[0];
    printf("raised %08lx %s %s\n", (unsigned long)record->ExceptionCode, load->module, load->procedure.name);
    fflush(stdout);
    ExitProcess(3);
}

static void SetRegistry(const char* kind, const char* text) {
    HKEY key;
    RegDeleteKeyExA(HKEY_LOCAL_MACHINE, KEY, KEY_WOW64_64KEY, 0);
    if (!kind) return;
    if (RegCreateKeyExA(HKEY_LOCAL_MACHINE, KEY, 0, NULL, 0, KEY_ALL_ACCESS, NULL, &key, NULL) != ERROR_SUCCESS)
        exit(4);
    BYTE bytes[2048];
    DWORD count = 0;
    LONG done = ERROR_SUCCESS;
    if (strcmp(kind, "registry") == 0) {
        done = RegSetValueExA(key, "ZRSHAREDDIR64", 0, REG_SZ, (const BYTE*)text, (DWORD)strlen(text) + 1);
    } else if (strcmp(kind, "registry-bytes") == 0) {
        for (; text[2 * count]; ++count) {
            const char digits[3] = {text[2 * count], text[2 * count + 1], 0};
            bytes[count] = (BYTE)strtoul(digits, NULL, 16);
        }
        done = RegSetValueExA(key, "ZRSHAREDDIR64", 0, REG_BINARY, bytes, count);
    }
    if (done != ERROR_SUCCESS) exit(4);
    RegCloseKey(key);
}

typedef int32_t (*Add)(const double*, const double*, int64_t, double*);
typedef int32_t (*Dot)(const double*, const double*, int64_t, double*);
typedef int32_t (*Random)(int64_t, int32_t, double*);

static Random random_numbers;
static double first_numbers[4];

/* The blocks that the module has taken from the heap and not given back, since it was loaded. */
enum { ROOM = 65536 };
static void* blocks[ROOM];
static int block_count;
static CRITICAL_SECTION blocks_lock;
static int watching;

static void* Malloc(size_t bytes) {
    void* block = malloc(bytes);
    EnterCriticalSection(&blocks_lock);
    if (block_count == ROOM) exit(7);
    if (block) blocks[block_count++] = block;
    LeaveCriticalSection(&blocks_lock);
    return block;
}

static void Free(void* block) {
    EnterCriticalSection(&blocks_lock);
    for (int k = block_count - 1; k >= 0; --k)
        if (blocks[k] == block) {
            blocks[k] = blocks[--block_count];
            if (watching) printf(" block");
            break;
        }
    LeaveCriticalSection(&blocks_lock);
    free(block);
}

static void CountBlocks(HMODULE library) {
    block_count = 0;
    if (!ReplaceImport(library, "malloc", (void*)Malloc) || !ReplaceImport(library, "free", (void*)Free)) exit(7);
}

static BOOL WINAPI WatchedFreeLibrary(HMODULE module) {
    printf(module == GetModuleHandleA("ZR150000_BLASLAPACK.dll") ? " provider" : " another module");
    return FreeLibrary(module);
}

static BOOL WINAPI WatchedCloseHandle(HANDLE handle) {
    /* A mutex can be had and given back; a wait of no time on what is none fails. */
    const DWORD had = WaitForSingleObject(handle, 0);
    printf(had == WAIT_OBJECT_0 && ReleaseMutex(handle) ? " mutex" : " another handle");
    return CloseHandle(handle);
}

static void Watch(HMODULE library) {
    if (!ReplaceImport(library, "FreeLibrary", (void*)WatchedFreeLibrary) ||
        !ReplaceImport(library, "CloseHandle", (void*)WatchedCloseHandle))
        exit(7);
    watching = 1;
}

/* A new thread has a stream at its begin: without a seed it draws what the first thread drew. */
static DWORD WINAPI Draw(void* same) {
    double numbers[4] = {0};
    if (random_numbers(4, 0, numbers) == 0 && memcmp(numbers, first_numbers, sizeof numbers) == 0)
        InterlockedIncrement((LONG volatile*)same);
    return 0;
}

static DWORD WINAPI DrawAndStay(void* drawn) {
    double numbers[4] = {0};
    if (random_numbers(4, 0, numbers) != 0) exit(5);
    SetEvent((HANDLE)drawn);
    Sleep(INFINITE);
    return 0;
}

static void Threads(void) {
    enum { THREADS = 1000, AT_ONCE = 10 };
    static DWORD identifiers[THREADS];
    LONG volatile same = 0;
    int again = 0;
    if (random_numbers(4, 0, first_numbers) != 0) exit(5);
    const int before = block_count;
    for (int k = 0; k < THREADS; k += AT_ONCE) {
        HANDLE threads[AT_ONCE];
        for (int t = 0; t < AT_ONCE; ++t) {
            threads[t] = CreateThread(NULL, 0, Draw, (void*)&same, 0, identifiers + k + t);
            if (!threads[t]) exit(5);
        }
        WaitForMultipleObjects(AT_ONCE, threads, TRUE, INFINITE);
        for (int t = 0; t < AT_ONCE; ++t) CloseHandle(threads[t]);
    }
    for (int k = 0; k < THREADS; ++k)
        for (int before_k = 0; before_k < k; ++before_k)
            if (identifiers[before_k] == identifiers[k]) {
                ++again;
                break;
            }
    printf("threads %ld left %d blocks %s\n", (long)same, block_count - before,
           again > 0 ? "identifiers came again" : "no identifier came again");
}

static void Stay(void) {
    const HANDLE drawn = CreateEventA(NULL, TRUE, FALSE, NULL);
    if (!drawn || !CreateThread(NULL, 0, DrawAndStay, drawn, 0, NULL)) exit(5);
    WaitForSingleObject(drawn, INFINITE);
    printf("stay %d blocks\n", block_count);
}

typedef BOOL(WINAPI* Entry)(HINSTANCE, DWORD, void*);

static void TellEntry(HMODULE library) {
    const uint8_t* base = (const uint8_t*)library;
    const IMAGE_NT_HEADERS* head = (const IMAGE_NT_HEADERS*)(base + ((const IMAGE_DOS_HEADER*)base)->e_lfanew);
    const Entry entry = (Entry)(void*)(base + head->OptionalHeader.AddressOfEntryPoint);
    double first = 0, attached = 0, detached = 0;
    if (random_numbers(1, 0, &first) != 0) exit(5);
    const BOOL attach = entry(library, DLL_THREAD_ATTACH, NULL);
    if (random_numbers(1, 0, &attached) != 0) exit(5);
    const BOOL detach = entry(library, DLL_THREAD_DETACH, NULL);
    if (random_numbers(1, 0, &detached) != 0) exit(5);
    printf("entry %d %s %d %s\n", attach, attached == first ? "anew" : "goes on", detach,
           detached == first ? "anew" : "goes on");
}

static void Call(HMODULE library, const char* what) {
    double x[3] = {1, 2, 3}, y[3] = {0.5, 0.25, 0.125}, out[3] = {0};
    if (strcmp(what, "add") == 0) {
        const int32_t status = ((Add)(void*)GetProcAddress(library, "ZemFunc3"))(x, y, 3, out);
        printf("add %ld %g %g %g\n", (long)status, out[0], out[1], out[2]);
    } else if (strcmp(what, "dot") == 0) {
        const int32_t status = ((Dot)(void*)GetProcAddress(library, "ZemFunc191"))(x, y, 3, out);
        printf("dot %ld %g\n", (long)status, out[0]);
    } else if (strcmp(what, "entry") == 0) {
        TellEntry(library);
    } else if (strcmp(what, "threads") == 0) {
        Threads();
    } else if (strcmp(what, "stay") == 0) {
        Stay();
    } else if (strcmp(what, "watch") == 0) {
        Watch(library);
        printf("gives back");
    } else if (strcmp(what, "exit") == 0) {
        printf("exit\n");
        fflush(stdout);
        exit(0);
    } else {
        exit(2);
    }
    fflush(stdout);
}

static void LoadAndFree(const char* path, int count, char** arguments) {
    const HMODULE library = LoadLibraryA(path);
    SetRegistry(NULL, NULL);
    char folder[1024] = "nowhere";
    const HMODULE provider = GetModuleHandleA("ZR150000_BLASLAPACK.dll");
    if (provider) GetModuleFileNameA(provider, folder, sizeof folder);
    printf("%s %s\n", library ? "loaded" : "refused", folder);
    fflush(stdout);
    if (!library) return;
    CountBlocks(library);
    random_numbers = (Random)(void*)GetProcAddress(library, "ZemFunc182");
    for (int k = 0; k < count; ++k)
        if (strncmp(arguments[k], "call=", 5) == 0) Call(library, arguments[k] + 5);
    FreeLibrary(library);
    if (watching) printf("\n");
    printf("freed %s %s %d blocks\n", GetModuleHandleA("quorvan.dll") ? "library stays" : "library gone",
           GetModuleHandleA("ZR150000_BLASLAPACK.dll") ? "provider stays" : "provider gone", block_count);
    fflush(stdout);
}

int main(int argc, char** argv) {
    const char *path = NULL, *sibling = NULL, *kind = NULL, *text = NULL;
    int twice = 0;
    for (int k = 1; k < argc; ++k) {
        if (strncmp(argv[k], "quorvan=", 8) == 0)
            path = argv[k] + 8;
        else if (strncmp(argv[k], "sibling=", 8) == 0)
            sibling = argv[k] + 8;
        else if (strncmp(argv[k], "registry", 8) == 0) {
            char* equals = strchr(argv[k], '=');
            if (equals) *equals = 0;
            kind = argv[k];
            text = equals ? equals + 1 : "";
        } else if (strncmp(argv[k], "hold=", 5) == 0 || strncmp(argv[k], "lend=", 5) == 0) {
            const DWORD sharing = argv[k][0] == 'l' ? FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE : 0;
            if (CreateFileA(argv[k] + 5, GENERIC_READ, sharing, NULL, OPEN_EXISTING, 0, NULL) == INVALID_HANDLE_VALUE)
                return 8;
        } else if (strcmp(argv[k], "twice") == 0)
            twice = 1;
    }
    if (!path) return 2;
    InitializeCriticalSection(&blocks_lock);
    AddVectoredExceptionHandler(1, Tell);
    SetRegistry(kind, text);
    if (sibling && !LoadLibraryA(sibling)) return 6;

    LoadAndFree(path, argc, argv);
    if (twice) LoadAndFree(path, argc, argv);
    return 0;
}
