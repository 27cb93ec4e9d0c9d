#include <fcntl.h>
#include <io.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <utility>

#include "base/Encoding.h"
#include "base/Files.h"
#include "base/WindowsNames.h"

namespace zg {

namespace {

constexpr DWORD shareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

class Handle {
 public:
    explicit Handle(HANDLE handle) : handle_(handle) {}
    ~Handle() {
        if (isOpen()) CloseHandle(handle_);
    }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    bool isOpen() const { return handle_ != INVALID_HANDLE_VALUE; }
    HANDLE get() const { return handle_; }
    HANDLE release() { return std::exchange(handle_, INVALID_HANDLE_VALUE); }

 private:
    HANDLE handle_;
};

constexpr std::size_t longestPart = 255;  // units

/// Such a name is not passed to the system; errno says why.
bool isHopeless(const std::string& name) {
    if (name.find('\0') != std::string::npos) {
        errno = ENOENT;
        return true;
    }
    std::size_t length = 0;
    for (const wchar_t unit : wideUnits(name)) {
        length = unit == L'/' || unit == L'\\' ? 0 : length + 1;
        if (length > longestPart) {
            errno = ENAMETOOLONG;
            return true;
        }
    }
    return false;
}

/// One of the directories on the way is a file.
bool leadsThroughFile(std::wstring path) {
    for (;;) {
        const std::size_t at = path.find_last_of(L'\\');
        if (at == std::wstring::npos) return false;
        path.resize(at);
        const DWORD attributes = GetFileAttributesW(path.c_str());
        if (attributes != INVALID_FILE_ATTRIBUTES) return (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
    }
}

HANDLE openHandle(const std::string& name, DWORD access, DWORD creation,
                  DWORD flags = FILE_ATTRIBUTE_NORMAL) {
    if (isHopeless(name)) return INVALID_HANDLE_VALUE;
    const HANDLE handle =
        CreateFileW(systemName(name).c_str(), access, shareAll, nullptr, creation, flags, nullptr);
    if (handle != INVALID_HANDLE_VALUE) return handle;
    const bool noWay = GetLastError() == ERROR_PATH_NOT_FOUND;
    failWithLastError();
    if (noWay && leadsThroughFile(systemName(name))) errno = ENOTDIR;
    return handle;
}

std::optional<FileState> stateBy(const std::string& name, DWORD flags) {
    const Handle file(
        openHandle(name, FILE_READ_ATTRIBUTES, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS | flags));
    if (!file.isOpen()) return {};
    FileState state;
    if (GetFileType(file.get()) != FILE_TYPE_DISK) return state;
    BY_HANDLE_FILE_INFORMATION found = {};
    if (GetFileInformationByHandle(file.get(), &found) == 0) {
        failWithLastError();
        return {};
    }
    const bool isLink = flags != 0 && (found.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
    const bool isDirectory = (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    if (!isLink) state.kind = isDirectory ? FileKind::Directory : FileKind::Plain;
    const auto joined = [](DWORD high, DWORD low) { return std::uint64_t{high} << 32U | low; };
    if (state.kind == FileKind::Plain) state.size = joined(found.nFileSizeHigh, found.nFileSizeLow);
    state.identity = {found.dwVolumeSerialNumber, joined(found.nFileIndexHigh, found.nFileIndexLow)};
    return state;
}

/// Another program, such as a virus scanner, may have a new file open for a moment.
template <typename Call>
bool persist(Call call) {
    constexpr int mostTries = 10;
    constexpr DWORD pause = 20;  // milliseconds
    for (int tries = 1;; ++tries) {
        if (call() != 0) return true;
        const DWORD error = GetLastError();
        if (error != ERROR_SHARING_VIOLATION || tries == mostTries) {
            errno = errnoOf(error);
            return false;
        }
        Sleep(pause);
    }
}

struct Mode {
    const char* name;
    DWORD access;
    DWORD creation;
};
constexpr std::array<Mode, 4> modes = {{{"rb", GENERIC_READ, OPEN_EXISTING},
                                        {"wb", GENERIC_WRITE, CREATE_ALWAYS},
                                        {"r+b", GENERIC_READ | GENERIC_WRITE, OPEN_EXISTING},
                                        {"wbx", GENERIC_WRITE, CREATE_NEW}}};

/// Device names, which no directory can contain with any extension.
bool isDevice(std::string_view name) {
    std::string stem(name.substr(0, name.find('.')));
    while (!stem.empty() && stem.back() == ' ') stem.pop_back();
    for (const char* const device : {"CON", "PRN", "AUX", "NUL", "CONIN$", "CONOUT$"})
        if (_stricmp(stem.c_str(), device) == 0) return true;
    const bool isPort = _strnicmp(stem.c_str(), "COM", 3) == 0 || _strnicmp(stem.c_str(), "LPT", 3) == 0;
    return isPort && stem.size() == 4 && stem[3] >= '0' && stem[3] <= '9';
}

}  // namespace

std::optional<FileState> stateOfFile(const std::string& name) { return stateBy(name, 0); }

std::optional<FileState> stateOfName(const std::string& name) {
    return stateBy(name, FILE_FLAG_OPEN_REPARSE_POINT);
}

bool isOwnFile(const std::string& name) { return stateOfName(name).has_value(); }

bool isTooLongName(std::string_view name) { return wideUnits(name).size() > longestPart; }

std::vector<std::string> namesIn(const std::string& directory) {
    std::vector<std::string> names;
    if (directory.empty() || isHopeless(directory)) return names;
    WIN32_FIND_DATAW found = {};
    const HANDLE search = FindFirstFileW(systemName(directory + "\\*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return names;
    do {
        const std::wstring_view name = found.cFileName;
        if (name != L"." && name != L"..") names.push_back(narrowUnits(name));
    } while (FindNextFileW(search, &found) != 0);
    FindClose(search);
    return names;
}

std::FILE* openStream(const std::string& name, const char* mode) {
    for (const Mode& one : modes) {
        if (std::strcmp(one.name, mode) != 0) continue;
        Handle handle(openHandle(name, one.access, one.creation));
        if (!handle.isOpen()) return nullptr;
        const bool reads = one.access == GENERIC_READ;
        const int file = _open_osfhandle(reinterpret_cast<std::intptr_t>(handle.get()),
                                         _O_BINARY | _O_NOINHERIT | (reads ? _O_RDONLY : 0));
        if (file < 0) return nullptr;
        handle.release();
        std::FILE* const stream = _fdopen(file, one.creation == OPEN_EXISTING ? one.name : "wb");
        if (stream == nullptr) _close(file);
        return stream;
    }
    errno = EINVAL;
    return nullptr;
}

bool reachDisk(std::FILE* file) { return std::fflush(file) == 0 && _commit(_fileno(file)) == 0; }

bool makeFile(const std::string& name) {
    return Handle(openHandle(name, GENERIC_WRITE, CREATE_NEW)).isOpen();
}

bool makeDirectory(const std::string& name) {
    if (isHopeless(name)) return false;
    return CreateDirectoryW(systemName(name).c_str(), nullptr) != 0 || failWithLastError();
}

bool appendToFile(const std::string& name, std::string_view bytes) {
    constexpr std::size_t most = std::size_t{1} << 28U;
    const Handle file(openHandle(name, FILE_APPEND_DATA, OPEN_EXISTING));
    if (!file.isOpen()) return false;
    while (!bytes.empty()) {
        DWORD written = 0;
        if (WriteFile(file.get(), bytes.data(), static_cast<DWORD>(std::min(bytes.size(), most)), &written,
                      nullptr) == 0)
            return failWithLastError();
        bytes.remove_prefix(written);
    }
    return true;
}

bool moveFile(const std::string& name, const std::string& newName) {
    if (isHopeless(name) || isHopeless(newName)) return false;
    const std::wstring from = systemName(name);
    const std::wstring to = systemName(newName);
    if (persist([&] { return MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING); }))
        return true;
    const DWORD attributes = GetFileAttributesW(to.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) errno = EISDIR;
    return false;
}

bool removeFile(const std::string& name) {
    if (isHopeless(name)) return false;
    const std::wstring wide = systemName(name);
    return persist([&wide] { return DeleteFileW(wide.c_str()); });
}

void removeAtOnce(const char* name) noexcept {
    std::array<wchar_t, MAX_PATH> wide{};
    if (MultiByteToWideChar(CP_UTF8, 0, name, -1, wide.data(), static_cast<int>(wide.size())) > 0)
        DeleteFileW(wide.data());
}

/// The permissions come with the directory.
void copyPermissions(const std::string&, const std::string&) {}

bool removeDirectory(const std::string& name) {
    if (isHopeless(name)) return false;
    return RemoveDirectoryW(systemName(name).c_str()) != 0 || failWithLastError();
}

bool removeTree(const std::string& name) {
    const std::optional<FileState> state = stateOfName(name);
    if (!state) return errno == ENOENT;
    const bool isDirectory = (GetFileAttributesW(systemName(name).c_str()) & FILE_ATTRIBUTE_DIRECTORY) != 0;
    bool all = true;
    if (state->kind == FileKind::Directory)
        for (const std::string& inside : namesIn(name)) all = removeTree(name + "\\" + inside) && all;
    return (isDirectory ? removeDirectory(name) : removeFile(name)) && all;
}

std::string wholePath(const std::string& name) {
    const Handle file(openHandle(name, FILE_READ_ATTRIBUTES, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS));
    if (!file.isOpen()) return {};
    std::wstring path(GetFinalPathNameByHandleW(file.get(), nullptr, 0, 0), L'\0');
    const DWORD length =
        GetFinalPathNameByHandleW(file.get(), path.data(), static_cast<DWORD>(path.size()), 0);
    path.resize(std::min<std::size_t>(length, path.size()));
    if (path.starts_with(L"\\\\?\\UNC\\")) return "\\\\" + narrowUnits(path.substr(8));
    return narrowUnits(path.starts_with(L"\\\\?\\") ? path.substr(4) : path);
}

bool isPlainName(std::string_view name) {
    constexpr std::string_view refused = "/\\:*?\"<>|";
    for (const char c : name)
        if (static_cast<unsigned char>(c) < ' ' || refused.find(c) != std::string_view::npos) return false;
    return !name.empty() && name.back() != '.' && name.back() != ' ' && !isDevice(name);
}

std::string asPartOfName(std::string_view text) { return toUtf8(text); }

std::string nameKey(std::string_view name) {
    std::wstring wide = wideUnits(name);
    if (wide.empty()) return {};
    std::wstring key(wide.size(), L'\0');
    const int length =
        LCMapStringEx(LOCALE_NAME_INVARIANT, LCMAP_UPPERCASE, wide.data(), static_cast<int>(wide.size()),
                      key.data(), static_cast<int>(key.size()), nullptr, nullptr, 0);
    return narrowUnits(length > 0 ? key : wide);
}

std::string machineName() {
    std::array<wchar_t, MAX_COMPUTERNAME_LENGTH + 1> name{};
    auto size = static_cast<DWORD>(name.size());
    return GetComputerNameW(name.data(), &size) != 0 ? narrowUnits({name.data(), size}) : "unknown";
}

std::uint64_t processNumber() { return GetCurrentProcessId(); }

}  // namespace zg
