// Builds the window of the wizard.

#include <QVBoxLayout>

#include "dialogs/gridded/GridForm.h"
#include "platform/FormParts.h"
#include "platform/Moments.h"
#include "platform/ReasonLabel.h"
#include "processing/KeyFilters.h"

namespace zg {

namespace {

QComboBox* combo(const char* name, const QStringList& entries, const char* spoken) {
    auto* made = named(new QComboBox, name);
    made->addItems(entries);
    made->setAccessibleName(QString::fromLatin1(spoken));
    return made;
}

/// A list of two letters after a short label.
QWidget* hemisphere(const char* name, const QStringList& letters, const char* label) {
    auto* holder = new QWidget;
    auto* list = combo(name, letters, label);
    auto* row = new QHBoxLayout(holder);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(labelFor(label, list));
    row->addWidget(list);
    return holder;
}

QGroupBox* frame(const char* caption, const char* name) {
    return named(new QGroupBox(QString::fromLatin1(caption)), name);
}

/// The row of buttons at the end of a step.
QLayout* moves(QPushButton* back, QPushButton* on) {
    auto* row = new QHBoxLayout;
    row->addStretch();
    if (back != nullptr) row->addWidget(back);
    row->addWidget(on);
    return row;
}

}  // namespace

QGroupBox* GridForm::makeStep1() {
    auto* step = frame(variation_.filesCaption, "Frame_Step1");
    auto* list = named(new QListWidget, variation_.fileList);
    list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    list->setAccessibleName(QStringLiteral("Data files in the order of their time"));
    list->setTabKeyNavigation(false);
    list->setMinimumHeight(70);
    auto* note = named(new QLabel(QStringLiteral("Use these buttons to arrange the data files so that the "
                                                 "data are in chronological order.")),
                       "lblInstructions");
    note->setWordWrap(true);
    auto* grid = new QGridLayout(step);
    grid->addWidget(list, 0, 0, 5, 1);
    grid->addWidget(namedButton("&Browse...", "cmdBrowseDataFiles"), 0, 1);
    grid->addWidget(namedButton("Move &Up", "cmdMoveUP"), 1, 1);
    grid->addWidget(namedButton("Move &Down", "cmdMoveDOWN"), 2, 1);
    grid->addWidget(namedButton("&Remove Selection", "cmdRemoveSelection"), 3, 1);
    grid->addWidget(note, 5, 0, 1, 2);
    grid->addLayout(moves(nullptr, namedButton("&NEXT", "cmdNext1")), 6, 0, 1, 2);
    grid->setColumnStretch(0, 1);
    grid->setRowStretch(4, 1);
    return step;
}

void GridForm::addPeriod(QGridLayout& grid) {
    auto* zone = combo("cboTimeZone", {}, "Base time zone");
    zone->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    grid.addWidget(labelFor("Base Time &Zone:", zone), 0, 0, 1, 5);
    grid.addWidget(zone, 1, 0, 1, 5);
    int row = 2;
    for (const char* which : {"Begin", "End"}) {
        const std::string name(which);
        auto* dates = datePicker(("DTPicker_" + name + "Date").c_str());
        auto* times = timePicker(("DTPicker_" + name + "Time").c_str());
        auto* dateLabel = labelFor(row == 2 ? "Startin&g Date:" : "&Ending Date:", dates);
        auto* timeLabel = labelFor("Time:", times);
        times->setAccessibleName(row == 2 ? QStringLiteral("Starting time") : QStringLiteral("Ending time"));
        grid.addWidget(named(dateLabel, ("lbl" + name + "Date").c_str()), row, 0);
        grid.addWidget(dates, row, 1);
        grid.addWidget(named(timeLabel, ("lbl" + name + "Time").c_str()), row, 2);
        grid.addWidget(times, row++, 3);
    }
    auto* stepFrame = frame("Ti&me Step:", "Frame_TimeStep");
    auto* step = timePicker("DTPicker_TimeStep");
    step->setAccessibleName(QStringLiteral("Time step"));
    step->setToolTip(QStringLiteral("Hours, minutes and seconds; 9 hours, 6 minutes and 7 seconds at most"));
    (new QVBoxLayout(stepFrame))->addWidget(step);
    grid.addWidget(stepFrame, 2, 4, 2, 1);
}

void GridForm::addMethods(QGridLayout& grid) {
    auto* spatial = combo("cboSpatialInterpolationMethod", {"BILINEAR", "NEAREST GRID CELL"},
                          "Spatial interpolation method");
    spatial->setCurrentIndex(-1);
    int row = 4;
    grid.addWidget(labelFor("Spatial &Interpolation Method:", spatial), row, 0, 1, 2);
    grid.addWidget(spatial, row++, 2, 1, 3);
    if (variation_.asksProfiling) {
        auto* profiling =
            combo("cboVertProfilingMethod", {"METSTAT", "NEUTRAL", "DIRECT"}, "Vertical profiling method");
        profiling->setCurrentIndex(-1);
        profiling->setToolTip(QStringLiteral("How the wind below the lowest level of the data is found"));
        grid.addWidget(labelFor("&Vertical Profiling Method:", profiling), row, 0, 1, 2);
        grid.addWidget(profiling, row++, 2, 1, 3);
    }
    auto* stationsOption = named(new QRadioButton(QStringLiteral("By &Station")), "optByStation");
    auto* locationsOption = named(new QRadioButton(QStringLiteral("By &Location")), "optByLocation");
    locationsOption->setChecked(true);
    auto* number = enteredBox("txtNumberOfLocations", KeyNumericInteger);
    number->setMaximumWidth(80);
    grid.addWidget(stationsOption, row, 0);
    grid.addWidget(locationsOption, row, 1);
    grid.addWidget(labelFor("Number &of Locations:", number), row, 2, 1, 2);
    grid.addWidget(number, row++, 4);
    auto* title = enteredBox("txtTitleLine");
    keepOneLine(*title);
    grid.addWidget(labelFor("&Title Line (Optional):", title), row, 0);
    grid.addWidget(title, row++, 1, 1, 4);
    auto* settingsRow = new QHBoxLayout;
    settingsRow->addWidget(namedButton("Set Se&asons", "cmdSetSeasons"));
    settingsRow->addWidget(namedButton("Set &Wind Speed Classes", "cmdSetWindSpeedClasses"));
    settingsRow->addStretch();
    grid.addLayout(settingsRow, row++, 0, 1, 5);
    grid.addLayout(moves(namedButton("&PREVIOUS", "cmdPrevious2"), namedButton("&NEXT", "cmdNext2")), row, 0,
                   1, 5);
}

QGroupBox* GridForm::makeStep2() {
    auto* step = frame("PROCESSING INFORMATION", "Frame_Step2");
    auto* grid = new QGridLayout(step);
    addPeriod(*grid);
    addMethods(*grid);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);
    return step;
}

QGroupBox* GridForm::makeStations() {
    auto* stationsFrame = frame("&Stations:", "Frame_Stations");
    auto* list = named(new QListWidget, "lstStations");
    list->setSelectionMode(QAbstractItemView::MultiSelection);
    list->setTabKeyNavigation(false);
    list->setMinimumHeight(70);
    list->setAccessibleName(QStringLiteral("Stations"));
    auto* grid = new QGridLayout(stationsFrame);
    grid->addWidget(list, 0, 0, 3, 1);
    grid->addWidget(namedButton("Select &All", "cmdSelectAll"), 0, 1);
    grid->addWidget(namedButton("&Deselect All", "cmdDeselectAll"), 1, 1);
    grid->setRowStretch(2, 1);
    if (!variation_.offersCells) return stationsFrame;
    auto* note = named(
        new QLabel(QStringLiteral(
            "The question about grid cells was answered Yes: the first station selected is "
            "processed at the cell typed for location 1, the second at that for location 2, and "
            "so on. To use the coordinates of the stations instead, go back to By Location and answer No.")),
        "lblCellsOfStations");
    note->setWordWrap(true);
    note->hide();
    grid->addWidget(note, 3, 0, 1, 2);
    return stationsFrame;
}

QWidget* GridForm::makeHeight(const char* frameName, const char* boxName) {
    auto* holder = named(new QWidget, frameName);
    auto* height = enteredBox(boxName, KeyNumericSigned);
    height->setMaximumWidth(100);
    auto* row = new QHBoxLayout(holder);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(labelFor("Extraction &Height:", height));
    row->addWidget(height);
    row->addWidget(new QLabel(QStringLiteral("m")));
    row->addStretch();
    return holder;
}

QGroupBox* GridForm::makeCoordinates() {
    auto* coordinates = frame("Coordinates:", "Frame_Coordinates");
    auto* column = new QVBoxLayout(coordinates);
    struct Row {
        const char* label;
        const char* box;
        KeyFunction keys;
        QWidget* beside;
    };
    const auto add = [column](const char* name, const std::vector<Row>& rows) {
        auto* holder = named(new QWidget, name);
        auto* grid = new QGridLayout(holder);
        grid->setContentsMargins(0, 0, 0, 0);
        int at = 0;
        for (const Row& row : rows) {
            auto* field = enteredBox(row.box, row.keys);
            grid->addWidget(labelFor(row.label, field), at, 0);
            grid->addWidget(field, at, 1);
            if (row.beside != nullptr) grid->addWidget(row.beside, at, 2);
            ++at;
        }
        column->addWidget(holder);
    };
    add("Frame_LL", {{"&Latitude:", "txtLat", KeyNumericPositive, hemisphere("cboNS", {"N", "S"}, "N/S:")},
                     {"L&ongitude:", "txtLon", KeyNumericPositive, hemisphere("cboWE", {"W", "E"}, "W/E:")}});
    add("Frame_XY", {{"&X Coordinate:", "txtXCoord", KeyNumericSigned, new QLabel(QStringLiteral("km"))},
                     {"&Y Coordinate:", "txtYCoord", KeyNumericSigned, new QLabel(QStringLiteral("km"))}});
    if (variation_.offersCells)
        add("Frame_IJ", {{"Grid Point &i:", "txtGridPointI", KeyNumericSigned, nullptr},
                         {"Grid Point &j:", "txtGridPointJ", KeyNumericSigned, nullptr}});
    column->addWidget(makeHeight("Frame_LocationHeight", "txtExtractionHeight"));
    return coordinates;
}

QGroupBox* GridForm::makeOutputName() {
    auto* output = frame("Output FRQ Filename:", "Frame_OutputFRQName");
    auto* name = enteredBox("txtFRQOutputFilename");
    auto* row = new QHBoxLayout(output);
    row->addWidget(labelFor("Filen&ame:", name));
    row->addWidget(name);
    row->addWidget(named(new QLabel(QStringLiteral(".frq")), "lblfrq"));
    return output;
}

QGroupBox* GridForm::makeStep3() {
    auto* step = frame("", "Frame_Step3");
    auto* column = new QVBoxLayout(step);
    column->addWidget(makeStations());
    column->addWidget(makeHeight("Frame_ExtractionHeight", "txtExtractionHeight2"));
    column->addWidget(makeCoordinates());
    column->addWidget(makeOutputName());
    auto* between = new QHBoxLayout;
    between->addWidget(namedButton("Pre&vious Location", "cmdPrevLocation"));
    between->addWidget(namedButton("Nex&t Location", "cmdNextLocation"));
    between->addStretch();
    column->addLayout(between);
    column->addStretch();
    column->addLayout(moves(namedButton("&PREVIOUS", "cmdPrevious3"), namedButton("&NEXT", "cmdNext3")));
    return step;
}

QGroupBox* GridForm::makeStep4() {
    auto* step = frame("DIRECTORY FOR OUTPUT", "Frame_Step4");
    auto* directory = enteredBox("txtOutputDirectory");
    auto* status = named(new QLabel, "lblStatus");
    status->setTextFormat(Qt::PlainText);
    status->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto* grid = new QGridLayout(step);
    grid->addWidget(labelFor("&Output Directory:", directory), 0, 0);
    grid->addWidget(directory, 0, 1);
    grid->addWidget(namedButton("&Browse...", "cmdBrowseDirectory"), 0, 2);
    grid->addWidget(status, 1, 0, 1, 3);
    grid->addWidget(new ReasonLabel("lblReason"), 2, 0, 1, 3);
    grid->addLayout(moves(namedButton("&PREVIOUS", "cmdPrevious4"), namedButton("P&ROCESS", "cmdPROCESS")), 3,
                    0, 1, 3);
    return step;
}

}  // namespace zg
