#pragma once

// The account of a run: what was asked, what was read, how it ended.

#include <string>
#include <vector>

#include "tempoline/Control.h"
#include "tempoline/Series.h"

namespace zg::tempoline {

class Listing {
 public:
    explicit Listing(std::string name) : name_(std::move(name)) {}

    void rename(std::string name) { name_ = std::move(name); }
    /// One that begins with "WARNING: " or "NOTE: " is also among the remarks.
    void line(const std::string& text);
    void lines(const std::vector<std::string>& texts) {
        for (const std::string& text : texts) line(text);
    }

    /// All that the control file says, all that it leaves to be assumed, and how both were understood: a run
    /// can be repeated from it.
    void describe(const Control& control);

    /// What the reader says of the output, and its records.
    void describeRecords(const OutputRequest& output, const RecordCounts& records,
                         const std::vector<std::string>& notes);

    /// The same, with its steps and its roses.
    void describeOutput(const OutputRequest& output, const Series& series, const Control& control,
                        const std::vector<std::string>& notes);

    /// What a person should know although the run went well, in the order of the lines.
    const std::vector<std::string>& remarks() const { return remarks_; }

    const std::string& text() const { return text_; }

    /// Replaces the file with the last line added; throws as OutputFile does. Without a name nothing is
    /// written.
    void write(const std::string& lastLine);

 private:
    void describeControlFile(const Control& control);
    void describeInput(const Control& control);
    void describeRules(const RoseRules& rules);
    void describeMap(const Control& control);
    void describeSteps(const StepCounts& steps);

    std::string name_;
    std::string text_;
    std::vector<std::string> remarks_;
};

}  // namespace zg::tempoline
