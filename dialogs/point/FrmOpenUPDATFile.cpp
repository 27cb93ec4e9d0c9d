#include "dialogs/point/FrmOpenUPDATFile.h"

#include <QVBoxLayout>
#include <algorithm>

#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "headers/Stations.h"
#include "headers/Zones.h"
#include "platform/Captions.h"
#include "platform/Errors.h"
#include "platform/FieldMarks.h"
#include "platform/FormParts.h"
#include "platform/Moments.h"
#include "platform/QtText.h"
#include "platform/ReadText.h"
#include "processing/Directories.h"
#include "processing/KeyFilters.h"

namespace zg {

frmOpenUPDATFile::frmOpenUPDATFile(Host& host, ProcessStarter& starter, ProcessingWindow window,
                                   QWidget* parent)
    : PointDialog(host, starter, std::move(window), "frmOpenUPDATFile",
                  "Generate Wind Rose Plots from an UP.DAT File:", parent) {
    zoneChoice_ = ZoneChoice::MovesPeriod;
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(makeInput());
    layout->addWidget(makePeriod(true));
    layout->addWidget(makeOutput());
    layout->addStretch();
    layout->addLayout(makeButtons());
    connect(cboTimeZone, &QComboBox::activated, this, guarded(host_, [this] { cboTimeZone_Click(); }));
    Form_Load();
    resize(windowSize(*this, 75));
    cmdBrowseFile->setFocus();
}

QGroupBox* frmOpenUPDATFile::makeInput() {
    auto* frame = new QGroupBox(QStringLiteral("UP.DAT &File:"));
    txtUPDATFile = named(new QLineEdit, "txtUPDATFile");
    txtUPDATFile->setAccessibleName(spoken(frame->title()));
    cmdBrowseFile = browseButton("&Browse", "cmdBrowseFile", "Browse for an UP.DAT file");
    txtStationID = enteredBox("txtStationID", KeyNumericInteger);
    txtExtractionHeights = enteredBox("txtExtractionHeights", KeyNumericHeights);
    txtExtractionHeights->setText(QStringLiteral("10"));
    auto* grid = new QGridLayout(frame);
    grid->addWidget(txtUPDATFile, 0, 0, 1, 2);
    grid->addWidget(cmdBrowseFile, 0, 2);
    grid->addWidget(labelFor("Station &ID:", txtStationID), 1, 0);
    grid->addWidget(txtStationID, 1, 1);
    grid->addWidget(labelFor("E&xtraction Height(s):", txtExtractionHeights), 2, 0);
    grid->addWidget(txtExtractionHeights, 2, 1);
    grid->addWidget(new QLabel(QStringLiteral("meters")), 2, 2);
    auto* note =
        new QLabel(QStringLiteral("Multiple extraction heights may be entered separated by commas."));
    grid->addWidget(note, 3, 0, 1, 3);
    grid->setColumnStretch(1, 1);
    connect(cmdBrowseFile, &QPushButton::clicked, this, guarded(host_, [this] {
                if (browseInput(*txtUPDATFile, "UP.DAT Data Files (*.dat) | *.dat|All Files (*.*) | *.*; |"))
                    ReadUPDATHeader(pathIn(*txtUPDATFile));
            }));
    return frame;
}

float frmOpenUPDATFile::comboHours() const {
    const int row = cboTimeZone->currentIndex();
    if (row < 0) zg::raise(ErrorNumber::SubscriptOutOfRange);
    return HoursFromTimeZone(timeZones.gsTimeZoneKeys.at(static_cast<std::size_t>(row)));
}

/// Only the date and the hour of a shifted moment are shown.
void frmOpenUPDATFile::showShifted(DateTime moment, QDateEdit& date, QTimeEdit& time, int minute,
                                   int second) {
    showDate(dateOf(moment), date);
    showTime({timeOf(moment).hour, minute, second}, time);
}

void frmOpenUPDATFile::ReadUPDATHeader(const std::string& path) {
    UpHeader header;
    readNoticing([&] {
        HeaderSource source(path);
        header = readUpHeader(source);
    });
    if (!header.isUp) {
        refuse(*txtUPDATFile, "The selected file is not a valid UP.DAT file.");
        return;
    }
    ClearInvalid(*txtUPDATFile);
    if (header.version.empty()) return;
    msFileTimeZone = header.timeZone;
    mdBeginInFile = header.begin;
    mdEndInFile = header.end;
    mfComboHours = comboHours();
    const float difference = HoursFromTimeZone(msFileTimeZone) - mfComboHours;
    const auto shifted = [difference](DateTime moment) {
        return addHours(moment, static_cast<double>(difference));
    };
    showShifted(shifted(header.begin), *DTPicker_BeginDate, *DTPicker_BeginTime, header.beginFields.minute,
                header.beginFields.second);
    showShifted(shifted(header.end), *DTPicker_EndDate, *DTPicker_EndTime, header.endFields.minute,
                header.endFields.second);
    const int before = cboTimeZone->currentIndex();
    cboTimeZone->setCurrentIndex(-1);
    chooseTimeZone(msFileTimeZone);
    if (cboTimeZone->currentIndex() < 0)
        cboTimeZone->setCurrentIndex(before);
    else
        cboTimeZone_Click();
    showRead(*txtStationID, header.station);
}

/// Another zone shifts the displayed period, which never begins before the file does.
void frmOpenUPDATFile::cboTimeZone_Click() {
    if (!mdBeginInFile || !mdEndInFile) return;
    const auto back = [this](const QDateEdit& date, const QTimeEdit& time) {
        return std::max(addHours(momentIn(date, time), static_cast<double>(mfComboHours)), *mdBeginInFile);
    };
    const DateTime begin = back(*DTPicker_BeginDate, *DTPicker_BeginTime);
    const DateTime end = back(*DTPicker_EndDate, *DTPicker_EndTime);
    mfComboHours = comboHours();
    const auto difference = static_cast<double>(HoursFromTimeZone(msFileTimeZone) - mfComboHours);
    const auto show = [&](DateTime moment, QDateEdit& date, QTimeEdit& time) {
        const TimeOfDay before = timeIn(time);
        showShifted(addHours(moment, difference), date, time, before.minute, before.second);
    };
    show(begin, *DTPicker_BeginDate, *DTPicker_BeginTime);
    show(end, *DTPicker_EndDate, *DTPicker_EndTime);
}

bool frmOpenUPDATFile::checkFields() {
    const std::string path = pathIn(*txtUPDATFile);
    return checkPeriod() && check(!path.empty(), *txtUPDATFile, "Please select an UP.DAT file.") &&
           check(fileExists(path), *txtUPDATFile, "The selected UP.DAT file does not exist.") &&
           checkTimeZone() &&
           check(!txtExtractionHeights->text().isEmpty(), *txtExtractionHeights,
                 "Please enter one or more extraction heights in meters separated by commas.") &&
           check(!txtOutputDirectory->text().isEmpty(), *txtOutputDirectory,
                 "Please select a Directory For Output.") &&
           check(isOutputDirectory(pathIn(*txtOutputDirectory)), *txtOutputDirectory,
                 "Selected Directory For Output does not exist.");
}

RunPlan frmOpenUPDATFile::plan() {
    const std::string path = pathIn(*txtUPDATFile);
    const std::string station = readOrTyped(*txtStationID);
    const std::string name = trim(station).empty() ? std::string() : stationNameOf(station);
    ControlFile values = sharedValues(InputKind::Up);
    values.base = (name.empty() ? fileBaseOf(path) : name) + "_UP_" + periodInName(values);
    values.inputFiles = {path};
    const std::string text = typed(txtExtractionHeights->text());
    const Pieces heights = split(text, ",");
    // Each empty item reduces the number of outputs by one but keeps its position, so the last heights are
    // lost.
    std::size_t count = heights.size();
    for (std::size_t i = 0; i < heights.size(); ++i)
        if (heights[i].empty()) --count;
    for (std::size_t i = 0; i < count; ++i) {
        const std::string height(heights[i]);
        values.outputs.push_back({std::to_string(i + 1), values.base + "_" + height + "m", trim(values.title),
                                  station + ", 0, 0", height});
    }
    RunPlan plan = planOf(outputDirectory(), std::move(values));
    plan.lastName = plan.control.base;
    return plan;
}

}  // namespace zg
