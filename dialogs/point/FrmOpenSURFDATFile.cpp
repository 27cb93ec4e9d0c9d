#include "dialogs/point/FrmOpenSURFDATFile.h"

#include <QVBoxLayout>

#include "base/Paths.h"
#include "base/Text.h"
#include "headers/Stations.h"
#include "platform/Captions.h"
#include "platform/Errors.h"
#include "platform/FieldMarks.h"
#include "platform/FormParts.h"
#include "platform/Moments.h"
#include "platform/QtText.h"
#include "platform/ReadText.h"

namespace zg {

namespace {

/// Whole metres: the point is dropped too.
std::int16_t KeyNumericReal(std::int16_t key) {
    const bool dropped = (key >= 32 && key <= 47) || (key >= 58 && key <= 127);
    return dropped ? std::int16_t{0} : key;
}

}  // namespace

frmOpenSURFDATFile::frmOpenSURFDATFile(Host& host, ProcessStarter& starter, ProcessingWindow window,
                                       QWidget* parent)
    : PointDialog(host, starter, std::move(window), "frmOpenSURFDATFile",
                  "Generate Wind Rose Plots from a SURF.DAT File:", parent) {
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(makeInput());
    layout->addWidget(makePeriod());
    layout->addWidget(makeOutput());
    txtFRQOutputFilename->setToolTip(
        QStringLiteral("Must not be empty, but each result gets a name built of station, height and period"));
    layout->addLayout(makeButtons());
    folderPrompt_ = "Select a Working Directory:";
    Form_Load();
    resize(windowSize(*this, 75));
    cmdBrowseFile->setFocus();
}

QGroupBox* frmOpenSURFDATFile::makeInput() {
    auto* frame = new QGroupBox(QStringLiteral("SURF.DAT &File:"));
    txtSURFDATFile = named(new QLineEdit, "txtSURFDATFile");
    txtSURFDATFile->setAccessibleName(spoken(frame->title()));
    cmdBrowseFile = browseButton("&Browse", "cmdBrowseFile", "Browse for a SURF.DAT file");
    lstSURFDATStationIDs = named(new QListWidget, "lstSURFDATStationIDs");
    lstSURFDATStationIDs->setAccessibleName(QStringLiteral("Station IDs"));
    lstSURFDATStationIDs->setSelectionMode(QAbstractItemView::MultiSelection);
    lstSURFDATStationIDs->setMinimumHeight(90);
    cmdSelectAll = namedButton("Select &All", "cmdSelectAll");
    cmdDeselectAll = namedButton("&Deselect All", "cmdDeselectAll");
    txtAnemometerHeight = enteredBox("txtAnemometerHeight", KeyNumericReal);
    txtAnemometerHeight->setText(QStringLiteral("10"));
    txtAnemometerHeight->setMaximumWidth(digitsWide(*txtAnemometerHeight, 8));
    auto* grid = new QGridLayout(frame);
    grid->addWidget(txtSURFDATFile, 0, 0, 1, 3);
    grid->addWidget(cmdBrowseFile, 0, 3);
    grid->addWidget(labelFor("Station &IDs:", lstSURFDATStationIDs), 1, 0);
    grid->addWidget(lstSURFDATStationIDs, 2, 0, 3, 3);
    grid->addWidget(cmdSelectAll, 2, 3);
    grid->addWidget(cmdDeselectAll, 3, 3);
    grid->addWidget(labelFor("Wind &Height:", txtAnemometerHeight), 5, 0);
    grid->addWidget(txtAnemometerHeight, 5, 1);
    grid->addWidget(new QLabel(QStringLiteral("m")), 5, 2);
    grid->setColumnStretch(2, 1);
    connect(cmdBrowseFile, &QPushButton::clicked, this, guarded(host_, [this] { cmdBrowseFile_Click(); }));
    connect(cmdSelectAll, &QPushButton::clicked, this, [this] { selectAll(true); });
    connect(cmdDeselectAll, &QPushButton::clicked, this, [this] { selectAll(false); });
    connect(lstSURFDATStationIDs, &QListWidget::itemSelectionChanged, this, [this] { clearStatus(); });
    return frame;
}

void frmOpenSURFDATFile::selectAll(bool selected) {
    lstSURFDATStationIDs->clearSelection();
    if (selected) lstSURFDATStationIDs->selectAll();
}

void frmOpenSURFDATFile::cmdBrowseFile_Click() {
    if (!browseInput(*txtSURFDATFile, "SURF.DAT Files (*.dat) | *.dat; |All Files (*.*) | *.*")) return;
    ReadSURFDATHeader(pathIn(*txtSURFDATFile));
    selectAll(true);
}

/// Also after an error further on in the header: the stations of the previous file must not remain.
void frmOpenSURFDATFile::showStations(const SurfHeader& header) {
    if (header.outcome != SurfOutcome::NotSurf) ClearInvalid(*txtSURFDATFile);
    if (!header.stationsReached) return;
    lstSURFDATStationIDs->clear();
    for (const std::string& station : header.stations) addRead(*lstSURFDATStationIDs, station);
}

void frmOpenSURFDATFile::ReadSURFDATHeader(const std::string& path) {
    SurfHeader header;
    try {
        readNoticing([&] {
            HeaderSource source(path);
            readSurfHeader(source, header);
        });
    } catch (...) {
        showStations(header);
        throw;
    }
    if (header.outcome == SurfOutcome::NotSurf) {
        refuse(*txtSURFDATFile, "The selected file is not a valid SURF.DAT file.");
        return;
    }
    showStations(header);
    if (header.outcome == SurfOutcome::UnknownVersion) return;
    showPeriod(header.begin, header.end);
    showTime({1, 0, 0}, *DTPicker_TimeStep);
    chooseTimeZone(header.timeZone);
}

bool frmOpenSURFDATFile::checkFields() {
    const std::string path = pathIn(*txtSURFDATFile);
    return check(!path.empty(), *txtSURFDATFile, "Please select a SURF.DAT file.") &&
           check(fileExists(path), *txtSURFDATFile, "The selected SURF.DAT file does not exist.") &&
           checkPeriod() && checkTimeZone() && checkTimeStep() &&
           check(!txtAnemometerHeight->text().isEmpty(), *txtAnemometerHeight,
                 "Please enter a valid Anemometer Height in meters.") &&
           check(!lstSURFDATStationIDs->selectedItems().isEmpty(), *lstSURFDATStationIDs,
                 "Please select at least one station.") &&
           checkOutputDirectory() && checkOutputName();
}

RunPlan frmOpenSURFDATFile::plan() {
    const std::string path = pathIn(*txtSURFDATFile);
    const std::string height = typed(txtAnemometerHeight->text());
    const std::string title = trim(typed(txtTitleLine->text()));
    const std::string base = fileBaseOf(path);
    ControlFile values = sharedValues(InputKind::Surf);
    const std::string period = periodInName(values);
    values.inputFiles = {path};
    values.base = base + "_SURF_" + period;
    std::vector<std::string> selected;
    for (int row = 0; row < lstSURFDATStationIDs->count(); ++row) {
        const QListWidgetItem& item = *lstSURFDATStationIDs->item(row);
        if (!item.isSelected()) continue;
        selected.push_back(readIn(item));
        const std::string& id = selected.back();
        const std::string station = stationNameOf(id);
        values.outputs.push_back({std::to_string(row + 1), surfOutputName(base, id, station, period, height),
                                  title + station, id + ", 0, 0", height});
    }
    RunPlan plan = planOf(outputDirectory(), std::move(values));
    for (std::size_t i = 0; i < selected.size(); ++i) plan.outputs[i].station = selected[i];
    // It is the name of the first row, which may have none.
    if (!selected.empty() && !lstSURFDATStationIDs->item(0)->isSelected()) plan.firstName.clear();
    return plan;
}

}  // namespace zg
