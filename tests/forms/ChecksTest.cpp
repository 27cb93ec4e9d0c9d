// The checks themselves, on dialogs with exactly one fault.

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>

#include "tests/forms/Checks.h"
#include "tests/forms/Looks.h"

namespace zg {
namespace {

/// A box with a label above a default button.
class ChecksOfForms : public ::testing::Test {
 protected:
    ChecksOfForms() {
        box_->setObjectName("box");
        button_->setObjectName("button");
        label_->setObjectName("label");
        label_->setBuddy(box_);
        button_->setDefault(true);
        rows_ = new QVBoxLayout(&dialog_);
        for (QWidget* each :
             {static_cast<QWidget*>(label_), static_cast<QWidget*>(box_), static_cast<QWidget*>(button_)})
            rows_->addWidget(each);
    }
    ~ChecksOfForms() override { resetLooks(); }

    std::string faults(Findings (*check)(const QWidget&)) {
        dialog_.show();
        QCoreApplication::processEvents();
        std::string lines;
        for (const Finding& found : check(dialog_)) lines += found.control + " " + found.fault + "\n";
        return lines;
    }
    std::string faultsOfColours() {
        dialog_.show();
        std::string lines;
        for (const Finding& found : checkColours(dialog_)) lines += found.control + " " + found.fault + "\n";
        return lines;
    }

    QDialog dialog_;
    QLabel* label_ = new QLabel("&Name:");
    QLineEdit* box_ = new QLineEdit;
    QPushButton* button_ = new QPushButton("&Go");
    QVBoxLayout* rows_ = nullptr;
};

TEST_F(ChecksOfForms, PassAFormWithoutFaults) {
    EXPECT_EQ(faults(checkNames), "");
    EXPECT_EQ(faults(checkAccelerators), "");
    EXPECT_EQ(faults(checkToolTips), "");
    EXPECT_EQ(faults(checkTabOrder), "");
    EXPECT_EQ(faults(checkEnter), "");
    EXPECT_EQ(faults(checkRoom), "");
    EXPECT_EQ(faultsOfColours(), "");
}

TEST_F(ChecksOfForms, FindABoxWithoutAName) {
    label_->setBuddy(nullptr);
    EXPECT_EQ(faults(checkNames), "box has no name for screen readers\n");
}

TEST_F(ChecksOfForms, FindTwoOfOneName) {
    box_->setAccessibleName("Go");
    EXPECT_EQ(faults(checkNames), "button has the same spoken name as box: Go\n");
}

TEST_F(ChecksOfForms, FindAnAcceleratorThatIsSpoken) {
    box_->setAccessibleName("&Name");
    EXPECT_EQ(faults(checkNames), "box has an accelerator in its spoken name: &Name\n");
}

TEST_F(ChecksOfForms, FindALabelWithoutAnAccelerator) {
    label_->setText("Name:");
    EXPECT_EQ(faults(checkAccelerators), "box has no accelerator\n");
}

TEST_F(ChecksOfForms, FindALabelOfNoControl) {
    label_->setBuddy(nullptr);
    EXPECT_EQ(faults(checkAccelerators), "box has no accelerator\nlabel is a label of no control\n");
}

TEST_F(ChecksOfForms, FindAnAcceleratorThatIsTaken) {
    label_->setText("&Group:");
    EXPECT_EQ(faults(checkAccelerators), "button Alt+G is already that of label: &Group: / &Go\n");
}

TEST_F(ChecksOfForms, FindALabelWhoseKeyGoesNowhere) {
    dialog_.show();
    dialog_.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog_));
    EXPECT_TRUE(checkLabelKeys(dialog_).empty());
    box_->setFocusPolicy(Qt::NoFocus);
    const Findings found = checkLabelKeys(dialog_);
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].control + ' ' + found[0].fault, "label does not take the keyboard to its control");
}

TEST_F(ChecksOfForms, FindAButtonWithoutWords) {
    button_->setText("...");
    EXPECT_EQ(faults(checkToolTips), "button has neither a caption nor a tool tip\n");
    button_->setToolTip("Goes");
    EXPECT_EQ(faults(checkToolTips), "");
}

TEST_F(ChecksOfForms, FindTabGoingBackwards) {
    rows_->removeWidget(button_);
    rows_->insertWidget(0, button_);
    EXPECT_EQ(faults(checkTabOrder), "button is read before box but Tab comes to it after\n");
}

TEST_F(ChecksOfForms, FindTabComingBackToAFrame) {
    auto* frame = new QGroupBox("Frame");
    auto* first = new QLineEdit;
    auto* second = new QLineEdit;
    second->setObjectName("second");
    auto* inFrame = new QVBoxLayout(frame);
    inFrame->addWidget(first);
    inFrame->addWidget(second);
    rows_->insertWidget(2, frame);
    dialog_.show();
    QWidget::setTabOrder(first, button_);
    QWidget::setTabOrder(button_, second);
    EXPECT_EQ(faults(checkTabOrder),
              "second is read before button but Tab comes to it after\n"
              "second lies in a frame that Tab has been in before\n");
}

TEST_F(ChecksOfForms, FindButtonsThatEnterPassesBy) {
    button_->setDefault(false);
    button_->setAutoDefault(false);
    dialog_.setObjectName("dialog");
    EXPECT_EQ(faults(checkEnter),
              "dialog has no default button\nbutton is not pressed by Enter while it has the focus\n");
}

TEST_F(ChecksOfForms, FindTextsThatAreCutOff) {
    label_->setFixedWidth(12);
    EXPECT_EQ(faults(checkRoom).rfind("label the width is 12 and should be ", 0), 0U);
    label_->setMinimumWidth(0);
    label_->setMaximumWidth(1000);
    label_->setText("A text of several words that goes on in the next line where the dialog is narrow");
    label_->setWordWrap(true);
    label_->setFixedSize(60, 20);
    EXPECT_EQ(faults(checkRoom).rfind("label the height is 20 and should be ", 0), 0U);
}

TEST_F(ChecksOfForms, FindABoxTooSmallForItsNumber) {
    box_->setText("1234567890");
    box_->setFixedWidth(60);
    EXPECT_EQ(faults(checkRoom).rfind("box the width is 60 and should be ", 0), 0U);
}

TEST_F(ChecksOfForms, FindControlsOverEachOther) {
    auto* free = new QPushButton("Free", &dialog_);
    free->setObjectName("free");
    dialog_.show();
    free->adjustSize();
    free->move(box_->pos());
    free->show();
    EXPECT_NE(faults(checkRoom).find("overlaps"), std::string::npos);
    free->move(dialog_.width() - 5, 0);
    EXPECT_NE(faults(checkRoom).find("free sticks out"), std::string::npos);
}

TEST_F(ChecksOfForms, FindFaintTexts) {
    QPalette faint;
    faint.setColor(QPalette::WindowText, QColor(150, 150, 150));
    faint.setColor(QPalette::Window, Qt::white);
    label_->setPalette(faint);
    label_->setAutoFillBackground(true);
    EXPECT_EQ(faultsOfColours().rfind("label #969696 on #ffffff, 1 to 2.9", 0), 0U) << faultsOfColours();
}

TEST_F(ChecksOfForms, FindIconsThatAreHardlySeen) {
    auto* tool = new QToolButton;
    tool->setObjectName("tool");
    rows_->addWidget(tool);
    QPixmap icon(16, 16);
    icon.fill(QColor(220, 220, 220));
    tool->setIcon(icon);
    EXPECT_EQ(faultsOfColours(), "tool has an icon that is hardly seen\n");
    icon.fill(Qt::black);
    tool->setIcon(icon);
    EXPECT_EQ(faultsOfColours(), "");
}

}  // namespace
}  // namespace zg
