#include "platform/ReadText.h"

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QVariant>

#include "platform/QtText.h"
#include "platform/ReasonLabel.h"

namespace zg {

namespace {

constexpr const char* readProperty = "bytesRead";

QByteArray asArray(std::string_view bytes) { return {bytes.data(), static_cast<qsizetype>(bytes.size())}; }

/// A path that the file system cannot represent as text is shown like any other text of a file.
QString textOfPath(const std::string& path) {
    const QString name = fileName(path);
    return filePath(name) == path ? name : shown(path);
}

/// The bytes kept with a text, if they still belong to what is shown.
std::string keptOr(const QVariant& kept, const QString& text) {
    const std::string bytes = kept.toByteArray().toStdString();
    return kept.isValid() && shown(bytes) == text ? bytes : typed(text);
}

}  // namespace

void showRead(QLineEdit& box, std::string_view bytes) {
    box.setText(shown(bytes));
    box.setProperty(readProperty, asArray(bytes));
}

void addRead(QComboBox& combo, std::string_view bytes) {
    combo.addItem(shown(bytes), asArray(bytes));
    combo.setItemData(combo.count() - 1, plainTip(shown(bytes)), Qt::ToolTipRole);
}

void addRead(QListWidget& list, std::string_view bytes) {
    auto* row = new QListWidgetItem(shown(bytes), &list);
    row->setData(Qt::UserRole, asArray(bytes));
    row->setToolTip(plainTip(row->text()));
}

std::string readOrTyped(const QLineEdit& box) { return keptOr(box.property(readProperty), box.text()); }

std::string readOrTyped(const QComboBox& combo) {
    const QString text = combo.currentText();
    const bool isPicked =
        combo.currentIndex() >= 0 && combo.currentText() == combo.itemText(combo.currentIndex());
    const int row =
        isPicked ? combo.currentIndex() : combo.findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
    return keptOr(combo.itemData(row), text);
}

std::string readIn(const QListWidgetItem& row) { return keptOr(row.data(Qt::UserRole), row.text()); }

void showPath(QLineEdit& box, const std::string& path) {
    box.setText(textOfPath(path));
    box.setProperty(readProperty, asArray(path));
}

std::string pathIn(const QLineEdit& box) {
    const QVariant kept = box.property(readProperty);
    const std::string path = kept.toByteArray().toStdString();
    return kept.isValid() && textOfPath(path) == box.text() ? path : filePath(box.text());
}

}  // namespace zg
