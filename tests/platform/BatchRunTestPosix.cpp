// How the POSIX shell does what the batch file of a run says.

#include <unistd.h>

#include "tests/platform/BatchRunFixture.h"

namespace zg {
namespace {

using Texts = std::vector<std::string>;

TEST_F(BatchRun, HasASessionOfItsOwn) {
    processor("cut -d ' ' -f 6 /proc/$$/stat > session; echo listing > B_tempoline.lst\n");
    start();
    ASSERT_TRUE(comes("finished.txt"));
    const int session = std::stoi(directory_.read("out dir/session"));
    EXPECT_GT(session, 1);
    EXPECT_NE(session, getsid(0));
}

TEST_F(BatchRun, AHangingProcessorDoesNotHoldTheProgramUp) {
    processor("touch ran; while [ ! -e go ]; do sleep 0.05; done; echo listing > B_tempoline.lst\n");
    start();
    ASSERT_TRUE(comes("ran"));
    EXPECT_FALSE(isThere("finished.txt"));
    directory_.write("out dir/go", "");
    EXPECT_TRUE(comes("finished.txt"));
}

TEST_F(BatchRun, AListingOfAnEarlierRunMakesNoMarker) {
    directory_.write("out dir/B_tempoline.lst", "of an earlier run");
    carryOut();
    EXPECT_FALSE(isThere("finished.txt"))
        << "no processor: the rose of that run would be shown as this one's";
    processor("kill -KILL $$\n");
    carryOut();
    EXPECT_FALSE(isThere("finished.txt"));
    processor("echo another > new; mv new B_tempoline.lst\n");
    carryOut();
    EXPECT_EQ(directory_.read("out dir/finished.txt"), "another\n");
    std::filesystem::remove(out_ + "/finished.txt");
    processor("echo 'in its place' > B_tempoline.lst\n");
    carryOut();
    EXPECT_EQ(directory_.read("out dir/finished.txt"), "in its place\n");
}

TEST_F(BatchRun, AProgramForWindowsRunsThroughWineWhereThatIsInstalled) {
    executable("program's dir/tempoline.exe", "MZ and more");
    std::filesystem::create_directory(directory_.file("bin"));
    executable("bin/wine", "#!/bin/sh\nprintf '%s|' \"$@\" > words; echo listing > B_tempoline.lst\n");
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", QByteArray::fromStdString(directory_.file("bin") + ":") + path);
    carryOut();
    qputenv("PATH", path);
    EXPECT_EQ(directory_.read("out dir/words"), programs_ + "/tempoline.exe|B_tempoline.inp|");
    EXPECT_TRUE(isThere("finished.txt"));
}

TEST_F(BatchRun, EveryByteOfANameReachesTheProcessorAsItIs) {
    std::string base = "100%d\\n'";
    for (int byte = 0x80; byte <= 0xFF; ++byte) base += static_cast<char>(byte);
    out_ += " " + base;
    std::filesystem::create_directory(out_);
    directory_.write("list", base + "_tempoline.lst");
    processor("printf '%s|' \"$@\" > words; echo listing > \"$(cat ../list)\"\n");
    start(base);
    ASSERT_TRUE(comes("finished.txt"));
    EXPECT_EQ(readWholeFile(out_ + "/words"), base + "_tempoline.inp|");
}

TEST(BatchScript, RunsInATerminalWhereThereIsOne) {
    EXPECT_EQ(scriptCommand("cd 'x'\n", ""), (Texts{"sh", "-c", "cd 'x'\n"}));
    EXPECT_EQ(scriptCommand("cd 'x'\n", "/bin/term"),
              (Texts{"/bin/term", "-e", "sh", "-c",
                     "cd 'x'\nprintf 'Press Enter to close this window. '; read -r key\n"}));
}

}  // namespace
}  // namespace zg
