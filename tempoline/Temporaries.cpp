#include "tempoline/Temporaries.h"

namespace zg::tempoline {

Temporaries::Temporaries() : TemporaryFiles({"", ".tempoline-"}) {}

std::shared_ptr<Temporaries> Temporaries::ofThisRun() {
    static std::weak_ptr<Temporaries> current;
    std::shared_ptr<Temporaries> temporaries = current.lock();
    if (!temporaries) {
        temporaries.reset(new Temporaries);
        current = temporaries;
    }
    return temporaries;
}

}  // namespace zg::tempoline
