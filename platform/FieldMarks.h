#pragma once

#include <QEvent>
#include <QWidget>
#include <span>

#include "base/Style.h"

namespace zg {

/// The background of a field for the rules of the marks: yellowMark, darkYellowMark, cleanMark or
/// buttonFaceColour. A field that was never marked is clean.
Colour fieldMark(const QWidget& field);

/// Sets the background of a field. A clean field looks as in the desktop's theme; marks have black text in
/// every theme.
void setFieldMark(QWidget& field, Colour mark);

void MarkInvalid(QWidget& field);
void ClearInvalid(QWidget& field);

/// Whether the focus moves on within the program's window. It only pauses while a list is open, or another
/// program is in front.
bool leavesField(const QEvent& event);

/// A marked field that is filled becomes clean; returns whether it did.
bool clearFilledMark(QWidget& field, bool filled);

/// A marked field with text becomes clean; then its text is trimmed.
void ClearInvalidIfFilled(QWidget& field);

/// Sets only the enabled flag.
void SetEnabled(QWidget& field);
void SetDisabled(QWidget& field);

/// Sets the enabled flag and the matching background; a mark remains as a darker yellow.
void DisableField(QWidget& field);
void EnableField(QWidget& field);

using Fields = std::span<QWidget* const>;

/// Applies SetDisabled, DisableField, SetEnabled and EnableField to four groups of controls, in that order.
void SetFieldStates(Fields plainOff, Fields fieldsOff, Fields plainOn, Fields fieldsOn);

}  // namespace zg
