#pragma once

#include <string>
#include <string_view>

#include "base/RunTimeError.h"

namespace zg {

/// Errors of compiling, numbered as scripts know them. Errors of running have the numbers of ErrorNumber and
/// those below.
enum class ScriptErrorNumber : int {
    OutOfMemory = 7,
    OutOfStackSpace = 28,
    InvalidUseOfNull = 94,
    ObjectRequired = 424,
    NoSuchMember = 438,
    WrongArgumentCount = 450,
    VariableIsUndefined = 500,
    IllegalAssignment = 501,
    SyntaxError = 1002,
    ExpectedOpenParenthesis = 1005,
    ExpectedCloseParenthesis = 1006,
    ExpectedIdentifier = 1010,
    ExpectedEquals = 1011,
    ExpectedIf = 1012,
    ExpectedTo = 1013,
    ExpectedEnd = 1014,
    ExpectedFunction = 1015,
    ExpectedSub = 1016,
    ExpectedThen = 1017,
    ExpectedWend = 1018,
    ExpectedLoop = 1019,
    ExpectedNext = 1020,
    ExpectedCase = 1021,
    ExpectedSelect = 1022,
    ExpectedExpression = 1023,
    ExpectedStatement = 1024,
    ExpectedEndOfStatement = 1025,
    ExpectedLiteralConstant = 1045,
    InvalidNumber = 1031,
    InvalidCharacter = 1032,
    UnterminatedString = 1033,
    InvalidExit = 1039,
    NameRedefined = 1041,
    TimedOut = 32811,
};

/// Where in a script something stands, both from 1.
struct ScriptPosition {
    int line = 1;
    int column = 1;
    bool operator==(const ScriptPosition&) const = default;
};

/// An error of a script: the first cause, where it stands, and the source line.
class ScriptError : public RunTimeError {
 public:
    ScriptError(int errorNumber, std::string errorDescription, ScriptPosition place,
                std::string sourceLine = {})
        : RunTimeError(errorNumber, std::move(errorDescription)),
          position(place),
          text(std::move(sourceLine)) {}

    ScriptPosition position;
    std::string text;
};

const char* scriptErrorDescription(ScriptErrorNumber number);

/// Throws the error of running with that number; the machine adds where it happened.
[[noreturn]] void raiseScript(ScriptErrorNumber number);

}  // namespace zg
