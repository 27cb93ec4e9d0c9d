#pragma once

// What the readers of data files share. Each reads the files of a run once, from begin to end, and gives the
// records of every output to its series.

#include <memory>
#include <string>
#include <vector>

#include "tempoline/Control.h"
#include "tempoline/Series.h"

namespace zg::tempoline {

/// What a file tells about itself.
struct InputFacts {
    std::string station;
    double height = -1;              ///< metres; negative where it tells none
    std::vector<std::string> notes;  ///< for the listing
};

class InputReader {
 public:
    virtual ~InputReader() = default;

    /// Reads one file. series[i] belongs to control.outputs[i]; all times given to it are in the zone of the
    /// run. Throws a Failure with file, line and field.
    virtual void read(const std::string& path, std::vector<Series>& series) = 0;

    InputFacts facts;

 protected:
    /// Facts about several files are told once.
    void note(const std::string& text) {
        for (const std::string& known : facts.notes) {
            if (known == text) return;
        }
        if (facts.notes.size() < 100) facts.notes.push_back(text);
    }
};

/// The reader of the kind of input that the control file names; it keeps a reference to the control file.
std::unique_ptr<InputReader> makeReader(const Control& control);

}  // namespace zg::tempoline
