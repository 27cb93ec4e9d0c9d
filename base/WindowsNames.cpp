#include "base/WindowsNames.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <utility>

#include "base/WideNames.h"

namespace zg {

namespace {

/// Below the length limit of every call; that for creating directories is the lowest.
constexpr std::size_t longestPlain = 240;

bool isWholeForm(std::wstring_view name) {
    return name.starts_with(L"\\\\?\\") || name.starts_with(L"\\\\.\\");
}

std::wstring fullForm(const std::wstring& name) {
    std::wstring full(GetFullPathNameW(name.c_str(), 0, nullptr, nullptr), L'\0');
    const DWORD length =
        GetFullPathNameW(name.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr);
    full.resize(std::min<std::size_t>(length, full.size()));
    return full;
}

}  // namespace

std::wstring wideUnits(std::string_view bytes) {
    const std::u16string units = wideName(bytes);
    return {units.begin(), units.end()};
}

std::string narrowUnits(std::wstring_view units) {
    return narrowName(std::u16string(units.begin(), units.end()));
}

std::wstring systemName(std::string_view name) {
    std::wstring wide = wideUnits(name);
    std::replace(wide.begin(), wide.end(), L'/', L'\\');
    if (wide.empty() || isWholeForm(wide)) return wide;
    std::wstring full = fullForm(wide);
    if (full.size() < longestPlain || isWholeForm(full)) return wide;
    if (full.starts_with(L"\\\\")) return L"\\\\?\\UNC\\" + full.substr(2);
    return L"\\\\?\\" + full;
}

int errnoOf(DWORD error) {
    static constexpr std::array<std::pair<DWORD, int>, 33> numbers = {
        {{ERROR_FILE_NOT_FOUND, ENOENT},
         {ERROR_PATH_NOT_FOUND, ENOENT},
         {ERROR_INVALID_NAME, ENOENT},
         {ERROR_BAD_PATHNAME, ENOENT},
         {ERROR_INVALID_DRIVE, ENOENT},
         {ERROR_BAD_NETPATH, ENOENT},
         {ERROR_BAD_NET_NAME, ENOENT},
         {ERROR_DIRECTORY, ENOTDIR},
         {ERROR_ACCESS_DENIED, EACCES},
         {ERROR_SHARING_VIOLATION, EACCES},
         {ERROR_LOCK_VIOLATION, EACCES},
         {ERROR_NETWORK_ACCESS_DENIED, EACCES},
         {ERROR_CURRENT_DIRECTORY, EACCES},
         {ERROR_CANNOT_MAKE, EACCES},
         {ERROR_DELETE_PENDING, EACCES},
         {ERROR_WRITE_PROTECT, EROFS},
         {ERROR_FILE_EXISTS, EEXIST},
         {ERROR_ALREADY_EXISTS, EEXIST},
         {ERROR_DIR_NOT_EMPTY, ENOTEMPTY},
         {ERROR_DISK_FULL, ENOSPC},
         {ERROR_HANDLE_DISK_FULL, ENOSPC},
         {ERROR_FILE_TOO_LARGE, EFBIG},
         {ERROR_TOO_MANY_OPEN_FILES, EMFILE},
         {ERROR_FILENAME_EXCED_RANGE, ENAMETOOLONG},
         {ERROR_BUFFER_OVERFLOW, ENAMETOOLONG},
         {ERROR_NOT_SAME_DEVICE, EXDEV},
         {ERROR_NOT_ENOUGH_MEMORY, ENOMEM},
         {ERROR_OUTOFMEMORY, ENOMEM},
         {ERROR_BROKEN_PIPE, EPIPE},
         {ERROR_NO_DATA, EPIPE},
         {ERROR_NOT_READY, EIO},
         {ERROR_CRC, EIO},
         {ERROR_IO_DEVICE, EIO}}};
    const auto* const found = std::find_if(numbers.begin(), numbers.end(),
                                           [error](const auto& pair) { return pair.first == error; });
    return found == numbers.end() ? EINVAL : found->second;
}

bool failWithLastError() {
    errno = errnoOf(GetLastError());
    return false;
}

}  // namespace zg
