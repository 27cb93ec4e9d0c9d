#include "tempoline/OutputFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

#include "tempoline/Failure.h"

namespace zg::tempoline {

namespace {

[[noreturn]] void failToWrite(const std::string& name, int error) {
    throw Failure(ExitStatus::Failed, name + ": cannot be written: " + std::strerror(error));
}

/// Calls until it succeeds with a name that no file has: a run that was killed, or one on another machine,
/// may have left files with the number of this process. Empty where it fails for another reason, told by
/// errno.
template <typename Make>
std::string underNewName(Make make) {
    static int count = 0;
    for (;;) {
        std::string name = ".tempoline-" + std::to_string(getpid()) + "-" + std::to_string(++count) + ".tmp";
        if (make(name.c_str())) return name;
        if (errno != EEXIST) return {};
    }
}

bool makeEmpty(const char* name) {
    const int file = open(name, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (file >= 0) close(file);
    return file >= 0;
}

}  // namespace

bool needFreeName(const std::string& name) {
    struct stat state = {};
    const bool isThere = lstat(name.c_str(), &state) == 0;
    if (!isThere && errno != ENOENT) failToWrite(name, errno);
    if (isThere && S_ISDIR(state.st_mode)) failToWrite(name, EISDIR);
    return isThere;
}

OutputFile::OutputFile(std::string name) : name_(std::move(name)) {
    needFreeName(name_);
    temporary_ = underNewName(makeEmpty);
    if (temporary_.empty()) failToWrite(name_, errno);
}

OutputFile::~OutputFile() {
    if (!temporary_.empty()) unlink(temporary_.c_str());
}

void OutputFile::flush() {
    const int file = open(temporary_.c_str(), O_WRONLY | O_APPEND | O_CLOEXEC);
    if (file < 0) failToWrite(name_, errno);
    std::string_view rest = buffer_;
    int error = 0;
    while (!rest.empty() && error == 0) {
        const ssize_t written = ::write(file, rest.data(), rest.size());
        if (written >= 0)
            rest.remove_prefix(static_cast<std::size_t>(written));
        else if (errno != EINTR)
            error = errno;
    }
    if (close(file) != 0 && error == 0 && errno != EINTR) error = errno;
    if (error != 0) failToWrite(name_, error);
    buffer_.clear();
}

void OutputFile::finish() {
    if (!buffer_.empty()) flush();
    buffer_.shrink_to_fit();
}

/// A second name for the older file; where there are none, the older file gives up its own.
void OutputFile::keepOld() {
    if (!needFreeName(name_)) return;
    old_ = underNewName([this](const char* spare) { return link(name_.c_str(), spare) == 0; });
    if (!old_.empty()) return;
    old_ = underNewName(makeEmpty);
    if (!old_.empty() && std::rename(name_.c_str(), old_.c_str()) == 0) return;
    const int error = errno;
    settle();
    failToWrite(name_, error);
}

void OutputFile::replace() {
    keepOld();
    if (std::rename(temporary_.c_str(), name_.c_str()) != 0) {
        const int error = errno;
        if (!old_.empty()) takeBack();
        failToWrite(name_, error);
    }
    temporary_.clear();
}

void OutputFile::takeBack() noexcept {
    if (old_.empty())
        unlink(name_.c_str());
    else
        std::rename(old_.c_str(), name_.c_str());
    settle();  // of two names of one file the renaming leaves both
}

void OutputFile::settle() noexcept {
    if (!old_.empty()) unlink(old_.c_str());
    old_.clear();
}

void OutputFile::commit() { commitAll({this}); }

void OutputFile::commitAll(const std::vector<OutputFile*>& files) {
    for (OutputFile* file : files) file->finish();
    std::size_t replaced = 0;
    try {
        for (; replaced < files.size(); ++replaced) files[replaced]->replace();
    } catch (...) {
        while (replaced > 0) files[--replaced]->takeBack();
        throw;
    }
    for (OutputFile* file : files) file->settle();
}

}  // namespace zg::tempoline
