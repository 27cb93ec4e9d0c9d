#include "dialogs/point/PointDialog.h"

#include <QVBoxLayout>
#include <utility>

#include "base/Paths.h"
#include "base/Text.h"
#include "headers/HeaderError.h"
#include "headers/Zones.h"
#include "platform/Captions.h"
#include "platform/Combos.h"
#include "platform/DirectoryBox.h"
#include "platform/Errors.h"
#include "platform/FieldMarks.h"
#include "platform/FormParts.h"
#include "platform/Moments.h"
#include "platform/Pickers.h"
#include "platform/Pointers.h"
#include "platform/QtText.h"
#include "platform/ReadText.h"
#include "processing/Directories.h"
#include "settings/CfgFile.h"
#include "settings/Settings.h"

namespace zg {

PointDialog::PointDialog(Host& host, ProcessStarter& starter, ProcessingWindow window, const char* name,
                         const char* title, QWidget* parent)
    : QDialog(parent), host_(host), starter_(starter), window_(std::move(window)) {
    nameForm(*this, name, title);
}

QGroupBox* PointDialog::makePeriod(bool withHeadings) {
    framePeriod = named(new QGroupBox(QStringLiteral("Period:")), "framePeriod");
    DTPicker_BeginDate = datePicker("DTPicker_BeginDate");
    DTPicker_BeginTime = timePicker("DTPicker_BeginTime");
    DTPicker_EndDate = datePicker("DTPicker_EndDate");
    DTPicker_EndTime = timePicker("DTPicker_EndTime");
    cboTimeZone = named(new QComboBox, "cboTimeZone");
    cboTimeZone->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    frameTimeStep = named(new QGroupBox(QStringLiteral("&Time Step:")), "frameTimeStep");
    DTPicker_TimeStep = timePicker("DTPicker_TimeStep");
    (new QVBoxLayout(frameTimeStep))->addWidget(DTPicker_TimeStep);
    DTPicker_TimeStep->setToolTip(QStringLiteral("Hours, minutes and seconds of a step"));
    DTPicker_TimeStep->setAccessibleName(spoken(frameTimeStep->title()));
    DTPicker_BeginTime->setAccessibleName(QStringLiteral("Starting time"));
    DTPicker_EndTime->setAccessibleName(QStringLiteral("Ending time"));
    auto* grid = new QGridLayout(framePeriod);
    if (withHeadings) {
        grid->addWidget(new QLabel(QStringLiteral("DATE:")), 0, 1);
        grid->addWidget(new QLabel(QStringLiteral("HOUR:")), 0, 2);
    }
    grid->addWidget(labelFor("&Starting:", DTPicker_BeginDate), 1, 0);
    grid->addWidget(DTPicker_BeginDate, 1, 1);
    grid->addWidget(DTPicker_BeginTime, 1, 2);
    grid->addWidget(labelFor("&Ending:", DTPicker_EndDate), 2, 0);
    grid->addWidget(DTPicker_EndDate, 2, 1);
    grid->addWidget(DTPicker_EndTime, 2, 2);
    grid->addWidget(frameTimeStep, 0, 3, 3, 1);
    grid->addWidget(labelFor("Base Time &Zone:", cboTimeZone), 3, 0);
    grid->addWidget(cboTimeZone, 3, 1, 1, 3);
    return framePeriod;
}

QGroupBox* PointDialog::makeOutput() {
    auto* frame = new QGroupBox(QStringLiteral("Output:"));
    txtTitleLine = named(new QLineEdit, "txtTitleLine");
    keepOneLine(*txtTitleLine);
    txtFRQOutputFilename = named(new QLineEdit, "txtFRQOutputFilename");
    txtOutputDirectory = named(new QLineEdit, "txtOutputDirectory");
    cmdBrowseDirectory = browseButton("B&rowse", "cmdBrowseDirectory", "Browse for the output directory");
    auto* grid = new QGridLayout(frame);
    grid->addWidget(labelFor("Title &Line (Optional):", txtTitleLine), 0, 0);
    grid->addWidget(txtTitleLine, 0, 1, 1, 2);
    grid->addWidget(labelFor("Output FR&Q Filename:", txtFRQOutputFilename), 1, 0);
    grid->addWidget(txtFRQOutputFilename, 1, 1);
    grid->addWidget(new QLabel(QStringLiteral(".frq")), 1, 2);
    grid->addWidget(labelFor("&Output Directory:", txtOutputDirectory), 2, 0);
    grid->addWidget(txtOutputDirectory, 2, 1);
    grid->addWidget(cmdBrowseDirectory, 2, 2);
    connect(cmdBrowseDirectory, &QPushButton::clicked, this,
            guarded(host_, [this] { browseOutputDirectory(); }));
    whenLeft(*txtOutputDirectory, [this] { leftOutputDirectory(); });
    whenLeft(*txtFRQOutputFilename,
             [this] { clearMark(*txtFRQOutputFilename, !txtFRQOutputFilename->text().isEmpty()); });
    return frame;
}

QLayout* PointDialog::makeButtons() {
    cmdSetSeasons = namedButton("Set Seaso&ns", "cmdSetSeasons");
    cmdSetWindSpeedClasses = namedButton("Set &Wind Speed Classes", "cmdSetWindSpeedClasses");
    cmdView = namedButton("RUN", "cmdView");
    cmdView->setDefault(true);
    connect(cmdView, &QPushButton::clicked, this, guarded(host_, [this] { cmdView_Click(); }));
    cmdExit = namedButton("Cancel", "cmdExit");
    lblStatus = named(new QLabel, "lblStatus");
    lblStatus->setTextFormat(Qt::PlainText);
    // The name of a station may be longer than the screen is wide.
    lblStatus->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    connect(cmdSetSeasons, &QPushButton::clicked, this, guarded(host_, [this] { window_.setSeasons(); }));
    connect(cmdSetWindSpeedClasses, &QPushButton::clicked, this,
            guarded(host_, [this] { window_.setWindSpeedClasses(); }));
    connect(cmdExit, &QPushButton::clicked, this, &QDialog::reject);
    lblReason = new ReasonLabel("lblReason");
    whenLeft(*cmdView, [this] { clearStatus(); });
    auto* rows = new QVBoxLayout;
    rows->addWidget(lblStatus);
    rows->addWidget(lblReason);
    auto* row = new QHBoxLayout;
    row->addWidget(cmdSetSeasons);
    row->addWidget(cmdSetWindSpeedClasses);
    row->addStretch();
    row->addWidget(cmdView);
    row->addWidget(cmdExit);
    rows->addLayout(row);
    return rows;
}

void PointDialog::Form_Load() {
    FillTimeZones(*cboTimeZone);
    showToday();
    ReadCfgFile(settings.CfgFilePath);
    cboTimeZone->setCurrentIndex(cboTimeZone->findText(shown(settings.DefaultTimeZone)));
    showTime({1, 0, 0}, *DTPicker_TimeStep);
    showUtcInTips({DTPicker_BeginDate, DTPicker_BeginTime, DTPicker_EndDate, DTPicker_EndTime, cboTimeZone},
                  zoneChoice_);
}

void PointDialog::showToday() {
    for (QDateEdit* date : {DTPicker_BeginDate, DTPicker_EndDate}) date->setDate(QDate::currentDate());
    for (QTimeEdit* time : {DTPicker_BeginTime, DTPicker_EndTime}) time->setTime(QTime(0, 0));
}

bool PointDialog::refuse(QWidget& field, const char* text) {
    MarkInvalid(field);
    host_.showBox({text, "Error", BoxIcon::None, BoxButtons::Ok});
    field.setFocus();
    return false;
}

bool PointDialog::check(bool passed, QWidget& field, const char* text) {
    if (!passed) return refuse(field, text);
    ClearInvalid(field);
    return true;
}

bool PointDialog::checkPeriod() {
    const QDate begin = DTPicker_BeginDate->date();
    const QDate end = DTPicker_EndDate->date();
    return check(begin <= end, *framePeriod, "Error: The Starting Date is later than the Ending Date.") &&
           check(begin != end || DTPicker_BeginTime->time() < DTPicker_EndTime->time(), *framePeriod,
                 "Error: The Ending Date/Time must be later than the Starting Date/Time.");
}

bool PointDialog::checkTimeZone() {
    return check(!cboTimeZone->currentText().isEmpty(), *cboTimeZone,
                 "Please select a Base Time Zone from the pull-down menu.");
}

bool PointDialog::checkTimeStep() {
    return check(DTPicker_TimeStep->time() != QTime(0, 0), *frameTimeStep, "Please enter a valid time step.");
}

bool PointDialog::checkOutputDirectory() {
    return check(!txtOutputDirectory->text().isEmpty(), *txtOutputDirectory,
                 "Please select an Output Directory.") &&
           check(isOutputDirectory(pathIn(*txtOutputDirectory)), *txtOutputDirectory,
                 "Selected Output Directory does not exist.");
}

bool PointDialog::checkOutputName() {
    return check(!txtFRQOutputFilename->text().isEmpty() || !txtFRQOutputFilename->isEnabled(),
                 *txtFRQOutputFilename, "Please enter an output filename.");
}

void PointDialog::clearMark(QWidget& field, bool filled) {
    if (clearFilledMark(field, filled)) clearStatus();
}

void PointDialog::clearStatus() {
    lblStatus->clear();
    lblReason->setReason({});
    setPlainTip(*lblStatus, {});
}

void PointDialog::leftOutputDirectory() {
    completeDirectory(*txtOutputDirectory);
    clearMark(*txtOutputDirectory, !txtOutputDirectory->text().isEmpty());
}

void PointDialog::browseOutputDirectory() {
    browseDirectory(host_, *txtOutputDirectory, folderPrompt_);
    leftOutputDirectory();
}

bool PointDialog::chooseOtherDirectory() {
    const bool isOther = browseOtherDirectory(host_, *txtOutputDirectory, folderPrompt_);
    leftOutputDirectory();
    return isOther;
}

/// Of several rows with one key the last is shown; an unknown key changes nothing.
void PointDialog::chooseTimeZone(const std::string& key) {
    const std::string wanted = ucase(trim(key));
    for (std::size_t i = 0; i < timeZones.gsTimeZoneKeys.size(); ++i)
        if (timeZones.gsTimeZoneKeys[i] == wanted) cboTimeZone->setCurrentIndex(static_cast<int>(i));
}

void PointDialog::showPeriod(DateTime begin, DateTime end) {
    showMoment(begin, *DTPicker_BeginDate, *DTPicker_BeginTime);
    showMoment(end, *DTPicker_EndDate, *DTPicker_EndTime);
}

std::string PointDialog::outputDirectory() const { return trim(pathIn(*txtOutputDirectory)); }

ControlFile PointDialog::sharedValues(InputKind type) const {
    ControlFile v;
    v.type = type;
    v.title = typed(txtTitleLine->text());
    setPeriod(v, momentIn(*DTPicker_BeginDate, *DTPicker_BeginTime),
              momentIn(*DTPicker_EndDate, *DTPicker_EndTime));
    v.ABTZ = timeZones.gsTimeZoneKeys.at(static_cast<std::size_t>(cboTimeZone->currentIndex()));
    const TimeOfDay step = timeIn(*DTPicker_TimeStep);
    v.NSECDT = std::to_string(timeSerial(step.hour, step.minute, step.second));
    v.WSBIN = settings.WindClassString;
    v.seasonNames.assign(settings.SeasonNames.begin(), settings.SeasonNames.begin() + settings.SeasonCount);
    v.MSN = settings.MonthSeasonString;
    return v;
}

void PointDialog::openFile(const std::string& path) {
    given_ = path;
    findChild<QPushButton*>(QStringLiteral("cmdBrowseFile"))->click();
}

bool PointDialog::browseInput(QLineEdit& box, const char* filter) {
    const std::string given = std::exchange(given_, {});
    const std::string path = given.empty() ? ShowFileOpen(host_, filter, 1, remembered_) : given;
    if (path.empty()) return false;
    showPath(box, path);
    remembered_ = DirOf(path);
    // Only the first character is checked: only a path to another machine gets no separator.
    if (remembered_.substr(0, 1) != "\\") remembered_ += pathSeparator;
    showPath(*txtOutputDirectory, remembered_);
    return true;
}

void PointDialog::readNoticing(const std::function<void()>& read) {
    try {
        read();
    } catch (const HeaderError& error) {
        if (!error.notice.empty()) host_.showBox({error.notice, "", BoxIcon::None, BoxButtons::Ok});
        throw;
    }
}

void PointDialog::readLargeFile(const std::function<void(const std::function<void()>&)>& read) {
    constexpr std::int64_t secondMs = 1000;
    const std::int64_t start = host_.tickCount();
    bool told = false;
    const auto progress = [&] {
        if (!told && host_.tickCount() - start >= secondMs) {
            lblStatus->setText(QStringLiteral("Reading..."));
            setEnabled(false);
            told = true;
        }
        host_.pumpEvents(0);
    };
    const auto done = [&] {
        if (!told) return;
        lblStatus->clear();
        setEnabled(true);
    };
    try {
        read(progress);
    } catch (...) {
        done();
        throw;
    }
    done();
}

void PointDialog::cmdView_Click() {
    leftOutputDirectory();
    if (checkFields()) runProcessor(host_, starter_, runForm(), hooks());
}

RunHooks PointDialog::hooks() {
    RunHooks hooks;
    hooks.plan = [this] { return plan(); };
    hooks.showName = [this](const std::string& name) { txtFRQOutputFilename->setText(shown(name)); };
    hooks.setStatus = [this](const std::string& text) { lblStatus->setText(shown(text)); };
    hooks.setBusy = showHourglass;
    hooks.load = window_.plotFrqFile;
    hooks.showExit = [this] {
        cmdExit->setText(QStringLiteral("Exit"));
        cmdExit->setEnabled(true);
    };
    hooks.keepTimeZone = [this] {
        settings.DefaultTimeZone = trim(typed(cboTimeZone->currentText()));
        WriteCfgFile(settings.CfgFilePath);
    };
    hooks.abandoned = window_.ending;
    hooks.setReason = [this](const std::string& text) { lblReason->setReason(text); };
    hooks.setTip = [this](const std::string& text) { setPlainTip(*lblStatus, text); };
    hooks.chooseDirectory = [this] { return chooseOtherDirectory(); };
    return hooks;
}

}  // namespace zg
