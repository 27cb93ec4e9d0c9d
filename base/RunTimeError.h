#pragma once

#include <exception>
#include <string>

namespace zg {

/// The numbered errors that conversions, files and scripts raise. The numbers are part of what users see.
enum class ErrorNumber : int {
    InvalidProcedureCall = 5,
    Overflow = 6,
    SubscriptOutOfRange = 9,
    DivisionByZero = 11,
    TypeMismatch = 13,
    FileNotFound = 53,
    FileAlreadyOpen = 55,
    DeviceIoError = 57,
    DiskFull = 61,
    InputPastEndOfFile = 62,
    TooManyFiles = 67,
    PermissionDenied = 70,
    PathFileAccessError = 75,
    PathNotFound = 76,
    SetNotPermitted = 387,
    CannotCreateObject = 429,
};

/// A failure that reaches the user as a number and a description. It is thrown where no local handling is
/// wanted and caught at the boundary around each event handler, or earlier by code that documents it.
class RunTimeError : public std::exception {
 public:
    RunTimeError(int errorNumber, std::string errorDescription)
        : number(errorNumber), description(std::move(errorDescription)) {}

    const char* what() const noexcept override { return description.c_str(); }

    int number;
    std::string description;
    std::string file;   ///< path of the file if known
    std::string where;  ///< line and field of a file if known, such as "17: percent of class 2"
};

/// The fixed description of an error number, such as "Type mismatch" for 13.
const char* errorDescription(ErrorNumber number);

/// Throws the RunTimeError of that number with its fixed description.
[[noreturn]] void raise(ErrorNumber number);

/// Throws the RunTimeError that corresponds to the C error number of a failed file operation.
[[noreturn]] void raiseFileError(int errnoValue);

}  // namespace zg
