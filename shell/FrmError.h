#pragma once

#include <QDialog>
#include <QLabel>
#include <QPushButton>

namespace zg {

/// A message with an option to switch off further checks, but not in the middle of a run.
class frmError : public QDialog {
    Q_OBJECT

 public:
    explicit frmError(QWidget* parent = nullptr);

    /// Shows the description modally; the module "RUN" cannot have its checks switched off.
    void ShowError(const QString& description, const QString& modType);

    QString gsModType;

 private:
    void cmdDisable_Click();

    QLabel* lblDescr;
    QPushButton* cmdOK;
    QPushButton* cmdDisable;
    bool hourglass_ = false;
};

}  // namespace zg
