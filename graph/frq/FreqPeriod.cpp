#include "graph/frq/FreqPeriod.h"

#include "base/Dates.h"
#include "base/Numbers.h"
#include "base/Text.h"

namespace zg {

namespace {

/// One end of the period: its date, and its hour as written in the line.
struct PeriodEnd {
    DateTime date;
    std::string hour;
};

/// The end whose year, month, day and hour start at that token. Hour "24" is hour "0" of the next day.
PeriodEnd periodEnd(const Pieces& tokens, std::size_t first) {
    const DateTime date = DateFromParts(tokens[first], tokens[first + 1], tokens[first + 2]);
    const std::string_view hour = tokens[first + 3];
    if (hour == "24") return {addDays(date, 1), "0"};
    return {date, std::string(hour)};
}

std::string hourText(const PeriodEnd& end) { return formatDate(end.date) + " - HR" + format00(end.hour); }

/// The date and the time of an hour and its seconds. 3600 seconds give the begin of the same hour again.
std::string timeText(const PeriodEnd& end, std::string_view secondsToken) {
    const std::int32_t inHour = imod(toInt32(secondsToken), 3600);
    const std::int32_t minutes = (inHour - inHour % 60) / 60;
    const std::int32_t seconds = inHour - 60 * minutes;
    const TimeOfDay time =
        parseTime(end.hour + ":" + std::to_string(minutes) + ":" + std::to_string(seconds));
    return formatDate(end.date) + " - " + longTime(time);
}

std::string hoursPeriod(const Pieces& tokens) {
    const PeriodEnd start = periodEnd(tokens, 0);
    const PeriodEnd end = periodEnd(tokens, 4);
    return hourText(start) + " to " + hourText(end);
}

std::string secondsPeriod(const Pieces& tokens) {
    const PeriodEnd start = periodEnd(tokens, 0);
    const PeriodEnd end = periodEnd(tokens, 5);
    return timeText(start, tokens[4]) + " to " + timeText(end, tokens[9]);
}

}  // namespace

void readFreqPeriod(std::string_view line, const FreqVersion& version, std::string& periodText) {
    const std::string plain = squeezeBlanks(line);
    const Pieces tokens = split(plain, " ");
    const bool wholeHours = version.period == FreqPeriodForm::WholeHours;
    periodText = wholeHours ? hoursPeriod(tokens) : secondsPeriod(tokens);
    if (version.period == FreqPeriodForm::SecondsAndZone)
        periodText += " (" + ucase(trimmed(tokens[10])) + ")";
}

}  // namespace zg
