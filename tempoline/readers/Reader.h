#pragma once

// What the readers of data files have in common. Each reads the files of a run once, from begin to end, and
// passes the records of every output to its series.

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "tempoline/Control.h"
#include "tempoline/Series.h"

namespace zg::tempoline {

/// What a file states about itself.
struct InputFacts {
    std::string station;
    double height = -1;                                 ///< metres; negative if not stated
    std::vector<std::string> notes;                     ///< for the listing
    std::vector<std::vector<std::string>> outputNotes;  ///< the same per output; may have fewer entries
};

class InputReader {
 public:
    virtual ~InputReader() = default;

    /// Reads one file. series[i] belongs to control.outputs[i]; all times passed to it are in the zone of the
    /// run. Throws a Failure with file, line and field.
    virtual void read(const std::string& path, std::vector<Series>& series) = 0;

    /// Adds the facts that are known only after the last file, or after a failure.
    virtual void finish() {}

    InputFacts facts;

 protected:
    /// Facts that are common to several files are reported once.
    void note(const std::string& text) { addOnce(facts.notes, text); }
    void note(const std::vector<std::string>& lines) {
        for (const std::string& line : lines) note(line);
    }

    /// Facts about one output, by its index in the control file.
    void noteOutput(std::size_t output, const std::string& text) {
        if (facts.outputNotes.size() <= output) facts.outputNotes.resize(output + 1);
        addOnce(facts.outputNotes[output], text);
    }
    void noteOutput(std::size_t output, const std::vector<std::string>& lines) {
        for (const std::string& line : lines) noteOutput(output, line);
    }

    /// The shift from the times of the file to those of the run.
    void noteShift(const Control& control, Seconds fileOffset);

    /// Notes that the data do not state a zone.
    void noteNoShift(const Control& control);

    /// Warns if a file ends before the end in its header; all times in the zone of the run. `last` is the end
    /// of its last record, and the next one is due that many seconds after it.
    void noteEnd(const std::string& path, std::optional<Seconds> promised, std::optional<Seconds> last,
                 Seconds due = 0);

 private:
    static void addOnce(std::vector<std::string>& lines, const std::string& text);
};

/// The reader for the input that the control file names; it keeps a reference to the control file.
std::unique_ptr<InputReader> makeReader(const Control& control);

}  // namespace zg::tempoline
