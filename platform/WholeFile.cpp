#include "platform/WholeFile.h"

#include <cerrno>
#include <cstring>
#include <optional>

#include "base/Files.h"

namespace zg {

namespace {

constexpr int mostNames = 1000;

/// The target of a link; the path itself if it is not one.
std::string withoutLink(std::string path) {
    const std::optional<FileState> state = stateOfName(path);
    const std::string target = state && state->kind == FileKind::Other ? wholePath(path) : "";
    return target.empty() ? std::move(path) : target;
}

/// Whether a file may be created or replaced there; errno says why not. A write-protected one is not
/// replaced.
bool isReplaceable(const std::string& path) {
    const std::optional<FileState> old = stateOfFile(path);
    if (!old) return true;
    errno = old->kind == FileKind::Directory ? EISDIR : EINVAL;
    return old->kind == FileKind::Plain && FileHandle(openStream(path, "r+b")) != nullptr;
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
        handle_.reset(openStream(temporary_, "wbx"));
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
    if (!temporary_.empty()) removeFile(temporary_);
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
    // The bytes are on the disk before the older file loses its name.
    if (!reachDisk(handle_.get())) return fail();
    if (std::fclose(handle_.release()) != 0) return fail();
    copyPermissions(path_, temporary_);
    if (!moveFile(temporary_, path_)) return fail();
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
