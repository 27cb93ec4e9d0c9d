#pragma once

#include <string>
#include <string_view>

/// A directory for one test, removed with its contents at the end.
class TempDirectory {
 public:
    TempDirectory();
    ~TempDirectory();
    TempDirectory(const TempDirectory&) = delete;
    TempDirectory& operator=(const TempDirectory&) = delete;

    const std::string& path() const { return path_; }

    /// Full path of a name in it, in which "/" is the system's own separator.
    std::string file(std::string_view name) const;

    /// Writes a file with exactly these bytes and returns its full path.
    std::string write(std::string_view name, std::string_view bytes) const;

    /// The bytes of a file in it; fails the test if it cannot be read.
    std::string read(std::string_view name) const;

 private:
    std::string path_;
};
