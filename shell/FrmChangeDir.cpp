#include "shell/FrmChangeDir.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QStorageInfo>
#include <QVBoxLayout>

#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "platform/Captions.h"
#include "platform/Errors.h"
#include "platform/FormParts.h"
#include "platform/QtText.h"
#include "platform/ReasonLabel.h"

namespace zg {

namespace {

constexpr const char* rootDirectory = onWindows ? "C:\\" : "/";

std::string startDirectory(const std::string& asked, const std::string& workDir) {
    if (IsDirectory(asked)) return asked;
    return IsDirectory(workDir) ? workDir : rootDirectory;
}

}  // namespace

frmChangeDir::frmChangeDir(Host& host, std::string& directory, const std::string& workDir, QWidget* parent)
    : QDialog(parent), host_(host), directory_(directory), start_(startDirectory(directory, workDir)) {
    nameForm(*this, "frmChangeDir", "Change Directory");
    model_ = new QFileSystemModel(this);
    model_->setFilter(QDir::AllDirs | QDir::NoDotAndDotDot | QDir::Drives);
    model_->setRootPath(QString());
    lblCurDir = named(new QLabel, "lblCurDir");
    letCopy();
    lblCurDir->setTextFormat(Qt::PlainText);
    lblCurDir->setWordWrap(true);  // a deep directory takes more lines, not a wider window
    Drive1 = named(new QComboBox, "Drive1");
    Drive1->setAccessibleName(QStringLiteral("Drive"));
    for (const QStorageInfo& volume : QStorageInfo::mountedVolumes())
        if (volume.isValid() && volume.isReady())
            Drive1->addItem(QDir::toNativeSeparators(volume.rootPath()));
    Dir1 = named(new QTreeView, "Dir1");
    Dir1->setAccessibleName(QStringLiteral("Directory"));
    Dir1->setModel(model_);
    Dir1->setHeaderHidden(true);
    Dir1->sortByColumn(0, Qt::AscendingOrder);
    for (int column = 1; column < model_->columnCount(); ++column) Dir1->hideColumn(column);
    cmdOK = namedButton("OK", "cmdOK");
    cmdOK->setDefault(true);
    cmdCancel = namedButton("Cancel", "cmdCancel");

    auto* layout = new QVBoxLayout(this);
    auto* driveRow = new QHBoxLayout;
    driveRow->addWidget(labelFor("&Drive:", Drive1));
    driveRow->addWidget(Drive1, 1);
    layout->addWidget(
        labelFor("&Current Working Directory:", Dir1));  // the named directory is selected there
    layout->addWidget(lblCurDir);
    layout->addLayout(driveRow);
    layout->addWidget(Dir1, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdOK);
    buttons->addWidget(cmdCancel);
    layout->addLayout(buttons);
    resize(windowSize(*this, 50).expandedTo({0, 420}));

    showDriveOf(fileName(start_));
    goTo(fileName(start_));
    // The tree reads directories in the background, which moves the row away meanwhile.
    connect(model_, &QFileSystemModel::directoryLoaded, this, [this](const QString& loaded) {
        if (model_->filePath(Dir1->currentIndex()).startsWith(loaded)) showCurrent();
    });
    connect(Drive1, &QComboBox::activated, this, guarded(host_, [this] { Drive1_Change(); }));
    connect(Dir1->selectionModel(), &QItemSelectionModel::currentChanged, this,
            guarded(host_, [this] { Dir1_Change(); }));
    connect(cmdOK, &QPushButton::clicked, this, guarded(host_, [this] { cmdOK_Click(); }));
    connect(cmdCancel, &QPushButton::clicked, this, &frmChangeDir::reject);
}

/// What is shown may have breaks that are no part of the path.
void frmChangeDir::letCopy() {
    if constexpr (!onWindows) return lblCurDir->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* copy = new QAction(QStringLiteral("&Copy"), lblCurDir);
    copy->setShortcut(QKeySequence::Copy);
    connect(copy, &QAction::triggered, this, [this] { QGuiApplication::clipboard()->setText(choice_); });
    lblCurDir->addAction(copy);
    lblCurDir->setContextMenuPolicy(Qt::ActionsContextMenu);
}

void frmChangeDir::goTo(const QString& path) {
    const QModelIndex index = model_->index(path);
    Dir1->setCurrentIndex(index);
    Dir1->expand(index);
    showCurrent();
    choose(path);
}

void frmChangeDir::choose(const QString& path) {
    choice_ = QDir::toNativeSeparators(path);
    lblCurDir->setText(withBreaks(choice_));
    lblCurDir->setAccessibleName(choice_);
}

/// In the middle, so that the directories below it are visible too.
void frmChangeDir::showCurrent() {
    Dir1->scrollTo(Dir1->currentIndex(), QAbstractItemView::PositionAtCenter);
}

/// The drive box starts at the drive of the directory, even if the desktop does not list it.
void frmChangeDir::showDriveOf(const QString& path) {
    const QString drive = QDir::toNativeSeparators(QStorageInfo(path).rootPath());
    if (drive.isEmpty()) return;
    if (Drive1->findText(drive) < 0) Drive1->addItem(drive);
    Drive1->setCurrentText(drive);
}

void frmChangeDir::Drive1_Change() {
    // A drive that is not ready leaves the tree unchanged.
    if (const QString drive = Drive1->currentText(); QDir(drive).isReadable()) goTo(drive);
}

void frmChangeDir::Dir1_Change() {
    if (!Dir1->currentIndex().isValid()) return;  // if the directory has disappeared, the choice is unchanged
    choose(model_->filePath(Dir1->currentIndex()));
}

void frmChangeDir::cmdOK_Click() {
    try {
        directory_ = withSeparator(filePath(choice_));
        accept();
    } catch (const RunTimeError& error) {
        host_.showBox({"Error: " + error.description, "", BoxIcon::None, BoxButtons::Ok});
    }
}

void frmChangeDir::reject() {
    directory_ = withSeparator(start_);
    QDialog::reject();
}

}  // namespace zg
