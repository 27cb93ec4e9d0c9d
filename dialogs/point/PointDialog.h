#pragma once

#include <QComboBox>
#include <QDateEdit>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimeEdit>
#include <functional>
#include <optional>

#include "base/Host.h"
#include "platform/LeaveWatch.h"
#include "platform/ReasonLabel.h"
#include "platform/UtcTip.h"
#include "processing/ControlFile.h"
#include "processing/ProcessingWindow.h"
#include "processing/ProcessorRun.h"

namespace zg {

/// What the dialogs for point data share: period, time zone, step, title, output, and starting a run. If the
/// dialog is closed while a run waits, it is only hidden, and the run continues.
class PointDialog : public QDialog {
    Q_OBJECT

 public:
    PointDialog(Host& host, ProcessStarter& starter, ProcessingWindow window, const char* name,
                const char* title, QWidget* parent);

    /// Takes a file as if the user had browsed for it.
    void openFile(const std::string& path);

 protected:
    /// What its runs report, the checks before a run, and the plan of the fields after these have passed.
    virtual const RunForm& runForm() const = 0;
    virtual bool checkFields() = 0;
    virtual RunPlan plan() = 0;

    /// Rows of the shared frames, which the dialog lays out.
    QGroupBox* makePeriod(bool withHeadings = false);
    QGroupBox* makeOutput();
    QLayout* makeButtons();

    /// Today, the settings, the base time zone, one hour.
    void Form_Load();

    /// The period before a file is read: today, from its start to its start.
    void showToday();
    void showPeriod(DateTime begin, DateTime end);

    /// Shows an "Error" box and marks the field; returns false, for the failed check.
    bool refuse(QWidget& field, const char* text);
    /// Clears the field's mark after a passed check.
    bool check(bool passed, QWidget& field, const char* text);
    bool checkPeriod();
    bool checkTimeZone();
    bool checkTimeStep();
    bool checkOutputDirectory();
    bool checkOutputName();

    void whenLeft(QWidget& field, std::function<void()> action) {
        leaving_.whenLeft(field, std::move(action));
    }
    void leftOutputDirectory();
    void clearMark(QWidget& field, bool filled);
    void clearStatus();
    void chooseTimeZone(const std::string& key);
    void browseOutputDirectory();
    bool chooseOtherDirectory();

    /// The values of the shared fields, as texts.
    ControlFile sharedValues(InputKind type) const;
    std::string outputDirectory() const;

    /// Asks for the input file; takes it, and its directory for the output. False if cancelled.
    bool browseInput(QLineEdit& box, const char* filter);

    /// Reads a header. If its error has a notice, shows it and then passes the error on.
    void readNoticing(const std::function<void()>& read);

    /// While a large file is read the window stays responsive, the fields are disabled, and after a second
    /// the status line says so.
    void readLargeFile(const std::function<void(const std::function<void()>&)>& read);

    Host& host_;
    ProcessStarter& starter_;
    ProcessingWindow window_;
    const char* folderPrompt_ = "Select a Output Directory:";
    std::string given_;       ///< file that is taken at the next browse, without asking
    std::string remembered_;  ///< directory where the next picker starts
    ZoneChoice zoneChoice_ = ZoneChoice::Relabels;

    QGroupBox* framePeriod = nullptr;
    QGroupBox* frameTimeStep = nullptr;
    QDateEdit* DTPicker_BeginDate = nullptr;
    QTimeEdit* DTPicker_BeginTime = nullptr;
    QDateEdit* DTPicker_EndDate = nullptr;
    QTimeEdit* DTPicker_EndTime = nullptr;
    QTimeEdit* DTPicker_TimeStep = nullptr;
    QComboBox* cboTimeZone = nullptr;
    QLineEdit* txtTitleLine = nullptr;
    QLineEdit* txtFRQOutputFilename = nullptr;
    QLineEdit* txtOutputDirectory = nullptr;
    QPushButton* cmdBrowseDirectory = nullptr;
    QPushButton* cmdSetSeasons = nullptr;
    QPushButton* cmdSetWindSpeedClasses = nullptr;
    QPushButton* cmdView = nullptr;
    QPushButton* cmdExit = nullptr;
    QLabel* lblStatus = nullptr;
    ReasonLabel* lblReason = nullptr;  ///< why a run does not end

 private:
    void cmdView_Click();
    RunHooks hooks();

    LeaveWatch leaving_{host_};
};

}  // namespace zg
