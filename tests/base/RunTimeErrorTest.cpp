#include "base/RunTimeError.h"

#include <gtest/gtest.h>

#include <cerrno>

#include "tests/support/Raises.h"

namespace zg {
namespace {

TEST(RunTimeError, EveryNumberHasItsDescription) {
    EXPECT_RAISES(5, "Invalid procedure call or argument", raise(ErrorNumber::InvalidProcedureCall));
    EXPECT_RAISES(6, "Overflow", raise(ErrorNumber::Overflow));
    EXPECT_RAISES(9, "Subscript out of range", raise(ErrorNumber::SubscriptOutOfRange));
    EXPECT_RAISES(11, "Division by zero", raise(ErrorNumber::DivisionByZero));
    EXPECT_RAISES(13, "Type mismatch", raise(ErrorNumber::TypeMismatch));
    EXPECT_RAISES(53, "File not found", raise(ErrorNumber::FileNotFound));
    EXPECT_RAISES(55, "File already open", raise(ErrorNumber::FileAlreadyOpen));
    EXPECT_RAISES(57, "Device I/O error", raise(ErrorNumber::DeviceIoError));
    EXPECT_RAISES(61, "Disk full", raise(ErrorNumber::DiskFull));
    EXPECT_RAISES(62, "Input past end of file", raise(ErrorNumber::InputPastEndOfFile));
    EXPECT_RAISES(67, "Too many files", raise(ErrorNumber::TooManyFiles));
    EXPECT_RAISES(70, "Permission denied", raise(ErrorNumber::PermissionDenied));
    EXPECT_RAISES(75, "Path/File access error", raise(ErrorNumber::PathFileAccessError));
    EXPECT_RAISES(76, "Path not found", raise(ErrorNumber::PathNotFound));
    EXPECT_RAISES(387, "Set not permitted", raise(ErrorNumber::SetNotPermitted));
    EXPECT_RAISES(429, "ActiveX component can't create object", raise(ErrorNumber::CannotCreateObject));
    EXPECT_STREQ(errorDescription(static_cast<ErrorNumber>(1)),
                 "Application-defined or object-defined error");
}

TEST(RunTimeError, TellsItsDescriptionAsAnyException) {
    const RunTimeError error(13, "Type mismatch");
    EXPECT_STREQ(error.what(), "Type mismatch");
    EXPECT_EQ(error.where, "");
}

TEST(FileError, HasTheNumberThatFitsTheFailure) {
    EXPECT_RAISES(53, "File not found", raiseFileError(ENOENT));
    EXPECT_RAISES(76, "Path not found", raiseFileError(ENOTDIR));
    EXPECT_RAISES(70, "Permission denied", raiseFileError(EACCES));
    EXPECT_RAISES(70, "Permission denied", raiseFileError(EPERM));
    EXPECT_RAISES(70, "Permission denied", raiseFileError(EROFS));
    EXPECT_RAISES(67, "Too many files", raiseFileError(EMFILE));
    EXPECT_RAISES(67, "Too many files", raiseFileError(ENFILE));
    EXPECT_RAISES(61, "Disk full", raiseFileError(ENOSPC));
    EXPECT_RAISES(57, "Device I/O error", raiseFileError(EIO));
    EXPECT_RAISES(75, "Path/File access error", raiseFileError(ENAMETOOLONG));
    EXPECT_RAISES(75, "Path/File access error", raiseFileError(0));
#ifdef EDQUOT
    EXPECT_RAISES(61, "Disk full", raiseFileError(EDQUOT));
#endif
}

}  // namespace
}  // namespace zg
