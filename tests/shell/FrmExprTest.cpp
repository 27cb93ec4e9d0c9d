#include "shell/FrmExpr.h"

#include <gtest/gtest.h>

#include <QTest>
#include <filesystem>

#include "base/Paths.h"
#include "platform/Captions.h"
#include "tests/support/FormDriver.h"
#include "tests/support/FreshProgram.h"
#include "tests/support/TempDirectory.h"
#include "tests/support/TestHost.h"

namespace zg {
namespace {

class FrmExpr : public ::testing::Test, protected FormDriver {
 protected:
    void open(const std::string& file = "") {
        if (!file.empty()) directory_.write("expr.dat", file);
        form_ = std::make_unique<frmExpr>(host_);
        showActive(*form_);
    }
    QWidget& driven() override { return *form_; }
    QListWidget& list() { return *child<QListWidget>("lstExpr"); }
    QLineEdit& box() { return *child<QLineEdit>("txtExpr"); }
    void accept(const char* text) {
        box().selectAll();
        QTest::keyClicks(&box(), QString::fromLatin1(text));
        click("cmdOkExpr");
    }
    std::vector<std::string> rows() {
        std::vector<std::string> out;
        for (int row = 0; row < list().count(); ++row) out.push_back(list().item(row)->text().toStdString());
        return out;
    }

    FreshProgram program_;
    const TempDirectory& directory_ = program_.directory;
    TestHost host_;
    std::unique_ptr<frmExpr> form_;
};

using Rows = std::vector<std::string>;
const std::string twoRows = "\"Polar Graph 1.0\"\r\n\"sin(t)\"\r\n\"MathLib.pow(2,t)\"\r\n";

TEST_F(FrmExpr, WithoutAFileTheListIsEmpty) {
    open();
    EXPECT_EQ(list().count(), 0);
    EXPECT_EQ(spoken(child<QLabel>("lblMsg")->text()),
              "Select the expression would you like to used, then click OK.");
    EXPECT_TRUE(child("cmdAdd")->isEnabled());
    EXPECT_FALSE(child("cmdEdit")->isEnabled());
    EXPECT_FALSE(child("cmdRemov")->isEnabled());
    EXPECT_FALSE(child("fraTray")->isVisible());
}

TEST_F(FrmExpr, ReadsItsRecords) {
    open(twoRows);
    EXPECT_EQ(rows(), (Rows{"sin(t)", "MathLib.pow(2,t)"}));
    EXPECT_TRUE(child("cmdEdit")->isEnabled());
    EXPECT_TRUE(child("cmdRemov")->isEnabled());
    EXPECT_FALSE(form_->ExprDirty);
}

TEST_F(FrmExpr, AnUnquotedCommaPartsTwoRecords) {
    open("\"Polar Graph 1.0\"\r\nsin(t),cos(t)\r\n");
    EXPECT_EQ(rows(), (Rows{"sin(t)", "cos(t)"}));
}

TEST_F(FrmExpr, ADoubleQuoteWhichTheFileCannotHoldIsRefused) {
    open(twoRows);
    click("cmdAdd");
    host_.boxAnswers = {BoxAnswer::Ok};
    accept("len(\"ab\")");
    ASSERT_EQ(host_.boxes.size(), 1U);
    EXPECT_EQ(host_.boxes[0].text,
              "The list cannot keep a double quote (\"), so this expression cannot be added.");
    EXPECT_EQ(host_.boxes[0].title, "Add");
    EXPECT_EQ(list().count(), 2);
    EXPECT_EQ(box().text(), "len(\"ab\")") << "it can be mended";
}

TEST_F(FrmExpr, AFileOfAnotherKindGivesAnEmptyListAndNoMessage) {
    open("\"POLAR GRAPH 1.0\"\r\n\"sin(t)\"\r\n");
    EXPECT_EQ(list().count(), 0);
    EXPECT_TRUE(host_.boxes.empty());
}

TEST_F(FrmExpr, AddOpensTheStripGrowsTheFormAndLocksTheListButtons) {
    open(twoRows);
    const int before = form_->height();
    QTest::keyClick(form_.get(), Qt::Key_A, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return child("fraTray")->isVisible(); }));
    EXPECT_EQ(child<QGroupBox>("fraTray")->title(), "Add");
    EXPECT_EQ(spoken(child<QLabel>("lblPrompt")->text()), "Enter your expression:");
    EXPECT_TRUE(box().hasFocus());
    EXPECT_EQ(box().text(), "");
    EXPECT_GT(form_->height(), before);
    for (const char* name : {"cmdAdd", "cmdEdit", "cmdRemov", "cmdSave", "cmdOkExpr"})
        EXPECT_FALSE(child(name)->isEnabled()) << name;
    click("cmdCancelExpr");
    EXPECT_FALSE(child("fraTray")->isVisible());
    EXPECT_EQ(form_->height(), before);
    for (const char* name : {"cmdAdd", "cmdEdit", "cmdRemov", "cmdSave"})
        EXPECT_TRUE(child(name)->isEnabled()) << name;
}

TEST_F(FrmExpr, EscapeClosesTheStripFirst) {
    open(twoRows);
    click("cmdAdd");
    QTest::keyClick(&box(), Qt::Key_Escape);
    EXPECT_FALSE(child("fraTray")->isVisible());
    EXPECT_TRUE(form_->isVisible());
    EXPECT_TRUE(list().hasFocus());
    QTest::keyClick(&list(), Qt::Key_Escape);
    EXPECT_FALSE(form_->isVisible());
}

TEST_F(FrmExpr, EnterOnAButtonPressesThatButton) {
    open(twoRows);
    child("cmdCancel")->setFocus();
    QTest::keyClick(child("cmdCancel"), Qt::Key_Return);
    EXPECT_FALSE(form_->isVisible());
    EXPECT_EQ(form_->result(), QDialog::Rejected);
}

TEST_F(FrmExpr, AnAddedExpressionIsTrimmedAndTheStripStays) {
    open();
    click("cmdAdd");
    accept("  2*cos(t) ");
    EXPECT_EQ(rows(), Rows{"2*cos(t)"});
    EXPECT_EQ(box().text(), "");
    EXPECT_TRUE(child("fraTray")->isVisible());
    EXPECT_TRUE(form_->ExprDirty);
}

TEST_F(FrmExpr, BlanksAloneAreDropped) {
    open();
    click("cmdAdd");
    accept("   ");
    EXPECT_EQ(list().count(), 0);
    EXPECT_EQ(box().text(), "   ");
}

TEST_F(FrmExpr, AFaultIsToldAndNothingIsForgiven) {
    open();
    click("cmdAdd");
    host_.boxAnswers = {BoxAnswer::Ok, BoxAnswer::Ok};
    accept("1/t");
    EXPECT_EQ(host_.boxes[0].text, "Division by zero");
    EXPECT_EQ(host_.boxes[0].title, "Error");
    EXPECT_EQ(host_.boxes[0].icon, BoxIcon::Information);
    accept("sin(");
    EXPECT_EQ(host_.boxes[1].text, "Syntax error");
    EXPECT_EQ(list().count(), 0);
    EXPECT_TRUE(child("fraTray")->isVisible());
}

TEST_F(FrmExpr, BlanksAndCaseMakeNoOtherExpression) {
    open(twoRows);
    click("cmdAdd");
    host_.boxAnswers = {BoxAnswer::Ok};
    accept("Sin ( t )");
    EXPECT_EQ(host_.boxes[0].text, "Expression already exist!");
    EXPECT_EQ(host_.boxes[0].title, "Add");
    EXPECT_EQ(list().count(), 2);
}

TEST_F(FrmExpr, EditTakesTheLastRowWithoutASelectionAndReplacesInPlace) {
    open(twoRows);
    list().clearSelection();
    click("cmdEdit");
    EXPECT_EQ(child<QGroupBox>("fraTray")->title(), "Edit");
    EXPECT_EQ(spoken(child<QLabel>("lblPrompt")->text()), "Enter your new expression:");
    EXPECT_EQ(box().text(), "MathLib.pow(2,t)");
    host_.boxAnswers = {BoxAnswer::Ok};
    click("cmdOkExpr");
    EXPECT_EQ(host_.boxes[0].text, "Expression already exist!") << "its own text too";
    EXPECT_EQ(host_.boxes[0].title, "Edit");
    list().setCurrentRow(0);
    EXPECT_EQ(box().text(), "sin(t)");
    accept("cos(t)");
    EXPECT_EQ(rows(), (Rows{"cos(t)", "MathLib.pow(2,t)"}));
    EXPECT_TRUE(list().item(0)->isSelected());
}

TEST_F(FrmExpr, RemovingTheLastRowDisablesEditAndRemove) {
    open("\"Polar Graph 1.0\"\r\n\"t\"\r\n");
    click("cmdRemov");
    EXPECT_EQ(list().count(), 1) << "nothing is selected";
    list().setCurrentRow(0);
    host_.boxAnswers = {BoxAnswer::No, BoxAnswer::Yes};
    click("cmdRemov");
    EXPECT_EQ(list().count(), 1);
    EXPECT_EQ(host_.boxes[0].text, "Are you sure?");
    EXPECT_EQ(host_.boxes[0].title, "Remove");
    EXPECT_EQ(host_.boxes[0].icon, BoxIcon::Question);
    EXPECT_EQ(host_.boxes[0].buttons, BoxButtons::YesNo);
    click("cmdRemov");
    EXPECT_EQ(list().count(), 0);
    EXPECT_FALSE(child("cmdEdit")->isEnabled());
    EXPECT_FALSE(child("cmdRemov")->isEnabled());
    EXPECT_TRUE(form_->ExprDirty);
}

TEST_F(FrmExpr, SaveWritesTheRecordsByteForByte) {
    open(twoRows);
    click("cmdAdd");
    accept("3*t");
    click("cmdCancelExpr");
    click("cmdSave");
    EXPECT_EQ(directory_.read("expr.dat"), twoRows + "\"3*t\"\r\n");
    EXPECT_FALSE(form_->ExprDirty);
}

TEST_F(FrmExpr, UnsavedRowsAreLostSilently) {
    open(twoRows);
    click("cmdAdd");
    accept("3*t");
    click("cmdCancel");
    EXPECT_EQ(directory_.read("expr.dat"), twoRows);
    EXPECT_EQ(form_->SelectedExpression, "");
}

TEST_F(FrmExpr, OkGivesTheSelectedRowOrNothing) {
    open(twoRows);
    click("cmdOk");
    EXPECT_EQ(form_->SelectedExpression, "");
    open(twoRows);
    list().setCurrentRow(1);
    click("cmdOk");
    EXPECT_EQ(form_->SelectedExpression, "MathLib.pow(2,t)");
    EXPECT_FALSE(form_->isVisible());
}

TEST_F(FrmExpr, AFileThatCannotBeWrittenIsNoMessageAndStaysDirty) {
    open();
    click("cmdAdd");
    accept("3*t");
    click("cmdCancelExpr");
    std::filesystem::create_directory(directory_.file("expr.dat"));
    click("cmdSave");
    EXPECT_TRUE(host_.boxes.empty());
    EXPECT_TRUE(form_->ExprDirty);
}

}  // namespace
}  // namespace zg
