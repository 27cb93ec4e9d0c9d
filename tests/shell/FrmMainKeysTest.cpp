// The usual keys, wherever in the main window the keyboard is.

#include <gtest/gtest.h>

#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QLineEdit>
#include <filesystem>

#include "platform/PolarGraphWidget.h"
#include "tests/shell/MainWindow.h"

namespace zg {
namespace {

class FrmMainKeys : public ActiveMainWindow {
 protected:
    /// Every control that takes keys.
    std::vector<QWidget*> places() {
        return {child("picGraph"), child("txtCoefficient"), child<QComboBox>("cmbFunction")->lineEdit(),
                child("lvwTable"), child("tblToolbox_Arrow")};
    }
    void press(QWidget& place, Qt::Key key) {
        place.setFocus();
        QTest::keyClick(&place, key, Qt::ControlModifier);
    }
    static QClipboard& clipboard() { return *QGuiApplication::clipboard(); }
};

TEST_F(FrmMainKeys, SaveAndPrintWorkEverywhere) {
    int asked = 0;
    window_->controls().pgPolarGraph->askPrinter = [&asked](QPrinter&) {
        ++asked;
        return false;
    };
    int saved = 0;
    for (QWidget* place : places()) {
        const std::string path = directory_.file("page" + std::to_string(++saved) + ".bmp");
        host_.saveAnswers = {path};
        press(*place, Qt::Key_S);
        EXPECT_TRUE(std::filesystem::exists(path)) << place->objectName().toStdString();
        press(*place, Qt::Key_P);
        EXPECT_EQ(asked, saved) << place->objectName().toStdString();
    }
    EXPECT_EQ(box("txtCoefficient").text(), "");
}

TEST_F(FrmMainKeys, CopyTakesTheSelectionOfThePage) {
    clipboard().setText(QStringLiteral("before"));
    press(*child("picGraph"), Qt::Key_C);
    EXPECT_EQ(clipboard().text(), "before") << "nothing is selected";
    for (const char* place : {"picGraph", "lvwTable"}) {
        clipboard().clear();
        entry("mnuEditOption_1").trigger();
        press(*child(place), Qt::Key_C);
        EXPECT_EQ(clipboard().image().size(), QSize(600, 600)) << place;
    }
}

TEST_F(FrmMainKeys, InATextBoxCopyAndSelectAllAreForItsText) {
    entry("mnuEditOption_1").trigger();
    window_->pressTool(Tool::Select);
    ASSERT_TRUE(plot().ActiveSelection());
    for (QLineEdit* text : {&box("txtCoefficient"), child<QComboBox>("cmbFunction")->lineEdit()}) {
        clipboard().clear();
        text->setText(QStringLiteral("a=4"));
        press(*text, Qt::Key_A);
        EXPECT_EQ(text->selectedText(), "a=4");
        press(*text, Qt::Key_C);
        EXPECT_EQ(clipboard().text(), "a=4");
        EXPECT_TRUE(clipboard().image().isNull());
    }
}

TEST_F(FrmMainKeys, WhileACurveIsDrawnTheKeysDoNothing) {
    bool free = false;
    plot().events.DrawBegin(free);
    for (const Qt::Key key : {Qt::Key_O, Qt::Key_S, Qt::Key_P, Qt::Key_C}) press(*child("picGraph"), key);
    EXPECT_TRUE(host_.openPicks.empty());
    EXPECT_TRUE(host_.savePicks.empty());
}

}  // namespace
}  // namespace zg
