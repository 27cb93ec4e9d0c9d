#pragma once

// The report of a run: what was asked for, what was read, how it ended.

#include <string>
#include <vector>

#include "tempoline/Control.h"
#include "tempoline/Series.h"

namespace zg::tempoline {

class Listing {
 public:
    explicit Listing(std::string name) : name_(std::move(name)) {}

    void rename(std::string name) { name_ = std::move(name); }
    /// Adds a line; one that begins with "WARNING: " or "NOTE: " also becomes a remark.
    void line(const std::string& text);
    void lines(const std::vector<std::string>& texts) {
        for (const std::string& text : texts) line(text);
    }

    /// Everything the control file says, all defaults that were used, and how both were understood: enough to
    /// repeat the run.
    void describe(const Control& control);

    /// What the reader reports about the output, and its record counts.
    void describeRecords(const OutputRequest& output, const RecordCounts& records,
                         const std::vector<std::string>& notes);

    /// The same, followed by its steps and its roses.
    void describeOutput(const OutputRequest& output, const Series& series, const Control& control,
                        const std::vector<std::string>& notes);

    /// What a person should know even about a successful run, in the order of the lines.
    const std::vector<std::string>& remarks() const { return remarks_; }

    const std::string& text() const { return text_; }

    /// Writes the file, replacing an older one, with this last line added; throws the same failures as
    /// OutputFile. Without a name nothing is written.
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
