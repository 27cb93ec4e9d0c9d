#include "shell/FrmError.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <QTimer>

#include "platform/Captions.h"

namespace zg {
namespace {

class ErrorDialog : public ::testing::Test {
 protected:
    void TearDown() override {
        while (QApplication::overrideCursor() != nullptr) QApplication::restoreOverrideCursor();
    }

    /// Shows the dialog and operates it; it is closed afterwards in any case.
    void show(const QString& modType, const std::function<void()>& act) {
        QTimer::singleShot(0, &form_, [this, act] {
            EXPECT_EQ(QApplication::activeModalWidget(), &form_);
            act();
            form_.reject();
        });
        form_.ShowError("what happened", modType);
    }

    QPushButton* button(const char* name) { return form_.findChild<QPushButton*>(QLatin1String(name)); }
    void press(const char* name) { QTest::mouseClick(button(name), Qt::LeftButton); }

    frmError form_;
};

TEST_F(ErrorDialog, ARunCannotBeUnchecked) {
    show("RUN", [this] {
        EXPECT_EQ(form_.findChild<QLabel*>("lblDescr")->text(), "what happened");
        EXPECT_EQ(button("cmdDisable")->text(), "Cannot Disable Error Checking When Trying to Run");
        EXPECT_FALSE(button("cmdDisable")->isEnabled());
    });
    EXPECT_EQ(form_.gsModType, "RUN");
}

TEST_F(ErrorDialog, AnythingElseCan) {
    show("run", [this] {
        EXPECT_EQ(spoken(button("cmdDisable")->text()), "Disable Error Checking");
        EXPECT_TRUE(button("cmdDisable")->isEnabled());
        press("cmdDisable");
        EXPECT_FALSE(form_.isVisible());
    });
    EXPECT_EQ(QApplication::overrideCursor(), nullptr) << "there was no hourglass to put back";
}

TEST_F(ErrorDialog, DisablingPutsTheHourglassBack) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
    show("", [this] {
        EXPECT_EQ(QApplication::overrideCursor(), nullptr) << "the pointer is the default while it asks";
        press("cmdDisable");
    });
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
}

TEST_F(ErrorDialog, OkOnlyCloses) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
    show("", [this] {
        press("cmdOK");
        EXPECT_FALSE(form_.isVisible());
    });
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

}  // namespace
}  // namespace zg
