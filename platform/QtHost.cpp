#include "platform/QtHost.h"

#include <QApplication>
#include <QColorDialog>
#include <QEventLoop>
#include <QFileDialog>
#include <QFontDialog>
#include <QMessageBox>
#include <QThread>
#include <QTimer>
#include <algorithm>

#include "base/Numbers.h"
#include "base/Text.h"
#include "platform/NativePicks.h"
#include "platform/QtText.h"

namespace zg {

namespace {

QMessageBox::Icon toIcon(BoxIcon icon) {
    switch (icon) {
        case BoxIcon::Information:
            return QMessageBox::Information;
        case BoxIcon::Warning:
            return QMessageBox::Warning;
        case BoxIcon::Question:
            return QMessageBox::Question;
        case BoxIcon::Stop:
            return QMessageBox::Critical;
        case BoxIcon::None:
            break;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons toButtons(BoxButtons buttons) {
    switch (buttons) {
        case BoxButtons::YesNo:
            return QMessageBox::Yes | QMessageBox::No;
        case BoxButtons::RetryCancel:
            return QMessageBox::Retry | QMessageBox::Cancel;
        case BoxButtons::Ok:
            break;
    }
    return QMessageBox::Ok;
}

BoxAnswer toAnswer(int button, BoxButtons buttons) {
    switch (button) {
        case QMessageBox::Yes:
            return BoxAnswer::Yes;
        case QMessageBox::No:
            return BoxAnswer::No;
        case QMessageBox::Retry:
            return BoxAnswer::Retry;
        case QMessageBox::Cancel:
            return BoxAnswer::Cancel;
        default:
            break;
    }
    if (buttons == BoxButtons::YesNo) return BoxAnswer::No;
    return buttons == BoxButtons::RetryCancel ? BoxAnswer::Cancel : BoxAnswer::Ok;
}

void setUp(QFileDialog& dialog, const FilePick& pick) {
    const QStringList filters = nameFilters(pick.filter);
    dialog.setNameFilters(filters);
    if (pick.filterIndex >= 1 && pick.filterIndex <= filters.size())
        dialog.selectNameFilter(filters[pick.filterIndex - 1]);
    if (!pick.directory.empty()) dialog.setDirectory(fileName(pick.directory));
    if (!pick.fileName.empty()) dialog.selectFile(fileName(pick.fileName));
    dialog.setOption(QFileDialog::DontConfirmOverwrite, !pick.overwritePrompt);
}

/// The suffix of a filter's first pattern, "bmp" for "*.bmp"; "" if that is not one suffix.
QString suffixOf(const std::string& filter) {
    const std::size_t at = filter.find("*.");
    if (at == std::string::npos) return {};
    const std::size_t end = std::min(filter.find_first_of(" ;|*)", at + 2), filter.size());
    return shown(filter.substr(at + 2, end - at - 2));
}

std::string chosen(QFileDialog& dialog) {
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
    return filePath(QDir::toNativeSeparators(dialog.selectedFiles().constFirst()));
}

}  // namespace

QtHost::QtHost() { clock_.start(); }

BoxAnswer QtHost::showBox(const MessageBox& box) {
    QMessageBox dialog(toIcon(box.icon), box.title.empty() ? QStringLiteral("Zephyrgraph") : shown(box.title),
                       shown(box.text), toButtons(box.buttons), QApplication::activeWindow());
    dialog.setTextFormat(Qt::PlainText);
    return toAnswer(dialog.exec(), box.buttons);
}

std::string QtHost::pickFileToOpen(const FilePick& pick) {
    QFileDialog dialog(QApplication::activeWindow(),
                       pick.title.empty() ? QStringLiteral("Open") : shown(pick.title));
    dialog.setFileMode(QFileDialog::ExistingFile);
    setUp(dialog, pick);
    return chosen(dialog);
}

std::string QtHost::pickFileToSave(const FilePick& pick) {
    QFileDialog dialog(QApplication::activeWindow(),
                       pick.title.empty() ? QStringLiteral("Save As") : shown(pick.title));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    setUp(dialog, pick);
    dialog.setDefaultSuffix(suffixOf(pick.filter));
    return chosen(dialog);
}

std::vector<std::string> QtHost::pickFilesToOpen(const FilePick& pick) {
    QFileDialog dialog(QApplication::activeWindow(), shown(pick.title));
    dialog.setFileMode(QFileDialog::ExistingFiles);
    dialog.setLabelText(QFileDialog::Accept, QStringLiteral("Select"));
    dialog.setLabelText(QFileDialog::Reject, QStringLiteral("Cancel"));
    dialog.setLabelText(QFileDialog::LookIn, QStringLiteral("Look in:"));
    dialog.setLabelText(QFileDialog::FileName, QStringLiteral("File name(s):"));
    dialog.setLabelText(QFileDialog::FileType, QStringLiteral("Files of type:"));
    setUp(dialog, pick);
    std::vector<std::string> paths;
    if (dialog.exec() == QDialog::Accepted)
        for (const QString& path : dialog.selectedFiles())
            paths.push_back(filePath(QDir::toNativeSeparators(path)));
    return paths;
}

std::string QtHost::pickFolder(const FolderPick& pick) {
    QFileDialog dialog(QApplication::activeWindow(), shown(pick.title), fileName(pick.start));
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    dialog.setOption(QFileDialog::ReadOnly, !pick.offerNewFolder);
    return chosen(dialog);
}

std::optional<Colour> QtHost::pickColour(Colour current) {
    if (hasNativePicks()) return nativeColour(current, QApplication::activeWindow());
    const QColor colour = QColorDialog::getColor(toQColor(current), QApplication::activeWindow());
    if (!colour.isValid()) return std::nullopt;
    return fromQColor(colour);
}

/// The colour of the record is kept; neither font dialog has one.
std::optional<FontRecord> QtHost::pickFont(const FontRecord& current) {
    if (hasNativePicks()) return nativeFont(current, QApplication::activeWindow());
    QFont font(shown(current.name));
    if (current.size > 0) font.setPointSize(current.size);
    font.setBold(current.bold);
    font.setItalic(current.italic);
    bool accepted = false;
    font = QFontDialog::getFont(&accepted, font, QApplication::activeWindow());
    if (!accepted) return std::nullopt;
    return FontRecord{current.colour, typed(font.family()), toInt16(font.pointSizeF()), font.bold(),
                      font.italic()};
}

void QtHost::pumpEvents(int idleMs) {
    if (idleMs <= 0) {
        QCoreApplication::processEvents();
        return;
    }
    QEventLoop loop;
    QTimer::singleShot(idleMs, &loop, &QEventLoop::quit);
    // A program that is ending runs no event loop any more: waiting must not become a busy loop.
    if (loop.exec() != 0) QThread::msleep(1);
}

QStringList nameFilters(const std::string& filter) {
    QStringList filters;
    const Pieces pieces = split(filter, "|");
    for (std::size_t i = 0; i + 1 < pieces.size(); i += 2) {
        QStringList patterns;
        for (const QString& pattern : shown(pieces[i + 1]).split(QLatin1Char(';'), Qt::SkipEmptyParts))
            if (const QString plain = pattern.trimmed(); !plain.isEmpty())
                patterns.append(plain == QLatin1String("*.*") ? QStringLiteral("*") : plain);
        QString name = shown(trimmed(pieces[i]));
        // The toolkit appends the patterns itself: a description that already ends with them would show them
        // twice.
        if (const qsizetype at = name.lastIndexOf(QLatin1Char('(')); at > 0) name = name.left(at).trimmed();
        filters.append(name + QStringLiteral(" (") + patterns.join(QLatin1Char(' ')) + QLatin1Char(')'));
    }
    return filters;
}

}  // namespace zg
