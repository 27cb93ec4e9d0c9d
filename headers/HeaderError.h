#pragma once

// What is wrong with the header of a raw file, and where.

#include <cstddef>
#include <string>

#include "base/RunTimeError.h"

namespace zg {

struct HeaderPlace {
    std::string file;      ///< as it is shown: the name without directories
    std::size_t line = 0;  ///< from 1; 0 if the file as a whole is at fault
    std::string part;      ///< what the line holds, as "period"
    std::string field;     ///< "" if no single field is at fault
};

/// The one error of all header readers. Number and description are those of every run-time error, which the
/// boundary around an event handler shows; the rest is for those who can say more.
class HeaderError : public RunTimeError {
 public:
    HeaderError(int errorNumber, std::string errorDescription, HeaderPlace errorPlace,
                std::string errorProblem);

    HeaderPlace place;
    std::string problem;  ///< says of the field, or of the line, what is wrong: "is missing"
    std::string notice;   ///< text of a box of its own that a dialog shows before the error; "" for none
};

/// "line 5 (period): begin year \"x\" is not a number"; the problem alone if the file as a whole is at fault.
/// The file's name is not in it.
std::string messageOf(const HeaderError& error);

}  // namespace zg
