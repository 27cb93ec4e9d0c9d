#pragma once

#include <QBoxLayout>
#include <QDialog>

#include "base/Host.h"

namespace zg {

/// A dialog on a working copy. Apply puts it into effect; OK does the same, writes the configuration file and
/// closes; Cancel closes and keeps what an earlier Apply did.
class ApplyDialog : public QDialog {
    Q_OBJECT

 public:
    ApplyDialog(Host& host, const char* name, const char* title, QWidget* parent);

 protected:
    /// Puts the working copy into effect.
    virtual void apply() = 0;

    /// cmdOk, cmdCancel and cmdApply in a row at the right, with the given control at its left.
    void addButtons(QBoxLayout& layout, QWidget* atLeft = nullptr);

    Host& host_;

 private:
    void cmdOk_Click();
};

}  // namespace zg
