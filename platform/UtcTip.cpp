#include "platform/UtcTip.h"

#include <cmath>
#include <initializer_list>
#include <optional>
#include <string>

#include "base/Numbers.h"
#include "base/RunTimeError.h"
#include "formats/ZoneKeys.h"
#include "headers/Zones.h"
#include "platform/Moments.h"
#include "platform/ReasonLabel.h"

namespace zg {

namespace {

std::string asPicked(DateTime moment) {
    const CalendarDate date = dateOf(moment);
    const TimeOfDay time = timeOf(moment);
    std::string text = std::to_string(date.year);
    text.append("-").append(format00(date.month)).append("-").append(format00(date.day)).append(" ");
    text.append(format00(time.hour)).append(":").append(format00(time.minute)).append(":");
    return text.append(format00(time.second));
}

/// "4.5" for the hours by which a zone moves times, whichever way.
std::string hoursText(double hours) { return singleText(static_cast<float>(std::abs(hours))); }

std::string tipOf(const PeriodPickers& pickers, ZoneChoice choice) {
    const int row = pickers.timeZone->currentIndex();
    if (row < 0 || static_cast<std::size_t>(row) >= timeZones.gsTimeZoneKeys.size()) return {};
    const std::string& key = timeZones.gsTimeZoneKeys[static_cast<std::size_t>(row)];
    const std::optional<std::int64_t> offset = zoneOffset(key);
    if (!offset) return {};
    const auto inUtc = [&offset](const QDateEdit& date, const QTimeEdit& time) {
        return asPicked(addSeconds(momentIn(date, time), -*offset));
    };
    std::string tip = "In UTC: " + inUtc(*pickers.beginDate, *pickers.beginTime);
    tip.append(" to ").append(inUtc(*pickers.endDate, *pickers.endTime));
    const double hours = static_cast<double>(*offset) / 3600;
    const auto moved = static_cast<double>(-HoursFromTimeZone(key));
    if (choice == ZoneChoice::MovesPeriod && moved != hours)
        tip.append("\nThe choice of " + key + " moves the period by " + hoursText(moved) + " hours, not by " +
                   hoursText(hours) + ".");
    return tip;
}

void showTip(const PeriodPickers& pickers, ZoneChoice choice) {
    std::string tip;
    try {
        tip = tipOf(pickers, choice);
    } catch (const RunTimeError&) {
        tip.clear();  // a period beyond all dates, or a key of no zone
    }
    for (QWidget* picker : std::initializer_list<QWidget*>{pickers.beginDate, pickers.beginTime,
                                                           pickers.endDate, pickers.endTime})
        setPlainTip(*picker, tip);
}

}  // namespace

void showUtcInTips(const PeriodPickers& pickers, ZoneChoice choice) {
    const auto show = [pickers, choice] { showTip(pickers, choice); };
    for (QDateEdit* date : {pickers.beginDate, pickers.endDate})
        QObject::connect(date, &QDateEdit::dateChanged, date, show);
    for (QTimeEdit* time : {pickers.beginTime, pickers.endTime})
        QObject::connect(time, &QTimeEdit::timeChanged, time, show);
    QObject::connect(pickers.timeZone, &QComboBox::currentIndexChanged, pickers.timeZone, show);
    show();
}

}  // namespace zg
