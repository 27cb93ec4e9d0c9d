// The fields of batch mode and of the reports: captions, what leaving and browsing do, names that are not
// ASCII.

#include <gtest/gtest.h>

#include <QGroupBox>
#include <QTest>
#include <filesystem>

#include "base/Lines.h"
#include "base/Paths.h"
#include "batch/FrmBatchMode.h"
#include "batch/FrmCreateReport.h"
#include "graph/frq/ModPolarGraph.h"
#include "platform/Captions.h"
#include "platform/FieldMarks.h"
#include "platform/ReasonLabel.h"
#include "settings/Settings.h"
#include "shell/StartSequence.h"
#include "tests/support/FreshProgram.h"
#include "tests/support/Places.h"
#include "tests/support/TestHost.h"

namespace zg {
namespace {

using Names = std::vector<std::string>;

/// One of the two forms.
class OutputFields : public ::testing::Test {
 protected:
    void SetUp() override {
        startSettings();
        modPolarGraph.WorkDir = directory_.file("");
    }
    void show(std::unique_ptr<QDialog> form) {
        form_ = std::move(form);
        form_->show();
        form_->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(form_.get()));
    }
    void openBatch() {
        show(std::make_unique<frmBatchMode>(
            host_,
            BatchHooks{[this](const std::string&) { return ++started_ > 0; }, [](const std::string&) {}}));
    }
    void openReport() {
        show(std::make_unique<frmCreateReport>(host_, nullptr, std::unique_ptr<ReportWriter>()));
    }
    template <typename Control = QWidget>
    Control* child(const char* name) {
        return form_->findChild<Control*>(QString::fromLatin1(name));
    }
    QLineEdit& box(const char* name) { return *child<QLineEdit>(name); }
    void click(const char* name) { QTest::mouseClick(child(name), Qt::LeftButton); }
    void typeInto(const char* name, const char* text) {
        box(name).setFocus();
        box(name).clear();
        QTest::keyClicks(&box(name), QString::fromLatin1(text));
    }
    void leave(const char* from, const char* to) {
        child(from)->setFocus();
        ASSERT_TRUE(child(from)->hasFocus()) << from;
        child(to)->setFocus();
    }
    std::string status() { return child<QLabel>("lblStatus")->text().toStdString(); }
    bool marked(const char* name) { return fieldMark(*child(name)) == yellowMark; }
    /// All labels and frames, in reading order.
    Names captions() {
        Names texts;
        for (const QGroupBox* frame : form_->findChildren<QGroupBox*>())
            texts.push_back(spoken(frame->title()).toStdString());
        for (const QLabel* label : form_->findChildren<QLabel*>())
            texts.push_back(spoken(label->text()).toStdString());
        return texts;
    }

    FreshProgram program_;
    const TempDirectory& directory_ = program_.directory;
    TestHost host_;
    std::unique_ptr<QDialog> form_;
    int started_ = 0;
};

bool holds(const Names& names, const std::string& name) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

TEST_F(OutputFields, BatchModeHasItsCaptions) {
    openBatch();
    EXPECT_EQ(form_->windowTitle(), "Batch Mode");
    const Names texts = captions();
    for (const char* caption : {"Export all wind roses in a:", "to the following:", "Working Directory",
                                "Root Filename", "with Percent Valid Hours Greater Than:",
                                "(Note: This option is only enabled for FRQ Data Format 2.1+)"})
        EXPECT_TRUE(holds(texts, caption)) << caption;
    EXPECT_EQ(spoken(child<QRadioButton>("optSingleFRQFile")->text()), "Single FRQ File");
    EXPECT_EQ(spoken(child<QRadioButton>("optDirectory")->text()), "Directory");
    EXPECT_EQ(child<QPushButton>("cmdBeginBatchMode")->text(), "BEGIN");
    EXPECT_EQ(child<QPushButton>("cmdCancel")->text(), "Cancel");
}

TEST_F(OutputFields, LeavingTheLimitTakesItsMarkOnceItIsAPercentage) {
    openBatch();
    box("txtSingleFRQFile").setText(ZG_SOURCE_DIR "/data/samples/LOVETT_1988.frq");
    typeInto("txtPercentValidLimit", "101");
    click("cmdBeginBatchMode");
    EXPECT_TRUE(marked("txtPercentValidLimit"));
    const std::string told = status();
    for (const char* wrong : {"101", "-1", "-", ""}) {
        typeInto("txtPercentValidLimit", wrong);
        leave("txtPercentValidLimit", "txtRootFilename");
        EXPECT_TRUE(marked("txtPercentValidLimit")) << wrong;
        EXPECT_EQ(status(), told) << wrong;
    }
    for (const char* right : {"0", "100", "50"}) {
        click("cmdBeginBatchMode");
        typeInto("txtPercentValidLimit", "101");
        click("cmdBeginBatchMode");
        ASSERT_TRUE(marked("txtPercentValidLimit"));
        typeInto("txtPercentValidLimit", right);
        leave("txtPercentValidLimit", "txtRootFilename");
        EXPECT_FALSE(marked("txtPercentValidLimit")) << right;
        EXPECT_EQ(status(), "") << right;
    }
}

TEST_F(OutputFields, LeavingTheDirectoryOfFilesCompletesAndCleansIt) {
    openBatch();
    child<QRadioButton>("optDirectory")->click();
    click("cmdBeginBatchMode");
    EXPECT_TRUE(marked("txtDirectory"));
    leave("txtDirectory", "txtPercentValidLimit");
    EXPECT_TRUE(marked("txtDirectory")) << "it is still empty";
    EXPECT_EQ(status(), "ERROR:  Please select a Directory of FRQ Files.");
    typeInto("txtDirectory", "/some/where");
    leave("txtDirectory", "txtPercentValidLimit");
    EXPECT_EQ(box("txtDirectory").text().toStdString(), nativePath("/some/where/"));
    EXPECT_FALSE(marked("txtDirectory"));
    EXPECT_EQ(status(), "");
}

TEST_F(OutputFields, TheFileOfAnotherMachineIsRememberedWithoutASeparator) {
    openBatch();
    host_.openAnswers = {"\\\\server\\share\\x.frq"};
    click("cmdBrowseSingleFRQFile");
    EXPECT_EQ(modPolarGraph.WorkDir, "\\\\server\\share");
}

TEST_F(OutputFields, TheReportsDirectoriesAreBrowsedForFromTheirFields) {
    openReport();
    host_.folderAnswers = {nativePath("/picked"), "", nativePath("/other")};
    click("cmdBrowseBMPDirectory");
    EXPECT_EQ(host_.folderPicks[0].start, directory_.file(""));
    EXPECT_EQ(box("txtBMPDirectory").text().toStdString(), nativePath("/picked/"));
    EXPECT_EQ(box("txtWorkDirectory").text().toStdString(), directory_.file(""));
    click("cmdBrowseBMPDirectory");
    EXPECT_EQ(host_.folderPicks[1].start, nativePath("/picked/"));
    EXPECT_EQ(box("txtBMPDirectory").text().toStdString(), nativePath("/picked/")) << "nothing was picked";
    click("cmdBrowseWorkDirectory");
    EXPECT_EQ(host_.folderPicks[2].start, directory_.file(""));
    EXPECT_EQ(box("txtWorkDirectory").text().toStdString(), nativePath("/other/"));
    EXPECT_EQ(box("txtBMPDirectory").text().toStdString(), nativePath("/picked/"));
}

TEST_F(OutputFields, BrowsingForAReportsDirectoryTakesItsMark) {
    openReport();
    box("txtBMPDirectory").clear();
    click("cmdCreateReport");
    ASSERT_TRUE(marked("txtBMPDirectory"));
    host_.folderAnswers = {nativePath("/picked")};
    click("cmdBrowseBMPDirectory");
    EXPECT_FALSE(marked("txtBMPDirectory"));
    EXPECT_EQ(status(), "");
}

TEST_F(OutputFields, ADirectoryThatCannotBeMadeSaysWhy) {
    const std::string inFile = directory_.write("a file", "") + nativePath("/sub/");
    const std::string tooLong = directory_.file(std::string(300, 'w') + "/");
    for (const std::string& place : {inFile, tooLong}) {
        const std::string level = place == inFile ? directory_.file("a file") : DirOf(place);
        const std::string words = "The Working Directory cannot be created: " + level + ": ";
        const auto expectToldWithin = [&](int width) {
            EXPECT_EQ(status().substr(0, words.size()), words);
            EXPECT_GT(status().size(), words.size()) << "and why";
            EXPECT_EQ(child("lblStatus")->toolTip(), plainTip(child<QLabel>("lblStatus")->text()));
            EXPECT_TRUE(marked("txtWorkDirectory"));
            QApplication::processEvents();
            EXPECT_EQ(form_->width(), width);
        };
        openBatch();
        int width = form_->width();
        box("txtSingleFRQFile").setText(ZG_SOURCE_DIR "/data/samples/LOVETT_1988.frq");
        box("txtWorkDirectory").setText(QString::fromStdString(place));
        host_.boxAnswers = {BoxAnswer::Yes};
        click("cmdBeginBatchMode");
        expectToldWithin(width);
        EXPECT_EQ(started_, 0);
        openReport();
        width = form_->width();
        box("txtSaveFilename").setText("r");
        box("txtWorkDirectory").setText(QString::fromStdString(place));
        host_.boxAnswers = {BoxAnswer::Yes};
        click("cmdCreateReport");
        expectToldWithin(width);
        click("cmdCancel");
    }
}

TEST_F(OutputFields, ANoToTheReportsMissingDirectoryMakesNothing) {
    openReport();
    box("txtSaveFilename").setText("r");
    box("txtWorkDirectory").setText(QString::fromStdString(directory_.file("new")));
    child<QRadioButton>("optPPT")->click();
    host_.boxAnswers = {BoxAnswer::No};
    click("cmdCreateReport");
    ASSERT_EQ(host_.boxes.size(), 1U);
    EXPECT_EQ(host_.boxes[0].text, "The Working Directory " + directory_.file("new/") +
                                       " does not exist.  Would you like to create this directory?");
    EXPECT_EQ(host_.boxes[0].title, "Create Directory?");
    EXPECT_FALSE(std::filesystem::exists(directory_.file("new")));
    EXPECT_TRUE(marked("txtWorkDirectory"));
    EXPECT_EQ(status(), "");
    EXPECT_EQ(child<QPushButton>("cmdCancel")->text(), "Cancel");
}

}  // namespace
}  // namespace zg
