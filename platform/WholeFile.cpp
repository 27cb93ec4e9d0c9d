#include "platform/WholeFile.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <system_error>
#ifndef _WIN32
#include <unistd.h>
#endif

namespace zg {

namespace fs = std::filesystem;

namespace {

constexpr int mostNames = 1000;

/// The target of a link; the path itself if it is not one.
std::string withoutLink(std::string path) {
    std::error_code error;
    const fs::path target = fs::is_symlink(path, error) ? fs::canonical(path, error) : fs::path();
    return error || target.empty() ? std::move(path) : target.string();
}

/// Whether a file may be created or replaced there; errno says why not. A write-protected one is not
/// replaced.
bool isReplaceable(const std::string& path) {
    std::error_code error;
    const fs::file_status old = fs::status(path, error);
    if (!fs::exists(old)) return true;
    errno = fs::is_directory(old) ? EISDIR : EINVAL;
    return fs::is_regular_file(old) && FileHandle(std::fopen(path.c_str(), "r+b")) != nullptr;
}

/// The bytes are on the disk before the older file loses its name.
bool reachesDisk(std::FILE* file) {
    if (std::fflush(file) != 0) return false;
#ifdef _WIN32
    return true;
#else
    return fsync(fileno(file)) == 0;
#endif
}

}  // namespace

WholeFile::WholeFile(std::string path) : path_(withoutLink(std::move(path))) {
    if (!isReplaceable(path_)) {
        fail();
        return;
    }
    errno = 0;
    for (int i = 1; !handle_ && i <= mostNames && (i == 1 || errno == EEXIST); ++i) {
        temporary_ = path_ + ".new" + std::to_string(i);
        handle_.reset(std::fopen(temporary_.c_str(), "wbx"));
    }
    if (handle_) {
        setOpenMode(QIODevice::WriteOnly);
    } else {
        fail();
        temporary_.clear();
    }
}

WholeFile::~WholeFile() {
    handle_.reset();
    if (!temporary_.empty()) std::remove(temporary_.c_str());
}

bool WholeFile::fail() {
    if (errorNumber_ == 0) errorNumber_ = errno != 0 ? errno : EIO;
    setErrorString(QString::fromLocal8Bit(std::strerror(errorNumber_)));
    return false;
}

qint64 WholeFile::writeData(const char* bytes, qint64 count) {
    errno = 0;
    if (std::fwrite(bytes, 1, static_cast<std::size_t>(count), handle_.get()) ==
        static_cast<std::size_t>(count))
        return count;
    fail();
    return -1;
}

bool WholeFile::commit() {
    if (errorNumber_ != 0 || !handle_) return false;
    setOpenMode(QIODevice::NotOpen);
    errno = 0;
    if (!reachesDisk(handle_.get())) return fail();
    if (std::fclose(handle_.release()) != 0) return fail();
    std::error_code error;
    if (const fs::file_status old = fs::status(path_, error); fs::exists(old))
        fs::permissions(temporary_, old.permissions(), error);
    if (std::rename(temporary_.c_str(), path_.c_str()) != 0) return fail();
    temporary_.clear();
    return true;
}

bool WholeFile::isFull() const {
#ifdef EDQUOT
    if (errorNumber_ == EDQUOT) return true;
#endif
    return errorNumber_ == ENOSPC || errorNumber_ == EFBIG;
}

}  // namespace zg
