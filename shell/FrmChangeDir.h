#pragma once

#include <QComboBox>
#include <QDialog>
#include <QFileSystemModel>
#include <QLabel>
#include <QPushButton>
#include <QTreeView>
#include <string>

#include "base/Host.h"

namespace zg {

/// Chooses a directory by drive and tree. Accepted or not, `directory` ends in a separator: the choice, or
/// the directory at the start.
class frmChangeDir : public QDialog {
    Q_OBJECT

 public:
    /// Starts at the caller's directory if that is one, otherwise at the working directory if that is one,
    /// otherwise at the root.
    frmChangeDir(Host& host, std::string& directory, const std::string& workDir, QWidget* parent = nullptr);

    void reject() override;

 private:
    void Drive1_Change();
    void Dir1_Change();
    void cmdOK_Click();
    void goTo(const QString& path);
    void choose(const QString& path);
    void letCopy();
    void showCurrent();
    void showDriveOf(const QString& path);

    Host& host_;
    std::string& directory_;
    std::string start_;
    QString choice_;
    QFileSystemModel* model_;
    QComboBox* Drive1;
    QTreeView* Dir1;
    QLabel* lblCurDir;
    QPushButton* cmdOK;
    QPushButton* cmdCancel;
};

}  // namespace zg
