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

}  // namespace

void needFreeName(const std::string& name) {
    struct stat state = {};
    const bool isThere = lstat(name.c_str(), &state) == 0;
    if (!isThere && errno != ENOENT) failToWrite(name, errno);
    if (isThere && S_ISDIR(state.st_mode)) failToWrite(name, EISDIR);
}

OutputFile::OutputFile(std::string name) : name_(std::move(name)) {
    needFreeName(name_);
    temporaries_ = Temporaries::ofThisRun();
    temporary_ = temporaries_->makeFile();
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

void OutputFile::replace() {
    if (std::rename(temporary_.c_str(), name_.c_str()) != 0) failToWrite(name_, errno);
    temporary_.clear();
}

void OutputFile::commit() { commitAll({this}); }

void OutputFile::commitAll(const std::vector<OutputFile*>& files) {
    for (OutputFile* file : files) file->finish();
    std::size_t replaced = 0;
    try {
        for (; replaced < files.size(); ++replaced) files[replaced]->replace();
    } catch (...) {
        while (replaced > 0) unlink(files[--replaced]->name_.c_str());
        throw;
    }
}

}  // namespace zg::tempoline
