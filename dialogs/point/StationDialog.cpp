#include "dialogs/point/StationDialog.h"

#include <QVBoxLayout>

#include "base/Paths.h"
#include "base/Text.h"
#include "headers/Stations.h"
#include "platform/Captions.h"
#include "platform/Errors.h"
#include "platform/FieldMarks.h"
#include "platform/KeyFilter.h"
#include "platform/QtText.h"
#include "platform/ReadText.h"
#include "processing/KeyFilters.h"
#include "processing/RunNames.h"

namespace zg {

void StationDialog::build(const Words& words, QWidget& station) {
    words_ = words;
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(makeInput(station));
    layout->addWidget(makePeriod());
    layout->addWidget(makeOutput());
    layout->addStretch();
    layout->addLayout(makeButtons());
    connect(cmdView, &QPushButton::clicked, this, guarded(host_, [this] { cmdView_Click(); }));
    Form_Load();
    resize(windowSize(*this, 75));
    cmdBrowseFile->setFocus();
}

QGroupBox* StationDialog::makeInput(QWidget& station) {
    auto* frame = new QGroupBox(QString::fromLatin1(words_.caption));
    frame->setObjectName(QStringLiteral("frameFile"));
    const auto box = [](const char* name, int digits) {
        auto* made = new QLineEdit;
        made->setObjectName(QString::fromLatin1(name));
        if (digits > 0) made->setMaximumWidth(digitsWide(*made, digits));
        return made;
    };
    fileBox_ = box(words_.fileBox, 0);
    fileBox_->setAccessibleName(spoken(frame->title()));
    cmdBrowseFile = button("&Browse", "cmdBrowseFile");
    cmdBrowseFile->setAccessibleName(QStringLiteral("Browse for the input file"));
    txtXLoc = box("txtXLoc", 11);
    txtYLoc = box("txtYLoc", 11);
    txtXLoc->setAccessibleName(QStringLiteral("X location of the station"));
    txtYLoc->setAccessibleName(QStringLiteral("Y location of the station"));
    for (QLineEdit* place : {txtXLoc, txtYLoc}) place->setToolTip(place->accessibleName());
    txtAnemometerHeight = box("txtAnemometerHeight", 11);
    txtAnemometerHeight->setText(QStringLiteral("10"));
    filterKeys(*txtAnemometerHeight, KeyNumericPositive);
    for (QLineEdit* place : {txtXLoc, txtYLoc}) filterKeys(*place, KeyNumericSigned);
    for (QWidget* each : std::initializer_list<QWidget*>{txtXLoc, txtYLoc, txtAnemometerHeight})
        enterIsTab(*each);
    auto* grid = new QGridLayout(frame);
    grid->addWidget(fileBox_, 0, 0, 1, 4);
    grid->addWidget(cmdBrowseFile, 0, 4);
    grid->addWidget(labelFor("Station &ID:", &station), 1, 0);
    grid->addWidget(&station, 1, 1, 1, 2);
    grid->addWidget(labelFor("&X/Y Location of Station:", txtXLoc), 2, 0);
    grid->addWidget(txtXLoc, 2, 1);
    grid->addWidget(txtYLoc, 2, 2);
    grid->addWidget(labelFor("Wind &Height:", txtAnemometerHeight), 3, 0);
    grid->addWidget(txtAnemometerHeight, 3, 1);
    grid->addWidget(new QLabel(QStringLiteral("m")), 3, 2);
    grid->setColumnStretch(3, 1);
    connect(cmdBrowseFile, &QPushButton::clicked, this, guarded(host_, [this] {
                if (browseInput(*fileBox_, words_.filter)) readFile(inputPath());
            }));
    return frame;
}

std::string StationDialog::inputPath() const { return pathIn(*fileBox_); }

void StationDialog::showPeriod(DateTime begin, DateTime end) {
    const auto show = [](DateTime moment, QDateEdit& date, QTimeEdit& time) {
        const CalendarDate day = dateOf(moment);
        const TimeOfDay clock = timeOf(moment);
        date.setDate(QDate(day.year, day.month, day.day));
        time.setTime(QTime(clock.hour, clock.minute, clock.second));
    };
    show(begin, *DTPicker_BeginDate, *DTPicker_BeginTime);
    show(end, *DTPicker_EndDate, *DTPicker_EndTime);
}

void StationDialog::fillEmptyPlace() {
    if (!txtXLoc->text().isEmpty() || !txtYLoc->text().isEmpty()) return;
    txtXLoc->setText(QStringLiteral("0"));
    txtYLoc->setText(QStringLiteral("0"));
}

bool StationDialog::checkPlace() {
    fillEmptyPlace();
    return true;
}

bool StationDialog::checkFields() {
    const std::string path = inputPath();
    return check(!path.empty(), *fileBox_, words_.selectFile) &&
           check(fileExists(path), *fileBox_, words_.fileMissing) && checkPeriod() && checkTimeZone() &&
           (!checksTimeStep() || checkTimeStep()) &&
           check(!txtAnemometerHeight->text().isEmpty(), *txtAnemometerHeight,
                 "Please enter a valid Anemometer Height in meters.") &&
           checkPlace() && checkOutputDirectory();
}

void StationDialog::readValues() {
    const std::string path = inputPath();
    const std::string wanted = stationToLookUp();
    const std::string name = trim(wanted).empty() ? std::string() : stationNameOf(wanted);
    const std::string height = typed(txtAnemometerHeight->text());
    outName_ = (name.empty() ? fileBaseOf(path) : name) + words_.tag + periodText();
    if (hasHeightInName()) outName_ += "_" + height + "m";
    values_ = sharedValues(inputType());
    values_.inputFiles = {path};
    values_.base = outName_;
    values_.roseName = outName_;
    if (inputType() != InputKind::Tsf)
        values_.outputs = {{"1", outName_, trim(values_.title), stationText() + ", 0, 0", height}};
}

void StationDialog::cmdView_Click() {
    leftOutputDirectory();
    if (!checkFields()) return;
    RunHooks hooks = sharedHooks();
    hooks.readValues = [this] { readValues(); };
    hooks.base = [this] { return values_.base; };
    hooks.outputs = [this] { return std::vector<RunOutput>{{outName_, {}}}; };
    hooks.firstName = [this] { return outName_; };
    hooks.writeControlFile = [this] { WriteControlFile(outputDirectory(), values_); };
    runProcessor(host_, starter_, RunForm::Single, hooks);
}

}  // namespace zg
