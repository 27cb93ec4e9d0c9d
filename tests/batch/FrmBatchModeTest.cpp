#include "batch/FrmBatchMode.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QPlainTextEdit>
#include <QTest>
#include <QTimer>
#include <filesystem>

#include "base/Paths.h"
#include "graph/frq/ModPolarGraph.h"
#include "platform/FieldMarks.h"
#include "settings/Settings.h"
#include "shell/FrmMain.h"
#include "shell/StartSequence.h"
#include "tests/support/FreqText.h"
#include "tests/support/TempDirectory.h"
#include "tests/support/TestHost.h"

namespace zg {
namespace {

const std::string sample = ZG_SOURCE_DIR "/data/samples/LOVETT_1988.frq";

class FrmBatchMode : public ::testing::Test {
 protected:
    void SetUp() override {
        modPolarGraph = ModPolarGraph();
        settings = Settings();
        applicationDirectory = directory_.path();
        startSettings();
        std::filesystem::create_directory(out_);
        modPolarGraph.WorkDir = out_ + "/";
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

    TempDirectory directory_;
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
    EXPECT_EQ(box("txtWorkDirectory").text().toStdString(), out_ + "/");
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
    EXPECT_EQ(box("txtWorkDirectory").text(), "/some/where/");
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
    EXPECT_EQ(modPolarGraph.WorkDir, ZG_SOURCE_DIR "/data/samples/");
    EXPECT_EQ(host_.openPicks[0].directory, out_ + "/");
    QTest::mouseClick(child("cmdBrowseSingleFRQFile"), Qt::LeftButton);
    EXPECT_EQ(box("txtSingleFRQFile").text().toStdString(), sample);
}

TEST_F(FrmBatchMode, DirectoriesAreBrowsedForFromTheirFields) {
    child<QRadioButton>("optDirectory")->click();
    host_.folderAnswers = {"/picked", ""};
    QTest::mouseClick(child("cmdBrowseDirectory"), Qt::LeftButton);
    EXPECT_EQ(box("txtDirectory").text(), "/picked/");
    EXPECT_EQ(host_.folderPicks[0].title, "Select a Directory of FRQ Files:");
    QTest::mouseClick(child("cmdBrowseWorkDirectory"), Qt::LeftButton);
    EXPECT_EQ(host_.folderPicks[1].title, "Select a Working Directory:");
    EXPECT_EQ(host_.folderPicks[1].start, out_ + "/");
    EXPECT_EQ(box("txtWorkDirectory").text().toStdString(), out_ + "/");
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

TEST(FrmBatchModeInTheWindow, EveryRoseBecomesABitmap) {
    TempDirectory directory;
    TestHost host;
    modPolarGraph = ModPolarGraph();
    settings = Settings();
    applicationDirectory = directory.path();
    startSettings();
    frmMain window(host);
    window.Form_Load();
    window.show();
    modPolarGraph.WorkDir = directory.path() + "/";
    QTimer::singleShot(0, [&] {
        auto* dialog = QApplication::activeModalWidget();
        ASSERT_NE(dialog, nullptr);
        dialog->findChild<QLineEdit*>("txtSingleFRQFile")->setText(QString::fromStdString(sample));
        dialog->findChild<QLineEdit*>("txtRootFilename")->setText("L_");
        QTest::mouseClick(dialog->findChild<QWidget*>("cmdBeginBatchMode"), Qt::LeftButton);
        EXPECT_EQ(dialog->findChild<QLabel*>("lblStatus")->text(), "Finished");
        QTest::mouseClick(dialog->findChild<QWidget*>("cmdCancel"), Qt::LeftButton);
    });
    window.menuAction("mnuFileOption_13")->trigger();
    ASSERT_EQ(modPolarGraph.FrqRoseCount, 9);
    for (int rose = 1; rose <= 9; ++rose) {
        const std::string name = "L_" + modPolarGraph.FrqRoseTitle(rose) + ".bmp";
        const QImage picture(QString::fromStdString(directory.file(name)));
        EXPECT_EQ(picture.size(), QSize(600, 600)) << name;
    }
    EXPECT_FALSE(settings.BatchMode);
}

/// A batch run over a directory of three files, operated as a user would.
class BatchOfADirectory : public ::testing::Test {
 protected:
    void SetUp() override {
        modPolarGraph = ModPolarGraph();
        settings = Settings();
        applicationDirectory = directory_.path();
        startSettings();
        window_ = std::make_unique<frmMain>(host_);
        window_->Form_Load();
        window_->show();
        modPolarGraph.WorkDir = directory_.path() + "/";
        write("a.frq", {"Year 2004", "dup", "dup"});
    }
    void write(const char* name, const std::vector<std::string>& titles) {
        freqtext::Lines lines = freqtext::header("2.2");
        int rose = 0;
        for (const std::string& title : titles) {
            const freqtext::Lines rows = freqtext::block("2.2", ++rose, title);
            lines.insert(lines.end(), rows.begin(), rows.end());
        }
        directory_.write(name, freqtext::bytes(lines));
    }
    void runIt() {
        QTimer::singleShot(0, [this] {
            auto* dialog = QApplication::activeModalWidget();
            ASSERT_NE(dialog, nullptr);
            dialog->findChild<QRadioButton*>("optDirectory")->click();
            dialog->findChild<QLineEdit*>("txtDirectory")
                ->setText(QString::fromStdString(directory_.path() + "/"));
            QTest::mouseClick(dialog->findChild<QWidget*>("cmdBeginBatchMode"), Qt::LeftButton);
            status_ = dialog->findChild<QLabel*>("lblStatus")->text().toStdString();
            auto* notes = dialog->findChild<QPlainTextEdit*>("txtNotes");
            notes_ = notes->toPlainText().toStdString();
            notes->selectAll();
            notes->copy();
            QTest::mouseClick(dialog->findChild<QWidget*>("cmdCancel"), Qt::LeftButton);
        });
        window_->menuAction("mnuFileOption_13")->trigger();
    }
    QImage picture(const char* name) { return QImage(QString::fromStdString(directory_.file(name))); }

    TempDirectory directory_;
    TestHost host_;
    std::unique_ptr<frmMain> window_;
    std::string status_;
    std::string notes_;
};

TEST_F(BatchOfADirectory, TellsOfARefusedFileAndOfReplacedPictures) {
    directory_.write("b1.frq", "nothing of the kind\n");
    write("c.frq", {"Year 2005"});
    host_.boxAnswers = {BoxAnswer::Ok};
    runIt();
    EXPECT_EQ(status_, "Finished");
    EXPECT_EQ(notes_, "a_dup.bmp: rose 3 of a.frq took the place of rose 2 of a.frq.\n" +
                          directory_.file("b1.frq") +
                          " was refused: it is not in the correct data format.\n"
                          "b1_Year 2004.bmp shows rose 1 of a.frq, since b1.frq was refused.\n"
                          "b1_dup.bmp shows rose 2 of a.frq, since b1.frq was refused.\n"
                          "b1_dup.bmp shows rose 3 of a.frq, since b1.frq was refused.\n"
                          "b1_dup.bmp: rose 3 of a.frq took the place of rose 2 of a.frq.\n"
                          "3 files, 1 refused; 7 roses saved in 5 pictures, 0 left out.");
    EXPECT_EQ(QGuiApplication::clipboard()->text().toStdString(), notes_);
    EXPECT_FALSE(picture("b1_Year 2004.bmp").isNull());
    EXPECT_FALSE(picture("c_Year 2005.bmp").isNull());
}

TEST_F(BatchOfADirectory, IsSilentWithoutFaults) {
    write("a.frq", {"Year 2004", "Winter"});
    runIt();
    EXPECT_EQ(status_, "Finished");
    EXPECT_EQ(notes_, "");
}

TEST_F(BatchOfADirectory, ATruncatedFileIsNamedInTheBoxWithItsLine) {
    std::string bytes = directory_.read("a.frq");
    directory_.write("b.frq", bytes.substr(0, bytes.rfind("Calm Winds")));
    host_.boxAnswers = {BoxAnswer::Ok};
    runIt();
    EXPECT_EQ(host_.boxes[0].text,
              "Run-time error '62':\n\nInput past end of file: " + directory_.file("b.frq") + ", line 73");
    EXPECT_NE(notes_.find("The run ended with an error at " + directory_.file("b.frq") + ".\n"),
              std::string::npos);
}

TEST_F(BatchOfADirectory, ATitleThatIsTooLongForAFileIsToldWithTheName) {
    const std::string title(300, 'w');
    write("a.frq", {"Year 2004", title});
    host_.boxAnswers = {BoxAnswer::Ok};
    runIt();
    EXPECT_EQ(host_.boxes[0].text, "Run-time error '75':\n\nPath/File access error: " +
                                       directory_.file("a_" + title + ".bmp") + " (File name too long)");
    EXPECT_EQ(notes_, "The run ended with an error at " + directory_.file("a.frq") +
                          ".\n1 file, 0 refused; 1 rose saved in 1 picture, 0 left out.");
}

TEST(FrmMainOutput, SaveAsksForAFileAndCopyNeedsASelection) {
    TempDirectory directory;
    TestHost host;
    modPolarGraph = ModPolarGraph();
    settings = Settings();
    applicationDirectory = directory.path();
    startSettings();
    frmMain window(host);
    window.Form_Load();
    window.show();
    EXPECT_FALSE(window.findChild<QWidget*>("tblToolbar_copy")->isEnabled());
    host.saveAnswers = {directory.file("page.bmp")};
    QTest::mouseClick(window.findChild<QWidget*>("tblToolbar_save"), Qt::LeftButton);
    EXPECT_EQ(QImage(QString::fromStdString(directory.file("page.bmp"))).size(), QSize(600, 600));
    EXPECT_EQ(window.activeTool(), Tool::Select);
    EXPECT_TRUE(window.pgPolarGraph().ActiveSelection());
    EXPECT_TRUE(window.findChild<QWidget*>("tblToolbar_copy")->isEnabled());
    EXPECT_TRUE(window.menuAction("mnuEditOption_0")->isEnabled());
    host.saveAnswers = {directory.file("no/page.bmp")};
    host.boxAnswers = {BoxAnswer::Ok};
    window.menuAction("mnuFileOption_12")->trigger();
    EXPECT_NE(host.boxes[0].text.find("Path/File access error: "), std::string::npos);
}

}  // namespace
}  // namespace zg
