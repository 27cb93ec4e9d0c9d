#pragma once

// Pickers of dates and times of day: how they are made, and moments to and from them.

#include <QDateEdit>
#include <QTimeEdit>
#include <cstdint>

#include "base/Dates.h"

namespace zg {

/// A picker of any date that a moment can have, shown as "2005-03-07", with a calendar.
QDateEdit* datePicker(const char* name);

/// A picker shown as "06:30:15".
QTimeEdit* timePicker(const char* name);

/// The date, or the time of day, that the picker shows from now on. Raise 13 for what is none, and 6 for one
/// beyond the picker's limits: nothing else is shown in its place.
void showDate(CalendarDate day, QDateEdit& picker);
void showTime(TimeOfDay time, QTimeEdit& picker);
TimeOfDay timeIn(const QTimeEdit& picker);

/// A step of so many seconds as a time of day: whole days of it are gone. Raises 13 for a negative one.
void showStep(std::int64_t seconds, QTimeEdit& picker);

/// A moment as the date and the time of two pickers.
void showMoment(DateTime moment, QDateEdit& date, QTimeEdit& time);
DateTime momentIn(const QDateEdit& date, const QTimeEdit& time);

}  // namespace zg
