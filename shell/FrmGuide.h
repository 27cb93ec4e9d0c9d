#pragma once

#include <QDialog>
#include <QPushButton>
#include <QTextBrowser>

namespace zg {

/// Shows a document of the user guide with its pictures, and follows its links. It is not modal, so that one
/// can read and work side by side.
class frmGuide : public QDialog {
    Q_OBJECT

 public:
    /// The document is a Markdown file that exists.
    explicit frmGuide(const std::string& path, QWidget* parent = nullptr);

 private:
    QTextBrowser* txtGuide;
    QPushButton* cmdBack;
    QPushButton* cmdClose;
};

}  // namespace zg
