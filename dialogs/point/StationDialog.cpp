#include "dialogs/point/StationDialog.h"

#include <QVBoxLayout>

#include "base/Paths.h"
#include "base/Text.h"
#include "headers/Stations.h"
#include "platform/Captions.h"
#include "platform/Errors.h"
#include "platform/FieldMarks.h"
#include "platform/FormParts.h"
#include "platform/QtText.h"
#include "platform/ReadText.h"
#include "processing/KeyFilters.h"

namespace zg {

void StationDialog::build(const Words& words, QWidget& station) {
    words_ = words;
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(makeInput(station));
    layout->addWidget(makePeriod());
    layout->addWidget(makeOutput());
    layout->addStretch();
    layout->addLayout(makeButtons());
    Form_Load();
    resize(windowSize(*this, 75));
    cmdBrowseFile->setFocus();
}

QGroupBox* StationDialog::makeInput(QWidget& station) {
    auto* frame = named(new QGroupBox(QString::fromLatin1(words_.caption)), "frameFile");
    fileBox_ = named(new QLineEdit, words_.fileBox);
    fileBox_->setAccessibleName(spoken(frame->title()));
    cmdBrowseFile = browseButton("&Browse", "cmdBrowseFile", "Browse for the input file");
    txtXLoc = enteredBox("txtXLoc", KeyNumericSigned);
    txtYLoc = enteredBox("txtYLoc", KeyNumericSigned);
    txtXLoc->setAccessibleName(QStringLiteral("X location of the station"));
    txtYLoc->setAccessibleName(QStringLiteral("Y location of the station"));
    for (QLineEdit* place : {txtXLoc, txtYLoc}) place->setToolTip(place->accessibleName());
    txtAnemometerHeight = enteredBox("txtAnemometerHeight", KeyNumericPositive);
    txtAnemometerHeight->setText(QStringLiteral("10"));
    for (QLineEdit* narrow : {txtXLoc, txtYLoc, txtAnemometerHeight})
        narrow->setMaximumWidth(digitsWide(*narrow, 11));
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

RunPlan StationDialog::plan() {
    const std::string path = inputPath();
    const std::string wanted = stationToLookUp();
    const std::string name = trim(wanted).empty() ? std::string() : stationNameOf(wanted);
    const std::string height = typed(txtAnemometerHeight->text());
    ControlFile values = sharedValues(inputType());
    std::string outName = (name.empty() ? fileBaseOf(path) : name) + words_.tag + periodInName(values);
    if (hasHeightInName()) outName += "_" + height + "m";
    values.inputFiles = {path};
    values.base = outName;
    if (inputType() == InputKind::Tsf)
        values.roseName = outName;
    else
        values.outputs = {{"1", outName, trim(values.title), stationText() + ", 0, 0", height}};
    return planOf(outputDirectory(), std::move(values));
}

}  // namespace zg
