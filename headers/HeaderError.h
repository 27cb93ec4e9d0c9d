#pragma once

// An error in the header of a raw file, with its place.

#include <cstddef>
#include <string>

#include "base/RunTimeError.h"

namespace zg {

struct HeaderPlace {
    std::string file;      ///< for display: the name without directories
    std::size_t line = 0;  ///< from 1; 0 if the file as a whole is at fault
    std::string part;      ///< what the line holds, such as "period"
    std::string field;     ///< "" if no single field is at fault
};

/// The one error of all header readers. Number and description are those of every run-time error, which the
/// boundary around an event handler shows; the rest is for callers that can report more.
class HeaderError : public RunTimeError {
 public:
    HeaderError(int errorNumber, std::string errorDescription, HeaderPlace errorPlace,
                std::string errorProblem);

    HeaderPlace place;
    std::string problem;  ///< what is wrong with the field or the line: "is missing"
    std::string notice;   ///< text of a separate box that a dialog shows before the error; "" for none
};

/// "line 5 (period): begin year \"x\" is not a number"; the problem alone if the file as a whole is at fault.
/// The file's name is not in it.
std::string messageOf(const HeaderError& error);

}  // namespace zg
