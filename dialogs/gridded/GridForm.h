#pragma once

#include <QComboBox>
#include <QDateEdit>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTimeEdit>
#include <map>
#include <string>

#include "dialogs/gridded/GridWizard.h"

class QGridLayout;

namespace zg {

/// The window of the wizard: fields and calls. If it is closed while a run waits, it is only hidden, and the
/// run continues.
class GridForm : public QDialog, public GridView {
    Q_OBJECT

 public:
    GridForm(const GridVariation& variation, Host& host, ProcessStarter& starter, ProcessingWindow window,
             QWidget* parent);

    /// Takes a file as if the user had browsed for it.
    void openFile(const std::string& path);

    std::string text(const char* control) const override;
    void setText(const char* control, const std::string& text) override;
    bool checked(const char* option) const override;
    std::vector<std::string> rows(const char* list) const override;
    std::vector<bool> selectedRows(const char* list) const override;
    int row(const char* combo) const override;
    void setRow(const char* combo, int row) override;
    DateTime begin() const override;
    DateTime end() const override;
    void setBegin(DateTime moment) override;
    void setEnd(DateTime moment) override;
    TimeOfDay timeStep() const override;
    void mark(const char* control, bool invalid) override;
    void setEnabled(const char* control, bool enabled) override;
    void setFieldEnabled(const char* control, bool enabled) override;
    void setVisible(const char* control, bool visible) override;
    void focus(const char* control) override;
    void setStates(Names plainOff, Names fieldsOff, Names plainOn, Names fieldsOn) override;
    void setBusy(bool busy) override;
    void setReason(const std::string& text) override;
    void setTipOfStatus(const std::string& text) override;
    bool chooseOtherDirectory() override;
    bool askProjection() override;

    using QDialog::setEnabled;
    using QDialog::setVisible;

 protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    QGroupBox* makeStep1();
    QGroupBox* makeStep2();
    void addPeriod(QGridLayout& grid);
    void addMethods(QGridLayout& grid);
    QGroupBox* makeStep3();
    QGroupBox* makeStations();
    QGroupBox* makeCoordinates();
    QWidget* makeHeight(const char* frame, const char* box);
    QGroupBox* makeOutputName();
    QGroupBox* makeStep4();
    void nameControls();
    void connectControls();
    void watchFields();
    void fillLists();
    void browseFiles();
    void browseDirectory();
    void left(QWidget& field);
    void labelsFollow();
    QWidget& control(const char* name) const;
    template <typename Control>
    Control& as(const char* name) const {
        return dynamic_cast<Control&>(control(name));
    }
    void onClick(const char* name, std::function<void()> action);

    const GridVariation& variation_;
    Host& host_;
    ProcessingWindow window_;
    GridWizard wizard_;
    std::string directory_;  ///< where the next picker starts
    std::map<std::string, QWidget*, std::less<>> controls_;
};

class frmProcessVENTOSDATFiles : public GridForm {
    Q_OBJECT

 public:
    frmProcessVENTOSDATFiles(Host& host, ProcessStarter& starter, ProcessingWindow window,
                             QWidget* parent = nullptr)
        : GridForm(ventosVariation, host, starter, std::move(window), parent) {}
};

class frmProcess3DDATFiles : public GridForm {
    Q_OBJECT

 public:
    frmProcess3DDATFiles(Host& host, ProcessStarter& starter, ProcessingWindow window,
                         QWidget* parent = nullptr)
        : GridForm(m3dVariation, host, starter, std::move(window), parent) {}
};

}  // namespace zg
