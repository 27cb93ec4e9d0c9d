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

/// Those of this process, as long as it has any.
std::shared_ptr<TemporaryFiles> filesOfThisProcess() {
    static std::weak_ptr<TemporaryFiles> current;
    if (std::shared_ptr<TemporaryFiles> files = current.lock()) return files;
    std::error_code error;
    const std::filesystem::path parent = std::filesystem::temp_directory_path(error);
    if (error) throw RawFault("there is no directory for temporary files: " + error.message(), false);
    const auto files = std::make_shared<TemporaryFiles>(
        TemporaryPlace{withSeparator(parent.string()), "zephyrgraph-", true});
    files->removeRemains();
    current = files;
    return files;
}

}  // namespace

RunDirectory::RunDirectory() {
    const std::lock_guard guard(directoriesMutex);
    files_ = filesOfThisProcess();
    path_ = files_->makeDirectory();
    if (path_.empty())
        throw RawFault(
            "no directory for temporary files can be made: " + std::generic_category().message(errno), false);
}

RunDirectory::~RunDirectory() { removeTree(path_); }

}  // namespace zg
