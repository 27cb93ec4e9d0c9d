#include "base/Paths.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "base/Text.h"

namespace zg {

namespace fs = std::filesystem;

std::string applicationDirectory;

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

/// The system would look up only the part of such a name before the NUL.
bool holdsNul(const fs::path& path) {
    return path.native().find(fs::path::value_type()) != fs::path::string_type::npos;
}

bool isPlainFile(const fs::path& path) {
    std::error_code error;
    return !holdsNul(path) && fs::is_regular_file(path, error);
}

}  // namespace

std::string inApplicationDirectory(std::string_view name) {
    return applicationDirectory + pathSeparator + std::string(name);
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

std::string DriveOf(std::string_view path) {
    path = trimmed(path);
    return std::string(path.substr(0, path.find(':'))) + ":";
}

std::string existingFile(const std::string& path) {
    if (path.empty()) return {};
    if (isPlainFile(path)) return path;
    const fs::path wanted(path);
    const std::string name = lcase(wanted.filename().string());
    const fs::path directory = wanted.has_parent_path() ? wanted.parent_path() : fs::path(".");
    std::error_code error;
    std::string found;
    for (fs::directory_iterator it(directory, error), end; !error && it != end; it.increment(error)) {
        const std::string other = it->path().filename().string();
        if (lcase(other) == name && isPlainFile(it->path()) && (found.empty() || other < found))
            found = other;
    }
    if (found.empty()) return {};
    return wanted.has_parent_path() ? (wanted.parent_path() / found).string() : found;
}

bool fileExists(const std::string& path) { return !existingFile(path).empty(); }

bool IsDirectory(const std::string& path) {
    std::error_code error;
    return !holdsNul(path) && fs::is_directory(path, error);
}

std::vector<std::string> filesMatching(const std::string& pattern) {
    const fs::path whole(pattern);
    const std::string wanted = lcase(whole.filename().string());
    std::vector<std::string> names;
    std::error_code error;
    const fs::path directory = whole.has_parent_path() ? whole.parent_path() : fs::path(".");
    for (fs::directory_iterator it(directory, error), end; !error && it != end; it.increment(error)) {
        const std::string name = it->path().filename().string();
        if (matches(lcase(name), wanted) && isPlainFile(it->path())) names.push_back(name);
    }
    std::sort(names.begin(), names.end(), [](const std::string& a, const std::string& b) {
        const std::string la = lcase(a);
        const std::string lb = lcase(b);
        return la != lb ? la < lb : a < b;
    });
    return names;
}

}  // namespace zg
