#pragma once

#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <array>

#include "base/Host.h"
#include "settings/Seasons.h"

namespace zg {

/// Assigns each month to a season. The program loads and accepts it at the start without showing it.
class frmSetSeasons : public QDialog {
    Q_OBJECT

 public:
    explicit frmSetSeasons(Host& host, QWidget* parent = nullptr);

    /// Fills the rows from the configuration file.
    void Form_Load();

    /// Checks the rows, stores them and closes; an invalid row is marked and reported, and the dialog stays
    /// open.
    void cmdOK_Click();

 private:
    void layOut();
    void cboSeason_Click(std::size_t month);
    void cmdDefaults_Click();
    SeasonFields fields() const;
    void setCustom(std::size_t month, bool enabled);

    Host& host_;
    std::array<QComboBox*, 12> cboSeason{};
    std::array<QLineEdit*, 12> txtCustomSeason{};
    QPushButton* cmdOk;
    QPushButton* cmdCancel;
    QPushButton* cmdDefaults;
};

}  // namespace zg
