#pragma once

// The assignments of a control file: text of the form "! KEY = value !" on one line. Everything else is
// commentary, including the first two lines, which hold the kind of the file and the title of the run.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "tempoline/Failure.h"

namespace zg::tempoline {

struct Assignment {
    std::string key;    ///< upper case
    std::string value;  ///< trimmed
    std::size_t line = 0;
};

struct ControlText {
    std::string file;
    std::string title;
    std::vector<Assignment> assignments;
    std::size_t lineCount = 0;
};

/// A value ends at the first "!" that is followed by nothing, by "!END!" or by another assignment, so that a
/// path may contain "!"; if there is none, it ends at the first "!". Throws for a wrong first line, for an
/// assignment that does not end on its line, and for control characters in a value.
ControlText readAssignments(std::string_view text, const std::string& file);

/// The assignments that can be read after the first two lines, however damaged the rest is.
std::vector<Assignment> readableAssignments(std::string_view text);

/// "file:line: key: text"; the line is omitted if it is 0.
Failure controlFailure(const std::string& file, std::size_t line, std::string_view key,
                       const std::string& text);

}  // namespace zg::tempoline
