// The search for the linear algebra provider, which lies in a folder that the system's own search does not know. Paths
// are narrow strings in the system code page, in buffers of 512 bytes; folders end in a backslash.
#include <cstring>
#include <windows.h>

#include "frame/platform_windows.h"

namespace quorvan {

// The handle that the names are bound through; null until the search succeeded.
constinit void* provider_module = nullptr;

namespace {

constexpr char kOwnFile[] = "quorvan.dll";
constexpr char kSiblingFile[] = "merovant.dll";
constexpr char kPathFile[] = "mklpath";
constexpr char kKey[] = "SOFTWARE\\Corvelix\\Common\\Installer";
constexpr char kValue[] = "ZRSHAREDDIR64";
constexpr char kRegistryTail[] = "MKL\\ZR150000_BLASLAPACK\\";

constexpr std::size_t kPathRoom = 512;
constexpr DWORD kFolderRoom = 500;  // of what a file or the registry may give

// A path as it grows. What does not fit makes it fail, once and for all.
class Path {
public:
    bool Append(const char* text, std::size_t length) noexcept {
        if (length >= kPathRoom - length_) return false;
        std::memcpy(text_ + length_, text, length);
        length_ += length;
        text_[length_] = 0;
        return true;
    }
    bool Append(const char* text) noexcept { return Append(text, std::strlen(text)); }
    // Ends it in a backslash, unless it does.
    bool EndFolder() noexcept { return (length_ > 0 && text_[length_ - 1] == '\\') || Append("\\"); }
    const char* text() const noexcept { return text_; }

private:
    char text_[kPathRoom] = {};
    std::size_t length_ = 0;
};

// The folder of a loaded module, known by its file name.
bool ModuleFolder(const char* file, Path& folder) noexcept {
    const HMODULE module = GetModuleHandleA(file);
    if (!module) return false;
    char path[kPathRoom] = {};
    const DWORD length = GetModuleFileNameA(module, path, kPathRoom - 1);
    if (length == 0) return false;
    // Drive, folder, name and extension have limits of their own.
    std::size_t drive = path[0] && path[1] == ':' ? 2 : 0, name = length;
    while (name > drive && path[name - 1] != '\\' && path[name - 1] != '/') --name;
    constexpr std::size_t kLongestFolder = 399, kLongestName = 31, kLongestExtension = 7;
    const char* dot = std::strrchr(path + name, '.');
    const std::size_t stem = dot ? static_cast<std::size_t>(dot - path) - name : std::strlen(path + name);
    const std::size_t extension = dot ? std::strlen(dot) : 0;
    if (name - drive > kLongestFolder || stem > kLongestName || extension > kLongestExtension) return false;
    return folder.Append(path, name) && folder.EndFolder();
}

// The folder that the path file beside the sibling module names. Its bytes are used as they stand, line ends too:
// deliberate.
bool FolderFromPathFile(Path& folder) noexcept {
    Path file;
    if (!ModuleFolder(kSiblingFile, file) || !file.Append(kPathFile)) return false;
    const HANDLE handle =
        CreateFileA(file.text(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE) return false;
    char bytes[kFolderRoom];
    DWORD count = 0;
    const BOOL read = ReadFile(handle, bytes, kFolderRoom - 2, &count, nullptr);
    CloseHandle(handle);
    if (!read || count == 0) return false;
    if (bytes[count - 1] != '\\') bytes[count++] = '\\';
    bytes[count] = 0;
    return folder.Append(bytes);
}

// The folder below the one that the registry names.
bool FolderFromRegistry(Path& folder) noexcept {
    HKEY key;
    if (RegOpenKeyExA(HKEY_LOCAL_MACHINE, kKey, 0, KEY_READ, &key) != ERROR_SUCCESS) return false;
    char value[kFolderRoom + 1];
    DWORD length = kFolderRoom;
    // A key without the value stays open: deliberate.
    if (RegQueryValueExA(key, kValue, nullptr, nullptr, reinterpret_cast<BYTE*>(value), &length) != ERROR_SUCCESS)
        return false;
    RegCloseKey(key);
    value[length] = 0;
    return folder.Append(value) && folder.EndFolder() && folder.Append(kRegistryTail);
}

// The provider's own dependencies are looked for next to it.
bool LoadFromFolder(const Path& folder) noexcept {
    Path file = folder;
    if (file.Append(kProviderFile))
        provider_module = LoadLibraryExA(file.text(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
    return provider_module != nullptr;
}

}  // namespace

bool LoadProvider() noexcept {
    // A path file settles the matter: one that names a wrong folder is the end of the search.
    Path named;
    if (FolderFromPathFile(named)) return LoadFromFolder(named);
    // A library file under another name does not find itself.
    Path own;
    if (ModuleFolder(kOwnFile, own) && LoadFromFolder(own)) return true;
    Path registered;
    return FolderFromRegistry(registered) && LoadFromFolder(registered);
}

void FreeProvider() noexcept {
    if (provider_module) FreeLibrary(static_cast<HMODULE>(provider_module));
    provider_module = nullptr;
}

}  // namespace quorvan
