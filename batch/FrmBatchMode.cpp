#include "batch/FrmBatchMode.h"

#include <QGroupBox>
#include <QVBoxLayout>

#include "base/AtEnd.h"
#include "base/Numbers.h"
#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "graph/frq/ModPolarGraph.h"
#include "platform/Captions.h"
#include "platform/Errors.h"
#include "platform/FieldMarks.h"
#include "platform/FormParts.h"
#include "platform/Pickers.h"
#include "platform/QtText.h"
#include "platform/ReadText.h"
#include "processing/Directories.h"

namespace zg {

namespace {

void enable(QLineEdit& field, bool enabled) {
    field.setEnabled(enabled);
    setFieldMark(field, enabled ? cleanMark : buttonFaceColour);
}

/// Accepts whole numbers with a sign, and control keys.
std::int16_t keyOfLimit(std::int16_t key) {
    const bool swallowed = (key >= 32 && key <= 44) || key == 46 || key == 47 || (key >= 58 && key <= 127);
    return swallowed ? std::int16_t{0} : key;
}

bool isPercent(const std::string& text) {
    try {
        const float value = toSingle(trim(text));
        return value >= 0 && value <= 100;
    } catch (const RunTimeError&) {
        return false;
    }
}

}  // namespace

frmBatchMode::frmBatchMode(Host& host, BatchHooks hooks, QWidget* parent)
    : RunningDialog(host, "frmBatchMode", "Batch Mode", parent), hooks_(std::move(hooks)) {
    optSingleFRQFile = named(new QRadioButton(QStringLiteral("&Single FRQ File")), "optSingleFRQFile");
    optDirectory = named(new QRadioButton(QStringLiteral("&Directory")), "optDirectory");
    txtSingleFRQFile = named(new QLineEdit, "txtSingleFRQFile");
    cmdBrowseSingleFRQFile = browseButton("&Browse...", "cmdBrowseSingleFRQFile", "Browse for an FRQ file");
    txtDirectory = named(new QLineEdit, "txtDirectory");
    cmdBrowseDirectory =
        browseButton("B&rowse...", "cmdBrowseDirectory", "Browse for a directory of FRQ files");
    txtRootFilename = named(new QLineEdit, "txtRootFilename");
    txtRootFilename->setToolTip(QStringLiteral("The name of each bitmap begins with it"));
    txtWorkDirectory = named(new QLineEdit, "txtWorkDirectory");
    cmdBrowseWorkDirectory =
        browseButton("Br&owse...", "cmdBrowseWorkDirectory", "Browse for a working directory");
    txtPercentValidLimit = enteredBox("txtPercentValidLimit", keyOfLimit);
    txtPercentValidLimit->setToolTip(
        QStringLiteral("A whole number from 0 to 100; roses with exactly this percentage are exported too"));
    cmdBeginBatchMode = namedButton("BEGIN", "cmdBeginBatchMode");
    cmdBeginBatchMode->setDefault(true);
    txtNotes = named(new QPlainTextEdit, "txtNotes");
    layOut();
    followFields();
    optSingleFRQFile->setChecked(true);
    showPath(*txtWorkDirectory, modPolarGraph.WorkDir);
    txtSingleFRQFile->setFocus();
}

void frmBatchMode::layOut() {
    auto* from = new QGroupBox(QStringLiteral("Export all wind roses in a:"));
    auto* fromGrid = new QGridLayout(from);
    fromGrid->addWidget(optSingleFRQFile, 0, 0);
    fromGrid->addWidget(txtSingleFRQFile, 0, 1);
    fromGrid->addWidget(cmdBrowseSingleFRQFile, 0, 2);
    fromGrid->addWidget(optDirectory, 1, 0);
    fromGrid->addWidget(txtDirectory, 1, 1);
    fromGrid->addWidget(cmdBrowseDirectory, 1, 2);
    txtSingleFRQFile->setAccessibleName(QStringLiteral("FRQ file to export"));
    txtDirectory->setAccessibleName(QStringLiteral("Directory of FRQ files to export"));

    auto* to = new QGroupBox(QStringLiteral("to the following:"));
    auto* toGrid = new QGridLayout(to);
    toGrid->addWidget(labelFor("&Working Directory", txtWorkDirectory), 0, 0);
    toGrid->addWidget(txtWorkDirectory, 0, 1, 1, 2);
    toGrid->addWidget(cmdBrowseWorkDirectory, 0, 3);
    toGrid->addWidget(labelFor("Root &Filename", txtRootFilename), 1, 0);
    toGrid->addWidget(txtRootFilename, 1, 1, 1, 2);
    toGrid->addWidget(labelFor("with Percent &Valid Hours Greater Than:", txtPercentValidLimit), 2, 0, 1, 2);
    txtPercentValidLimit->setMaximumWidth(digitsWide(*txtPercentValidLimit, 8));
    toGrid->addWidget(txtPercentValidLimit, 2, 2);
    toGrid->addWidget(
        new QLabel(QStringLiteral("(Note: This option is only enabled for FRQ Data Format 2.1+)")), 3, 0, 1,
        4);
    toGrid->setColumnStretch(1, 1);
    toGrid->setColumnStretch(2, 1);

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(lblStatus, 1);
    buttons->addWidget(cmdBeginBatchMode);
    buttons->addWidget(cmdCancel);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(from);
    layout->addWidget(to);
    layout->addLayout(buttons);
    layout->addLayout(notesPart());
    resize(windowSize(*this, 72));
}

/// What to report about a run besides its status.
QLayout* frmBatchMode::notesPart() {
    QLabel* label = labelFor("&Notes on the run:", txtNotes);
    txtNotes->setAccessibleName(spoken(label->text()));
    txtNotes->setReadOnly(true);
    txtNotes->setTabChangesFocus(true);
    txtNotes->setMinimumHeight(5 * txtNotes->fontMetrics().height());
    auto* part = new QVBoxLayout;
    part->addWidget(label);
    part->addWidget(txtNotes, 1);
    return part;
}

void frmBatchMode::followFields() {
    connect(optSingleFRQFile, &QRadioButton::toggled, this, [this](bool chosen) {
        if (chosen) optSingleFRQFile_Click();
    });
    connect(optDirectory, &QRadioButton::toggled, this, [this](bool chosen) {
        if (chosen) optDirectory_Click();
    });
    connect(cmdBrowseSingleFRQFile, &QPushButton::clicked, this,
            guarded(host_, [this] { cmdBrowseSingleFRQFile_Click(); }));
    connect(cmdBrowseDirectory, &QPushButton::clicked, this,
            guarded(host_, [this] { browse(*txtDirectory, "Select a Directory of FRQ Files:"); }));
    connect(cmdBrowseWorkDirectory, &QPushButton::clicked, this,
            guarded(host_, [this] { browse(*txtWorkDirectory, "Select a Working Directory:"); }));
    connect(cmdBeginBatchMode, &QPushButton::clicked, this,
            guarded(host_, [this] { cmdBeginBatchMode_Click(); }));
    whenLeft(*txtSingleFRQFile,
             [this] { clearMark(*txtSingleFRQFile, !txtSingleFRQFile->text().isEmpty()); });
    whenLeft(*txtDirectory, [this] { leftDirectory(*txtDirectory); });
    whenLeft(*txtWorkDirectory, [this] { leftDirectory(*txtWorkDirectory); });
    whenLeft(*txtPercentValidLimit, [this] { leftLimit(); });
    whenLeft(*cmdBeginBatchMode, [this] {
        if (lblStatus->text() == QLatin1String("Finished")) lblStatus->clear();
    });
}

void frmBatchMode::optSingleFRQFile_Click() {
    enable(*txtSingleFRQFile, true);
    cmdBrowseSingleFRQFile->setEnabled(true);
    enable(*txtDirectory, false);
    cmdBrowseDirectory->setEnabled(false);
    txtRootFilename->clear();
    enable(*txtRootFilename, true);
    lblStatus->clear();
}

void frmBatchMode::optDirectory_Click() {
    enable(*txtSingleFRQFile, false);
    cmdBrowseSingleFRQFile->setEnabled(false);
    enable(*txtDirectory, true);
    cmdBrowseDirectory->setEnabled(true);
    txtRootFilename->setText(QStringLiteral("Root Filename generated from FRQ Filename"));
    enable(*txtRootFilename, false);
    lblStatus->clear();
}

void frmBatchMode::openDirectory(const std::string& directory, const std::string& note) {
    optDirectory->setChecked(true);
    showPath(*txtDirectory, directory);
    leftDirectory(*txtDirectory);
    if (txtWorkDirectory->text().isEmpty()) showPath(*txtWorkDirectory, withSeparator(directory));
    txtNotes->setPlainText(shown(note));
    cmdBeginBatchMode->setFocus();
}

void frmBatchMode::cmdBrowseSingleFRQFile_Click() {
    const std::string path = ShowFileOpen(host_, "Frequency File (*.frq) | *.frq; |All Files (*.*) | *.*", 1,
                                          modPolarGraph.WorkDir);
    if (path.empty()) return;
    showPath(*txtSingleFRQFile, path);
    clearMark(*txtSingleFRQFile, true);
    modPolarGraph.WorkDir = DirOf(path);
    // Only the first character is checked, so nearly every directory gets a final separator here.
    if (modPolarGraph.WorkDir.substr(0, 1) != "\\") modPolarGraph.WorkDir += pathSeparator;
}

void frmBatchMode::leftLimit() {
    clearMark(*txtPercentValidLimit, isPercent(typed(txtPercentValidLimit->text())));
}

bool frmBatchMode::checkInput() {
    if (optSingleFRQFile->isChecked()) {
        if (txtSingleFRQFile->text().isEmpty()) {
            refuse(*txtSingleFRQFile, "ERROR:  Please select an FRQ File.");
            return false;
        }
        if (!fileExists(pathIn(*txtSingleFRQFile))) {
            refuse(*txtSingleFRQFile, "ERROR:  FRQ File not found.");
            return false;
        }
        return true;
    }
    if (txtDirectory->text().isEmpty()) {
        refuse(*txtDirectory, "ERROR:  Please select a Directory of FRQ Files.");
        return false;
    }
    if (!IsDirectory(pathIn(*txtDirectory))) {
        refuse(*txtDirectory, "ERROR:  The selected Directory of FRQ Files does not exist.");
        return false;
    }
    return true;
}

bool frmBatchMode::checkWorkDirectory() {
    if (txtWorkDirectory->text().isEmpty()) {
        refuse(*txtWorkDirectory, "ERROR:  Please select a Working Directory.");
        return false;
    }
    if (IsDirectory(pathIn(*txtWorkDirectory))) return true;
    MarkInvalid(*txtWorkDirectory);
    AskCreateWorkDir(host_,
                     {[this] { ClearInvalid(*txtWorkDirectory); }, [this] { cmdBeginBatchMode_Click(); },
                      [this](const std::string& reason) { tellNoDirectory(reason); }},
                     pathIn(*txtWorkDirectory));
    return false;
}

bool frmBatchMode::checkLimit() {
    if (txtPercentValidLimit->text().isEmpty()) {
        txtPercentValidLimit->setText(QStringLiteral("0"));
        return true;
    }
    const float limit = toSingle(trim(typed(txtPercentValidLimit->text())));
    if (limit >= 0 && limit <= 100) {
        // "1,5" is fifteen: the field shows what counts.
        txtPercentValidLimit->setText(shown(singleText(limit)));
        return true;
    }
    refuse(*txtPercentValidLimit, "ERROR: The % Valid Hours Limit value must be between 0% and 100%.");
    return false;
}

void frmBatchMode::cmdBeginBatchMode_Click() {
    // A start by the keyboard leaves no field, but the directories still need their final separator.
    leftDirectory(*txtDirectory);
    leftDirectory(*txtWorkDirectory);
    txtNotes->clear();
    if (checkInput() && checkWorkDirectory() && checkLimit()) run([this] { begin(); });
}

void frmBatchMode::begin() {
    BatchRequest request;
    request.ofDirectory = optDirectory->isChecked();
    request.file = pathIn(*txtSingleFRQFile);
    request.root = pathIn(*txtRootFilename);
    request.directory = pathIn(*txtDirectory);
    request.workDirectory = pathIn(*txtWorkDirectory);
    request.percentValidLimit = toSingle(trim(typed(txtPercentValidLimit->text())));
    say("Running...");
    BatchNotes notes;
    {
        const AtEnd told([this, &notes] { txtNotes->setPlainText(shown(notes.text())); });
        runBatch(host_, modPolarGraph, request, hooks_, notes);
    }
    lblStatus->setText(QStringLiteral("Finished"));
    cmdCancel->setText(QStringLiteral("Exit"));
}

}  // namespace zg
