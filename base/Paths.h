#pragma once

// Paths as users and files write them. The separator is an argument that defaults to the platform's own, so
// that the rules for "\" are in force, and tested, everywhere.

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace zg {

constexpr char pathSeparator = static_cast<char>(std::filesystem::path::preferred_separator);
constexpr bool onWindows = pathSeparator == '\\';

/// The directory of the running program without a final separator. It is set once at the start; tests set it
/// as they need.
extern std::string applicationDirectory;

/// applicationDirectory, the separator, and the name.
std::string inApplicationDirectory(std::string_view name);

/// Where the program keeps what it writes itself (settings, expressions, pictures), without a final
/// separator; "" means applicationDirectory. It is set once at the start, if nothing can be written there.
extern std::string settingsDirectory;

/// That directory, the separator, and the name.
std::string inSettingsDirectory(std::string_view name);

/// The text after the last separator (the given one or "\"), or the whole text if there is none.
std::string FileNameOf(std::string_view path, char separator = pathSeparator);

/// The text before the last separator, without it; "" if there is none.
std::string DirOf(std::string_view path, char separator = pathSeparator);

/// Whether the path ends with the separator or with "\".
bool endsInSeparator(std::string_view path, char separator = pathSeparator);

/// The path with the separator at its end; a final separator or "\" that is already there is not doubled.
std::string withSeparator(std::string_view directory, char separator = pathSeparator);

/// The path with the platform's own separators, for people to read: Windows takes "/" as well.
std::string withOwnSeparators(std::string path, char separator = pathSeparator);

/// The part of a path up to the name, with its separator, by the rules of the platform; "" for a name alone.
std::string folderOf(const std::string& path);

/// The trimmed path up to and including the first ":"; a path without one gives the whole path followed by
/// ":".
std::string DriveOf(std::string_view path);

/// Whether a regular file of that name exists; false for "". On a case-sensitive file system another letter
/// case of the name counts if the exact name does not exist.
bool fileExists(const std::string& path);

/// The name that the file has on disk (see fileExists); "" if there is none.
std::string existingFile(const std::string& path);

/// Whether a directory of that name exists; an error in the look-up counts as false.
bool IsDirectory(const std::string& path);

/// The names (without directory) of the regular files that match a pattern such as "/data/*.frq", in
/// case-insensitive order, hidden ones included. "*" matches any text and "?" any character; letter case does
/// not count.
std::vector<std::string> filesMatching(const std::string& pattern);

}  // namespace zg
