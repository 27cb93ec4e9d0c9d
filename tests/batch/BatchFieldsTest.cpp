// The fields of batch mode and of the reports: captions, what leaving and browsing do, names that are not
// ASCII.

#include <gtest/gtest.h>

#include <QGroupBox>
#include <QTest>
#include <QTimer>
#include <filesystem>

#include "base/Lines.h"
#include "base/Paths.h"
#include "batch/FrmBatchMode.h"
#include "batch/FrmCreateReport.h"
#include "graph/frq/ModPolarGraph.h"
#include "platform/Captions.h"
#include "platform/FieldMarks.h"
#include "platform/QtPicture.h"
#include "settings/Settings.h"
#include "shell/FrmMain.h"
#include "shell/StartSequence.h"
#include "tests/support/FreqText.h"
#include "tests/support/TempDirectory.h"
#include "tests/support/TestHost.h"

namespace zg {
namespace {

using Names = std::vector<std::string>;

/// One of the two forms.
class OutputFields : public ::testing::Test {
 protected:
    void SetUp() override {
        modPolarGraph = ModPolarGraph();
        settings = Settings();
        applicationDirectory = directory_.path();
        startSettings();
        modPolarGraph.WorkDir = directory_.path() + "/";
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

    TempDirectory directory_;
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
    EXPECT_EQ(box("txtDirectory").text(), "/some/where/");
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
    host_.folderAnswers = {"/picked", "", "/other"};
    click("cmdBrowseBMPDirectory");
    EXPECT_EQ(host_.folderPicks[0].start, directory_.path() + "/");
    EXPECT_EQ(box("txtBMPDirectory").text(), "/picked/");
    EXPECT_EQ(box("txtWorkDirectory").text().toStdString(), directory_.path() + "/");
    click("cmdBrowseBMPDirectory");
    EXPECT_EQ(host_.folderPicks[1].start, "/picked/");
    EXPECT_EQ(box("txtBMPDirectory").text(), "/picked/") << "nothing was picked";
    click("cmdBrowseWorkDirectory");
    EXPECT_EQ(host_.folderPicks[2].start, directory_.path() + "/");
    EXPECT_EQ(box("txtWorkDirectory").text(), "/other/");
    EXPECT_EQ(box("txtBMPDirectory").text(), "/picked/");
}

TEST_F(OutputFields, BrowsingForAReportsDirectoryTakesItsMark) {
    openReport();
    box("txtBMPDirectory").clear();
    click("cmdCreateReport");
    ASSERT_TRUE(marked("txtBMPDirectory"));
    host_.folderAnswers = {"/picked"};
    click("cmdBrowseBMPDirectory");
    EXPECT_FALSE(marked("txtBMPDirectory"));
    EXPECT_EQ(status(), "");
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

/// A file of version 2.0, of which every rose is exported, with these titles.
std::string frqWith(const Names& titles) {
    freqtext::Lines lines = freqtext::header("2.0");
    int rose = 0;
    for (const std::string& title : titles) {
        const freqtext::Lines rows = freqtext::block("2.0", ++rose, title);
        lines.insert(lines.end(), rows.begin(), rows.end());
    }
    return freqtext::bytes(lines);
}

const std::string summer = "\xC9t\xE9";              // as a file in windows-1252 has it
const std::string summerUtf8 = "\xC3\x89t\xC3\xA9";  // as the file system has what was typed

class BatchNames : public OutputFields {
 protected:
    void SetUp() override {
        OutputFields::SetUp();
        std::filesystem::create_directory(out_);
        window_ = std::make_unique<frmMain>(host_);
        window_->Form_Load();
        window_->show();
        modPolarGraph.WorkDir = out_ + "/";
    }
    /// Opens batch mode from the menu, fills it in and runs it.
    void run(const std::function<void(QWidget&)>& fill) {
        QTimer::singleShot(0, [&] {
            auto* dialog = QApplication::activeModalWidget();
            ASSERT_NE(dialog, nullptr);
            fill(*dialog);
            QTest::mouseClick(dialog->findChild<QWidget*>("cmdBeginBatchMode"), Qt::LeftButton);
            EXPECT_EQ(dialog->findChild<QLabel*>("lblStatus")->text(), "Finished");
            dialog->close();
        });
        window_->menuAction("mnuFileOption_13")->trigger();
    }
    Names made() {
        Names names = filesMatching(out_ + "/*");
        for (const std::string& name : names) EXPECT_EQ(loadPicture(out_ + "/" + name)->width(), 600) << name;
        return names;
    }

    std::string out_ = directory_.file("out");
    std::unique_ptr<frmMain> window_;
};

TEST_F(BatchNames, ATypedRootIsTextAndATitleKeepsTheBytesOfItsFile) {
    const std::string file = directory_.write("a.frq", frqWith({summer, summerUtf8 + "2", "Winter"}));
    run([&](QWidget& dialog) {
        dialog.findChild<QLineEdit*>("txtSingleFRQFile")->setText(QString::fromStdString(file));
        dialog.findChild<QLineEdit*>("txtRootFilename")->setText(QString::fromUtf8("\xC3\x89t\xC3\xA9_"));
    });
    Names expected = {summerUtf8 + "_" + summer + ".bmp", summerUtf8 + "_" + summerUtf8 + "2.bmp",
                      summerUtf8 + "_Winter.bmp"};
    Names names = made();
    std::sort(names.begin(), names.end());
    std::sort(expected.begin(), expected.end());
    EXPECT_EQ(names, expected);
}

TEST_F(BatchNames, AFileOfADirectoryGivesItsNameByteForByte) {
    std::filesystem::create_directory(directory_.file("in " + summer));
    for (const std::string& name : {summer, summerUtf8})
        directory_.write("in " + summer + "/" + name + ".frq", frqWith({"Winter"}));
    host_.folderAnswers = {directory_.file("in " + summer)};
    run([&](QWidget& dialog) {
        dialog.findChild<QRadioButton*>("optDirectory")->click();
        QTest::mouseClick(dialog.findChild<QWidget*>("cmdBrowseDirectory"), Qt::LeftButton);
    });
    Names expected = {summer + "_Winter.bmp", summerUtf8 + "_Winter.bmp"};
    Names names = made();
    std::sort(names.begin(), names.end());
    std::sort(expected.begin(), expected.end());
    EXPECT_EQ(names, expected);
}

}  // namespace
}  // namespace zg
