#pragma once

#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <string>

#include "base/Host.h"

namespace zg {

/// The user's own list of expressions, to choose one from. Changes that are not saved are lost with the
/// dialog.
class frmExpr : public QDialog {
    Q_OBJECT

 public:
    explicit frmExpr(Host& host, QWidget* parent = nullptr);

    /// The chosen expression; "" for none.
    std::string SelectedExpression;
    /// Whether the list differs from the file.
    bool ExprDirty = false;

 protected:
    void keyPressEvent(QKeyEvent* event) override;

 private:
    QLayout* makeList();
    void makeTray();
    void openTray(const char* caption, const char* prompt, const QString& text);
    void cmdEdit_Click();
    void cmdOkExpr_Click();
    void cmdCancelExpr_Click();
    void cmdRemov_Click();
    void cmdSave_Click();
    void cmdOk_Click();
    void lstExpr_Click();
    bool isListed(const std::string& expression) const;
    void enableListButtons(bool enabled);
    int trayGrowth() const;

    Host& host_;
    std::string ExprFilePath;
    QListWidget* lstExpr;
    QLabel* lblMsg;
    QGroupBox* fraTray;
    QLabel* lblPrompt;
    QLineEdit* txtExpr;
    QPushButton* cmdOkExpr;
    QPushButton* cmdCancelExpr;
    QPushButton* cmdAdd;
    QPushButton* cmdEdit;
    QPushButton* cmdRemov;
    QPushButton* cmdSave;
    QPushButton* cmdOk;
    QPushButton* cmdCancel;
};

}  // namespace zg
