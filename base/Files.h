#pragma once

// The system's side of files. Names are bytes as the system has them, on Windows UTF-8, with "/" or "\" and
// any length there. A name with a NUL refers to nothing. Failures set errno, on every platform with the
// numbers of the C library.

#include <compare>
#include <cstdint>
#include <cstdio>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zg {

/// The identity of a file: two names of one file have equal ones.
struct FileIdentity {
    std::uint64_t volume = 0;
    std::uint64_t number = 0;
    auto operator<=>(const FileIdentity&) const = default;
};

enum class FileKind { Plain, Directory, Other };  ///< Other: pipes, devices and links

struct FileState {
    FileKind kind = FileKind::Other;
    std::uint64_t size = 0;  ///< bytes of a regular file
    FileIdentity identity;
};

/// Status of the file that the name leads to; nothing if there is none or its status cannot be read.
std::optional<FileState> stateOfFile(const std::string& name);

/// Status of the name itself, which may be a symbolic link.
std::optional<FileState> stateOfName(const std::string& name);

/// Whether the name itself, which may be a link, belongs to the user of this process. On Windows always,
/// since there each user has a directory of temporary files.
bool isOwnFile(const std::string& name);

/// Whether both lead to the same existing file.
bool isOneFile(const std::string& name, const std::string& other);

/// Whether no file can have that name, without a directory, since it is longer than 255 bytes, on Windows
/// 255 units of UTF-16.
bool isTooLongName(std::string_view name);

/// The names in a directory, in no order, without "." and ".."; none if it cannot be read.
std::vector<std::string> namesIn(const std::string& directory);

/// Like fopen, without any conversion, with the modes "rb", "wb", "r+b" and "wbx", which fails if the file
/// exists. Others may read, rename and remove the file meanwhile; on Windows an open file cannot be replaced.
std::FILE* openStream(const std::string& name, const char* mode);

/// Flushes what has been written to the disk.
bool reachDisk(std::FILE* file);

/// Creates an empty file, or a directory; EEXIST if the name is in use.
bool makeFile(const std::string& name);
bool makeDirectory(const std::string& name);

/// Creates the directory and all missing ones on the way to it; ENOTDIR if one of the names is a file.
bool makeDirectories(const std::string& name);

/// Appends to an existing file.
bool appendToFile(const std::string& name, std::string_view bytes);

/// Renames a file or a directory. An older file of that name is replaced in one step: others see either the
/// one or the other.
bool moveFile(const std::string& name, const std::string& newName);

bool removeFile(const std::string& name);

/// The same, callable from a signal handler: it neither allocates memory nor reports errors.
void removeAtOnce(const char* name) noexcept;

bool removeDirectory(const std::string& name);

/// Gives the second regular file the permissions of the first; nothing changes if the first is not one.
void copyPermissions(const std::string& from, const std::string& to);

/// Removes the file, or the directory with its contents; of a link only the link. True if nothing of that
/// name remains.
bool removeTree(const std::string& name);

/// The full path of an existing file, the same for all names of its directories; "" if it cannot be
/// determined.
std::string wholePath(const std::string& name);

/// Whether the bytes are a name in a directory that leads nowhere else.
bool isPlainName(std::string_view name);

/// The text for a name put together of several: Windows has no names of bytes, and a part that is not UTF-8
/// would turn the letters of the others into different ones.
std::string asPartOfName(std::string_view text);

/// Equal for two names that the system considers the same under its rule for letter case.
std::string nameKey(std::string_view name);

/// Of this machine, usable in a file name, and of this process.
std::string machineName();
std::uint64_t processNumber();

}  // namespace zg
