#include "platform/Moments.h"

#include "base/RunTimeError.h"
#include "platform/FormParts.h"

namespace zg {

QDateEdit* datePicker(const char* name) {
    auto* picker = named(new QDateEdit, name);
    picker->setCalendarPopup(true);
    picker->setDisplayFormat(QStringLiteral("yyyy-MM-dd"));
    // The toolkit's own limit is the September of 1752.
    picker->setDateRange(QDate(100, 1, 1), QDate(9999, 12, 31));
    return picker;
}

QTimeEdit* timePicker(const char* name) {
    auto* picker = named(new QTimeEdit, name);
    picker->setDisplayFormat(QStringLiteral("HH:mm:ss"));
    return picker;
}

void showDate(CalendarDate day, QDateEdit& picker) {
    const QDate date(day.year, day.month, day.day);
    if (!date.isValid()) raise(ErrorNumber::TypeMismatch);
    if (date < picker.minimumDate() || date > picker.maximumDate()) raise(ErrorNumber::Overflow);
    picker.setDate(date);
}

void showTime(TimeOfDay time, QTimeEdit& picker) {
    const QTime shown(time.hour, time.minute, time.second);
    if (!shown.isValid()) raise(ErrorNumber::TypeMismatch);
    if (shown < picker.minimumTime() || shown > picker.maximumTime()) raise(ErrorNumber::Overflow);
    picker.setTime(shown);
}

TimeOfDay timeIn(const QTimeEdit& picker) {
    const QTime time = picker.time();
    return {time.hour(), time.minute(), time.second()};
}

void showStep(std::int64_t seconds, QTimeEdit& picker) {
    if (seconds < 0) raise(ErrorNumber::TypeMismatch);
    showTime(timeOf(DateTime{seconds}), picker);
}

void showMoment(DateTime moment, QDateEdit& date, QTimeEdit& time) {
    showDate(dateOf(moment), date);
    showTime(timeOf(moment), time);
}

DateTime momentIn(const QDateEdit& date, const QTimeEdit& time) {
    const QDate day = date.date();
    const TimeOfDay clock = timeIn(time);
    return addSeconds(makeDate(day.year(), day.month(), day.day()),
                      timeSerial(clock.hour, clock.minute, clock.second));
}

}  // namespace zg
