#include "export/PictureFile.h"

#include <QCoreApplication>
#include <array>
#include <atomic>
#include <cerrno>
#include <filesystem>
#include <system_error>
#ifndef _WIN32
#include <unistd.h>
#endif

namespace zg {

namespace fs = std::filesystem;

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
    return (fs::path(path).parent_path() / name).string();
}

/// Flushes the bytes to the disk, as far as the disk can tell.
bool reachesDisk(std::FILE* file) {
    if (std::fflush(file) != 0) return false;
#ifndef _WIN32
    if (fsync(fileno(file)) != 0 && errno != EINVAL && errno != ENOTSUP) return false;
#endif
    return true;
}

/// A picture that replaces another keeps its permissions.
void takePermissions(const std::string& from, const std::string& to) {
    std::error_code error;
    const fs::file_status old = fs::symlink_status(from, error);
    if (fs::is_regular_file(old)) fs::permissions(to, old.permissions(), error);
}

}  // namespace

PictureFile::PictureFile(std::string path) : path_(std::move(path)) {
    do {
        temporary_ = spareName(path_);
        file_.reset(std::fopen(temporary_.c_str(), "wbx"));
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
    std::error_code ignored;
    fs::remove(temporary_, ignored);
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
    takePermissions(path_, temporary_);
    std::error_code error;
    fs::rename(temporary_, path_, error);
    if (error) {
        fault_ = error.value();
        return;
    }
    swapName(temporary_.c_str(), nullptr);
    temporary_.clear();
}

void dropUnfinishedPictures() noexcept {
    for (const std::atomic<const char*>& name : namesUnderWay)
#ifdef _WIN32
        if (const char* left = name) std::remove(left);
#else
        if (const char* left = name) unlink(left);
#endif
}

}  // namespace zg
