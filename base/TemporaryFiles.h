#pragma once

// Files under names that belong to this process, for as long as it lives: a lock file tells others that it
// does. What a killed process left, a later one removes.

#include <string>

#include "base/FileLock.h"

namespace zg {

struct TemporaryPlace {
    std::string directory;  ///< with its final separator; "" for the current one
    std::string prefix;     ///< of all the names
    bool ownOnly = false;   ///< files of other users are never removed, whatever their names
};

class TemporaryFiles {
 public:
    explicit TemporaryFiles(TemporaryPlace place);
    ~TemporaryFiles();
    TemporaryFiles(const TemporaryFiles&) = delete;
    TemporaryFiles& operator=(const TemporaryFiles&) = delete;

    /// The name of a new empty file or a new directory, with the directory of the place; empty if it cannot
    /// be created, with the reason in errno. They remain when the object ends.
    std::string makeFile();
    std::string makeDirectory();

    /// Removes what ended processes of this machine left. Files that may belong to a live one elsewhere stay:
    /// returns one line that names them, empty if there are none.
    std::string removeRemains() const;

 private:
    template <typename Make>
    std::string underNewName(Make make);

    TemporaryPlace place_;
    std::string stem_;  ///< without the directory
    FileLock lock_;
    int count_ = 0;
};

}  // namespace zg
