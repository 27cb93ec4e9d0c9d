#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "base/RunTimeError.h"

namespace zg {

/// The error numbers of scripts in addition to those of ErrorNumber.
enum class ScriptErrorNumber : int {
    OutOfMemory = 7,
    OutOfStackSpace = 28,
    InvalidUseOfNull = 94,
    InvalidPropertyValue = 380,
    ObjectRequired = 424,
    UnsupportedMember = 438,
    WrongArguments = 450,
    VariableUndefined = 500,
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
    ExpectedStatement = 1024,
    ExpectedEndOfStatement = 1025,
    ExpectedIntegerConstant = 1026,
    ExpectedWhileOrUntil = 1027,
    IdentifierTooLong = 1030,
    InvalidNumber = 1031,
    InvalidCharacter = 1032,
    UnterminatedString = 1033,
    LoopWithoutDo = 1038,
    InvalidExit = 1039,
    InvalidForVariable = 1040,
    NameRedefined = 1041,
    ParenthesesWithSub = 1044,
    ExpectedLiteral = 1045,
    OutOfTime = 32811,
};

/// The fixed description of a script's error number.
const char* errorDescription(ScriptErrorNumber number);

/// A script that does not compile, or a statement or operation of it that failed.
class ScriptError : public RunTimeError {
 public:
    /// The error at a byte of the text; the end of the text is a valid position too.
    ScriptError(int errorNumber, std::string errorDescription, std::string_view text, std::size_t offset);
    ScriptError(ScriptErrorNumber errorNumber, std::string_view text, std::size_t offset);

    /// Whether it is the overflow of 0 divided by 0, which is also a division by zero.
    bool isZeroByZero = false;

    int line;    ///< from 1; lines end with CR LF, CR or LF
    int column;  ///< from 1, in characters: the bytes of one UTF-8 sequence count once
    /// The line around the position, at most 80 characters, and below it a line with "^" under the position.
    std::string snippet;
};

/// The error of 0 divided by 0: an overflow by its number.
class ZeroByZero : public RunTimeError {
 public:
    ZeroByZero();
};

/// Throws the error of that number; the code that runs the script adds the place in the text.
[[noreturn]] void raise(ScriptErrorNumber number);

}  // namespace zg
