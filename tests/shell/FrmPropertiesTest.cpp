#include "shell/FrmProperties.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QTest>
#include <algorithm>

#include "base/Paths.h"
#include "tests/support/Places.h"
#include "tests/support/TempDirectory.h"
#include "tests/support/TestHost.h"

namespace zg {
namespace {

class FrmProperties : public ::testing::Test {
 protected:
    void open() {
        form_ = std::make_unique<frmProperties>(host_, graph_, [this] { ++applied_; });
        form_->show();
        form_->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(form_.get()));
    }
    template <typename Control>
    Control* child(const char* name) {
        return form_->findChild<Control*>(QString::fromLatin1(name));
    }
    QLineEdit& box(const char* name) { return *child<QLineEdit>(name); }
    void click(const char* name) { QTest::mouseClick(child<QWidget>(name), Qt::LeftButton); }
    void check(const char* name) { child<QAbstractButton>(name)->click(); }
    bool canApply() { return child<QWidget>("cmdApply")->isEnabled(); }
    void showOptions() { child<QTabWidget>("tbsProp")->setCurrentIndex(1); }

    /// Types into a box and leaves it; returns its contents afterwards.
    std::string left(const char* name, const char* text) {
        QLineEdit& field = box(name);
        field.setFocus();
        field.selectAll();
        QTest::keyClick(&field, Qt::Key_Delete);
        QTest::keyClicks(&field, QString::fromLatin1(text));
        child<QWidget>("cmdCancel")->setFocus();
        return field.text().toStdString();
    }
    /// Number of pixels of the sample other than its background and its frame.
    int inked() {
        QWidget& sample = *child<QWidget>("picPattern");
        const QImage image = sample.grab(sample.rect().adjusted(1, 1, -1, -1)).toImage();
        int count = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (image.pixel(x, y) != qRgb(255, 255, 255)) ++count;
        return count;
    }

    GrapInfo graph_;
    TestHost host_;
    TempDirectory directory_;
    int applied_ = 0;
    std::unique_ptr<frmProperties> form_;
};

TEST_F(FrmProperties, ShowsTheGraph) {
    graph_.StartingAngle = 15;
    graph_.EndingAngle = 720;
    graph_.Step = 0.5F;
    graph_.Delay = 20;
    graph_.Series.Pen.Style = 2;
    graph_.Series.Pen.Weight = 3;
    graph_.Series.Marker.setAlignment(1 + 8);
    open();
    EXPECT_EQ(form_->windowTitle(), "Properties");
    EXPECT_EQ(child<QTabWidget>("tbsProp")->tabText(0), "Patterns");
    EXPECT_EQ(child<QTabWidget>("tbsProp")->tabText(1), "Options");
    EXPECT_EQ(box("txtAngle_0").text(), "15");
    EXPECT_EQ(box("txtAngle_1").text(), "720");
    EXPECT_EQ(box("txtStep").text(), "0.5");
    EXPECT_EQ(box("txtDelay").text(), "20");
    EXPECT_EQ(child<QComboBox>("imcLstyle")->currentIndex(), 2);
    EXPECT_EQ(child<QComboBox>("imcLweight")->currentIndex(), 2);
    EXPECT_EQ(child<QComboBox>("cmbMalignh")->currentText(), "RIGHT");
    EXPECT_EQ(child<QComboBox>("cmbMalignv")->currentText(), "BOTTOM");
    EXPECT_TRUE(child<QRadioButton>("optLcustom")->isChecked());
    EXPECT_TRUE(child<QRadioButton>("optMnone")->isChecked());
    EXPECT_TRUE(child<QRadioButton>("optMtype_1")->isChecked());
    EXPECT_FALSE(canApply());
}

TEST_F(FrmProperties, ATabShowsItsPage) {
    open();
    EXPECT_TRUE(child<QWidget>("fraPatterns")->isVisible());
    showOptions();
    EXPECT_FALSE(child<QWidget>("fraPatterns")->isVisible());
    EXPECT_TRUE(child<QWidget>("fraOptions")->isVisible());
}

TEST_F(FrmProperties, EveryFieldReachesTheGraph) {
    graph_.Series.Marker.Font.Name = "Arial";
    open();
    host_.colourAnswers = {rgb(1, 2, 3), rgb(4, 5, 6)};
    host_.fontAnswers = {FontRecord{0, "Courier", 14, true, true}};
    click("cmdLcolor");
    check("optMcustom");
    click("cmdMcolor");
    click("cmdMfont");
    EXPECT_EQ(host_.fontPicks[0].name, "Arial");
    EXPECT_EQ(host_.fontPicks[0].size, 8);
    auto* characters = child<QComboBox>("cmbMstyle");
    characters->setCurrentIndex(characters->findData(QByteArray("Z")));
    child<QComboBox>("cmbMalignh")->setCurrentIndex(0);
    child<QComboBox>("cmbMalignv")->setCurrentIndex(0);
    check("chkLconnect");
    check("chkLshading");
    child<QComboBox>("imcLstyle")->setCurrentIndex(1);
    child<QComboBox>("imcLweight")->setCurrentIndex(4);
    check("optMtype_0");
    check("chkMautosize");
    check("chkMtrans");
    EXPECT_EQ(left("txtMsize_0", "24"), "24");
    EXPECT_EQ(left("txtMsize_1", "12"), "12");
    box("txtMpicloc_0").setText("/pictures/one.bmp");
    showOptions();
    left("txtAngle_0", "10");
    left("txtAngle_1", "200");
    left("txtStep", "2.5");
    left("txtDelay", "7");
    click("cmdApply");
    EXPECT_EQ(applied_, 1);
    const Series& series = graph_.Series;
    EXPECT_TRUE(series.AllowPen);
    EXPECT_TRUE(series.AllowMarker);
    EXPECT_FALSE(series.Pen.AllowConVertices);
    EXPECT_TRUE(series.Pen.AllowShading);
    EXPECT_EQ(series.Pen.FillColor, rgb(1, 2, 3));
    EXPECT_EQ(series.Pen.Style, 1);
    EXPECT_EQ(series.Pen.Weight, 5);
    EXPECT_EQ(series.Marker.Alignment, 4);
    EXPECT_EQ(series.Marker.GetHorizAlign, 0);
    EXPECT_EQ(series.Marker.GetVertAlign, 4);
    EXPECT_EQ(series.Marker.AutoSize, 0);
    EXPECT_EQ(series.Marker.FillColor, rgb(4, 5, 6));
    EXPECT_EQ(series.Marker.Font.Name, "Courier");
    EXPECT_EQ(series.Marker.Font.Size, 14);
    EXPECT_TRUE(series.Marker.Font.Bold);
    EXPECT_TRUE(series.Marker.Font.Italic);
    EXPECT_EQ(series.Marker.Style, "Z");
    EXPECT_FALSE(series.Marker.Transparent);
    EXPECT_TRUE(series.Marker.UsePicture);
    EXPECT_EQ(series.Marker.PictureWidth, 24);
    EXPECT_EQ(series.Marker.PictureHeight, 12);
    EXPECT_EQ(series.Marker.PicturePath, nativePath("/pictures/one.bmp"));
    EXPECT_EQ(graph_.StartingAngle, 10);
    EXPECT_EQ(graph_.EndingAngle, 200);
    EXPECT_EQ(graph_.Step, 2.5F);
    EXPECT_EQ(graph_.Delay, 7);
    EXPECT_FALSE(canApply());
}

TEST_F(FrmProperties, AnEmptyPathLeavesTheStoredOne) {
    graph_.Series.Marker.PicturePath = "/kept.bmp";
    graph_.Series.Marker.UsePicture = true;
    graph_.Series.AllowMarker = true;
    open();
    box("txtMpicloc_0").clear();
    click("cmdApply");
    EXPECT_EQ(graph_.Series.Marker.PicturePath, "/kept.bmp");
}

TEST_F(FrmProperties, RefusedValuesReturnSilentlyToTheStoredOnes) {
    graph_.StartingAngle = 5;
    graph_.EndingAngle = 355;
    graph_.Step = 1;
    graph_.Delay = 3;
    open();
    showOptions();
    EXPECT_EQ(left("txtAngle_0", "1000000"), "5");
    EXPECT_EQ(left("txtAngle_1", "1000000"), "355");
    EXPECT_EQ(left("txtAngle_0", "999999"), "999999");
    EXPECT_EQ(left("txtAngle_0", "0"), "0");
    EXPECT_EQ(left("txtAngle_0", ""), "5");
    EXPECT_EQ(left("txtStep", "0"), "1");
    EXPECT_EQ(left("txtStep", "0.00004"), "1") << "it rounds to 0";
    EXPECT_EQ(left("txtStep", "0.00006"), "0.0001");
    EXPECT_EQ(left("txtStep", "10000"), "10000");
    EXPECT_EQ(left("txtStep", "10000.1"), "1");
    EXPECT_EQ(left("txtStep", "1.23456"), "1.2346");
    EXPECT_EQ(left("txtStep", ".."), "1");
    EXPECT_EQ(left("txtDelay", "1000000"), "3");
    EXPECT_EQ(left("txtDelay", "999999"), "999999");
    EXPECT_TRUE(host_.boxes.empty());
}

TEST_F(FrmProperties, PastedTextThatIsNoNumberReturns) {
    open();
    showOptions();
    box("txtAngle_0").setText("-1");
    box("txtStep").setText("abc");
    box("txtDelay").setText("1e9");
    click("cmdApply");
    EXPECT_EQ(box("txtAngle_0").text(), "0");
    EXPECT_EQ(box("txtStep").text(), "1");
    EXPECT_EQ(box("txtDelay").text(), "0");
    EXPECT_EQ(graph_.StartingAngle, 0);
}

TEST_F(FrmProperties, OnlyDigitsAndForTheStepAPointAreTyped) {
    open();
    showOptions();
    EXPECT_EQ(left("txtAngle_1", "1-2.5x"), "125");
    EXPECT_EQ(left("txtStep", "1-.5x"), "1.5");
}

TEST_F(FrmProperties, TheDelaySaysWhatItHoldsAndTheNoteWhereItsMenuIs) {
    open();
    showOptions();
    EXPECT_EQ(box("txtDelay").toolTip(),
              "Milliseconds from one point to the next when the curve is played, at most 32,767");
    std::vector<std::string> tips;
    for (const QLabel* label : form_->findChildren<QLabel*>())
        if (label->text() == "To turn on animation set delay > 0. At the main menu, click Graph->Play.")
            tips.push_back(label->toolTip().toStdString());
    EXPECT_EQ(tips, std::vector<std::string>{
                        "A right click on the curve's row in the list opens the menu with Play"});
    left("txtDelay", "32767");
    click("cmdApply");
    EXPECT_EQ(graph_.Delay, 32'767) << "the largest that it holds";
}

TEST_F(FrmProperties, ADelayBeyondItsWidthOverflowsAtApply) {
    open();
    showOptions();
    left("txtDelay", "40000");
    host_.boxAnswers = {BoxAnswer::Ok};
    click("cmdApply");
    EXPECT_EQ(host_.boxes[0].text, "Run-time error '6':\n\nOverflow");
    EXPECT_EQ(graph_.Delay, 0);
    EXPECT_TRUE(form_->isVisible());
}

TEST_F(FrmProperties, ASizeReturnsToTheStoredOneWhileAutosizeIsOff) {
    graph_.Series.AllowMarker = true;
    graph_.Series.Marker.UsePicture = true;
    graph_.Series.Marker.AutoSize = 0;
    open();
    EXPECT_TRUE(box("txtMsize_0").isEnabled());
    EXPECT_EQ(left("txtMsize_0", "0"), "16");
    EXPECT_EQ(left("txtMsize_1", ""), "16");
    EXPECT_EQ(left("txtMsize_1", "9"), "9");
    check("chkMautosize");
    EXPECT_FALSE(box("txtMsize_0").isEnabled());
}

TEST_F(FrmProperties, ALargeSizeReachesTheGraphAndOneBeyondAnyIsTold) {
    graph_.Series.AllowMarker = true;
    graph_.Series.Marker.UsePicture = true;
    graph_.Series.Marker.AutoSize = 0;
    open();
    EXPECT_EQ(left("txtMsize_0", "40000"), "40000");
    EXPECT_EQ(left("txtMsize_1", "2147483647"), "2147483647");
    click("cmdApply");
    EXPECT_EQ(graph_.Series.Marker.PictureWidth, 40000);
    EXPECT_EQ(graph_.Series.Marker.PictureHeight, 2147483647);
    EXPECT_EQ(left("txtMsize_0", "2147483648"), "2147483648");
    host_.boxAnswers = {BoxAnswer::Ok};
    click("cmdApply");
    ASSERT_EQ(host_.boxes.size(), 1U);
    EXPECT_EQ(host_.boxes[0].text, "Run-time error '6':\n\nOverflow");
    EXPECT_EQ(graph_.Series.Marker.PictureWidth, 40000);
    EXPECT_TRUE(canApply());
    EXPECT_TRUE(form_->isVisible());
}

TEST_F(FrmProperties, TheBoxShowsTheSizeThatIsApplied) {
    graph_.Series.AllowMarker = true;
    graph_.Series.Marker.UsePicture = true;
    graph_.Series.Marker.AutoSize = 0;
    open();
    box("txtMsize_0").setText("12.5");
    box("txtMsize_1").setText("0.4");
    click("cmdApply");
    EXPECT_EQ(box("txtMsize_0").text(), "12") << "a pasted fraction is rounded to the even one";
    EXPECT_EQ(graph_.Series.Marker.PictureWidth, 12);
    EXPECT_EQ(box("txtMsize_1").text(), "16") << "what rounds to none takes back the stored size";
    check("chkMautosize");
    box("txtMsize_0").setText("9999999999");
    click("cmdApply");
    EXPECT_EQ(box("txtMsize_0").text(), "12") << "a locked box too";
    EXPECT_TRUE(host_.boxes.empty());
}

TEST_F(FrmProperties, TheSampleFollowsTheFields) {
    graph_.Series.Marker.Font = {"Arial", 20, true, false};
    open();
    const int line = inked();
    EXPECT_GT(line, 20);
    check("optLnone");
    EXPECT_EQ(inked(), 0);
    check("optMcustom");
    EXPECT_GT(inked(), 20);
    check("optMtype_0");
    EXPECT_EQ(inked(), 0) << "no picture is chosen";
    EXPECT_TRUE(canApply());
}

TEST_F(FrmProperties, APictureIsDrawnThroughItsMaskAndAMissingOneIsNot) {
    QImage picture(10, 10, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QImage mask(10, 10, QImage::Format_RGB32);
    mask.fill(Qt::black);
    graph_.Series.AllowPen = false;
    graph_.Series.AllowMarker = true;
    graph_.Series.Marker.UsePicture = true;
    for (const char* kind : {"bmp", "jpg", "png"}) {
        const std::string path = directory_.file(std::string("picture.") + kind);
        ASSERT_TRUE(picture.save(QString::fromStdString(path)));
        graph_.Series.Marker.PicturePath = path;
        ASSERT_TRUE(mask.save(QString::fromStdString(directory_.file("mask.bmp"))));
        graph_.Series.Marker.MaskPicturePath = directory_.file("mask.bmp");
        open();
        EXPECT_EQ(inked(), 100) << kind;
    }
    check("chkMtrans");
    EXPECT_EQ(inked(), 100) << "through its mask whether transparent or not";
    box("txtMpicloc_1").setText("/nowhere.bmp");
    EXPECT_EQ(inked(), 0) << "one file that is missing draws nothing";
    check("chkMtrans");
    EXPECT_EQ(inked(), 0);
    EXPECT_TRUE(host_.boxes.empty());
}

TEST_F(FrmProperties, AGifIsAPictureToo) {
    // One red pixel.
    const QByteArray gif = QByteArray::fromBase64("R0lGODlhAQABAPAAAP8AAAAAACwAAAAAAQABAAACAkQBADs=");
    graph_.Series.AllowPen = false;
    graph_.Series.AllowMarker = true;
    graph_.Series.Marker.UsePicture = true;
    graph_.Series.Marker.AutoSize = 0;
    graph_.Series.Marker.SetPictureSize(6, 6);
    graph_.Series.Marker.PicturePath = directory_.write("red.gif", gif.toStdString());
    QImage mask(1, 1, QImage::Format_RGB32);
    mask.fill(Qt::black);
    ASSERT_TRUE(mask.save(QString::fromStdString(directory_.file("mask.bmp"))));
    graph_.Series.Marker.MaskPicturePath = directory_.file("mask.bmp");
    open();
    EXPECT_GE(inked(), 36) << "its edges may lie between pixels";
}

TEST_F(FrmProperties, TheFilePickerHasTheFiltersInOrder) {
    graph_.Series.AllowMarker = true;
    graph_.Series.Marker.UsePicture = true;
    open();
    host_.openAnswers = {"/pictures/two.gif", ""};
    click("cmdMpicloc_1");
    EXPECT_EQ(host_.openPicks[0].filter,
              "Bitmap Files (*.bmp) | *.bmp; |JPEG (*.JPG,*.JPEG) | *.jpg; *.jpeg; |GIF (*.GIF) | *.GIF; |"
              "All Picture Files | *.bmp; *.gif; *.jpg; *.jpeg; |All Files (*.*) | *.*");
    EXPECT_EQ(box("txtMpicloc_1").text(), "/pictures/two.gif");
    click("cmdMpicloc_1");
    EXPECT_EQ(box("txtMpicloc_1").text(), "/pictures/two.gif") << "a cancel changes nothing";
}

TEST_F(FrmProperties, OkAppliesOnlyChangesAndCancelDropsThem) {
    open();
    click("cmdOK");
    EXPECT_EQ(applied_, 0);
    EXPECT_FALSE(form_->isVisible());
    open();
    check("optLnone");
    click("cmdCancel");
    EXPECT_TRUE(graph_.Series.AllowPen);
    open();
    check("optLnone");
    click("cmdOK");
    EXPECT_EQ(applied_, 1);
    EXPECT_FALSE(graph_.Series.AllowPen);
}

TEST_F(FrmProperties, ACancelledColourChangesNothing) {
    open();
    host_.colourAnswers = {std::nullopt};
    click("picLcolor");
    EXPECT_EQ(host_.colourPicks[0], graph_.Series.Pen.FillColor);
    EXPECT_FALSE(canApply());
}

}  // namespace
}  // namespace zg
