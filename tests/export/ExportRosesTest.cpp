#include "export/ExportRoses.h"

#include <gtest/gtest.h>

#include <QImage>
#include <filesystem>
#include <sstream>

#include "base/Paths.h"
#include "graph/frq/ModPolarGraph.h"
#include "tests/support/TempDirectory.h"

namespace zg {
namespace {

class ExportRoses : public ::testing::Test {
 protected:
    void SetUp() override {
        modPolarGraph = ModPolarGraph();
        applicationDirectory = directory_.path();
        job_.file = ZG_SOURCE_DIR "/data/samples/LOVETT_1988.frq";
        job_.directory = directory_.file("pictures");
    }

    int run() { return runExport(job_, out_, errors_); }
    std::string picture(const char* name) const { return directory_.file(std::string("pictures/") + name); }

    TempDirectory directory_;
    ExportJob job_;
    std::ostringstream out_;
    std::ostringstream errors_;
};

TEST_F(ExportRoses, DrawsEachRoseIntoAFileOfItsNumber) {
    EXPECT_EQ(run(), exportDone) << errors_.str();
    for (int rose = 1; rose <= 9; ++rose)
        EXPECT_TRUE(fileExists(picture(("LOVETT_1988_0" + std::to_string(rose) + ".png").c_str()))) << rose;
    const QImage page(QString::fromStdString(picture("LOVETT_1988_01.png")));
    EXPECT_EQ(page.size(), QSize(600, 600));
}

TEST_F(ExportRoses, RosesDiffer) {
    run();
    EXPECT_NE(QImage(QString::fromStdString(picture("LOVETT_1988_01.png"))),
              QImage(QString::fromStdString(picture("LOVETT_1988_02.png"))));
}

TEST_F(ExportRoses, DrawsOneRoseAtTheAskedSizeAsBitmap) {
    job_.rose = "3";
    job_.sizePixels = 321;
    job_.format = "bmp";
    EXPECT_EQ(run(), exportDone);
    const std::string bytes = directory_.read("pictures/LOVETT_1988_03.bmp");
    EXPECT_EQ(bytes.substr(0, 2), "BM");
    EXPECT_EQ(bytes[28], 24) << "bits a pixel";
    EXPECT_EQ(QImage(QString::fromStdString(picture("LOVETT_1988_03.bmp"))).size(), QSize(321, 321));
    EXPECT_FALSE(fileExists(picture("LOVETT_1988_01.bmp")));
}

TEST_F(ExportRoses, TwoRunsGiveTheSameBytes) {
    job_.rose = "1";
    run();
    const std::string first = directory_.read("pictures/LOVETT_1988_01.png");
    run();
    EXPECT_EQ(directory_.read("pictures/LOVETT_1988_01.png"), first);
}

TEST_F(ExportRoses, ARoseThatIsNotThereIsWrongUsage) {
    for (const char* rose : {"0", "10", "-1", "x", ""}) {
        job_.rose = rose;
        EXPECT_EQ(run(), exportWrongUsage) << rose;
    }
    EXPECT_NE(errors_.str().find("has the roses 1 to 9, there is no rose 10"), std::string::npos);
    EXPECT_FALSE(IsDirectory(job_.directory)) << "nothing is made before the job is known to be right";
}

TEST_F(ExportRoses, ARefusedFileIsTold) {
    job_.file = directory_.write("x.frq", "nothing of the kind\n");
    EXPECT_EQ(run(), exportFailed);
    EXPECT_EQ(errors_.str(), "The FRQ File " + job_.file + " is not in the correct data format.\n");
}

TEST_F(ExportRoses, ABrokenFileIsToldWithItsLine) {
    std::string bytes = directory_.write("b.frq", "");
    bytes =
        "WIND.FRQ        2.2             Zephyrgraph FRQ File Format\n0 -\n5 -\nA\nB\nx:y\nc:1,2,3,4,5,6,7\n"
        "2001 13 1 1 0 2001 12 31 24 0\n";
    job_.file = directory_.write("b.frq", bytes);
    EXPECT_EQ(run(), exportFailed);
    EXPECT_EQ(errors_.str(), job_.file + ":8: Type mismatch (error 13)\n");
}

TEST_F(ExportRoses, AMissingFileIsTold) {
    job_.file = directory_.file("nowhere.frq");
    EXPECT_EQ(run(), exportFailed);
    EXPECT_EQ(errors_.str(), job_.file + ": File not found (error 53)\n");
}

TEST_F(ExportRoses, AFileWithoutRosesDrawsNothing) {
    job_.file = ZG_SOURCE_DIR "/tests/graph/frq/data/header_only.frq";
    EXPECT_EQ(run(), exportFailed);
    EXPECT_NE(errors_.str().find("the file holds no rose, all data are missing"), std::string::npos);
}

TEST_F(ExportRoses, ADirectoryThatCannotBeMadeIsTold) {
    job_.directory = directory_.write("taken", "a file");
    EXPECT_EQ(run(), exportFailed);
    EXPECT_FALSE(errors_.str().empty());
    EXPECT_EQ(directory_.read("taken"), "a file");
}

TEST_F(ExportRoses, TablesAreWrittenAndNothingIsDrawn) {
    job_.tables = true;
    EXPECT_EQ(run(), exportDone);
    EXPECT_EQ(out_.str().substr(0, 1), "{");
    EXPECT_FALSE(IsDirectory(job_.directory));
}

}  // namespace
}  // namespace zg
