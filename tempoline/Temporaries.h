#pragma once

// Unfinished results are beside the finished ones under temporary names that belong to the run; a lock file
// tells other runs that it is alive. What a killed run left, the next one removes.

#include <memory>
#include <string>
#include <vector>

#include "base/FileLock.h"

namespace zg::tempoline {

class Temporaries {
 public:
    /// Those of this process in the current directory. They exist as long as somebody holds this object.
    static std::shared_ptr<Temporaries> ofThisRun();

    ~Temporaries();
    Temporaries(const Temporaries&) = delete;
    Temporaries& operator=(const Temporaries&) = delete;

    /// The name of a new empty file or a new directory; empty if it cannot be created, with the reason in
    /// errno.
    std::string makeFile();
    std::string makeDirectory();

    /// Removes what ended runs of this machine left. Files that may belong to a live run elsewhere stay:
    /// returns one line that names them, empty if there are none.
    std::string removeRemains() const;

 private:
    Temporaries();

    template <typename Make>
    std::string underNewName(Make make);
    std::string stem_;
    FileLock lock_;
    int count_ = 0;
};

}  // namespace zg::tempoline
