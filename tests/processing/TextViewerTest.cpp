#include "processing/TextViewer.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>

#include "base/Files.h"
#include "tests/support/Raises.h"
#include "tests/support/TempDirectory.h"
#include "tests/support/TestHost.h"

namespace {

using namespace zg;

class RecordingStarter : public ProcessStarter {
 public:
    explicit RecordingStarter(TestHost& host) : host_(host) {}

    void start(const std::string& batchFile, WindowStyle style) override {
        started.push_back(batchFile);
        styles.push_back(style);
        times.push_back(host_.now);
        if (onStart) onStart(batchFile);
    }

    std::function<void(const std::string&)> onStart;
    std::vector<std::string> started;
    std::vector<WindowStyle> styles;
    std::vector<std::int64_t> times;

 private:
    TestHost& host_;
};

class ViewTextFileTest : public testing::Test {
 protected:
    TempDirectory temp_;
    TestHost host_;
    RecordingStarter starter_{host_};
};

TEST_F(ViewTextFileTest, WritesStartsHiddenAndDeletesTheBatchFile) {
    std::string bytes;
    starter_.onStart = [&](const std::string&) { bytes = temp_.read("open_file.bat"); };
    ViewTextFile(host_, starter_, "C:\\my data\\a.frq", temp_.path());
    EXPECT_EQ(starter_.started, std::vector<std::string>{temp_.file("open_file.bat")});
    EXPECT_EQ(starter_.styles, std::vector<WindowStyle>{WindowStyle::Hidden});
    EXPECT_EQ(bytes, "notepad \"C:\\my data\\a.frq\"\r\n");
    EXPECT_FALSE(std::filesystem::exists(temp_.file("open_file.bat")));
}

TEST_F(ViewTextFileTest, WaitsHalfASecondBeforeAndAfterTheStart) {
    ViewTextFile(host_, starter_, "a.frq", temp_.path() + pathSeparator);
    EXPECT_EQ(starter_.times, std::vector<std::int64_t>{500});
    EXPECT_EQ(host_.now, 1000);
    EXPECT_EQ(starter_.started, std::vector<std::string>{temp_.file("open_file.bat")})
        << "a separator that is there is not doubled";
}

TEST_F(ViewTextFileTest, BackslashEndsADirectoryToo) {
    ASSERT_TRUE(makeDirectory(temp_.file("x")));  // where it ends one
    ViewTextFile(host_, starter_, "a.frq", temp_.path() + "/x", '\\');
    EXPECT_EQ(starter_.started, std::vector<std::string>{temp_.path() + "/x\\open_file.bat"});
    ViewTextFile(host_, starter_, "a.frq", temp_.path() + "/x\\", '\\');
    EXPECT_EQ(starter_.started.back(), temp_.path() + "/x\\open_file.bat");
}

TEST_F(ViewTextFileTest, BatchFileThatIsGoneAlreadyIsFine) {
    starter_.onStart = [](const std::string& batchFile) { std::filesystem::remove(batchFile); };
    ViewTextFile(host_, starter_, "a.frq", temp_.path(), '/');
    EXPECT_EQ(starter_.started.size(), 1U);
    EXPECT_EQ(host_.now, 1000);
}

TEST_F(ViewTextFileTest, OldBatchFileIsReplaced) {
    temp_.write("open_file.bat", "an older and longer content of that file\r\n");
    std::string bytes;
    starter_.onStart = [&](const std::string&) { bytes = temp_.read("open_file.bat"); };
    ViewTextFile(host_, starter_, "b", temp_.path(), '/');
    EXPECT_EQ(bytes, "notepad \"b\"\r\n");
}

TEST_F(ViewTextFileTest, DirectoryThatIsMissingReachesTheCaller) {
    EXPECT_RAISES(76, "Path not found", ViewTextFile(host_, starter_, "a.frq", temp_.file("missing"), '/'));
    EXPECT_TRUE(starter_.started.empty());
    EXPECT_EQ(host_.now, 0);
}

TEST_F(ViewTextFileTest, FailedStartReachesTheCaller) {
    starter_.onStart = [](const std::string&) { raise(ErrorNumber::InvalidProcedureCall); };
    EXPECT_RAISES(5, "Invalid procedure call or argument",
                  ViewTextFile(host_, starter_, "a.frq", temp_.path(), '/'));
    EXPECT_TRUE(std::filesystem::is_empty(temp_.path())) << "the batch file does not stay";
}

TEST_F(ViewTextFileTest, NameOfTwoLinesAddsNoCommandToTheBatchFile) {
    EXPECT_RAISES(52, "Bad file name or number: \"/roses<LF>\"touch\" PWNED.frq\" has a line end in it",
                  ViewTextFile(host_, starter_, "/roses\n\"touch\" PWNED.frq", temp_.path(), '/'));
    EXPECT_TRUE(starter_.started.empty());
    EXPECT_TRUE(std::filesystem::is_empty(temp_.path())) << "nothing is written";
    EXPECT_RAISES(52, "Bad file name or number: \"D:\\50%.frq\" has a % in it",
                  ViewTextFile(host_, starter_, "D:\\50%.frq", temp_.path(), '\\'));
    EXPECT_RAISES(52, "Bad file name or number: \"R&D\\open_file.bat\" has a & in it",
                  ViewTextFile(host_, starter_, "a.frq", "R&D", '\\'));
    EXPECT_TRUE(starter_.started.empty());
}

}  // namespace
