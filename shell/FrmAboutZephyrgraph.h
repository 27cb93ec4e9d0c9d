#pragma once

#include <QCheckBox>
#include <QDialog>
#include <QPushButton>

namespace zg {

/// What the splash and the About box say about the program.
constexpr const char* programVersion = "Version 4.9";
constexpr const char* programLevel = "April 6, 2011";

/// Name, version and credits. Its check box mirrors a flag of the run that has no effect.
class frmAboutZephyrgraph : public QDialog {
    Q_OBJECT

 public:
    explicit frmAboutZephyrgraph(QWidget* parent = nullptr);
    ~frmAboutZephyrgraph() override;

 private:
    QCheckBox* chkDebug;
    QPushButton* cmdOK;
};

}  // namespace zg
