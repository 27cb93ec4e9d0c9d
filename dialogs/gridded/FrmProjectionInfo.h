#pragma once

#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <map>
#include <string>

#include "base/Host.h"
#include "dialogs/gridded/Projection.h"

namespace zg {

/// Asks for the map projection and datum of the extraction sites. OK fills the projection record, and the
/// dialog is accepted.
class frmProjectionInfo : public QDialog {
    Q_OBJECT

 public:
    explicit frmProjectionInfo(Host& host, QWidget* parent = nullptr);

 protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    QWidget* makeFrames();
    QGroupBox* makeFrame(const ProjectionChoice& choice);
    QGroupBox* makeDatum();
    QLayout* makeButtons();
    void Form_Load();
    void fillLists();
    void showChoice(const ProjectionChoice& choice, const char* caption);
    void FillFromRecord();
    std::string text(const std::string& name) const;
    void setText(const std::string& name, const std::string& text);

    void cmdNativeProjection_Click();
    void cboCont1_Click();
    void cboDatum1_Click();
    void lstReg1_Click();
    void codeChanged();
    void showContinent(const std::string& continent, const std::string& ellipsoid);
    void showRegion(const std::string& continent, const std::string& ellipsoid, const std::string& region);
    void showCode(const std::string& code);
    void cmdOK_Click();
    bool CheckProjection(const ProjectionChoice*& choice);
    void wrapLatitudes();
    bool refuse(const std::string& message);

    Host& host_;
    QComboBox* cboProj;
    QComboBox* cboCode = nullptr;
    QComboBox* cboCont1 = nullptr;
    QComboBox* cboDatum1 = nullptr;
    QListWidget* lstReg1 = nullptr;
    QLabel* lblCoor1b = nullptr;
    QLabel* lblCoor1c = nullptr;
    std::map<std::string, QGroupBox*> frames_;  ///< by PMAP
    bool filling_ = false;                      ///< the program is changing the datum's fields
};

}  // namespace zg
