#include "tempoline/OutputFile.h"

#include <cerrno>
#include <cstring>
#include <optional>

#include "base/Files.h"
#include "tempoline/Failure.h"

namespace zg::tempoline {

namespace {

[[noreturn]] void failToWrite(const std::string& name, int error) {
    throw Failure(ExitStatus::Failed, name + ": cannot be written: " + std::strerror(error));
}

}  // namespace

void needFreeName(const std::string& name) {
    const std::optional<FileState> state = stateOfName(name);
    if (!state && errno != ENOENT) failToWrite(name, errno);
    if (state && state->kind == FileKind::Directory) failToWrite(name, EISDIR);
}

OutputFile::OutputFile(std::string name) : name_(std::move(name)) {
    needFreeName(name_);
    temporaries_ = Temporaries::ofThisRun();
    temporary_ = temporaries_->makeFile();
    if (temporary_.empty()) failToWrite(name_, errno);
}

OutputFile::~OutputFile() {
    if (!temporary_.empty()) removeFile(temporary_);
}

void OutputFile::flush() {
    if (!appendToFile(temporary_, buffer_)) failToWrite(name_, errno);
    buffer_.clear();
}

void OutputFile::finish() {
    if (!buffer_.empty()) flush();
    buffer_.shrink_to_fit();
}

void OutputFile::replace() {
    if (!moveFile(temporary_, name_)) failToWrite(name_, errno);
    temporary_.clear();
}

void OutputFile::commit() { commitAll({this}); }

void OutputFile::commitAll(const std::vector<OutputFile*>& files) {
    for (OutputFile* file : files) file->finish();
    std::size_t replaced = 0;
    try {
        for (; replaced < files.size(); ++replaced) files[replaced]->replace();
    } catch (...) {
        while (replaced > 0) removeFile(files[--replaced]->name_);
        throw;
    }
}

}  // namespace zg::tempoline
