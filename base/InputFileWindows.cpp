#include <algorithm>
#include <cerrno>

#include "base/InputFile.h"
#include "base/WindowsNames.h"

namespace zg {

namespace {

HANDLE inputOf(std::intptr_t handle) { return reinterpret_cast<HANDLE>(handle); }

bool isEnd(DWORD error) { return error == ERROR_BROKEN_PIPE || error == ERROR_HANDLE_EOF; }

}  // namespace

int InputFile::open(const std::string& path, void (*look)()) {
    look();
    if (path.find('\0') != std::string::npos) return ENOENT;
    const std::wstring wide = systemName(path);
    const DWORD attributes = GetFileAttributesW(wide.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) return EISDIR;
    const HANDLE file =
        CreateFileW(wide.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                    nullptr, OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN, nullptr);
    if (file == INVALID_HANDLE_VALUE) return errnoOf(GetLastError());
    handle_ = reinterpret_cast<std::intptr_t>(file);
    plain_ = GetFileType(file) == FILE_TYPE_DISK;
    LARGE_INTEGER size = {};
    if (plain_ && GetFileSizeEx(file, &size) == 0) return errnoOf(GetLastError());
    size_ = size.QuadPart;
    return 0;
}

InputFile::~InputFile() {
    if (handle_ != none) CloseHandle(inputOf(handle_));
}

/// One cannot wait for a pipe, only poll it.
InputFile::Wait InputFile::waitForBytes(int milliseconds) const {
    constexpr int pause = 10;  // milliseconds
    const HANDLE file = inputOf(handle_);
    if (GetFileType(file) != FILE_TYPE_PIPE) return Wait::Ready;
    for (int waited = 0;; waited += pause) {
        DWORD there = 0;
        if (PeekNamedPipe(file, nullptr, 0, nullptr, &there, nullptr) == 0) {
            if (isEnd(GetLastError())) return Wait::Ready;
            failWithLastError();
            return Wait::Failed;
        }
        if (there > 0) return Wait::Ready;
        if (waited >= milliseconds) return Wait::Nothing;
        Sleep(pause);
    }
}

std::ptrdiff_t InputFile::read(char* place, std::size_t size) {
    constexpr std::size_t most = std::size_t{1} << 30U;
    DWORD got = 0;
    if (ReadFile(inputOf(handle_), place, static_cast<DWORD>(std::min(size, most)), &got, nullptr) != 0)
        return static_cast<std::ptrdiff_t>(got);
    if (isEnd(GetLastError())) return 0;
    failWithLastError();
    return -1;
}

}  // namespace zg
