#include "shell/DroppedFiles.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "base/Paths.h"
#include "tests/support/Places.h"
#include "tests/support/TempDirectory.h"

namespace zg {
namespace {

class DroppedFiles : public ::testing::Test {
 protected:
    std::string frq(const std::string& name) const { return directory_.write(name, "WIND.FRQ 2.0\r\n"); }
    std::string place() const { return directory_.path() + pathSeparator; }
    static std::string sample(const char* name) { return inSources("data/samples/") + name; }

    TempDirectory directory_;
};

TEST_F(DroppedFiles, OneFileIsNoBatchButADirectoryIs) {
    EXPECT_FALSE(droppedBatch({frq("a.frq")}));
    const auto batch = droppedBatch({directory_.path()});
    ASSERT_TRUE(batch);
    EXPECT_EQ(batch->directory, directory_.path());
    EXPECT_EQ(batch->note, "");
}

TEST_F(DroppedFiles, AllFrqFilesOfADirectoryAreABatchWithoutANote) {
    const auto batch = droppedBatch({frq("a.frq"), frq("B.FRQ")});
    ASSERT_TRUE(batch);
    EXPECT_EQ(batch->directory, place());
    EXPECT_EQ(batch->note, "");
}

TEST_F(DroppedFiles, TheNoteTellsWhatElseIsExportedAndWhatIsNot) {
    frq("c.frq");
    const auto batch = droppedBatch({frq("a.frq"), frq("b.frq"), frq("roses.txt")});
    ASSERT_TRUE(batch);
    EXPECT_EQ(batch->note,
              "BEGIN exports all 3 FRQ files of this directory, not only the 2 that were dropped.\n"
              "Not exported, since its name does not end in .frq: roses.txt\n");
}

TEST_F(DroppedFiles, TheNoteTellsOfOneFileAsOfOne) {
    frq("b.frq");
    const auto batch = droppedBatch({frq("a.frq"), frq("roses.txt")});
    ASSERT_TRUE(batch);
    EXPECT_EQ(batch->note,
              "BEGIN exports all 2 FRQ files of this directory, not only the 1 that was dropped.\n"
              "Not exported, since its name does not end in .frq: roses.txt\n");
}

TEST_F(DroppedFiles, FilesOfTwoDirectoriesOrWithoutAnFrqFileAreNoBatch) {
    const std::string other = directory_.file("other");
    std::filesystem::create_directory(other);
    EXPECT_FALSE(droppedBatch({frq("a.frq"), frq(std::string("other") + pathSeparator + "b.frq")}));
    EXPECT_FALSE(droppedBatch({frq("a.frq"), other}));
    EXPECT_FALSE(droppedBatch({frq("a.txt"), frq("b.txt")}));
    EXPECT_FALSE(droppedBatch({}));
}

TEST_F(DroppedFiles, GriddedFilesOfOneKindAreOneRun) {
    EXPECT_EQ(commonGriddedKind({sample("valley_model.m3d"), sample("valley_model.m3d")}), InputKind::M3d);
    EXPECT_EQ(commonGriddedKind({sample("valley_ventos.dat")}), InputKind::Ventos);
    EXPECT_FALSE(commonGriddedKind({sample("valley_model.m3d"), sample("valley_ventos.dat")}));
    EXPECT_FALSE(commonGriddedKind({sample("valley_surf.dat"), sample("valley_surf.dat")}));
    EXPECT_FALSE(commonGriddedKind({sample("valley_model.m3d"), directory_.path()}));
}

}  // namespace
}  // namespace zg
