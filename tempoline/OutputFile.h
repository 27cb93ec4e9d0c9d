#pragma once

// A result takes its name only when it is whole: it is written under another name beside it and then renamed.

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "tempoline/Temporaries.h"

namespace zg::tempoline {

class OutputFile {
 public:
    /// Of that name in the current directory; throws where none can be made there.
    explicit OutputFile(std::string name);

    /// Without commit nothing is left of it.
    ~OutputFile();
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;

    void write(std::string_view bytes) {
        buffer_.append(bytes);
        if (buffer_.size() >= bufferSize) flush();
    }

    /// Hands what is left to the disk; throws where it is full.
    void finish();

    /// Takes its name, in place of an older file.
    void commit();

    /// All of them take their names, in this order, or none. An older file that has one of the names is lost:
    /// see OlderResults.
    static void commitAll(const std::vector<OutputFile*>& files);

    const std::string& name() const { return name_; }

 private:
    // Thousands of results may be open in one run: none of them keeps a handle, and its buffer is small.
    static constexpr std::size_t bufferSize = 16384;

    void flush();
    void replace();

    std::string name_;
    std::shared_ptr<Temporaries> temporaries_;
    std::string temporary_;
    std::string buffer_;
};

/// Throws where no file can take that name: a directory has it, or the file system takes none as long.
void needFreeName(const std::string& name);

}  // namespace zg::tempoline
