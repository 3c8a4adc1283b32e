// The search for the provider against a system that this test plays: what it asks for, in which order, and to the last
// byte. The emulator and the system itself refuse paths long before the buffers are full.
#include <cstdint>
#include <cstring>
#include <gtest/gtest.h>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "frame/platform_windows.h"
#include "tests/windows/import_slot.h"

namespace quorvan {
namespace {

using Calls = std::vector<std::string>;

struct System {
    std::map<std::string, std::string> modules;  // their paths
    std::map<std::string, std::string> files;    // their bytes
    bool reads = true;
    bool key = false;
    std::optional<std::string> value;
    std::set<std::string> loadable;
    Calls calls;
};
System played;

template <class T>
T Mark(std::uintptr_t number) {
    return reinterpret_cast<T>(number);
}
const std::string* opened = nullptr;

HMODULE WINAPI PlayGetModuleHandle(const char* name) {
    played.calls.push_back(std::string("module ") + name);
    const auto found = played.modules.find(name);
    return found == played.modules.end() ? nullptr : reinterpret_cast<HMODULE>(&found->second);
}
DWORD WINAPI PlayGetModuleFileName(HMODULE module, char* path, DWORD room) {
    EXPECT_EQ(room, 511u);
    const auto& text = *reinterpret_cast<const std::string*>(module);
    const DWORD length = static_cast<DWORD>(std::min<std::size_t>(text.size(), room));
    std::memcpy(path, text.data(), length);
    return length;
}
HANDLE WINAPI PlayCreateFile(const char* name, DWORD access, DWORD sharing, SECURITY_ATTRIBUTES* security,
                             DWORD disposition, DWORD attributes, HANDLE pattern) {
    EXPECT_EQ(access, GENERIC_READ);
    EXPECT_EQ(sharing, 0u);
    EXPECT_EQ(security, nullptr);
    EXPECT_EQ(disposition, static_cast<DWORD>(OPEN_EXISTING));
    EXPECT_EQ(attributes, static_cast<DWORD>(FILE_ATTRIBUTE_NORMAL));
    EXPECT_EQ(pattern, nullptr);
    played.calls.push_back(std::string("open ") + name);
    const auto found = played.files.find(name);
    if (found == played.files.end()) return INVALID_HANDLE_VALUE;
    opened = &found->second;
    return Mark<HANDLE>(64);
}
BOOL WINAPI PlayReadFile(HANDLE, void* bytes, DWORD room, DWORD* count, OVERLAPPED*) {
    EXPECT_EQ(room, 498u);
    *count = static_cast<DWORD>(std::min<std::size_t>(opened->size(), room));
    std::memcpy(bytes, opened->data(), *count);
    played.calls.push_back("read " + std::to_string(*count));
    return played.reads;
}
BOOL WINAPI PlayCloseHandle(HANDLE handle) {
    // Threads of the emulator and the test program have handles of their own.
    static const auto close = reinterpret_cast<BOOL(WINAPI*)(HANDLE)>(
        reinterpret_cast<void*>(GetProcAddress(LoadLibraryA("kernel32.dll"), "CloseHandle")));
    if (handle != Mark<HANDLE>(64)) return close(handle);
    played.calls.push_back("close");
    return TRUE;
}
LSTATUS WINAPI PlayRegOpenKey(HKEY root, const char* name, DWORD options, REGSAM access, HKEY* key) {
    EXPECT_EQ(root, HKEY_LOCAL_MACHINE);
    EXPECT_EQ(options, 0u);
    EXPECT_EQ(access, 0x20019u);
    played.calls.push_back(std::string("key ") + name);
    *key = Mark<HKEY>(65);
    return played.key ? ERROR_SUCCESS : ERROR_FILE_NOT_FOUND;
}
LSTATUS WINAPI PlayRegQueryValue(HKEY key, const char* name, DWORD*, DWORD*, BYTE* bytes, DWORD* length) {
    EXPECT_EQ(key, Mark<HKEY>(65));
    EXPECT_EQ(*length, 500u);
    played.calls.push_back(std::string("value ") + name);
    if (!played.value) return ERROR_FILE_NOT_FOUND;
    if (played.value->size() > *length) return ERROR_MORE_DATA;
    std::memcpy(bytes, played.value->data(), *length = static_cast<DWORD>(played.value->size()));
    return ERROR_SUCCESS;
}
LSTATUS WINAPI PlayRegCloseKey(HKEY key) {
    EXPECT_EQ(key, Mark<HKEY>(65));
    played.calls.push_back("close key");
    return ERROR_SUCCESS;
}
HMODULE WINAPI PlayLoadLibrary(const char* name, HANDLE file, DWORD flags) {
    EXPECT_EQ(file, nullptr);
    EXPECT_EQ(flags, 8u);
    played.calls.push_back(std::string("load ") + name);
    return played.loadable.count(name) != 0 ? Mark<HMODULE>(66) : nullptr;
}
BOOL WINAPI PlayFreeLibrary(HMODULE module) {
    EXPECT_EQ(module, Mark<HMODULE>(66));
    played.calls.push_back("free");
    return TRUE;
}

// Stands between the search and the real system as long as it lives.
class Play {
public:
    Play() {
        played = {};
        Put("GetModuleHandleA", reinterpret_cast<void*>(&PlayGetModuleHandle));
        Put("GetModuleFileNameA", reinterpret_cast<void*>(&PlayGetModuleFileName));
        Put("CreateFileA", reinterpret_cast<void*>(&PlayCreateFile));
        Put("ReadFile", reinterpret_cast<void*>(&PlayReadFile));
        Put("CloseHandle", reinterpret_cast<void*>(&PlayCloseHandle));
        Put("RegOpenKeyExA", reinterpret_cast<void*>(&PlayRegOpenKey));
        Put("RegQueryValueExA", reinterpret_cast<void*>(&PlayRegQueryValue));
        Put("RegCloseKey", reinterpret_cast<void*>(&PlayRegCloseKey));
        Put("LoadLibraryExA", reinterpret_cast<void*>(&PlayLoadLibrary));
        Put("FreeLibrary", reinterpret_cast<void*>(&PlayFreeLibrary));
    }
    ~Play() {
        for (const auto& [name, function] : before_) ReplaceImport(program_, name, function);
    }

private:
    void Put(const char* name, void* function) {
        before_.emplace_back(name, ReplaceImport(program_, name, function));
        EXPECT_NE(before_.back().second, nullptr) << name;
    }
    HMODULE program_ = GetModuleHandleA(nullptr);
    std::vector<std::pair<const char*, void*>> before_;
};

// What the search asked of the system, with its answer last; what it loaded is freed again.
Calls Search() {
    played.calls.clear();
    const bool loaded = LoadProvider();
    Calls calls = played.calls;
    calls.push_back(loaded ? "loaded" : "refused");
    played.calls.clear();
    FreeProvider();
    EXPECT_EQ(played.calls, loaded ? Calls{"free"} : Calls{}) << "what was loaded is freed, and nothing else";
    FreeProvider();
    EXPECT_EQ(played.calls.size(), loaded ? 1u : 0u) << "once";
    return calls;
}

const std::string kFile = "ZR150000_BLASLAPACK.dll";
const std::string kKey = "key SOFTWARE\\Corvelix\\Common\\Installer";

TEST(ProviderSearch, AsksTheSiblingThenItselfThenTheRegistry) {
    Play play;
    EXPECT_EQ(Search(), (Calls{"module merovant.dll", "module quorvan.dll", kKey, "refused"}));
    played.modules = {{"merovant.dll", "C:\\side\\merovant.dll"}, {"quorvan.dll", "D:\\here\\quorvan.dll"}};
    played.key = true;
    EXPECT_EQ(Search(), (Calls{"module merovant.dll", "open C:\\side\\mklpath", "module quorvan.dll",
                               "load D:\\here\\" + kFile, kKey, "value ZRSHAREDDIR64", "refused"}))
        << "a key without its value stays open";
    played.value = "E:\\shared";
    const std::string registered = "E:\\shared\\MKL\\ZR150000_BLASLAPACK\\" + kFile;
    const Calls whole = {"module merovant.dll",
                         "open C:\\side\\mklpath",
                         "module quorvan.dll",
                         "load D:\\here\\" + kFile,
                         kKey,
                         "value ZRSHAREDDIR64",
                         "close key",
                         "load " + registered};
    Calls expected = whole;
    expected.push_back("refused");
    EXPECT_EQ(Search(), expected);
    played.loadable = {registered};
    expected.back() = "loaded";
    EXPECT_EQ(Search(), expected);
    played.loadable.insert("D:\\here\\" + kFile);
    expected = {whole.begin(), whole.begin() + 4};
    expected.push_back("loaded");
    EXPECT_EQ(Search(), expected);
}

TEST(ProviderSearch, EndsWithThePathFileWhateverComesOfIt) {
    Play play;
    played.modules = {{"merovant.dll", "C:\\side\\merovant.dll"}, {"quorvan.dll", "D:\\here\\quorvan.dll"}};
    played.key = true;
    played.value = "E:\\shared";
    played.loadable = {"D:\\here\\" + kFile, "E:\\shared\\MKL\\ZR150000_BLASLAPACK\\" + kFile};
    for (const auto& [bytes, folder] : std::map<std::string, std::string>{{"F:\\math", "F:\\math\\"},
                                                                          {"F:\\math\\", "F:\\math\\"},
                                                                          {"F:/math/", "F:/math/\\"},
                                                                          {"f", "f\\"},
                                                                          {"F:\\math\r\n", "F:\\math\r\n\\"},
                                                                          {"F:\\math \\", "F:\\math \\"},
                                                                          {"\\", "\\"}}) {
        played.files = {{"C:\\side\\mklpath", bytes}};
        EXPECT_EQ(Search(),
                  (Calls{"module merovant.dll", "open C:\\side\\mklpath", "read " + std::to_string(bytes.size()),
                         "close", "load " + folder + kFile, "refused"}));
    }
    played.loadable = {"F:\\math\\" + kFile};
    played.files = {{"C:\\side\\mklpath", "F:\\math"}};
    EXPECT_EQ(Search().back(), "loaded");
}

TEST(ProviderSearch, TakesAnEmptyOrUnreadablePathFileForAMissingOneAndClosesIt) {
    Play play;
    played.modules = {{"merovant.dll", "C:\\side\\merovant.dll"}, {"quorvan.dll", "D:\\here\\quorvan.dll"}};
    played.loadable = {"D:\\here\\" + kFile};
    for (const char* bytes : {"", "F:\\math"}) {
        played.files = {{"C:\\side\\mklpath", bytes}};
        played.reads = *bytes == 0;
        EXPECT_EQ(Search(),
                  (Calls{"module merovant.dll", "open C:\\side\\mklpath", "read " + std::to_string(std::strlen(bytes)),
                         "close", "module quorvan.dll", "load D:\\here\\" + kFile, "loaded"}));
    }
}

TEST(ProviderSearch, HasRoomFor488BytesOfFolder) {
    Play play;
    played.modules = {{"merovant.dll", "C:\\side\\merovant.dll"}};
    for (const std::size_t length : {487u, 488u, 489u, 497u, 498u, 499u, 2000u}) {
        const std::string bytes = "F:\\" + std::string(length - 4, 'x');  // and the backslash that is added
        played.files = {{"C:\\side\\mklpath", bytes}};
        Calls expected = {"module merovant.dll", "open C:\\side\\mklpath",
                          "read " + std::to_string(std::min<std::size_t>(bytes.size(), 498)), "close"};
        if (length <= 488) expected.push_back("load " + bytes + "\\" + kFile);
        expected.push_back("refused");
        EXPECT_EQ(Search(), expected) << length;
    }
}

TEST(ProviderSearch, ReadsTheRegistryUpTo500BytesAndToTheLengthRead) {
    Play play;
    played.key = true;
    const std::string tail = "\\MKL\\ZR150000_BLASLAPACK\\";
    const auto loads = [&](const std::string& value) {
        played.value = value;
        const Calls calls = Search();
        return calls.size() > 3 && calls[calls.size() - 2].rfind("load ", 0) == 0 ? calls[calls.size() - 2].substr(5)
                                                                                  : "nothing";
    };
    EXPECT_EQ(loads("E:\\shared"), "E:\\shared" + tail + kFile) << "without its zero";
    EXPECT_EQ(loads(std::string("E:\\shared\0", 10)), "E:\\shared" + tail + kFile);
    EXPECT_EQ(loads(std::string("E:\\shared\\\0", 11)), "E:\\shared" + tail + kFile);
    EXPECT_EQ(loads(std::string("E:\\shared\0more", 14)), "E:\\shared" + tail + kFile);
    EXPECT_EQ(loads("E:\\shared" + std::string(491, '\0')), "E:\\shared" + tail + kFile) << "500 bytes";
    EXPECT_EQ(loads("E:\\shared" + std::string(492, '\0')), "nothing") << "501 bytes";
    // The folders below it and the file take 48 bytes of the 511.
    const std::string longest = "E:\\" + std::string(511 - tail.size() - kFile.size() - 3, 'x');
    EXPECT_EQ(loads(longest), longest + tail + kFile);
    EXPECT_EQ(loads(longest + "x"), "nothing");
}

TEST(ProviderSearch, SplitsTheModulesPathWithinItsLimits) {
    Play play;
    const auto loads = [&](const std::string& path) {
        played.modules = {{"quorvan.dll", path}};
        const Calls calls = Search();
        return calls.size() > 3 && calls[2].rfind("load ", 0) == 0 ? calls[2].substr(5) : "nothing";
    };
    EXPECT_EQ(loads("D:\\here\\quorvan.dll"), "D:\\here\\" + kFile);
    EXPECT_EQ(loads("D:\\quorvan.dll"), "D:\\" + kFile);
    EXPECT_EQ(loads("D:quorvan.dll"), "D:\\" + kFile) << "a backslash is added";
    EXPECT_EQ(loads("quorvan.dll"), "\\" + kFile);
    EXPECT_EQ(loads("\\\\server\\share\\quorvan.dll"), "\\\\server\\share\\" + kFile);
    EXPECT_EQ(loads("D:/here/quorvan.dll"), "D:/here/\\" + kFile);
    EXPECT_EQ(loads("D:\\a.b\\quorvan"), "D:\\a.b\\" + kFile) << "no extension";
    EXPECT_EQ(loads(""), "nothing") << "the system tells no path";
    // Folder of 399, name of 31, extension of 7.
    const std::string folder = "\\" + std::string(397, 'f') + "\\";
    EXPECT_EQ(loads("D:" + folder + "quorvan.dll"), "D:" + folder + kFile);
    EXPECT_EQ(loads("D:\\f" + folder.substr(1) + "quorvan.dll"), "nothing");
    EXPECT_EQ(loads("D:\\" + std::string(31, 'n') + ".dll"), "D:\\" + kFile);
    EXPECT_EQ(loads("D:\\" + std::string(32, 'n') + ".dll"), "nothing");
    EXPECT_EQ(loads("D:\\n.123456"), "D:\\" + kFile);
    EXPECT_EQ(loads("D:\\n.1234567"), "nothing");
}

}  // namespace
}  // namespace quorvan
