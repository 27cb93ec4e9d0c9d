#include "base/Files.h"

#include <cerrno>
#include <filesystem>

namespace zg {

namespace {

constexpr bool hasBackslashes = std::filesystem::path::preferred_separator == '\\';
constexpr std::string_view separators = hasBackslashes ? "/\\" : "/";

bool isDirectoryNow(const std::string& name) {
    const std::optional<FileState> state = stateOfFile(name);
    return state && state->kind == FileKind::Directory;
}

}  // namespace

bool isOneFile(const std::string& name, const std::string& other) {
    const std::optional<FileState> state = stateOfFile(name);
    const std::optional<FileState> second = stateOfFile(other);
    return state && second && state->identity == second->identity;
}

bool makeDirectories(const std::string& name) {
    if (name.empty()) errno = ENOENT;
    std::vector<std::string> missing;
    for (std::string level = name; !level.empty() && !isDirectoryNow(level);) {
        missing.push_back(level);
        const std::size_t end = level.find_last_not_of(separators);
        const std::size_t at = end == std::string::npos ? end : level.find_last_of(separators, end);
        level = at == std::string::npos ? "" : level.substr(0, at);
    }
    for (; !missing.empty(); missing.pop_back()) {
        if (makeDirectory(missing.back())) continue;
        const int error = errno;
        if (isDirectoryNow(missing.back())) continue;  // another process has created it
        errno = error == EEXIST ? ENOTDIR : error;
        return false;
    }
    return !name.empty();
}

}  // namespace zg
