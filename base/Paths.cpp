#include "base/Paths.h"

#include <algorithm>
#include <optional>

#include "base/Files.h"
#include "base/Text.h"

namespace zg {

std::string applicationDirectory;
std::string settingsDirectory;

namespace {

std::size_t lastSeparator(std::string_view path, char separator) {
    const char both[] = {separator, '\\', '\0'};
    return path.find_last_of(both);
}

/// Both arguments must be in one letter case. Linear in the text for each "*", without recursion.
bool matches(std::string_view name, std::string_view pattern) {
    std::size_t n = 0;
    std::size_t p = 0;
    std::size_t star = std::string_view::npos;
    std::size_t resume = 0;
    while (n < name.size()) {
        if (p < pattern.size() && pattern[p] == '*') {
            star = p++;
            resume = n;
        } else if (p < pattern.size() && (pattern[p] == '?' || pattern[p] == name[n])) {
            ++p;
            ++n;
        } else if (star != std::string_view::npos) {
            p = star + 1;
            n = ++resume;
        } else {
            return false;
        }
    }
    while (p < pattern.size() && pattern[p] == '*') ++p;
    return p == pattern.size();
}

bool isPlainFile(const std::string& path) {
    const std::optional<FileState> state = stateOfFile(path);
    return state && state->kind == FileKind::Plain;
}

std::vector<std::string> namesInFolder(const std::string& folder) {
    return namesIn(folder.empty() ? "." : folder);
}

}  // namespace

std::string inApplicationDirectory(std::string_view name) {
    return applicationDirectory + pathSeparator + std::string(name);
}

std::string inSettingsDirectory(std::string_view name) {
    if (settingsDirectory.empty()) return inApplicationDirectory(name);
    return settingsDirectory + pathSeparator + std::string(name);
}

std::string FileNameOf(std::string_view path, char separator) {
    const std::size_t at = lastSeparator(path, separator);
    return std::string(at == std::string_view::npos ? path : path.substr(at + 1));
}

std::string DirOf(std::string_view path, char separator) {
    const std::size_t at = lastSeparator(path, separator);
    return std::string(at == std::string_view::npos ? std::string_view() : path.substr(0, at));
}

bool endsInSeparator(std::string_view path, char separator) {
    return path.ends_with(separator) || path.ends_with('\\');
}

std::string withSeparator(std::string_view directory, char separator) {
    std::string out(directory);
    if (!endsInSeparator(directory, separator)) out += separator;
    return out;
}

std::string withOwnSeparators(std::string path, char separator) {
    std::replace(path.begin(), path.end(), '/', separator);
    return path;
}

std::string folderOf(const std::string& path) {
    const std::size_t at = onWindows ? path.find_last_of("/\\:") : path.rfind(pathSeparator);
    return at == std::string::npos ? "" : path.substr(0, at + 1);
}

std::string DriveOf(std::string_view path) {
    path = trimmed(path);
    return std::string(path.substr(0, path.find(':'))) + ":";
}

std::string existingFile(const std::string& path) {
    if (path.empty()) return {};
    const bool isThere = isPlainFile(path);
    // A system that ignores letter case gives any of them the file.
    constexpr bool tellsCases = !onWindows;
    if (isThere && tellsCases) return path;
    const std::string folder = folderOf(path);
    const std::string name = path.substr(folder.size());
    std::string found;
    for (const std::string& other : namesInFolder(folder)) {
        const bool isOne = lcase(other) == lcase(name) || (isThere && nameKey(other) == nameKey(name));
        if (isOne && (found.empty() || other < found) && isPlainFile(folder + other)) found = other;
    }
    if (found.empty()) return isThere ? path : "";
    return folder + found;
}

bool fileExists(const std::string& path) { return isPlainFile(path) || !existingFile(path).empty(); }

bool IsDirectory(const std::string& path) {
    const std::optional<FileState> state = stateOfFile(path);
    return state && state->kind == FileKind::Directory;
}

std::vector<std::string> filesMatching(const std::string& pattern) {
    const std::string folder = folderOf(pattern);
    const std::string wanted = lcase(pattern.substr(folder.size()));
    std::vector<std::string> names;
    for (const std::string& name : namesInFolder(folder))
        if (matches(lcase(name), wanted) && isPlainFile(folder + name)) names.push_back(name);
    std::sort(names.begin(), names.end(), [](const std::string& a, const std::string& b) {
        const std::string la = lcase(a);
        const std::string lb = lcase(b);
        return la != lb ? la < lb : a < b;
    });
    return names;
}

}  // namespace zg
