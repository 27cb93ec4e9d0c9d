// Marks, key filters, pickers and list moves on real controls.

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QGroupBox>
#include <QInputMethodEvent>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

#include "base/Paths.h"
#include "headers/Zones.h"
#include "platform/Captions.h"
#include "platform/Combos.h"
#include "platform/FieldMarks.h"
#include "platform/KeyFilter.h"
#include "platform/ListMoves.h"
#include "platform/Pickers.h"
#include "platform/QtText.h"
#include "platform/ReadText.h"
#include "processing/KeyFilters.h"
#include "tests/support/Places.h"
#include "tests/support/Raises.h"
#include "tests/support/TempDirectory.h"
#include "tests/support/TestHost.h"

namespace zg {
namespace {

TEST(FieldMarks, AMarkIsYellowWithBlackText) {
    QLineEdit box;
    MarkInvalid(box);
    EXPECT_EQ(fromQColor(box.palette().color(QPalette::Base)), 65535U);
    EXPECT_EQ(box.palette().color(QPalette::Text), QColor(Qt::black));
    ClearInvalid(box);
    EXPECT_EQ(fieldMark(box), cleanMark);
    EXPECT_EQ(box.palette().color(QPalette::Base), QApplication::palette().color(QPalette::Base));
}

TEST(FieldMarks, AMarkSurvivesADisabledFieldInADarkerYellow) {
    QLineEdit box;
    MarkInvalid(box);
    DisableField(box);
    EXPECT_FALSE(box.isEnabled());
    EXPECT_EQ(fieldMark(box), 49344U);
    EnableField(box);
    EXPECT_TRUE(box.isEnabled());
    EXPECT_EQ(fieldMark(box), yellowMark);
}

TEST(FieldMarks, AnUnmarkedFieldIsFaceColouredWhileDisabledAndCleanAfterwards) {
    QDateTimeEdit picker;
    DisableField(picker);
    EXPECT_EQ(fieldMark(picker), buttonFaceColour);
    EnableField(picker);
    EXPECT_EQ(fieldMark(picker), cleanMark);
}

TEST(FieldMarks, ClearingWhenFilledTrimsTheText) {
    QLineEdit box;
    MarkInvalid(box);
    ClearInvalidIfFilled(box);
    EXPECT_EQ(fieldMark(box), yellowMark) << "an empty field keeps its mark";
    box.setText("  a ");
    ClearInvalidIfFilled(box);
    EXPECT_EQ(fieldMark(box), cleanMark);
    EXPECT_EQ(box.text(), "a");
}

TEST(FieldMarks, DatesAndListsAreFilledByWhatTheyShow) {
    QDateTimeEdit picker;
    MarkInvalid(picker);
    ClearInvalidIfFilled(picker);
    EXPECT_EQ(fieldMark(picker), cleanMark);
    QListWidget list;
    MarkInvalid(list);
    ClearInvalidIfFilled(list);
    EXPECT_EQ(fieldMark(list), yellowMark) << "no row is current";
    list.addItem("a");
    list.setCurrentRow(0);
    ClearInvalidIfFilled(list);
    EXPECT_EQ(fieldMark(list), cleanMark);
}

TEST(Captions, AreSpokenWithoutTheirAccelerator) {
    EXPECT_EQ(spoken("f(&t) = "), "f(t) =");
    EXPECT_EQ(spoken("Wind Speed Class &1:"), "Wind Speed Class 1:");
}

TEST(Captions, WidthsFollowTheFont) {
    QLineEdit box;
    const int usual = digitsWide(box, 10);
    EXPECT_GT(usual, box.fontMetrics().horizontalAdvance("0000000000"));
    QFont large = box.font();
    large.setPointSizeF(large.pointSizeF() * 2);
    box.setFont(large);
    EXPECT_GT(digitsWide(box, 10), usual * 3 / 2);
    EXPECT_EQ(windowSize(box, 1000).width(), digitsWide(box, 1000));
    EXPECT_EQ(windowSize(box, 1), box.sizeHint()) << "never smaller than what it holds";
}

TEST(EnterKey, DoesInAFieldWhatTabDoes) {
    QWidget form;
    QLineEdit first(&form);
    QLabel label(&form);
    QPushButton disabled(&form);
    QLineEdit second(&form);
    disabled.setEnabled(false);
    enterIsTab(first);
    form.show();
    form.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        first.setFocus();
        QTest::keyClick(&first, key);
        EXPECT_TRUE(second.hasFocus()) << "labels and what is disabled are passed by";
    }
}

TEST(FieldMarks, AMarkedFrameHasBlackLabelsAndLeavesItsFieldsAlone) {
    QGroupBox frame;
    QLabel label(&frame);
    QLineEdit box(&frame);
    MarkInvalid(frame);
    EXPECT_TRUE(frame.autoFillBackground());
    EXPECT_EQ(fromQColor(frame.palette().color(QPalette::Window)), yellowMark);
    EXPECT_EQ(label.palette().color(QPalette::WindowText), QColor(Qt::black));
    EXPECT_EQ(box.palette().color(QPalette::Base), QApplication::palette().color(QPalette::Base));
    DisableField(frame);
    EXPECT_TRUE(frame.autoFillBackground()) << "the darker yellow is seen too";
    EnableField(frame);
    ClearInvalid(frame);
    EXPECT_FALSE(frame.autoFillBackground());
}

TEST(FieldMarks, MarksAreSeenWithBlackTextOnADarkTheme) {
    const QPalette before = QApplication::palette();
    QPalette dark = before;
    dark.setColor(QPalette::Base, QColor(20, 20, 20));
    dark.setColor(QPalette::Text, Qt::white);
    QApplication::setPalette(dark);
    QLineEdit box;
    QListWidget list;
    QDateTimeEdit picker;
    for (QWidget* field :
         {static_cast<QWidget*>(&box), static_cast<QWidget*>(&list), static_cast<QWidget*>(&picker)}) {
        MarkInvalid(*field);
        EXPECT_EQ(field->palette().color(QPalette::Text), QColor(Qt::black));
        DisableField(*field);
        EXPECT_EQ(fromQColor(field->palette().color(QPalette::Disabled, QPalette::Base)), 49344U);
        EXPECT_EQ(field->palette().color(QPalette::Disabled, QPalette::Text), QColor(Qt::black));
        EnableField(*field);
        ClearInvalid(*field);
        EXPECT_NE(field->palette().color(QPalette::Text), field->palette().color(QPalette::Base));
        EXPECT_EQ(field->palette().color(QPalette::Base), dark.color(QPalette::Base));
    }
    QApplication::setPalette(before);
}

TEST(FieldMarks, StatesAreSetInGroups) {
    QPushButton plain;
    QPushButton otherPlain;
    otherPlain.setEnabled(false);
    QLineEdit field;
    QComboBox otherField;
    MarkInvalid(field);
    DisableField(otherField);
    QWidget* const plainOff[] = {&plain};
    QWidget* const fieldsOff[] = {&field};
    QWidget* const plainOn[] = {&otherPlain};
    QWidget* const fieldsOn[] = {&otherField};
    SetFieldStates(plainOff, fieldsOff, plainOn, fieldsOn);
    EXPECT_FALSE(plain.isEnabled());
    EXPECT_EQ(fieldMark(field), darkYellowMark);
    EXPECT_TRUE(otherPlain.isEnabled());
    EXPECT_EQ(fieldMark(otherField), cleanMark);
}

TEST(FieldMarks, AControlInTwoGroupsTakesTheLast) {
    QLineEdit field;
    QWidget* const same[] = {&field};
    SetFieldStates({}, same, {}, same);
    EXPECT_TRUE(field.isEnabled());
}

struct Filter {
    const char* name;
    std::int16_t (*function)(std::int16_t);
    const char* passes;
};

class KeyFilters : public ::testing::TestWithParam<Filter> {};

TEST_P(KeyFilters, LetOnlyTheirCharactersBeTyped) {
    QLineEdit box;
    filterKeys(box, GetParam().function);
    QTest::keyClicks(&box, "a1-2.3,4 x");
    EXPECT_EQ(box.text(), GetParam().passes);
    QTest::keyClick(&box, Qt::Key_Backspace);
    EXPECT_EQ(box.text().length(), QString(GetParam().passes).length() - 1);
}

INSTANTIATE_TEST_SUITE_P(All, KeyFilters,
                         ::testing::Values(Filter{"Positive", KeyNumericPositive, "12.34"},
                                           Filter{"Integer", KeyNumericInteger, "1234"},
                                           Filter{"Signed", KeyNumericSigned, "1-2.34"},
                                           Filter{"Heights", KeyNumericHeights, "12.3,4"}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(KeyFilter, TheDeleteKeyWorksThoughItComesWithACharacter) {
    QLineEdit box("12");
    filterKeys(box, KeyNumericInteger);
    box.setCursorPosition(0);
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier, QStringLiteral("\x7f"));
    QApplication::sendEvent(&box, &press);
    EXPECT_EQ(box.text(), "2");
}

TEST(KeyFilter, CharactersOfTheAltGrKeyAreFilteredToo) {
    QLineEdit box;
    filterKeys(box, KeyNumericInteger);
    QKeyEvent press(QEvent::KeyPress, Qt::Key_At, Qt::ControlModifier | Qt::AltModifier, QStringLiteral("@"));
    QApplication::sendEvent(&box, &press);
    EXPECT_EQ(box.text(), "");
}

TEST(KeyFilter, CharactersOfAnInputMethodAreFilteredToo) {
    QLineEdit box;
    filterKeys(box, KeyNumericInteger);
    QInputMethodEvent composed;
    composed.setCommitString(QStringLiteral("1a2"));
    QApplication::sendEvent(&box, &composed);
    EXPECT_EQ(box.text(), "12");
}

TEST(KeyFilter, PastedTextGoesInAsItIs) {
    QLineEdit box;
    filterKeys(box, KeyNumericInteger);
    QApplication::clipboard()->setText("a-b");
    QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
    box.paste();
    EXPECT_EQ(box.text(), "a-ba-b");
}

TEST(KeyFilter, TheLastFunctionCounts) {
    QLineEdit box;
    filterKeys(box, KeyNumericInteger);
    filterKeys(box, KeyNumericSigned);
    QTest::keyClicks(&box, "-1");
    EXPECT_EQ(box.text(), "-1");
}

TEST(Pickers, ThePickerOfOneFileStartsWithoutAName) {
    TestHost host;
    host.openAnswers = {"/a/b.dat"};
    EXPECT_EQ(ShowFileOpen(host, "Data|*.dat", 2, "/a"), "/a/b.dat");
    EXPECT_EQ(host.openPicks[0].filterIndex, 2);
    EXPECT_EQ(host.openPicks[0].directory, "/a");
    EXPECT_EQ(host.openPicks[0].fileName, "");
}

TEST(Pickers, SeveralFilesGoToTheListAsFullPaths) {
    TestHost host;
    QListWidget list;
    std::string dir = "/start";
    host.filesAnswers = {{nativePath("/data/a.dat"), nativePath("/data/b.dat")}, {}};
    SelectFiles(host, list, dir, "Data|*.dat");
    EXPECT_EQ(host.filesPicks[0].title, "Select Files");
    EXPECT_EQ(host.filesPicks[0].directory, "/start");
    ASSERT_EQ(list.count(), 2);
    EXPECT_EQ(list.item(1)->text().toStdString(), nativePath("/data/b.dat"));
    EXPECT_EQ(dir, nativePath("/data"));
    SelectFiles(host, list, dir, "Data|*.dat");
    EXPECT_EQ(list.count(), 2) << "a cancel changes nothing";
    EXPECT_EQ(dir, nativePath("/data"));
}

TEST(Pickers, AFolderThatIsNotPickedIsTheOneToStartFrom) {
    TestHost host;
    host.folderAnswers = {"/new", ""};
    EXPECT_EQ(BrowseForFolder(host, "/start", "Choose", -1), "/new");
    EXPECT_FALSE(host.folderPicks[0].offerNewFolder);
    EXPECT_EQ(BrowseForFolder(host, "/start", "Choose", 1), "/start");
    EXPECT_TRUE(host.folderPicks[1].offerNewFolder);
}

TEST(TimeZoneBoxes, HoldAllLabelsInTheTablesOrder) {
    timeZones = TimeZoneTable();
    applicationDirectory = ZG_SOURCE_DIR "/data";
    QComboBox box;
    FillTimeZones(box);
    ASSERT_EQ(box.count(), 63);
    EXPECT_EQ(box.itemText(0), "(UTC+00:00) Azores, Cape Verde Island");
    EXPECT_EQ(box.itemText(2), "(UTC+03:00) Baghdad, Kuwait, Riyadh");
    EXPECT_EQ(box.itemText(62), "(UTC-12:00) Eniwetok, Kwajalein");
    timeZones = TimeZoneTable();
}

TEST(TimeZoneBoxes, AMissingTableIsTheSystemsError) {
    const TempDirectory directory;
    timeZones = TimeZoneTable();
    applicationDirectory = directory.path();
    QComboBox box;
    EXPECT_RAISES(53, "File not found", FillTimeZones(box));
}

TEST(ReadTexts, ComeBackInTheBytesOfTheirFileUntilAnotherIsTyped) {
    for (const std::string& bytes : {std::string("\xC9t\xE9"), std::string("\xC3\x89t\xC3\xA9")}) {
        QLineEdit box;
        showRead(box, bytes);
        EXPECT_EQ(box.text(), QString::fromUtf8("\xC3\x89t\xC3\xA9"));
        EXPECT_EQ(readOrTyped(box), bytes);
        box.setText(QString::fromUtf8("\xC3\xA9"));
        EXPECT_EQ(readOrTyped(box), "\xE9");
        showPath(box, "/" + bytes);
        EXPECT_EQ(pathIn(box), "/" + bytes);
        box.setText(QString::fromUtf8("/\xC3\xA9"));
        EXPECT_EQ(pathIn(box), nativePath("/\xC3\xA9")) << "as the file system has it";
    }
    QComboBox combo;
    combo.setEditable(true);
    addRead(combo, "\xC9");
    addRead(combo, "\xC3\x89");
    combo.setCurrentIndex(1);
    EXPECT_EQ(readOrTyped(combo), "\xC3\x89") << "of two that look the same the one that was picked";
    combo.setEditText(QString::fromUtf8("\xC3\xA9"));
    EXPECT_EQ(readOrTyped(combo), "\xE9") << "letter case counts";
    combo.setEditText("x");
    combo.setCurrentIndex(-1);
    combo.setEditText(QString::fromUtf8("\xC3\x89"));
    EXPECT_EQ(readOrTyped(combo), "\xC9") << "typed as the list has it";
}

TEST(ListMovesOnLists, KeepTheBytesOfTheRows) {
    QListWidget list;
    list.setSelectionMode(QAbstractItemView::ExtendedSelection);
    for (const char* row : {"/a", "/\xC9", "/\xC3\x89"}) addRead(list, row);
    list.item(2)->setSelected(true);
    ListMoveUp(list);
    EXPECT_EQ(readIn(*list.item(1)), "/\xC3\x89");
    EXPECT_EQ(readIn(*list.item(2)), "/\xC9");
}

TEST(ListMovesOnLists, MoveTheSelectedRowsAndKeepThemSelected) {
    QListWidget list;
    list.setSelectionMode(QAbstractItemView::ExtendedSelection);
    list.addItems({"a", "b", "c", "d"});
    list.item(1)->setSelected(true);
    list.item(2)->setSelected(true);
    ListMoveUp(list);
    EXPECT_EQ(list.item(0)->text(), "b");
    EXPECT_EQ(list.item(2)->text(), "a");
    EXPECT_TRUE(list.item(0)->isSelected());
    EXPECT_TRUE(list.item(1)->isSelected());
    ListMoveUp(list);
    EXPECT_EQ(list.item(0)->text(), "b") << "the end stops the block";
    ListMoveDown(list);
    EXPECT_EQ(list.item(1)->text(), "b");
    ListRemoveSelected(list);
    EXPECT_EQ(list.count(), 2);
    EXPECT_EQ(list.item(0)->text(), "a");
}

}  // namespace
}  // namespace zg
