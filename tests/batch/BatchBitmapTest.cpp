#include "batch/BatchBitmap.h"

#include "base/Paths.h"

#include "tests/settings/SettingsFixture.h"

namespace {

using namespace zg;

class BatchBitmapTest : public SettingsFixture {};

TEST_F(BatchBitmapTest, ANameHasNoSeparatorsAndNoEndOfText) {
    EXPECT_EQ(asFileName("a/b\\c"), "a_b_c");
    EXPECT_EQ(asFileName(std::string_view("a\0b", 3)), "a_b");
    EXPECT_EQ(asFileName("Win ter; 50% ~ \xE9.x"), "Win ter; 50% ~ \xE9.x");
    EXPECT_EQ(asFileName("06:00 <1 m/s?"), onWindows ? "06_00 _1 m_s_" : "06:00 <1 m_s?")
        << "signs that Windows does not allow";
    EXPECT_EQ(asFileName(""), "");
    for (const char* device : {"CON", "nul", "Com1"})
        EXPECT_EQ(asFileName(device), std::string(onWindows ? "_" : "") + device) << "a device of Windows";
}

TEST_F(BatchBitmapTest, IsNamedByRootAndTitleOfTheRoseOnShow) {
    settings.BatchDirectory = "/some/where/";
    settings.BatchRootFilename = "root/";
    modPolarGraph.FrqRoseTitle.assign({"", "one", "two/b"});
    modPolarGraph.CurrentRose = 2;
    EXPECT_EQ(batchBitmapPath(), "/some/where/root_two_b.bmp");
    modPolarGraph.CurrentRose = 1;
    EXPECT_EQ(batchBitmapPath(), "/some/where/root_one.bmp");
}

}  // namespace
