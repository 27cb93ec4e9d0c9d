#pragma once

// The assignments of a control file: what stands as "! KEY = value !" on a line. All else is commentary, and
// so are the first two lines, the kind of the file and the title of the run.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "tempoline/Failure.h"

namespace zg::tempoline {

struct Assignment {
    std::string key;    ///< upper case
    std::string value;  ///< without blanks at the ends
    std::size_t line = 0;
};

struct ControlText {
    std::string file;
    std::string title;
    std::vector<Assignment> assignments;
    std::size_t lineCount = 0;
};

/// A value ends at the first "!" behind which nothing, "!END!" or a further assignment stands, so that a path
/// may hold one; where there is none such, at the first "!". Throws for a wrong first line, for an assignment
/// that does not end on its line, and for control characters in a value.
ControlText readAssignments(std::string_view text, const std::string& file);

/// The assignments of those lines behind the first two that can be read, however broken the others are.
std::vector<Assignment> readableAssignments(std::string_view text);

/// "file:line: key: text", without the line where it is 0.
Failure controlFailure(const std::string& file, std::size_t line, std::string_view key,
                       const std::string& text);

}  // namespace zg::tempoline
