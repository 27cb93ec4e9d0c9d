#include "base/FileLock.h"

#include <gtest/gtest.h>

#include <cerrno>

#include "base/Files.h"
#include "tests/support/TempDirectory.h"

namespace zg {
namespace {

using Outcome = FileLock::Outcome;
using Of = FileLock::Of;

TEST(FileLock, IsHeldByOneAtATime) {
    const TempDirectory directory;
    const std::string name = directory.file("a.lock");
    FileLock first;
    ASSERT_EQ(first.take(name, Of::NewFile), Outcome::Taken);
    EXPECT_TRUE(first.isTaken());
    for (const Of kind : {Of::NewFile, Of::OldFile, Of::AnyFile}) {
        FileLock second;
        EXPECT_EQ(second.take(name, kind), Outcome::Held);
        EXPECT_FALSE(second.isTaken());
    }
    EXPECT_TRUE(stateOfFile(name)) << "who was refused leaves it where it is";
}

TEST(FileLock, ThatIsGivenUpCanBeTaken) {
    const TempDirectory directory;
    const std::string name = directory.file("a.lock");
    {
        FileLock first;
        ASSERT_EQ(first.take(name, Of::NewFile), Outcome::Taken);
    }
    ASSERT_TRUE(stateOfFile(name)) << "as after a process that was killed";
    FileLock second;
    EXPECT_EQ(second.take(name, Of::NewFile), Outcome::Held) << "the name is taken";
    EXPECT_EQ(second.take(name, Of::OldFile), Outcome::Taken);
    second.removeAndRelease();
    EXPECT_FALSE(stateOfFile(name));
    EXPECT_EQ(second.take(name, Of::OldFile), Outcome::Failed);
    EXPECT_EQ(errno, ENOENT);
    EXPECT_EQ(second.take(name, Of::AnyFile), Outcome::Taken);
    second.removeAndRelease();
    second.removeAndRelease();
    EXPECT_FALSE(stateOfFile(name));
}

TEST(FileLock, FailsWhereNoFileCanBe) {
    const TempDirectory directory;
    FileLock lock;
    EXPECT_EQ(lock.take(directory.file("no/a.lock"), Of::NewFile), Outcome::Failed);
    EXPECT_EQ(lock.take(directory.file("no/a.lock"), Of::AnyFile), Outcome::Failed);
    EXPECT_EQ(lock.take(directory.file("a") + std::string("\0b", 2), Of::AnyFile), Outcome::Failed);
    EXPECT_FALSE(lock.isTaken());
    lock.removeAndRelease();
}

}  // namespace
}  // namespace zg
