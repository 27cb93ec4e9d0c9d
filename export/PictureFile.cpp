#include "export/PictureFile.h"

#include <QCoreApplication>
#include <array>
#include <atomic>
#include <cerrno>

#include "base/Files.h"
#include "base/Paths.h"

namespace zg {

namespace {

/// The names of unfinished pictures; if there are more than fit, the others are not registered here.
constexpr std::size_t mostUnderWay = 256;
std::array<std::atomic<const char*>, mostUnderWay> namesUnderWay;

void swapName(const char* from, const char* to) {
    for (std::atomic<const char*>& name : namesUnderWay)
        if (const char* expected = from; name.compare_exchange_strong(expected, to)) return;
}

/// An unused name, short because the picture's own may be as long as a name can be.
std::string spareName(const std::string& path) {
    static std::atomic<int> count = 0;
    const std::string name = ".zephyrgraph-" + std::to_string(QCoreApplication::applicationPid()) + "-" +
                             std::to_string(++count) + ".tmp";
    return folderOf(path) + name;
}

/// Flushes the bytes to the disk, as far as the disk can tell.
bool reachesDisk(std::FILE* file) { return reachDisk(file) || errno == EINVAL || errno == ENOTSUP; }

}  // namespace

PictureFile::PictureFile(std::string path) : path_(std::move(path)) {
    do {
        temporary_ = spareName(path_);
        file_.reset(openStream(temporary_, "wbx"));
    } while (!file_ && errno == EEXIST);
    if (!file_) {
        temporary_.clear();
        keepFault();
    } else {
        swapName(nullptr, temporary_.c_str());
    }
    open(QIODevice::WriteOnly);
}

PictureFile::~PictureFile() {
    file_.reset();
    if (temporary_.empty()) return;
    removeFile(temporary_);
    swapName(temporary_.c_str(), nullptr);
}

void PictureFile::keepFault() {
    if (fault_ == 0) fault_ = errno != 0 ? errno : EIO;
}

qint64 PictureFile::writeData(const char* bytes, qint64 size) {
    const auto count = static_cast<std::size_t>(size);
    if (fault_ == 0 && std::fwrite(bytes, 1, count, file_.get()) != count) keepFault();
    return size;
}

void PictureFile::commit() {
    if (fault_ != 0) return;
    if (!reachesDisk(file_.get())) keepFault();
    if (std::fclose(file_.release()) != 0) keepFault();
    if (fault_ != 0) return;
    copyPermissions(path_, temporary_);
    if (!moveFile(temporary_, path_)) {
        keepFault();
        return;
    }
    swapName(temporary_.c_str(), nullptr);
    temporary_.clear();
}

void dropUnfinishedPictures() noexcept {
    for (const std::atomic<const char*>& name : namesUnderWay)
        if (const char* left = name) removeAtOnce(left);
}

}  // namespace zg
