#include "platform/FieldMarks.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QFocusEvent>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QVariant>

#include "base/Text.h"
#include "platform/QtText.h"
#include "processing/FieldMarks.h"

namespace zg {

namespace {

constexpr const char* markProperty = "fieldMark";

/// The text that decides whether a field is filled; for a list, its current row.
QString textOf(const QWidget& field) {
    if (const auto* box = qobject_cast<const QLineEdit*>(&field)) return box->text();
    if (const auto* combo = qobject_cast<const QComboBox*>(&field)) return combo->currentText();
    if (const auto* picker = qobject_cast<const QAbstractSpinBox*>(&field)) return picker->text();
    const auto* list = qobject_cast<const QListWidget*>(&field);
    return list != nullptr && list->currentItem() != nullptr ? list->currentItem()->text() : QString();
}

void setText(QWidget& field, const QString& text) {
    if (auto* box = qobject_cast<QLineEdit*>(&field)) box->setText(text);
    if (auto* list = qobject_cast<QComboBox*>(&field); list != nullptr && list->isEditable())
        list->setEditText(text);
}

}  // namespace

Colour fieldMark(const QWidget& field) {
    const QVariant mark = field.property(markProperty);
    return mark.isValid() ? mark.toUInt() : cleanMark;
}

void setFieldMark(QWidget& field, Colour mark) {
    field.setProperty(markProperty, mark);
    const bool marked = mark == yellowMark || mark == darkYellowMark;
    const bool frame = qobject_cast<QGroupBox*>(&field) != nullptr;
    if (frame || qobject_cast<QLabel*>(&field) != nullptr) field.setAutoFillBackground(marked);
    if (!marked) {
        QPalette palette;
        // For a disabled field the theme does this itself.
        if (mark == buttonFaceColour && field.isEnabled())
            palette.setBrush(QPalette::Base, palette.brush(QPalette::Button));
        field.setPalette(palette);
        return;
    }
    QPalette palette = field.palette();
    palette.setColor(QPalette::Window, toQColor(mark));
    palette.setColor(QPalette::WindowText, Qt::black);
    if (!frame) {  // the fields in a frame keep their own background
        for (const QPalette::ColorRole role : {QPalette::Base, QPalette::Button})
            palette.setColor(role, toQColor(mark));
        for (const QPalette::ColorRole role :
             {QPalette::Text, QPalette::ButtonText, QPalette::PlaceholderText})
            palette.setColor(role, Qt::black);
    }
    field.setPalette(palette);
}

void MarkInvalid(QWidget& field) { setFieldMark(field, yellowMark); }

void ClearInvalid(QWidget& field) { setFieldMark(field, cleanMark); }

bool leavesField(const QEvent& event) {
    if (event.type() != QEvent::FocusOut) return false;
    const Qt::FocusReason reason = static_cast<const QFocusEvent&>(event).reason();
    return reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason;
}

bool clearFilledMark(QWidget& field, bool filled) {
    if (fieldMark(field) != yellowMark || !filled) return false;
    ClearInvalid(field);
    return true;
}

void ClearInvalidIfFilled(QWidget& field) {
    const std::string text = typed(textOf(field));
    setFieldMark(field, filledMark(fieldMark(field), text));
    const std::string plain = trim(text);
    if (plain != text) setText(field, shown(plain));
}

void SetEnabled(QWidget& field) { field.setEnabled(true); }

void SetDisabled(QWidget& field) { field.setEnabled(false); }

void DisableField(QWidget& field) {
    field.setEnabled(false);
    setFieldMark(field, disabledMark(fieldMark(field)));
}

void EnableField(QWidget& field) {
    field.setEnabled(true);
    setFieldMark(field, enabledMark(fieldMark(field)));
}

void SetFieldStates(Fields plainOff, Fields fieldsOff, Fields plainOn, Fields fieldsOn) {
    for (QWidget* field : plainOff) SetDisabled(*field);
    for (QWidget* field : fieldsOff) DisableField(*field);
    for (QWidget* field : plainOn) SetEnabled(*field);
    for (QWidget* field : fieldsOn) EnableField(*field);
}

}  // namespace zg
