#pragma once

// What a run writes before it takes its name lies beside the results under names of the run's own, and a lock
// beside them tells others that the run lives: what a killed one left is removed by the next.

#include <memory>
#include <string>
#include <vector>

namespace zg::tempoline {

class Temporaries {
 public:
    /// Those of this process in the current directory. They last as long as somebody holds them.
    static std::shared_ptr<Temporaries> ofThisRun();

    ~Temporaries();
    Temporaries(const Temporaries&) = delete;
    Temporaries& operator=(const Temporaries&) = delete;

    /// The name of a new empty file, or of a new directory; empty where none can be made, with the reason in
    /// errno.
    std::string makeFile();
    std::string makeDirectory();

    /// Removes what runs of this machine left that are gone. What may belong to a run that goes on elsewhere
    /// stays: one line of text that names it, empty where there is none.
    std::string removeRemains() const;

 private:
    Temporaries();

    template <typename Make>
    std::string underNewName(Make make);
    bool lock();

    std::string stem_;
    int lock_ = -1;
    int count_ = 0;
};

}  // namespace zg::tempoline
