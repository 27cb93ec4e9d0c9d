#pragma once

// What the readers of data files share. Each reads the files of a run once, from begin to end, and gives the
// records of every output to its series.

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "tempoline/Control.h"
#include "tempoline/Series.h"

namespace zg::tempoline {

/// What a file tells about itself.
struct InputFacts {
    std::string station;
    double height = -1;                                 ///< metres; negative where it tells none
    std::vector<std::string> notes;                     ///< for the listing
    std::vector<std::vector<std::string>> outputNotes;  ///< the same of each output; may be shorter
};

class InputReader {
 public:
    virtual ~InputReader() = default;

    /// Reads one file. series[i] belongs to control.outputs[i]; all times given to it are in the zone of the
    /// run. Throws a Failure with file, line and field.
    virtual void read(const std::string& path, std::vector<Series>& series) = 0;

    /// Adds to the facts what is known only after the last file, or where the run failed.
    virtual void finish() {}

    InputFacts facts;

 protected:
    /// Facts about several files are told once.
    void note(const std::string& text) { addOnce(facts.notes, text); }
    void note(const std::vector<std::string>& lines) {
        for (const std::string& line : lines) note(line);
    }

    /// Of one output, by its place in the control file.
    void noteOutput(std::size_t output, const std::string& text) {
        if (facts.outputNotes.size() <= output) facts.outputNotes.resize(output + 1);
        addOnce(facts.outputNotes[output], text);
    }
    void noteOutput(std::size_t output, const std::vector<std::string>& lines) {
        for (const std::string& line : lines) noteOutput(output, line);
    }

    /// By how much the times of the file are moved to those of the run.
    void noteShift(const Control& control, Seconds fileOffset);

    /// That the data tell no zone.
    void noteNoShift(const Control& control);

    /// Warns of a file that ends before its header says it does; all in the zone of the run. `last` is the
    /// end of its last record, and nothing more is due so many seconds after it.
    void noteEnd(const std::string& path, std::optional<Seconds> promised, std::optional<Seconds> last,
                 Seconds due = 0);

 private:
    static void addOnce(std::vector<std::string>& lines, const std::string& text);
};

/// The reader of the kind of input that the control file names; it keeps a reference to the control file.
std::unique_ptr<InputReader> makeReader(const Control& control);

}  // namespace zg::tempoline
