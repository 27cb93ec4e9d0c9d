#include "batch/FrmCreateReport.h"

#include <QGroupBox>
#include <QVBoxLayout>

#include "base/Paths.h"
#include "batch/AutomationReportWriter.h"
#include "batch/OfficeReportWriter.h"
#include "graph/frq/ModPolarGraph.h"
#include "platform/Captions.h"
#include "platform/Errors.h"
#include "platform/FieldMarks.h"
#include "platform/FormParts.h"
#include "platform/QtText.h"
#include "platform/ReadText.h"
#include "processing/Directories.h"

namespace zg {

namespace {

constexpr float slideLeft = 102.12F;
constexpr float slideTop = 0;
constexpr float slideSide = 539.88F;

}  // namespace

frmCreateReport::frmCreateReport(Host& host, QWidget* parent, std::unique_ptr<ReportWriter> writer)
    : RunningDialog(host, "frmCreateReport", "Create Report", parent), writer_(std::move(writer)) {
    if (!writer_)
        writer_ = std::make_unique<AutomationReportWriter>(std::make_unique<OfficeReportWriter>(host));
    txtBMPDirectory = named(new QLineEdit, "txtBMPDirectory");
    cmdBrowseBMPDirectory =
        browseButton("&Browse...", "cmdBrowseBMPDirectory", "Browse for a directory of bitmaps");
    optPPT = named(new QRadioButton(QStringLiteral("&PowerPoint (PPT)")), "optPPT");
    optDOC = named(new QRadioButton(QStringLiteral("&Word (DOC)")), "optDOC");
    optBothPPTAndDOC = named(new QRadioButton(QStringLiteral("Bo&th")), "optBothPPTAndDOC");
    txtWorkDirectory = named(new QLineEdit, "txtWorkDirectory");
    cmdBrowseWorkDirectory =
        browseButton("B&rowse...", "cmdBrowseWorkDirectory", "Browse for a working directory");
    txtSaveFilename = named(new QLineEdit, "txtSaveFilename");
    cmdCreateReport = namedButton("CREATE", "cmdCreateReport");
    cmdCreateReport->setDefault(true);
    for (QLineEdit* directory : {txtBMPDirectory, txtWorkDirectory})
        showPath(*directory, modPolarGraph.WorkDir);
    layOut();
    followFields();
    txtBMPDirectory->setFocus();
}

void frmCreateReport::layOut() {
    auto* from = new QGroupBox(QStringLiteral("Wind Rose BMP Files:"));
    auto* fromRow = new QHBoxLayout(from);
    fromRow->addWidget(labelFor("&Directory", txtBMPDirectory));
    fromRow->addWidget(txtBMPDirectory, 1);
    fromRow->addWidget(cmdBrowseBMPDirectory);
    auto* kind = new QGroupBox(QStringLiteral("Report:"));
    auto* kindRow = new QHBoxLayout(kind);
    for (QRadioButton* option : {optPPT, optDOC, optBothPPTAndDOC}) kindRow->addWidget(option);
    kindRow->addStretch();
    auto* to = new QGroupBox(QStringLiteral("Save To:"));
    auto* grid = new QGridLayout(to);
    grid->addWidget(labelFor("Director&y", txtWorkDirectory), 0, 0);
    grid->addWidget(txtWorkDirectory, 0, 1);
    grid->addWidget(cmdBrowseWorkDirectory, 0, 2);
    grid->addWidget(labelFor("&Filename", txtSaveFilename), 1, 0);
    grid->addWidget(txtSaveFilename, 1, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(lblStatus, 1);
    buttons->addWidget(cmdCreateReport);
    buttons->addWidget(cmdCancel);
    auto* layout = new QVBoxLayout(this);
    for (QWidget* frame : {from, kind, to}) layout->addWidget(frame);
    layout->addLayout(buttons);
    resize(windowSize(*this, 67));
}

void frmCreateReport::followFields() {
    whenLeft(*txtBMPDirectory, [this] { leftDirectory(*txtBMPDirectory); });
    whenLeft(*txtWorkDirectory, [this] { leftDirectory(*txtWorkDirectory); });
    whenLeft(*txtSaveFilename, [this] { clearMark(*txtSaveFilename, !txtSaveFilename->text().isEmpty()); });
    connect(cmdBrowseBMPDirectory, &QPushButton::clicked, this, guarded(host_, [this] {
                browse(*txtBMPDirectory, "Select a Directory of Wind Rose BMP Files:");
            }));
    connect(cmdBrowseWorkDirectory, &QPushButton::clicked, this,
            guarded(host_, [this] { browse(*txtWorkDirectory, "Select a Working Directory:"); }));
    connect(cmdCreateReport, &QPushButton::clicked, this,
            guarded(host_, [this] { cmdCreateReport_Click(); }));
}

bool frmCreateReport::checkFields() {
    const auto refused = [this](QWidget& field, const char* text) {
        refuse(field, text);
        return false;
    };
    if (txtBMPDirectory->text().isEmpty())
        return refused(*txtBMPDirectory, "ERROR:  Please select a Directory of Wind Rose BMP Files.");
    if (!IsDirectory(pathIn(*txtBMPDirectory)))
        return refused(*txtBMPDirectory,
                       "ERROR:  The selected Directory of Wind Rose BMP Files does not exist.");
    if (txtSaveFilename->text().isEmpty())
        return refused(*txtSaveFilename, "ERROR:  Please select a filename to save the report(s) under.");
    if (txtWorkDirectory->text().isEmpty())
        return refused(*txtWorkDirectory, "ERROR:  Please select a Working Directory.");
    if (IsDirectory(pathIn(*txtWorkDirectory))) return true;
    MarkInvalid(*txtWorkDirectory);
    AskCreateWorkDir(host_,
                     {[this] { ClearInvalid(*txtWorkDirectory); }, [this] { cmdCreateReport_Click(); },
                      [this](const std::string& reason) { tellNoDirectory(reason); }},
                     pathIn(*txtWorkDirectory));
    return false;
}

std::string frmCreateReport::reportPath(const char* extension) const {
    return pathIn(*txtWorkDirectory) + pathIn(*txtSaveFilename) + extension;
}

bool frmCreateReport::mayOverwrite(const char* extension) {
    if (!fileExists(reportPath(extension))) return true;
    return host_.showBox({"The file " + pathIn(*txtSaveFilename) + extension + " already exists in " +
                              pathIn(*txtWorkDirectory) + ". Would you like to overwrite it?",
                          "Overwrite File?", BoxIcon::Information, BoxButtons::YesNo}) == BoxAnswer::Yes;
}

void frmCreateReport::cmdCreateReport_Click() {
    leftDirectory(*txtBMPDirectory);
    leftDirectory(*txtWorkDirectory);
    if (checkFields()) run([this] { create(); });
}

void frmCreateReport::create() {
    const bool both = optBothPPTAndDOC->isChecked();
    const bool slides = both || optPPT->isChecked();
    const bool pages = both || optDOC->isChecked();
    if (!slides && !pages)
        lblStatus->setText(QStringLiteral("Please choose what to create: PowerPoint, Word or both."));
    if (slides && !mayOverwrite(".ppt")) return;
    if (pages && !mayOverwrite(".doc")) return;
    if (slides || pages) listPictures();
    if (slides) CreatePowerPointReport();
    if (pages) CreateWordReport();
}

void frmCreateReport::listPictures() {
    ReportFileList_ = FindFiles("CreateReport", pathIn(*txtBMPDirectory) + "*.bmp");
    ReportFileList_.resize(static_cast<std::size_t>(fileCounts.ReportFileCount));
}

std::string frmCreateReport::pictureAt(std::size_t i) const {
    return pathIn(*txtBMPDirectory) + ReportFileList_[i];
}

void frmCreateReport::CreatePowerPointReport() {
    say("Creating PowerPoint Report...");
    writer_->beginPresentation();
    for (std::size_t i = 0; i < ReportFileList_.size(); ++i) {
        writer_->addSlide(pictureAt(i), slideLeft, slideTop, slideSide, slideSide);
        host_.pumpEvents(0);
    }
    writer_->savePresentation(reportPath(".ppt"));
    lblStatus->setText(QStringLiteral("PowerPoint Report successfully created."));
    if (!optBothPPTAndDOC->isChecked()) cmdCancel->setText(QStringLiteral("Exit"));
}

void frmCreateReport::CreateWordReport() {
    say("Creating Word Report...");
    writer_->beginDocument();
    for (std::size_t i = 0; i < ReportFileList_.size(); ++i) {
        writer_->addPicture(pictureAt(i));
        if (i + 1 < ReportFileList_.size()) writer_->addPageBreak();
        host_.pumpEvents(0);
    }
    writer_->saveDocument(reportPath(".doc"));
    lblStatus->setText(optBothPPTAndDOC->isChecked()
                           ? QStringLiteral("PowerPoint and Word Reports successfully created.")
                           : QStringLiteral("Word Report successfully created."));
    cmdCancel->setText(QStringLiteral("Exit"));
}

}  // namespace zg
