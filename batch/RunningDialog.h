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
    /// Does the work unless one is under way; an error is shown, and the status line does not go on saying
    /// that something runs.
    void run(const std::function<void()>& work);

    /// Tells an error in the status line and marks the field.
    void refuse(QWidget& field, const char* text);

    /// What follows when the focus leaves a box.
    void whenLeft(QWidget& field, std::function<void()> action) {
        leaving_.whenLeft(field, std::move(action));
    }

    /// A marked box that is filled becomes clean, and the status line empty.
    void clearMark(QWidget& field, bool filled);

    /// The status line is painted before what comes next.
    void say(const char* status);

    Host& host_;
    QLabel* lblStatus;
    QPushButton* cmdCancel;

 private:
    bool running_ = false;
    LeaveWatch leaving_{host_};
};

}  // namespace zg
