// The small parts of forms on real controls: boxes, pickers of moments, directories.

#include "platform/FormParts.h"

#include <gtest/gtest.h>

#include <QTest>
#include <QVBoxLayout>

#include "platform/DirectoryBox.h"
#include "platform/FieldMarks.h"
#include "platform/Moments.h"
#include "processing/KeyFilters.h"
#include "tests/support/Places.h"
#include "tests/support/Raises.h"
#include "tests/support/TempDirectory.h"
#include "tests/support/TestHost.h"

namespace zg {
namespace {

TEST(FormParts, AnEnteredBoxTakesItsKeysAndGoesOnByEnter) {
    QWidget form;
    auto* layout = new QVBoxLayout(&form);
    QLineEdit* digits = enteredBox("txtDigits", KeyNumericInteger);
    QLineEdit* any = enteredBox("txtAny");
    layout->addWidget(digits);
    layout->addWidget(any);
    form.show();
    form.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    digits->setFocus();
    QTest::keyClicks(digits, "1a2");
    QTest::keyClick(digits, Qt::Key_Return);
    EXPECT_EQ(digits->text(), "12");
    EXPECT_TRUE(any->hasFocus());
    QTest::keyClicks(any, "a-b");
    EXPECT_EQ(any->text(), "a-b");
    EXPECT_EQ(any->objectName(), "txtAny");
}

TEST(FieldMarks, OnlyAMarkedFieldThatIsFilledBecomesClean) {
    QLineEdit box;
    EXPECT_FALSE(clearFilledMark(box, true)) << "there was no mark";
    MarkInvalid(box);
    EXPECT_FALSE(clearFilledMark(box, false));
    EXPECT_EQ(fieldMark(box), yellowMark);
    EXPECT_TRUE(clearFilledMark(box, true));
    EXPECT_EQ(fieldMark(box), cleanMark);
    MarkInvalid(box);
    DisableField(box);
    EXPECT_FALSE(clearFilledMark(box, true));
    EXPECT_EQ(fieldMark(box), darkYellowMark);
}

class Moments : public ::testing::Test {
 protected:
    std::unique_ptr<QDateEdit> date_{datePicker("DTPicker_Date")};
    std::unique_ptr<QTimeEdit> time_{timePicker("DTPicker_Time")};
};

TEST_F(Moments, OfEveryYearAreShownAndReadBack) {
    for (const int year : {100, 999, 1582, 1752, 1900, 2005, 9999}) {
        const DateTime moment = addSeconds(makeDate(year, 2, 28), 23 * 3600 + 59 * 60 + 58);
        showMoment(moment, *date_, *time_);
        EXPECT_EQ(momentIn(*date_, *time_), moment) << year;
        EXPECT_EQ(date_->date(), QDate(year, 2, 28));
    }
    EXPECT_EQ(time_->text(), "23:59:58");
    EXPECT_EQ(date_->text(), "9999-02-28");
}

TEST_F(Moments, ThatAreNoneAreErrorsAndShowNothing) {
    showMoment(makeDate(2005, 3, 7), *date_, *time_);
    EXPECT_RAISES(13, "Type mismatch", showDate({2005, 2, 29}, *date_));
    EXPECT_RAISES(6, "Overflow", showDate({99, 12, 31}, *date_));
    for (const TimeOfDay& time : {TimeOfDay{24, 0, 0}, {0, 60, 0}, {0, 0, 60}, {-1, 0, 0}})
        EXPECT_RAISES(13, "Type mismatch", showTime(time, *time_));
    time_->setMaximumTime(QTime(9, 6, 7));
    EXPECT_RAISES(6, "Overflow", showTime({9, 6, 8}, *time_));
    EXPECT_EQ(momentIn(*date_, *time_), makeDate(2005, 3, 7));
}

TEST_F(Moments, OfAStepLoseItsDays) {
    for (const auto& [seconds, text] :
         {std::pair{3600, "01:00:00"}, {86400, "00:00:00"}, {90061, "01:01:01"}}) {
        showStep(seconds, *time_);
        EXPECT_EQ(time_->text(), text);
    }
    EXPECT_RAISES(13, "Type mismatch", showStep(-1, *time_));
}

class DirectoryBox : public ::testing::Test {
 protected:
    std::string text() const { return box_.text().toStdString(); }
    void setText(const std::string& text) { box_.setText(QString::fromStdString(text)); }

    TempDirectory directory_;
    TestHost host_;
    QLineEdit box_;
};

TEST_F(DirectoryBox, EndsInOneSeparatorOnceItHasAText) {
    completeDirectory(box_);
    EXPECT_EQ(text(), "");
    for (const char* typed : {"/a", "/a/"}) {
        setText(typed);
        completeDirectory(box_);
        EXPECT_EQ(text(), nativePath("/a/"));
    }
}

TEST_F(DirectoryBox, TakesThePickedFolderAndKeepsItsOwnAfterACancel) {
    setText(" /a b ");
    host_.folderAnswers = {nativePath("/picked"), ""};
    browseDirectory(host_, box_, "Where?");
    EXPECT_EQ(host_.folderPicks.at(0).start, nativePath("/a b"));
    EXPECT_EQ(host_.folderPicks.at(0).title, "Where?");
    EXPECT_EQ(text(), nativePath("/picked/"));
    browseDirectory(host_, box_, "Where?");
    EXPECT_EQ(text(), nativePath("/picked/"));
}

TEST_F(DirectoryBox, KnowsWhetherAnotherOneThatExistsWasChosen) {
    const std::string here = directory_.file("");
    host_.folderAnswers = {here, here, nativePath("/no such directory"), ""};
    EXPECT_TRUE(browseOtherDirectory(host_, box_, "Where?"));
    EXPECT_FALSE(browseOtherDirectory(host_, box_, "Where?")) << "the same again";
    EXPECT_FALSE(browseOtherDirectory(host_, box_, "Where?"));
    EXPECT_FALSE(browseOtherDirectory(host_, box_, "Where?")) << "cancelled";
}

}  // namespace
}  // namespace zg
