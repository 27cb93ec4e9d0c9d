#pragma once

// A result gets its name only when it is complete: it is written under another name beside it and then
// renamed.

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "tempoline/Temporaries.h"

namespace zg::tempoline {

class OutputFile {
 public:
    /// A file to be given that name in the current directory; throws if none can be created there.
    explicit OutputFile(std::string name);

    /// Removes everything unless commit was called.
    ~OutputFile();
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;

    void write(std::string_view bytes) {
        buffer_.append(bytes);
        if (buffer_.size() >= bufferSize) flush();
    }

    /// Flushes what is buffered; throws if the disk is full.
    void finish();

    /// Gives the file its name, replacing an older file.
    void commit();

    /// Gives all of them their names, in this order, or none. An older file with one of the names is lost:
    /// see OlderResults.
    static void commitAll(const std::vector<OutputFile*>& files);

    const std::string& name() const { return name_; }

 private:
    // A run may have thousands of results open: none keeps a file handle, and its buffer is small.
    static constexpr std::size_t bufferSize = 16384;

    void flush();
    void replace();

    std::string name_;
    std::shared_ptr<Temporaries> temporaries_;
    std::string temporary_;
    std::string buffer_;
};

/// Throws if no file can have that name: it is a directory, or it is too long for the file system.
void needFreeName(const std::string& name);

}  // namespace zg::tempoline
