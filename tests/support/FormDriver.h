#pragma once

#include <gtest/gtest.h>

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QWidget>
#include <string>

/// Operates a form through its controls, which it finds by their objectNames.
class FormDriver {
 public:
    virtual ~FormDriver() = default;

 protected:
    /// The form at hand.
    virtual QWidget& driven() = 0;

    template <typename Control = QWidget>
    Control* child(const char* name) {
        return driven().findChild<Control*>(QString::fromLatin1(name));
    }
    QLineEdit& box(const char* name) { return *child<QLineEdit>(name); }
    void click(const char* name) { QTest::mouseClick(child(name), Qt::LeftButton); }
    std::string status() { return child<QLabel>("lblStatus")->text().toStdString(); }

    /// Replaces the text of a box without key presses.
    void fill(const char* name, const std::string& text) { box(name).setText(QString::fromStdString(text)); }

    /// Shows a form and waits until it has the focus.
    static void showActive(QWidget& form) {
        form.show();
        form.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&form));
    }
};
