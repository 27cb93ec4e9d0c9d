#pragma once

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <array>

#include "base/Host.h"
#include "settings/WindClasses.h"

namespace zg {

/// Sets the lower bounds of the six wind speed classes, in metres per second.
class frmSetWindSpeedClasses : public QDialog {
    Q_OBJECT

 public:
    explicit frmSetWindSpeedClasses(Host& host, QWidget* parent = nullptr);

    /// Fills the boxes from the configuration file.
    void Form_Load();

    /// Checks the boxes, stores them and closes; an invalid one is marked and reported, and the dialog stays
    /// open.
    void cmdOK_Click();

 protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    void layOut();
    void cmdDefault_Click();
    ClassTexts texts() const;
    bool refuse(const std::optional<ClassFault>& fault);
    void clearWhenFilled(std::size_t row);

    Host& host_;
    std::array<QLineEdit*, 6> txtWindSpeedClassMin{};
    std::array<QLabel*, 6> lblWindSpeedClassMax{};  ///< by the row whose minimum they repeat
    QPushButton* cmdOK;
    QPushButton* cmdCancel;
    QPushButton* cmdDefault;
};

}  // namespace zg
