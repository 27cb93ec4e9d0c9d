#pragma once

// What the program asks of the system about files. Names are the bytes that the system has, on Windows UTF-8;
// there they may have "/" or "\" and any length. A name with a NUL names nothing. What fails leaves its
// reason in errno, on every platform by the numbers of the C library.

#include <compare>
#include <cstdint>
#include <cstdio>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zg {

/// The file itself, however it is called: two names of one file have equal ones.
struct FileIdentity {
    std::uint64_t volume = 0;
    std::uint64_t number = 0;
    auto operator<=>(const FileIdentity&) const = default;
};

enum class FileKind { Plain, Directory, Other };  ///< others are pipes, devices and links

struct FileState {
    FileKind kind = FileKind::Other;
    std::uint64_t size = 0;  ///< bytes of a plain file
    FileIdentity identity;
};

/// Of the file that the name leads to; nothing where none is there or nothing can be told of it.
std::optional<FileState> stateOfFile(const std::string& name);

/// Of the name itself, which may be that of a symbolic link.
std::optional<FileState> stateOfName(const std::string& name);

/// Both lead to one file that is there.
bool isOneFile(const std::string& name, const std::string& other);

/// The names in a directory, in no order, without "." and ".."; none where it cannot be read.
std::vector<std::string> namesIn(const std::string& directory);

/// Opens as fopen does, bytes as they stand, with the modes "rb", "wb", "r+b" and "wbx", which only makes a
/// file that is not there. Others may read, rename and remove the file meanwhile;
/// on Windows no file can be replaced while it is open.
std::FILE* openStream(const std::string& name, const char* mode);

/// What has been written is on the disk, and not only on its way.
bool reachDisk(std::FILE* file);

/// Makes an empty file, or a directory; EEXIST where the name is taken.
bool makeFile(const std::string& name);
bool makeDirectory(const std::string& name);

/// The directory and those on the way to it, as far as they are missing; ENOTDIR where a file has the name.
bool makeDirectories(const std::string& name);

/// Writes behind the end of a file that is there.
bool appendToFile(const std::string& name, std::string_view bytes);

/// Gives a file, or a directory, another name. An older file of that name is replaced in one step: whoever
/// looks sees the one or the other.
bool moveFile(const std::string& name, const std::string& newName);

bool removeFile(const std::string& name);

/// The same from anywhere, a signal's handler too: it asks for no memory and tells nothing.
void removeAtOnce(const char* name) noexcept;

bool removeDirectory(const std::string& name);

/// Whoever may use the one plain file may then use the other; where the first is none nothing changes.
void copyPermissions(const std::string& from, const std::string& to);

/// The file, or the directory with all that it holds; a link goes and what it leads to stays. True where
/// nothing of that name is left.
bool removeTree(const std::string& name);

/// The whole path of a file that is there, one for all its names in directories; "" where it cannot be told.
std::string wholePath(const std::string& name);

/// The bytes are a name in one directory that leads nowhere else.
bool isPlainName(std::string_view name);

/// Equal for two names that the system takes for one by its rule of letter cases.
std::string nameKey(std::string_view name);

/// Of this machine, as a part of a file's name, and of this process.
std::string machineName();
std::uint64_t processNumber();

}  // namespace zg
