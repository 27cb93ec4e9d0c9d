#pragma once

// The account of a run: what was asked, what was read, how it ended.

#include <string>

#include "tempoline/Control.h"
#include "tempoline/Series.h"

namespace zg::tempoline {

class Listing {
 public:
    explicit Listing(std::string name) : name_(std::move(name)) {}

    void rename(std::string name) { name_ = std::move(name); }
    void line(const std::string& text) { text_ += text + "\r\n"; }

    void describe(const Control& control);
    void describeRecords(const OutputRequest& output, const RecordCounts& records);

    /// Its records and its roses.
    void describeOutput(const OutputRequest& output, const Series& series);

    const std::string& text() const { return text_; }

    /// Replaces the file with the last line added; throws as OutputFile does. Without a name nothing is
    /// written.
    void write(const std::string& lastLine);

 private:
    std::string name_;
    std::string text_;
};

}  // namespace zg::tempoline
