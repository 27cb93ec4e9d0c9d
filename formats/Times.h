#pragma once

// Rules for times in raw data. Hours are 0 to 24, where 24 is hour 0 of the next day, and seconds 0 to 3600
// within their hour. Two-digit years follow fullYear (base/Dates.h) in all files.

#include <cstdint>
#include <string>

#include "base/Dates.h"

namespace zg {

constexpr int lastHour = 24;
constexpr int secondsOfHour = 3600;

/// The calendar's leap years.
bool isLeapYear(int year);

/// The leap years by which the dialogs convert a day of the year to a date: every fourth one, including 1900
/// and 2100. The dialogs must count so, and the processor must not: their days differ in years that end in
/// 00, from February 29 on.
bool isLeapYearOfDialogs(int year);

/// 28 to 31; the month must be valid.
int daysOfMonth(int year, int month);

/// Why a date or an hour is invalid, in a form for "field: ...", or "" if it is valid. Years 1 to 9999.
std::string faultOfDate(int year, int month, int day);
std::string faultOfHour(int hour, int second);

}  // namespace zg
