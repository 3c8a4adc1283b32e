/* Loads the module as a program would and tells what came of it, a line for each step:
 *
 *     loader quorvan=PATH [sibling=PATH] [registry=VALUE | registry-bytes=HEX | registry-key] [call=WHAT]...
 *
 * sibling     loads merovant.dll first
 * registry    sets the value that the search reads, before; without it neither key nor value exist;
 *             registry-key makes a key without the value
 * call        add: a sum that needs no provider; dot: one of the provider's routines with doubles by value and back;
 *             threads: a thousand threads with states of their own
 */
#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <windows.h>

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

/* A new thread has a stream at its begin: without a seed it draws what the first thread drew. */
static DWORD WINAPI Draw(void* same) {
    double numbers[4] = {0};
    if (random_numbers(4, 0, numbers) == 0 && memcmp(numbers, first_numbers, sizeof numbers) == 0)
        InterlockedIncrement((LONG volatile*)same);
    return 0;
}

static void Call(HMODULE library, const char* what) {
    double x[3] = {1, 2, 3}, y[3] = {0.5, 0.25, 0.125}, out[3] = {0};
    if (strcmp(what, "add") == 0) {
        const int32_t status = ((Add)(void*)GetProcAddress(library, "ZemFunc3"))(x, y, 3, out);
        printf("add %ld %g %g %g\n", (long)status, out[0], out[1], out[2]);
    } else if (strcmp(what, "dot") == 0) {
        const int32_t status = ((Dot)(void*)GetProcAddress(library, "ZemFunc191"))(x, y, 3, out);
        printf("dot %ld %g\n", (long)status, out[0]);
    } else if (strcmp(what, "threads") == 0) {
        random_numbers = (Random)(void*)GetProcAddress(library, "ZemFunc182");
        LONG volatile same = 0;
        if (random_numbers(4, 0, first_numbers) != 0) exit(5);
        for (int k = 0; k < 1000; ++k) {
            const HANDLE thread = CreateThread(NULL, 0, Draw, (void*)&same, 0, NULL);
            if (!thread) exit(5);
            WaitForSingleObject(thread, INFINITE);
            CloseHandle(thread);
        }
        printf("threads %ld\n", (long)same);
    } else {
        exit(2);
    }
    fflush(stdout);
}

int main(int argc, char** argv) {
    const char *path = NULL, *sibling = NULL, *kind = NULL, *text = NULL;
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
        }
    }
    if (!path) return 2;
    AddVectoredExceptionHandler(1, Tell);
    SetRegistry(kind, text);
    if (sibling && !LoadLibraryA(sibling)) return 6;

    const HMODULE library = LoadLibraryA(path);
    SetRegistry(NULL, NULL);
    char folder[1024] = "nowhere";
    const HMODULE provider = GetModuleHandleA("ZR150000_BLASLAPACK.dll");
    if (provider) GetModuleFileNameA(provider, folder, sizeof folder);
    printf("%s %s\n", library ? "loaded" : "refused", folder);
    fflush(stdout);
    if (!library) return 0;
    for (int k = 1; k < argc; ++k)
        if (strncmp(argv[k], "call=", 5) == 0) Call(library, argv[k] + 5);
    FreeLibrary(library);
    printf("freed %s %s\n", GetModuleHandleA("quorvan.dll") ? "library stays" : "library gone",
           GetModuleHandleA("ZR150000_BLASLAPACK.dll") ? "provider stays" : "provider gone");
    return 0;
}
