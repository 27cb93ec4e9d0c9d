#include "base/Dates.h"

#include <array>
#include <charconv>
#include <chrono>
#include <cmath>

#include "base/Numbers.h"
#include "base/RunTimeError.h"
#include "base/Text.h"

namespace zg {

namespace {

namespace chrono = std::chrono;

constexpr std::int64_t secondsADay = 86400;
constexpr chrono::sys_days epoch = chrono::sys_days(chrono::year(1899) / 12 / 30);
constexpr std::array<const char*, 12> monthNames = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                    "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

chrono::days wholeDays(DateTime moment) {
    return chrono::floor<chrono::days>(chrono::seconds(moment.seconds));
}

/// The moment that many seconds later; raises 6 outside the years 100 to 9999.
DateTime moved(DateTime moment, std::int64_t seconds) {
    constexpr std::int64_t first =
        chrono::seconds(chrono::sys_days(chrono::year(100) / 1 / 1) - epoch).count();
    constexpr std::int64_t beyond =
        chrono::seconds(chrono::sys_days(chrono::year(10000) / 1 / 1) - epoch).count();
    const bool within = moment.seconds >= first && moment.seconds < beyond;
    if (!within || seconds < first - moment.seconds || seconds >= beyond - moment.seconds)
        raise(ErrorNumber::Overflow);
    return {moment.seconds + seconds};
}

/// The value of a text of 1 to maxDigits digits; raises 13 for anything else.
int digitsOnly(std::string_view text, std::size_t maxDigits) {
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    const bool plain = !text.empty() && text.size() <= maxDigits && text.front() != '-';
    if (!plain || error != std::errc() || end != text.data() + text.size()) raise(ErrorNumber::TypeMismatch);
    return value;
}

int monthOfName(std::string_view name) {
    for (std::size_t i = 0; i < monthNames.size(); ++i)
        if (lcase(name) == lcase(monthNames[i])) return static_cast<int>(i) + 1;
    raise(ErrorNumber::TypeMismatch);
}

}  // namespace

DateTime makeDate(int year, int month, int day) {
    const chrono::year_month_day date(chrono::year(year), chrono::month(static_cast<unsigned>(month)),
                                      chrono::day(static_cast<unsigned>(day)));
    if (year < 100 || year > 9999 || month < 1 || month > 12 || day < 1 || day > 31 || !date.ok())
        raise(ErrorNumber::TypeMismatch);
    return {(chrono::sys_days(date) - epoch).count() * secondsADay};
}

CalendarDate dateOf(DateTime moment) {
    const chrono::year_month_day date(epoch + wholeDays(moment));
    return {static_cast<int>(date.year()), static_cast<int>(static_cast<unsigned>(date.month())),
            static_cast<int>(static_cast<unsigned>(date.day()))};
}

TimeOfDay timeOf(DateTime moment) {
    const auto rest = static_cast<int>(moment.seconds - chrono::seconds(wholeDays(moment)).count());
    return {rest / 3600, rest / 60 % 60, rest % 60};
}

std::string MonthName3(std::string_view monthText) {
    const double number = std::nearbyint(val(monthText));
    if (number < 1 || number > 12) return {};
    return monthNames[static_cast<std::size_t>(number) - 1];
}

int fullYear(int year) {
    if (year < 0 || year > 99) return year;
    return year < 30 ? 2000 + year : 1900 + year;
}

DateTime parseDate(std::string_view text) {
    const std::string plain = squeezeBlanks(text);
    const Pieces halves = split(plain, ",");
    if (halves.size() != 2) raise(ErrorNumber::TypeMismatch);
    const Pieces monthAndDay = split(trimmed(halves[0]), " ");
    if (monthAndDay.size() != 2) raise(ErrorNumber::TypeMismatch);
    return makeDate(fullYear(digitsOnly(trimmed(halves[1]), 4)), monthOfName(monthAndDay[0]),
                    digitsOnly(monthAndDay[1], 2));
}

DateTime DateFromParts(std::string_view year, std::string_view month, std::string_view day) {
    return parseDate(MonthName3(month) + " " + std::string(day) + " ," + std::string(year));
}

TimeOfDay parseTime(std::string_view text) {
    const Pieces parts = split(trimmed(text), ":");
    if (parts.size() != 3) raise(ErrorNumber::TypeMismatch);
    const TimeOfDay time{digitsOnly(trimmed(parts[0]), 2), digitsOnly(trimmed(parts[1]), 2),
                         digitsOnly(trimmed(parts[2]), 2)};
    if (time.hour > 23 || time.minute > 59 || time.second > 59) raise(ErrorNumber::TypeMismatch);
    return time;
}

std::int64_t timeSerial(std::int64_t hours, std::int64_t minutes, std::int64_t seconds) {
    for (const std::int64_t part : {hours, minutes, seconds})
        if (part != static_cast<std::int32_t>(part)) raise(ErrorNumber::Overflow);
    return hours * 3600 + minutes * 60 + seconds;
}

DateTime addDays(DateTime moment, std::int64_t days) {
    if (days != static_cast<std::int32_t>(days)) raise(ErrorNumber::Overflow);
    return moved(moment, days * secondsADay);
}

DateTime addSeconds(DateTime moment, std::int64_t seconds) { return moved(moment, seconds); }

DateTime addHours(DateTime moment, double hours) {
    const double seconds = std::nearbyint(hours * 3600);
    if (!(std::abs(seconds) < 1e15)) raise(ErrorNumber::Overflow);
    return moved(moment, static_cast<std::int64_t>(seconds));
}

std::string formatDate(DateTime moment) {
    const CalendarDate date = dateOf(moment);
    return std::string(monthNames[static_cast<std::size_t>(date.month) - 1]) + " " +
           std::to_string(date.day) + ", " + std::to_string(date.year);
}

std::string longTime(TimeOfDay time) {
    const int hour = time.hour % 12 == 0 ? 12 : time.hour % 12;
    return std::to_string(hour) + ":" + format00(time.minute) + ":" + format00(time.second) +
           (time.hour < 12 ? " AM" : " PM");
}

}  // namespace zg
