#include "export/RunDirectory.h"

#include <cerrno>
#include <filesystem>
#include <mutex>
#include <system_error>

#include "base/Files.h"
#include "base/Paths.h"
#include "base/TemporaryFiles.h"
#include "export/RawWishes.h"

namespace zg {

namespace {

std::mutex directoriesMutex;

/// With a separator at its end.
std::string temporaryPlace() {
    std::error_code error;
    const std::filesystem::path place = std::filesystem::temp_directory_path(error);
    if (error) throw RawFault("there is no directory for temporary files: " + error.message(), false);
    return withSeparator(place.string());
}

/// Those of this process, as long as it has any.
std::shared_ptr<TemporaryFiles> filesOfThisProcess(const std::string& place) {
    static std::weak_ptr<TemporaryFiles> current;
    if (std::shared_ptr<TemporaryFiles> files = current.lock()) return files;
    const auto files = std::make_shared<TemporaryFiles>(TemporaryPlace{place, "zephyrgraph-", true});
    files->removeRemains();
    current = files;
    return files;
}

}  // namespace

RunDirectory::RunDirectory() {
    const std::lock_guard guard(directoriesMutex);
    const std::string place = temporaryPlace();
    files_ = filesOfThisProcess(place);
    path_ = files_->makeDirectory();
    const int reason = errno;
    if (path_.empty())
        throw RawFault(place + ": no directory for temporary files can be made there: " +
                           std::generic_category().message(reason),
                       false);
}

RunDirectory::~RunDirectory() { removeTree(path_); }

}  // namespace zg
