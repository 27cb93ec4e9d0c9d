#include "tempoline/OutputFile.h"

#include <fcntl.h>
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

std::string temporaryName() {
    static int count = 0;
    return ".tempoline-" + std::to_string(getpid()) + "-" + std::to_string(++count) + ".tmp";
}

}  // namespace

OutputFile::OutputFile(std::string name) : name_(std::move(name)), temporary_(temporaryName()) {
    const int file = open(temporary_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (file < 0) {
        temporary_.clear();
        failToWrite(name_, errno);
    }
    close(file);
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

void OutputFile::commit() {
    finish();
    if (std::rename(temporary_.c_str(), name_.c_str()) != 0) failToWrite(name_, errno);
    temporary_.clear();
}

}  // namespace zg::tempoline
