#include "batch/BatchRun.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "base/RunTimeError.h"
#include "batch/BatchBitmap.h"
#include "graph/frq/ModPolarGraph.h"
#include "settings/Settings.h"
#include "tests/support/Places.h"
#include "tests/support/TempDirectory.h"
#include "tests/support/TestHost.h"

namespace zg {
namespace {

/// A stand-in for the main window's commands: a load sets the tables according to the file's name.
class BatchRun : public ::testing::Test {
 protected:
    void SetUp() override {
        modPolarGraph = ModPolarGraph();
        settings = Settings();
        request_.workDirectory = directory_.file("out/");
        request_.file = nativePath("/data/one.frq");
    }

    void roses(const char* version, std::vector<float> percentValid) {
        modPolarGraph.FrqVersion = version;
        modPolarGraph.FrqRoseCount = static_cast<std::int16_t>(percentValid.size());
        modPolarGraph.FrqRoseTitle.redim(percentValid.size());
        modPolarGraph.FrqRoseCaption.redim(percentValid.size());
        modPolarGraph.FrqPercentValid.clear();
        const bool known = std::string(version) != "2.0";
        if (known) modPolarGraph.FrqPercentValid.redim(percentValid.size());
        for (std::size_t i = 0; i < percentValid.size(); ++i) {
            const auto rose = static_cast<std::int64_t>(i + 1);
            modPolarGraph.FrqRoseTitle(rose) = "Rose" + std::to_string(rose);
            modPolarGraph.FrqRoseCaption(rose) = "Caption" + std::to_string(rose);
            if (known) modPolarGraph.FrqPercentValid(rose) = percentValid[i];
        }
    }
    void run() {
        runBatch(host_, modPolarGraph, request_,
                 {[this](const std::string& path) {
                      EXPECT_TRUE(settings.BatchMode);
                      EXPECT_EQ(settings.BatchFRQFilename, path);
                      opened_.push_back(path);
                      if (load_) load_();
                      return load_ != nullptr;
                  },
                  [this](const std::string& picture) {
                      EXPECT_EQ(batchBitmapPath(), picture) << "the settings mirror the run";
                      saved_.push_back(picture);
                      captions_.push_back(modPolarGraph.GraphCaption);
                  }},
                 notes_);
    }
    std::vector<std::string> names() const {
        std::vector<std::string> out;
        for (const std::string& path : saved_) out.push_back(path.substr(request_.workDirectory.size()));
        return out;
    }

    TempDirectory directory_;
    TestHost host_;
    BatchRequest request_;
    std::function<void()> load_;  ///< if empty, the file is refused
    BatchNotes notes_;
    std::vector<std::string> opened_;
    std::vector<std::string> saved_;
    std::vector<std::string> captions_;
};

using Names = std::vector<std::string>;

TEST_F(BatchRun, EveryRoseOfAFileIsExportedInOrderUnderItsRoot) {
    load_ = [this] { roses("2.2", {90, 80}); };
    request_.root = "Run1_";
    run();
    EXPECT_EQ(opened_, Names{nativePath("/data/one.frq")});
    EXPECT_EQ(names(), (Names{"Run1_Rose1.bmp", "Run1_Rose2.bmp"}));
    EXPECT_EQ(captions_, (Names{"Caption1", "Caption2"}));
    EXPECT_FALSE(settings.BatchMode);
    EXPECT_EQ(modPolarGraph.WorkDir, request_.workDirectory);
    EXPECT_EQ(host_.pumps, 2) << "each rose is seen";
}

TEST_F(BatchRun, ARoseAtTheLimitIsExportedOneBelowIsNot) {
    load_ = [this] { roses("2.1", {50, 49.9F, 100}); };
    request_.percentValidLimit = 50;
    run();
    EXPECT_EQ(names(), (Names{"Rose1.bmp", "Rose3.bmp"}));
    EXPECT_EQ(modPolarGraph.CurrentRose, 3);
}

TEST_F(BatchRun, TheLastIndexTriedStays) {
    load_ = [this] { roses("2.3", {100, 10}); };
    request_.percentValidLimit = 50;
    run();
    EXPECT_EQ(modPolarGraph.CurrentRose, 2) << "whether or not it was exported";
}

TEST_F(BatchRun, Version20IgnoresTheLimitAndOlderOnesAreNotExported) {
    load_ = [this] { roses("2.0", {0, 0}); };
    request_.percentValidLimit = 50;
    run();
    EXPECT_EQ(saved_.size(), 2U);
    saved_.clear();
    load_ = [this] { roses("1.9", {100}); };
    run();
    EXPECT_TRUE(saved_.empty());
}

TEST_F(BatchRun, ALimitOf100TakesOnlyFullRoses) {
    load_ = [this] { roses("2.2", {99.9F, 100}); };
    request_.percentValidLimit = 100;
    run();
    EXPECT_EQ(names(), Names{"Rose2.bmp"});
}

TEST_F(BatchRun, ADirectoryIsTakenFileByFileUnderTheirNames) {
    for (const char* name : {"B.FRQ", "A.frq", "other.txt"}) directory_.write(name, "");
    request_.ofDirectory = true;
    request_.directory = directory_.file("");
    load_ = [this] { roses("2.2", {100}); };
    run();
    EXPECT_EQ(opened_, (Names{directory_.file("A.frq"), directory_.file("B.FRQ")}));
    EXPECT_EQ(names(), (Names{"A_Rose1.bmp", "B_Rose1.bmp"}));
    EXPECT_EQ(settings.BatchFRQFilename, "");
    EXPECT_EQ(settings.BatchRootFilename, "");
}

TEST_F(BatchRun, AnEmptyDirectoryExportsNothing) {
    std::filesystem::create_directory(directory_.file("empty"));
    request_.ofDirectory = true;
    request_.directory = directory_.file("empty/");
    run();
    EXPECT_TRUE(opened_.empty());
    EXPECT_TRUE(saved_.empty());
}

TEST_F(BatchRun, ARefusedFileExportsTheRosesInMemoryUnderItsRoot) {
    roses("2.2", {100});
    request_.root = "New_";
    run();
    EXPECT_EQ(names(), Names{"New_Rose1.bmp"});
}

TEST_F(BatchRun, AnErrorEndsTheRunAndBatchModeIsOff) {
    modPolarGraph.FrqRoseCount = 1;
    modPolarGraph.FrqVersion = "";
    EXPECT_THROW(run(), RunTimeError) << "nothing was loaded before the first file was refused";
    EXPECT_FALSE(settings.BatchMode);
}

TEST_F(BatchRun, TitlesThatAreNoFileNamesStayWithinTheDirectory) {
    load_ = [this] {
        roses("2.2", {100, 100, 100, 100});
        modPolarGraph.FrqRoseTitle(1) = "Hours 01/06";
        modPolarGraph.FrqRoseTitle(2) = "..";
        modPolarGraph.FrqRoseTitle(3) = "../../up  ";
        modPolarGraph.FrqRoseTitle(4) = "Hours 01/06";
    };
    run();
    EXPECT_EQ(names(), (Names{"Hours 01_06.bmp", "...bmp", ".._.._up  .bmp", "Hours 01_06.bmp"}))
        << "trailing blanks stay, and titles that repeat replace each other";
}

TEST_F(BatchRun, ARunWithoutFaultsHasNoNotes) {
    load_ = [this] { roses("2.2", {100, 20}); };
    request_.percentValidLimit = 50;
    run();
    EXPECT_EQ(notes_.text(), "") << "a rose below the limit is none";
}

TEST_F(BatchRun, NotesNameRefusedFilesAndWhatTookTheirPlace) {
    for (const char* name : {"a.frq", "b1.frq", "c.frq"}) directory_.write(name, "");
    request_.ofDirectory = true;
    request_.directory = directory_.file("");
    request_.percentValidLimit = 50;
    roses("2.2", {100, 20});
    std::vector<bool> accepted = {false, true, false};
    std::size_t file = 0;
    const BatchHooks hooks{[&](const std::string&) { return accepted[file++]; }, [](const std::string&) {}};
    runBatch(host_, modPolarGraph, request_, hooks, notes_);
    EXPECT_EQ(
        notes_.text(),
        directory_.file("a.frq") +
            " was refused: it is not in the correct data format.\n"
            "a_Rose1.bmp shows rose 1 of what stood in memory before the run, since a.frq was refused.\n" +
            directory_.file("c.frq") +
            " was refused: it is not in the correct data format.\n"
            "c_Rose1.bmp shows rose 1 of b1.frq, since c.frq was refused.\n"
            "3 files, 2 refused; 3 roses saved in 3 pictures, 3 left out.");
}

TEST_F(BatchRun, NotesNamePicturesThatTookTheNameOfAnother) {
    load_ = [this] {
        roses("2.2", {100, 100, 100, 100});
        modPolarGraph.FrqRoseTitle(1) = modPolarGraph.FrqRoseTitle(3) = "dup";
        modPolarGraph.FrqRoseTitle(2) = "a/b";
        modPolarGraph.FrqRoseTitle(4) = "a_b";
    };
    run();
    EXPECT_EQ(notes_.text(),
              "dup.bmp: rose 3 of one.frq took the place of rose 1 of one.frq.\n"
              "a_b.bmp: rose 4 of one.frq took the place of rose 2 of one.frq.\n"
              "1 file, 0 refused; 4 roses saved in 2 pictures, 0 left out.");
}

TEST_F(BatchRun, NotesNameTheRoseThatThePictureShowedLast) {
    load_ = [this] {
        roses("2.2", {100, 100, 100});
        for (int rose = 1; rose <= 3; ++rose) modPolarGraph.FrqRoseTitle(rose) = "dup";
    };
    run();
    EXPECT_EQ(notes_.text(),
              "dup.bmp: rose 2 of one.frq took the place of rose 1 of one.frq.\n"
              "dup.bmp: rose 3 of one.frq took the place of rose 2 of one.frq.\n"
              "1 file, 0 refused; 3 roses saved in 1 picture, 0 left out.");
}

/// Where letter case counts, two hard links to one file simulate a file system that ignores it.
TEST_F(BatchRun, NotesFindNamesThatDifferOnlyInTheirCase) {
    request_.workDirectory = directory_.file("");
    directory_.write("Rose.bmp", "");
    const bool countsCase = !onWindows;
    if (countsCase)
        std::filesystem::create_hard_link(directory_.file("Rose.bmp"), directory_.file("ROSE.bmp"));
    load_ = [this] {
        roses("2.2", {100, 100, 100});
        modPolarGraph.FrqRoseTitle(1) = "Rose";
        modPolarGraph.FrqRoseTitle(2) = "ROSE";
        modPolarGraph.FrqRoseTitle(3) = "rose";
    };
    run();
    EXPECT_EQ(notes_.text(),
              std::string("ROSE.bmp: rose 2 of one.frq took the place of rose 1 of one.frq.\n") +
                  (countsCase ? "1 file, 0 refused; 3 roses saved in 2 pictures, 0 left out."
                              : "rose.bmp: rose 3 of one.frq took the place of rose 2 of one.frq.\n"
                                "1 file, 0 refused; 3 roses saved in 1 picture, 0 left out."));
}

TEST_F(BatchRun, AnErrorOfAFileNamesItAndItsLine) {
    load_ = [] {
        RunTimeError error(62, "Input past end of file");
        error.where = "206";
        throw error;
    };
    try {
        run();
        FAIL();
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.description, "Input past end of file: " + request_.file + ", line 206");
    }
    EXPECT_EQ(notes_.text(), "The run ended with an error at " + request_.file +
                                 ".\n"
                                 "0 files, 0 refused; 0 roses saved in 0 pictures, 0 left out.");
}

TEST_F(BatchRun, NamesLoseOnlyWhatFilesCannotBeCalled) {
    EXPECT_EQ(asFileName(std::string_view("a/b\\c\0d e.f", 11)), "a_b_c_d e.f");
}

}  // namespace
}  // namespace zg
