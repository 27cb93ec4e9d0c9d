#include <cerrno>

#include "base/FileLock.h"
#include "base/WindowsNames.h"

namespace zg {

namespace {

/// Opening a file without sharing it locks it.
HANDLE openAlone(const std::string& name, DWORD creation) {
    constexpr int mostTries = 3;
    constexpr DWORD pause = 10;  // milliseconds
    const std::wstring wide = systemName(name);
    for (int tries = 1;; ++tries) {
        const HANDLE file = CreateFileW(wide.c_str(), GENERIC_READ | GENERIC_WRITE | DELETE, 0, nullptr,
                                        creation, FILE_ATTRIBUTE_NORMAL, nullptr);
        // A file that is being removed keeps its name for a moment.
        if (file != INVALID_HANDLE_VALUE || GetLastError() != ERROR_ACCESS_DENIED || tries == mostTries)
            return file;
        Sleep(pause);
    }
}

HANDLE handleOf(std::intptr_t handle) { return reinterpret_cast<HANDLE>(handle); }

}  // namespace

FileLock::Outcome FileLock::takeNew() {
    handle_ = reinterpret_cast<std::intptr_t>(openAlone(name_, CREATE_NEW));
    if (isTaken()) return Outcome::Taken;
    failWithLastError();
    return errno == EEXIST ? Outcome::Held : Outcome::Failed;
}

FileLock::Outcome FileLock::takeOld() {
    handle_ = reinterpret_cast<std::intptr_t>(openAlone(name_, OPEN_EXISTING));
    if (isTaken()) return Outcome::Taken;
    const bool isHeld = GetLastError() == ERROR_SHARING_VIOLATION;
    failWithLastError();
    return isHeld ? Outcome::Held : Outcome::Failed;
}

FileLock::Outcome FileLock::takeAny() {
    handle_ = reinterpret_cast<std::intptr_t>(openAlone(name_, OPEN_ALWAYS));
    if (isTaken()) return Outcome::Taken;
    const bool isHeld = GetLastError() == ERROR_SHARING_VIOLATION;
    failWithLastError();
    return isHeld ? Outcome::Held : Outcome::Failed;
}

void FileLock::release() {
    if (isTaken()) CloseHandle(handleOf(handle_));
    handle_ = none;
}

void FileLock::removeAndRelease() {
    FILE_DISPOSITION_INFO gone = {};
    gone.DeleteFile = TRUE;
    if (isTaken()) SetFileInformationByHandle(handleOf(handle_), FileDispositionInfo, &gone, sizeof gone);
    release();
}

}  // namespace zg
