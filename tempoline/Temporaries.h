#pragma once

// Unfinished results are beside the finished ones under temporary names that belong to the run.

#include <memory>

#include "base/TemporaryFiles.h"

namespace zg::tempoline {

class Temporaries : public TemporaryFiles {
 public:
    /// Those of this process in the current directory. They exist as long as somebody holds this object.
    static std::shared_ptr<Temporaries> ofThisRun();

 private:
    Temporaries();
};

}  // namespace zg::tempoline
