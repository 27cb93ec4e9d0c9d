#include "base/FileLock.h"

#include <cerrno>

namespace zg {

FileLock::Outcome FileLock::take(const std::string& name, Of kind) {
    release();
    name_ = name;
    if (name.find('\0') != std::string::npos) {
        errno = ENOENT;
        return Outcome::Failed;
    }
    if (kind == Of::NewFile) return takeNew();
    return kind == Of::OldFile ? takeOld() : takeAny();
}

}  // namespace zg
