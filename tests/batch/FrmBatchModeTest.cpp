#include "batch/FrmBatchMode.h"

#include <gtest/gtest.h>

#include <QTest>
#include <filesystem>

#include "base/Paths.h"
#include "graph/frq/ModPolarGraph.h"
#include "platform/FieldMarks.h"
#include "settings/Settings.h"
#include "shell/StartSequence.h"
#include "tests/support/FreshProgram.h"
#include "tests/support/Places.h"
#include "tests/support/TestHost.h"

namespace zg {
namespace {

const std::string sample = inSources("data/samples/LOVETT_1988.frq");

class FrmBatchMode : public ::testing::Test {
 protected:
    void SetUp() override {
        startSettings();
        std::filesystem::create_directory(out_);
        modPolarGraph.WorkDir = out_ + pathSeparator;
        open();
    }
    void open() {
        form_ = std::make_unique<frmBatchMode>(
            host_, BatchHooks{[this](const std::string&) { return ++opened_ > 0; },
                              [this](const std::string&) {
                                  ++saved_;
                                  if (onSave_) onSave_();
                              }});
        form_->show();
        form_->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(form_.get()));
    }
    template <typename Control = QWidget>
    Control* child(const char* name) {
        return form_->findChild<Control*>(QString::fromLatin1(name));
    }
    QLineEdit& box(const char* name) { return *child<QLineEdit>(name); }
    void set(const char* name, const std::string& text) { box(name).setText(QString::fromStdString(text)); }
    std::string status() { return child<QLabel>("lblStatus")->text().toStdString(); }
    void begin() { QTest::mouseClick(child("cmdBeginBatchMode"), Qt::LeftButton); }
    bool marked(const char* name) { return fieldMark(box(name)) == yellowMark; }

    FreshProgram program_;
    const TempDirectory& directory_ = program_.directory;
    std::string out_ = directory_.file("out");
    TestHost host_;
    std::unique_ptr<frmBatchMode> form_;
    int opened_ = 0;
    int saved_ = 0;
    std::function<void()> onSave_;
};

TEST_F(FrmBatchMode, StartsForASingleFile) {
    EXPECT_TRUE(child<QRadioButton>("optSingleFRQFile")->isChecked());
    EXPECT_TRUE(box("txtSingleFRQFile").isEnabled());
    EXPECT_FALSE(box("txtDirectory").isEnabled());
    EXPECT_FALSE(child("cmdBrowseDirectory")->isEnabled());
    EXPECT_EQ(fieldMark(box("txtDirectory")), buttonFaceColour);
    EXPECT_EQ(box("txtWorkDirectory").text().toStdString(), out_ + pathSeparator);
    EXPECT_EQ(box("txtRootFilename").text(), "");
    EXPECT_EQ(status(), "");
}

TEST_F(FrmBatchMode, TheOptionsEnableTheirFields) {
    child<QLabel>("lblStatus")->setText("x");
    child<QRadioButton>("optDirectory")->click();
    EXPECT_FALSE(box("txtSingleFRQFile").isEnabled());
    EXPECT_TRUE(box("txtDirectory").isEnabled());
    EXPECT_EQ(box("txtRootFilename").text(), "Root Filename generated from FRQ Filename");
    EXPECT_FALSE(box("txtRootFilename").isEnabled());
    EXPECT_EQ(status(), "");
    child<QRadioButton>("optSingleFRQFile")->click();
    EXPECT_EQ(box("txtRootFilename").text(), "");
    EXPECT_TRUE(box("txtRootFilename").isEnabled());
    EXPECT_EQ(fieldMark(box("txtRootFilename")), cleanMark);
}

TEST_F(FrmBatchMode, ChecksASingleFileInOrder) {
    set("txtWorkDirectory", "");
    begin();
    EXPECT_EQ(status(), "ERROR:  Please select an FRQ File.");
    EXPECT_TRUE(marked("txtSingleFRQFile"));
    set("txtSingleFRQFile", directory_.file("no.frq"));
    begin();
    EXPECT_EQ(status(), "ERROR:  FRQ File not found.");
    set("txtSingleFRQFile", sample);
    begin();
    EXPECT_EQ(status(), "ERROR:  Please select a Working Directory.");
    EXPECT_TRUE(marked("txtWorkDirectory"));
    EXPECT_EQ(opened_, 0);
    EXPECT_FALSE(settings.BatchMode);
}

TEST_F(FrmBatchMode, ChecksADirectoryInOrder) {
    child<QRadioButton>("optDirectory")->click();
    begin();
    EXPECT_EQ(status(), "ERROR:  Please select a Directory of FRQ Files.");
    set("txtDirectory", directory_.file("missing"));
    begin();
    EXPECT_EQ(status(), "ERROR:  The selected Directory of FRQ Files does not exist.");
    EXPECT_TRUE(marked("txtDirectory"));
}

TEST_F(FrmBatchMode, TheLimitLiesBetween0And100) {
    set("txtSingleFRQFile", sample);
    for (const char* bad : {"-1", "101"}) {
        set("txtPercentValidLimit", bad);
        begin();
        EXPECT_EQ(status(), "ERROR: The % Valid Hours Limit value must be between 0% and 100%.") << bad;
        EXPECT_TRUE(marked("txtPercentValidLimit"));
    }
    for (const char* good : {"0", "100"}) {
        set("txtPercentValidLimit", good);
        begin();
        EXPECT_EQ(status(), "Finished") << good;
    }
    host_.boxAnswers = {BoxAnswer::Ok};
    set("txtPercentValidLimit", "-");
    begin();
    EXPECT_EQ(host_.boxes[0].text, "Run-time error '13':\n\nType mismatch");
}

TEST_F(FrmBatchMode, TheLimitThatCountsIsTheOneOnShow) {
    set("txtSingleFRQFile", sample);
    for (const auto& [pasted, counts] : std::vector<std::pair<const char*, const char*>>{
             {"1,5", "15"}, {" 50 ", "50"}, {"099.50", "99.5"}, {"1e1", "10"}, {"0", "0"}, {"100", "100"}}) {
        set("txtPercentValidLimit", pasted);
        begin();
        EXPECT_EQ(status(), "Finished") << pasted;
        EXPECT_EQ(box("txtPercentValidLimit").text(), counts);
    }
    set("txtPercentValidLimit", "1,000");
    begin();
    EXPECT_EQ(box("txtPercentValidLimit").text(), "1,000") << "refused as it is";
    EXPECT_TRUE(marked("txtPercentValidLimit"));
    EXPECT_EQ(box("txtPercentValidLimit").toolTip(),
              "A whole number from 0 to 100; roses with exactly this percentage are exported too");
}

TEST_F(FrmBatchMode, AnEmptyLimitIsFilledAndTheRunFinishes) {
    set("txtSingleFRQFile", sample);
    begin();
    EXPECT_EQ(box("txtPercentValidLimit").text(), "0");
    EXPECT_EQ(status(), "Finished");
    EXPECT_EQ(child<QPushButton>("cmdCancel")->text(), "Exit");
    EXPECT_EQ(opened_, 1);
    begin();
    EXPECT_EQ(opened_, 2) << "a second run needs no restart of the dialog";
    child("txtRootFilename")->setFocus();
    EXPECT_EQ(status(), "") << "the start's focus is left";
}

TEST_F(FrmBatchMode, AMissingWorkingDirectoryIsAskedAboutAndMade) {
    set("txtSingleFRQFile", sample);
    set("txtWorkDirectory", directory_.file("a/b"));
    host_.boxAnswers = {BoxAnswer::No, BoxAnswer::Yes};
    begin();
    EXPECT_TRUE(marked("txtWorkDirectory"));
    EXPECT_EQ(opened_, 0);
    EXPECT_EQ(host_.boxes[0].text, "The Working Directory " + directory_.file("a/b/") +
                                       " does not exist.  Would you like to create this directory?");
    begin();
    EXPECT_TRUE(std::filesystem::is_directory(directory_.file("a/b")));
    EXPECT_FALSE(marked("txtWorkDirectory"));
    EXPECT_EQ(status(), "Finished");
    EXPECT_EQ(modPolarGraph.WorkDir, directory_.file("a/b/"));
}

TEST_F(FrmBatchMode, LeavingAFieldCompletesAndCleansIt) {
    begin();
    EXPECT_TRUE(marked("txtSingleFRQFile"));
    child("txtSingleFRQFile")->setFocus();
    QTest::keyClicks(child("txtSingleFRQFile"), "x");
    child("txtWorkDirectory")->setFocus();
    EXPECT_FALSE(marked("txtSingleFRQFile"));
    EXPECT_EQ(status(), "");
    set("txtWorkDirectory", "/some/where");
    child("txtPercentValidLimit")->setFocus();
    EXPECT_EQ(box("txtWorkDirectory").text().toStdString(), nativePath("/some/where/"));
}

TEST_F(FrmBatchMode, TheLimitIsTypedAsAWholeNumberAndEnterGoesOn) {
    QLineEdit& limit = box("txtPercentValidLimit");
    limit.setFocus();
    QTest::keyClicks(&limit, "a5.0%-");
    EXPECT_EQ(limit.text(), "50-");
    QTest::keyClick(&limit, Qt::Key_Return);
    EXPECT_TRUE(child("cmdBeginBatchMode")->hasFocus()) << "the next one that Tab comes to";
    EXPECT_EQ(status(), "") << "Enter starts nothing here";
}

TEST_F(FrmBatchMode, TheFileIsBrowsedForAndItsDirectoryRemembered) {
    host_.openAnswers = {sample, ""};
    QTest::mouseClick(child("cmdBrowseSingleFRQFile"), Qt::LeftButton);
    EXPECT_EQ(box("txtSingleFRQFile").text().toStdString(), sample);
    EXPECT_EQ(modPolarGraph.WorkDir, inSources("data/samples/"));
    EXPECT_EQ(host_.openPicks[0].directory, out_ + pathSeparator);
    QTest::mouseClick(child("cmdBrowseSingleFRQFile"), Qt::LeftButton);
    EXPECT_EQ(box("txtSingleFRQFile").text().toStdString(), sample);
}

TEST_F(FrmBatchMode, DirectoriesAreBrowsedForFromTheirFields) {
    child<QRadioButton>("optDirectory")->click();
    host_.folderAnswers = {nativePath("/picked"), ""};
    QTest::mouseClick(child("cmdBrowseDirectory"), Qt::LeftButton);
    EXPECT_EQ(box("txtDirectory").text().toStdString(), nativePath("/picked/"));
    EXPECT_EQ(host_.folderPicks[0].title, "Select a Directory of FRQ Files:");
    QTest::mouseClick(child("cmdBrowseWorkDirectory"), Qt::LeftButton);
    EXPECT_EQ(host_.folderPicks[1].title, "Select a Working Directory:");
    EXPECT_EQ(host_.folderPicks[1].start, out_ + pathSeparator);
    EXPECT_EQ(box("txtWorkDirectory").text().toStdString(), out_ + pathSeparator);
}

TEST_F(FrmBatchMode, DuringARunTheDialogStaysAndASecondStartIsIgnored) {
    modPolarGraph.FrqRoseCount = 1;
    modPolarGraph.FrqVersion = "2.0";
    modPolarGraph.FrqRoseCaption.redim(1);
    modPolarGraph.FrqRoseTitle.redim(1);
    set("txtSingleFRQFile", sample);
    onSave_ = [this] {
        form_->reject();
        begin();
        EXPECT_TRUE(form_->isVisible());
        EXPECT_EQ(status(), "Running...");
    };
    begin();
    EXPECT_EQ(opened_, 1);
    EXPECT_EQ(saved_, 1);
    form_->reject();
    EXPECT_FALSE(form_->isVisible());
}

TEST_F(FrmBatchMode, AnErrorOfTheRunIsShownAndTheStatusDoesNotStayAtRunning) {
    modPolarGraph.FrqVersion = "";
    modPolarGraph.FrqRoseCount = 1;
    set("txtSingleFRQFile", sample);
    host_.boxAnswers = {BoxAnswer::Ok};
    begin();
    EXPECT_NE(status(), "Running...");
    EXPECT_FALSE(settings.BatchMode);
}

TEST_F(FrmBatchMode, OpenedForADirectoryNeedsOnlyItsButton) {
    const std::string frq = directory_.file("frq");
    std::filesystem::create_directory(frq);
    std::filesystem::copy(sample, frq + pathSeparator + "a.frq");
    form_->openDirectory(frq, "A note.\n");
    EXPECT_TRUE(child<QRadioButton>("optDirectory")->isChecked());
    EXPECT_EQ(box("txtDirectory").text().toStdString(), frq + pathSeparator);
    EXPECT_EQ(box("txtWorkDirectory").text().toStdString(), out_ + pathSeparator)
        << "the last-used directory";
    EXPECT_EQ(child<QPlainTextEdit>("txtNotes")->toPlainText(), "A note.\n");
    EXPECT_EQ(form_->focusWidget(), child("cmdBeginBatchMode"));
    QTest::keyClick(form_->focusWidget(), Qt::Key_Space);
    EXPECT_EQ(status(), "Finished");
    EXPECT_EQ(opened_, 1);
    EXPECT_EQ(child<QPlainTextEdit>("txtNotes")->toPlainText(), "") << "the notes are those of the run";
}

TEST_F(FrmBatchMode, OpenedForADirectoryWithoutALastUsedOneWritesThere) {
    modPolarGraph.WorkDir.clear();
    open();
    form_->openDirectory(out_ + pathSeparator, "");
    EXPECT_EQ(box("txtDirectory").text().toStdString(), out_ + pathSeparator);
    EXPECT_EQ(box("txtWorkDirectory").text().toStdString(), out_ + pathSeparator);
}

}  // namespace
}  // namespace zg
