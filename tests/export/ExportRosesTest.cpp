#include "export/ExportRoses.h"

#include <gtest/gtest.h>

#include <QImage>
#include <algorithm>
#include <filesystem>
#include <map>
#include <sstream>

#include "base/Paths.h"
#include "graph/frq/ModPolarGraph.h"
#include "tests/support/FreqText.h"
#include "tests/support/Places.h"
#include "tests/support/TempDirectory.h"

namespace zg {
namespace {

class ExportRoses : public ::testing::Test {
 protected:
    void SetUp() override {
        modPolarGraph = ModPolarGraph();
        applicationDirectory = directory_.path();
        job_.inputs = {ZG_SOURCE_DIR "/data/samples/LOVETT_1988.frq"};
        job_.directory = directory_.file("pictures");
    }

    int run() { return runExport(job_, out_, errors_); }
    std::ptrdiff_t lines() const {
        const std::string text = out_.str();
        return std::count(text.begin(), text.end(), '\n');
    }
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
    job_.inputs = {directory_.write("x.frq", "nothing of the kind\n")};
    EXPECT_EQ(run(), exportFailed);
    EXPECT_EQ(errors_.str(), "The FRQ File " + job_.inputs[0] + " is not in the correct data format.\n");
}

TEST_F(ExportRoses, ABrokenFileIsToldWithItsLine) {
    std::string bytes = directory_.write("b.frq", "");
    bytes =
        "WIND.FRQ        2.2             Zephyrgraph FRQ File Format\n0 -\n5 -\nA\nB\nx:y\nc:1,2,3,4,5,6,7\n"
        "2001 13 1 1 0 2001 12 31 24 0\n";
    job_.inputs = {directory_.write("b.frq", bytes)};
    EXPECT_EQ(run(), exportFailed);
    EXPECT_EQ(errors_.str(), job_.inputs[0] +
                                 ":8: a period that exists, found \"2001 13 1 1 0 2001 12 31 24 0\": "
                                 "Type mismatch (error 13)\n");
}

TEST_F(ExportRoses, AMissingFileIsTold) {
    job_.inputs = {directory_.file("nowhere.frq")};
    EXPECT_EQ(run(), exportFailed);
    EXPECT_EQ(errors_.str(), job_.inputs[0] + ": File not found (error 53)\n");
}

TEST_F(ExportRoses, AFileWithoutRosesDrawsNothing) {
    job_.inputs = {ZG_SOURCE_DIR "/tests/graph/frq/data/header_only.frq"};
    EXPECT_EQ(run(), exportFailed);
    EXPECT_NE(errors_.str().find("the file holds no rose, all data are missing"), std::string::npos);
}

TEST_F(ExportRoses, ADirectoryThatCannotBeMadeIsTold) {
    job_.directory = directory_.write("taken", "a file");
    EXPECT_EQ(run(), exportFailed);
    EXPECT_FALSE(errors_.str().empty());
    EXPECT_EQ(directory_.read("taken"), "a file");
}

TEST_F(ExportRoses, VectorPicturesAreDrawnByStrokes) {
    job_.rose = "1";
    job_.format = "svg";
    EXPECT_EQ(run(), exportDone) << errors_.str();
    const std::string svg = directory_.read("pictures/LOVETT_1988_01.svg");
    EXPECT_NE(svg.find("viewBox=\"0 0 600 600\""), std::string::npos);
    EXPECT_NE(svg.find("Lovett, New York - Hourly surface winds"), std::string::npos) << "texts stay texts";
    EXPECT_EQ(svg.find("<image"), std::string::npos);
    job_.format = "pdf";
    EXPECT_EQ(run(), exportDone) << errors_.str();
    const std::string pdf = directory_.read("pictures/LOVETT_1988_01.pdf");
    EXPECT_EQ(pdf.substr(0, 5), "%PDF-");
    EXPECT_NE(pdf.find("/MediaBox [0 0 450.000000 450.000000]"), std::string::npos);
    EXPECT_EQ(pdf.find("/Subtype /Image"), std::string::npos);
    std::string title = "/Title (\xFE\xFF";  // in UTF-16
    for (const char c : std::string("Lovett, New York - Hourly surface winds")) title += {'\0', c};
    EXPECT_NE(pdf.find(title + ")"), std::string::npos) << "the file's title alone";
}

TEST_F(ExportRoses, AnyNumberOfJobsGivesTheSameNamesAndBytes) {
    job_.inputs = {ZG_SOURCE_DIR "/data/samples"};
    EXPECT_EQ(run(), exportDone) << errors_.str();
    const std::string names = out_.str();
    std::map<std::string, std::string> alone;
    for (const auto& entry : std::filesystem::directory_iterator(job_.directory))
        alone[entry.path().filename().string()] =
            directory_.read("pictures/" + entry.path().filename().string());
    EXPECT_GT(alone.size(), 9U);
    for (const int jobs : {2, 7}) {
        out_.str("");
        job_.jobs = jobs;
        EXPECT_EQ(run(), exportDone);
        EXPECT_EQ(out_.str(), names) << jobs;
        for (const auto& [name, bytes] : alone) EXPECT_EQ(directory_.read("pictures/" + name), bytes) << name;
    }
}

TEST_F(ExportRoses, OneBrokenFileOfADirectoryIsToldAndTheOthersAreDrawn) {
    std::filesystem::create_directory(directory_.file("in"));
    directory_.write("in/a.frq", "nothing of the kind\n");
    std::filesystem::copy(ZG_SOURCE_DIR "/data/samples/LOVETT_1988.frq", directory_.file("in/b.frq"));
    directory_.write("in/c.frq", "");
    job_.inputs = {directory_.file("in")};
    job_.rose = "1";
    EXPECT_EQ(run(), exportFailed);
    EXPECT_EQ(out_.str(), picture("b_01.png") + "\n");
    EXPECT_NE(errors_.str().find(nativePath("in/a.frq") + " is not in the correct data format."),
              std::string::npos);
    EXPECT_NE(errors_.str().find(nativePath("in/c.frq") +
                                 ":1: the version of the format, found the end of the file: "
                                 "Input past end of file (error 62)"),
              std::string::npos);
}

TEST_F(ExportRoses, ManyRefusedFilesLeaveHandlesForThoseAfterThem) {
    std::filesystem::create_directory(directory_.file("in"));
    for (int file = 0; file < 1100; ++file) directory_.write("in/a" + std::to_string(file) + ".frq", "no\n");
    std::filesystem::copy(ZG_SOURCE_DIR "/data/samples/LOVETT_1988.frq", directory_.file("in/b.frq"));
    job_.inputs = {directory_.file("in")};
    job_.rose = "1";
    EXPECT_EQ(run(), exportFailed);
    EXPECT_EQ(out_.str(), picture("b_01.png") + "\n");
    const std::string told = errors_.str();
    EXPECT_EQ(std::count(told.begin(), told.end(), '\n'), 1100);
}

TEST_F(ExportRoses, ALineThatNoFrqFileHasIsRefusedWithItsNumber) {
    freqtext::Lines lines = freqtext::file("2.2", 1);
    lines[4] = std::string(std::size_t{1} << 20, 'x');
    job_.inputs = {directory_.write("long.frq", freqtext::bytes(lines))};
    EXPECT_EQ(run(), exportDone) << errors_.str();
    lines[4] += 'x';
    directory_.write("long.frq", freqtext::bytes(lines));
    EXPECT_EQ(run(), exportFailed);
    EXPECT_EQ(errors_.str(), job_.inputs[0] + ":5: the line is longer than 1048576 bytes (error 6)\n");
}

TEST_F(ExportRoses, APicturesNameThatIsALinkIsReplacedNotFollowed) {
    job_.rose = "1";
    job_.directory = directory_.path();
    directory_.write("precious", "kept");
    const std::string place = directory_.file("LOVETT_1988_01.png");
    for (const char* target : {"precious", "missing"}) {
        std::filesystem::remove(place);
        std::filesystem::create_symlink(target, place);
        EXPECT_EQ(run(), exportDone) << errors_.str();
        EXPECT_FALSE(std::filesystem::is_symlink(place));
        EXPECT_EQ(QImage(QString::fromStdString(place)).size(), QSize(600, 600));
    }
    EXPECT_EQ(directory_.read("precious"), "kept");
    EXPECT_FALSE(fileExists(directory_.file("missing")));
}

TEST_F(ExportRoses, APictureThatReplacesAnotherKeepsItsPermissions) {
    job_.rose = "1";
    job_.directory = directory_.path();
    using std::filesystem::perms;
    const std::string place = directory_.write("LOVETT_1988_01.png", "old");
    std::filesystem::permissions(place, perms::owner_read | perms::owner_write);
    EXPECT_EQ(run(), exportDone);
    EXPECT_EQ(std::filesystem::status(place).permissions(), perms::owner_read | perms::owner_write);
    EXPECT_EQ(QImage(QString::fromStdString(place)).size(), QSize(600, 600));
}

TEST_F(ExportRoses, APlaceThatADirectoryHasIsToldAndNothingIsLeft) {
    job_.rose = "1";
    job_.directory = directory_.file("out");
    std::filesystem::create_directories(directory_.file("out/LOVETT_1988_01.png"));
    EXPECT_EQ(run(), exportFailed);
    EXPECT_EQ(errors_.str(), directory_.file("out/LOVETT_1988_01.png") + ": Is a directory\n");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(directory_.file("out")), {}), 1);
}

TEST_F(ExportRoses, ADirectoryWithoutFilesIsTold) {
    std::filesystem::create_directory(directory_.file("in"));
    job_.inputs = {directory_.file("in")};
    EXPECT_EQ(run(), exportFailed);
    EXPECT_EQ(errors_.str(), directory_.file("in") + ": the directory holds no FRQ file\n");
}

TEST_F(ExportRoses, FilesWhosePicturesWouldTakeEachOthersNamesAreRefused) {
    std::filesystem::create_directory(directory_.file("in"));
    std::filesystem::copy(ZG_SOURCE_DIR "/data/samples/LOVETT_1988.frq",
                          directory_.file("in/LOVETT_1988.frq"));
    job_.inputs.push_back(directory_.file("in"));
    EXPECT_EQ(run(), exportWrongUsage);
    EXPECT_FALSE(IsDirectory(job_.directory));
}

TEST_F(ExportRoses, RosesWithFewerValidHoursThanAskedAreLeftOut) {
    job_.minValid = 100;
    EXPECT_EQ(run(), exportDone);
    EXPECT_LT(lines(), 9);
    job_.minValid = 0;
    out_.str("");
    run();
    EXPECT_EQ(lines(), 9);
}

TEST_F(ExportRoses, AStoppedRunLeavesNoHalfPicture) {
    class StopAtFirst : public std::stringbuf {
        int sync() override { return 0; }
        std::streamsize xsputn(const char* text, std::streamsize size) override {
            stopExport();
            return std::stringbuf::xsputn(text, size);
        }
    } buffer;
    std::ostream out(&buffer);
    job_.inputs = {ZG_SOURCE_DIR "/data/samples"};
    EXPECT_EQ(runExport(job_, out, errors_), exportFailed);
    EXPECT_NE(errors_.str().find("the run was stopped after "), std::string::npos);
    for (const auto& entry : std::filesystem::directory_iterator(job_.directory))
        EXPECT_EQ(entry.path().extension(), ".png");
}

TEST_F(ExportRoses, TablesAreWrittenAndNothingIsDrawn) {
    job_.tables = true;
    EXPECT_EQ(run(), exportDone);
    EXPECT_EQ(out_.str().substr(0, 1), "{");
    EXPECT_FALSE(IsDirectory(job_.directory));
}

}  // namespace
}  // namespace zg
