#include "batch/FrmCreateReport.h"

#include <gtest/gtest.h>

#include <QTest>
#include <filesystem>

#include "base/RunTimeError.h"
#include "graph/frq/ModPolarGraph.h"
#include "platform/FieldMarks.h"
#include "tests/support/Places.h"
#include "tests/support/TempDirectory.h"
#include "tests/support/TestHost.h"

namespace zg {
namespace {

using Calls = std::vector<std::string>;

/// Records what it was asked for, in order.
class RecordingWriter : public ReportWriter {
 public:
    explicit RecordingWriter(Calls& calls) : calls_(calls) {}
    void beginPresentation() override { calls_.emplace_back("presentation"); }
    void addSlide(const std::string& picture, float left, float top, float width, float height) override {
        EXPECT_EQ(left, 102.12F);
        EXPECT_EQ(top, 0);
        EXPECT_EQ(width, 539.88F);
        EXPECT_EQ(height, 539.88F);
        calls_.push_back("slide " + picture);
    }
    void savePresentation(const std::string& path) override {
        if (fails) throw RunTimeError(429, "it broke");
        calls_.push_back("save " + path);
    }
    void beginDocument() override { calls_.emplace_back("document"); }
    void addPicture(const std::string& picture) override { calls_.push_back("picture " + picture); }
    void addPageBreak() override { calls_.emplace_back("break"); }
    void saveDocument(const std::string& path) override { calls_.push_back("save " + path); }

    bool fails = false;

 private:
    Calls& calls_;
};

class FrmCreateReport : public ::testing::Test {
 protected:
    void SetUp() override {
        modPolarGraph = ModPolarGraph();
        modPolarGraph.WorkDir = directory_.file("");
        auto writer = std::make_unique<RecordingWriter>(calls_);
        writer_ = writer.get();
        form_ = std::make_unique<frmCreateReport>(host_, nullptr, std::move(writer));
        form_->show();
        form_->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(form_.get()));
    }
    template <typename Control = QWidget>
    Control* child(const char* name) {
        return form_->findChild<Control*>(QString::fromLatin1(name));
    }
    void set(const char* name, const std::string& text) {
        child<QLineEdit>(name)->setText(QString::fromStdString(text));
    }
    std::string status() { return child<QLabel>("lblStatus")->text().toStdString(); }
    void create(const char* option = nullptr) {
        if (option != nullptr) child<QRadioButton>(option)->click();
        QTest::mouseClick(child("cmdCreateReport"), Qt::LeftButton);
    }
    bool marked(const char* name) { return fieldMark(*child(name)) == yellowMark; }
    std::string at(const char* name) { return directory_.file(name); }

    TempDirectory directory_;
    TestHost host_;
    Calls calls_;
    RecordingWriter* writer_ = nullptr;
    std::unique_ptr<frmCreateReport> form_;
};

TEST_F(FrmCreateReport, AnyNameIsTakenAsItIsTyped) {
    int tried = 0;
    for (const std::string& name : {std::string("my report"), std::string(" lead"), std::string(".."),
                                    std::string("50% & <b>x"), std::string("a\"b'c!"), std::string("a,b;c:d"),
                                    std::string("\xD0\x9C\xD0\xBE"), std::string(" ")}) {
        if (onWindows && name.find_first_of("<>:\"") != std::string::npos) continue;  // it has no such names
        ++tried;
        set("txtSaveFilename", name);
        calls_.clear();
        create("optPPT");
        ASSERT_FALSE(calls_.empty()) << name;
        EXPECT_EQ(calls_.back(), "save " + at("") + name + ".ppt");
        EXPECT_EQ(status(), "PowerPoint Report successfully created.") << name;
        directory_.write(name + ".ppt", "");
        host_.boxes.clear();
        host_.boxAnswers = {BoxAnswer::No};
        create("optPPT");
        EXPECT_EQ(host_.boxes.at(0).text, "The file " + name + ".ppt already exists in " + at("") +
                                              ". Would you like to overwrite it?");
    }
    EXPECT_EQ(tried, onWindows ? 5 : 8);
}

TEST_F(FrmCreateReport, StartsInTheLastUsedDirectory) {
    EXPECT_EQ(form_->windowTitle(), "Create Report");
    EXPECT_EQ(child<QLineEdit>("txtBMPDirectory")->text().toStdString(), directory_.file(""));
    EXPECT_EQ(child<QLineEdit>("txtWorkDirectory")->text().toStdString(), directory_.file(""));
    for (const char* option : {"optPPT", "optDOC", "optBothPPTAndDOC"})
        EXPECT_FALSE(child<QRadioButton>(option)->isChecked()) << option;
}

TEST_F(FrmCreateReport, ChecksInOrder) {
    set("txtBMPDirectory", "");
    set("txtWorkDirectory", "");
    create();
    EXPECT_EQ(status(), "ERROR:  Please select a Directory of Wind Rose BMP Files.");
    EXPECT_TRUE(marked("txtBMPDirectory"));
    set("txtBMPDirectory", at("missing"));
    create();
    EXPECT_EQ(status(), "ERROR:  The selected Directory of Wind Rose BMP Files does not exist.");
    set("txtBMPDirectory", directory_.path());
    create();
    EXPECT_EQ(status(), "ERROR:  Please select a filename to save the report(s) under.");
    EXPECT_TRUE(marked("txtSaveFilename"));
    set("txtSaveFilename", "r");
    create();
    EXPECT_EQ(status(), "ERROR:  Please select a Working Directory.");
    set("txtWorkDirectory", at("new"));
    host_.boxAnswers = {BoxAnswer::Yes};
    create();
    EXPECT_TRUE(std::filesystem::is_directory(at("new")));
    EXPECT_FALSE(marked("txtWorkDirectory"));
    EXPECT_TRUE(calls_.empty()) << "no kind of report is chosen";
    EXPECT_EQ(status(), "Please choose what to create: PowerPoint, Word or both.");
}

TEST_F(FrmCreateReport, ASlideShowHasASlideAPicture) {
    for (const char* name : {"b.bmp", "A.BMP", "c.txt"}) directory_.write(name, "");
    set("txtSaveFilename", "roses.ppt");
    create("optPPT");
    EXPECT_EQ(calls_, (Calls{"presentation", "slide " + at("A.BMP"), "slide " + at("b.bmp"),
                             "save " + at("roses.ppt.ppt")}))
        << "a typed extension gets a second one behind it";
    EXPECT_EQ(status(), "PowerPoint Report successfully created.");
    EXPECT_EQ(child<QPushButton>("cmdCancel")->text(), "Exit");
}

TEST_F(FrmCreateReport, ADocumentHasNoBreakAfterTheLastPicture) {
    for (const char* name : {"a.bmp", "b.bmp"}) directory_.write(name, "");
    set("txtSaveFilename", "r");
    create("optDOC");
    EXPECT_EQ(calls_, (Calls{"document", "picture " + at("a.bmp"), "break", "picture " + at("b.bmp"),
                             "save " + at("r.doc")}));
    EXPECT_EQ(status(), "Word Report successfully created.");
}

TEST_F(FrmCreateReport, BothChangeTheCaptionAndTheTextOnlyAtTheEnd) {
    directory_.write("a.bmp", "");
    set("txtSaveFilename", "r");
    Calls seen;
    host_.onPump = [&] {
        seen.push_back(status() + "|" + child<QPushButton>("cmdCancel")->text().toStdString());
    };
    create("optBothPPTAndDOC");
    EXPECT_EQ(calls_.size(), 6U);
    EXPECT_EQ(seen.front(), "Creating PowerPoint Report...|Cancel");
    EXPECT_EQ(seen.back(), "Creating Word Report...|Cancel");
    EXPECT_EQ(status(), "PowerPoint and Word Reports successfully created.");
    EXPECT_EQ(child<QPushButton>("cmdCancel")->text(), "Exit");
}

TEST_F(FrmCreateReport, ANoToEitherQuestionStopsEverything) {
    directory_.write("r.ppt", "old");
    directory_.write("r.doc", "old");
    set("txtSaveFilename", "r");
    host_.boxAnswers = {BoxAnswer::Yes, BoxAnswer::No, BoxAnswer::No};
    create("optBothPPTAndDOC");
    EXPECT_EQ(host_.boxes[0].text, "The file r.ppt already exists in " + directory_.file("") +
                                       ". Would you like to overwrite it?");
    EXPECT_EQ(host_.boxes[0].title, "Overwrite File?");
    EXPECT_EQ(host_.boxes[0].icon, BoxIcon::Information);
    EXPECT_EQ(host_.boxes[0].buttons, BoxButtons::YesNo);
    EXPECT_TRUE(calls_.empty());
    create("optPPT");
    EXPECT_TRUE(calls_.empty());
    EXPECT_EQ(status(), "");
}

TEST_F(FrmCreateReport, WithoutPicturesAnEmptyReportIsSavedAllTheSame) {
    set("txtSaveFilename", "r");
    create("optBothPPTAndDOC");
    EXPECT_EQ(calls_, (Calls{"presentation", "save " + at("r.ppt"), "document", "save " + at("r.doc")}));
}

TEST_F(FrmCreateReport, AFailureOfTheOfficeIsToldAndStopsTheOperation) {
    set("txtSaveFilename", "r");
    writer_->fails = true;
    host_.boxAnswers = {BoxAnswer::Ok};
    create("optBothPPTAndDOC");
    EXPECT_EQ(host_.boxes[0].text, "Run-time error '429':\n\nit broke");
    EXPECT_EQ(calls_, Calls{"presentation"});
    EXPECT_EQ(child<QPushButton>("cmdCancel")->text(), "Cancel");
}

TEST_F(FrmCreateReport, LeavingAFieldCompletesAndCleansIt) {
    set("txtBMPDirectory", "");
    create();
    child("txtBMPDirectory")->setFocus();
    QTest::keyClicks(child("txtBMPDirectory"), "/x");
    child("txtSaveFilename")->setFocus();
    EXPECT_EQ(child<QLineEdit>("txtBMPDirectory")->text().toStdString(), nativePath("/x/"));
    EXPECT_FALSE(marked("txtBMPDirectory"));
    EXPECT_EQ(status(), "");
    EXPECT_EQ(child<QLineEdit>("txtSaveFilename")->text(), "");
}

}  // namespace
}  // namespace zg
