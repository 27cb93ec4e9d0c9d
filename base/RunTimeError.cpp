#include "base/RunTimeError.h"

#include <cerrno>

namespace zg {

const char* errorDescription(ErrorNumber number) {
    switch (number) {
        case ErrorNumber::InvalidProcedureCall:
            return "Invalid procedure call or argument";
        case ErrorNumber::Overflow:
            return "Overflow";
        case ErrorNumber::SubscriptOutOfRange:
            return "Subscript out of range";
        case ErrorNumber::DivisionByZero:
            return "Division by zero";
        case ErrorNumber::TypeMismatch:
            return "Type mismatch";
        case ErrorNumber::FileNotFound:
            return "File not found";
        case ErrorNumber::FileAlreadyOpen:
            return "File already open";
        case ErrorNumber::DeviceIoError:
            return "Device I/O error";
        case ErrorNumber::DiskFull:
            return "Disk full";
        case ErrorNumber::InputPastEndOfFile:
            return "Input past end of file";
        case ErrorNumber::TooManyFiles:
            return "Too many files";
        case ErrorNumber::PermissionDenied:
            return "Permission denied";
        case ErrorNumber::PathFileAccessError:
            return "Path/File access error";
        case ErrorNumber::PathNotFound:
            return "Path not found";
        case ErrorNumber::SetNotPermitted:
            return "Set not permitted";
        case ErrorNumber::CannotCreateObject:
            return "ActiveX component can't create object";
    }
    return "Application-defined or object-defined error";
}

void raise(ErrorNumber number) { throw RunTimeError(static_cast<int>(number), errorDescription(number)); }

void raiseFileError(int errnoValue) {
    switch (errnoValue) {
        case ENOENT:
            raise(ErrorNumber::FileNotFound);
        case ENOTDIR:
            raise(ErrorNumber::PathNotFound);
        case EACCES:
        case EPERM:
        case EROFS:
            raise(ErrorNumber::PermissionDenied);
        case EMFILE:
        case ENFILE:
            raise(ErrorNumber::TooManyFiles);
        case ENOSPC:
#ifdef EDQUOT
        case EDQUOT:
#endif
            raise(ErrorNumber::DiskFull);
        case EIO:
            raise(ErrorNumber::DeviceIoError);
        default:
            raise(ErrorNumber::PathFileAccessError);
    }
}

}  // namespace zg
