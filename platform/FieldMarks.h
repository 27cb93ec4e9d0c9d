#pragma once

#include <QEvent>
#include <QWidget>
#include <span>

#include "base/Style.h"

namespace zg {

/// The background of a field as the rules of the marks see it: yellowMark, darkYellowMark, cleanMark or
/// buttonFaceColour. A field that was never marked is clean.
Colour fieldMark(const QWidget& field);

/// Gives a field that background. A clean field looks as the desktop's theme wants it; marks have black text
/// on every theme.
void setFieldMark(QWidget& field, Colour mark);

void MarkInvalid(QWidget& field);
void ClearInvalid(QWidget& field);

/// The focus goes on within the program's window. It only rests while a list is open, or another program is
/// in front.
bool leavesField(const QEvent& event);

/// A marked field with text becomes clean; then its trimmed text is given back to it.
void ClearInvalidIfFilled(QWidget& field);

/// Only the enabled flag.
void SetEnabled(QWidget& field);
void SetDisabled(QWidget& field);

/// The enabled flag, and the background that goes with it; a mark survives in a darker yellow.
void DisableField(QWidget& field);
void EnableField(QWidget& field);

using Fields = std::span<QWidget* const>;

/// Applies SetDisabled, DisableField, SetEnabled and EnableField to four groups of controls, in that order.
void SetFieldStates(Fields plainOff, Fields fieldsOff, Fields plainOn, Fields fieldsOn);

}  // namespace zg
