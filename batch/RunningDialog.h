#pragma once

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <functional>

#include "base/Host.h"
#include "platform/LeaveWatch.h"

namespace zg {

/// A dialog with a status line whose work serves events: while it runs, the dialog cannot be closed and a
/// second start is ignored.
class RunningDialog : public QDialog {
    Q_OBJECT

 public:
    RunningDialog(Host& host, const char* name, const char* title, QWidget* parent);

    void reject() override;

 protected:
    /// Does the work unless other work is in progress; an error is shown, and the status line no longer says
    /// that something is running.
    void run(const std::function<void()>& work);

    /// Shows an error in the status line and marks the field.
    void refuse(QWidget& field, const char* text);

    /// Tells in the status line why the working directory cannot be created.
    void tellNoDirectory(const std::string& reason);

    /// Called when the focus leaves a box.
    void whenLeft(QWidget& field, std::function<void()> action) {
        leaving_.whenLeft(field, std::move(action));
    }

    /// A marked box that has been filled becomes clean, and the status line empty.
    void clearMark(QWidget& field, bool filled);

    /// A box for a directory gets its final separator, and is clean once it is filled.
    void leftDirectory(QLineEdit& field);
    void browse(QLineEdit& field, const char* prompt);

    /// Repaints the status line before the next step.
    void say(const char* status);

    Host& host_;
    QLabel* lblStatus;
    QPushButton* cmdCancel;

 private:
    bool running_ = false;
    LeaveWatch leaving_{host_};
};

}  // namespace zg
