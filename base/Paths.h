#pragma once

// Paths as users and files write them. The separator is an argument with the platform's own as default, so
// that the rules for "\" hold, and are tested, everywhere.

#include <string>
#include <string_view>
#include <vector>

namespace zg {

#ifdef _WIN32
constexpr char pathSeparator = '\\';
#else
constexpr char pathSeparator = '/';
#endif

/// The directory of the running program without a final separator; set once at start, by tests as they need
/// it.
extern std::string applicationDirectory;

/// applicationDirectory, the separator, and the name.
std::string inApplicationDirectory(std::string_view name);

/// The text after the last separator (the given one or "\"), the whole text if there is none.
std::string FileNameOf(std::string_view path, char separator = pathSeparator);

/// The text before the last separator, without it; "" if there is none.
std::string DirOf(std::string_view path, char separator = pathSeparator);

/// The trimmed path's part before the first ":", and ":"; a path without one gives the whole path and ":".
std::string DriveOf(std::string_view path);

/// A plain file of that name is there; "" is none. Where the platform's file system tells letter cases apart,
/// another case of the same name counts when the exact name is missing.
bool fileExists(const std::string& path);

/// The name under which the file really lies (see fileExists); "" where there is none.
std::string existingFile(const std::string& path);

/// A directory is there; an error in the look-up counts as false.
bool IsDirectory(const std::string& path);

/// The names (without directory) of the plain files that match a pattern like "/data/*.frq", in
/// case-insensitive name order, hidden ones included; "*" and "?" stand for any text and any character,
/// letter case does not count.
std::vector<std::string> filesMatching(const std::string& pattern);

}  // namespace zg
