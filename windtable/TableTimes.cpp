#include "windtable/TableTimes.h"

#include <array>
#include <charconv>
#include <chrono>
#include <cstdio>
#include <cstdlib>

#include "base/Dates.h"
#include "base/Text.h"
#include "windtable/TableFields.h"

namespace zg {

namespace {

constexpr std::int64_t anHour = 3600;
constexpr std::int64_t aDay = 86400;
constexpr std::array<std::string_view, 12> monthNames = {"JAN", "FEB", "MAR", "APR", "MAY", "JUN",
                                                         "JUL", "AUG", "SEP", "OCT", "NOV", "DEC"};

bool isDigitByte(char c) { return c >= '0' && c <= '9'; }
bool isLetterByte(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

/// Consumes the start of a text.
class Taker {
 public:
    explicit Taker(std::string_view text) : text_(text) {}

    bool atEnd() const { return text_.empty(); }
    char front() const { return text_.empty() ? '\0' : text_.front(); }
    void skip() { text_.remove_prefix(1); }
    void skipBlanks() { text_ = withoutBlanks(text_); }
    std::string_view rest() const { return text_; }

    bool take(char c) {
        if (front() != c) return false;
        skip();
        return true;
    }

    /// A whole number with this many digits.
    std::optional<int> number(std::size_t least, std::size_t most) {
        std::size_t digits = 0;
        int value = 0;
        for (; digits < most && digits < text_.size() && isDigitByte(text_[digits]); ++digits)
            value = value * 10 + (text_[digits] - '0');
        if (digits < least) return {};
        text_.remove_prefix(digits);
        return value;
    }

    std::string_view letters() {
        std::size_t count = 0;
        while (count < text_.size() && isLetterByte(text_[count])) ++count;
        const std::string_view word = text_.substr(0, count);
        text_.remove_prefix(count);
        return word;
    }

    std::size_t digitsAhead() const {
        std::size_t count = 0;
        while (count < text_.size() && isDigitByte(text_[count])) ++count;
        return count;
    }

 private:
    std::string_view text_;
};

std::optional<int> monthOf(Taker& text) {
    if (!isLetterByte(text.front())) return text.number(1, 2);
    const std::string word = ucase(text.letters());
    for (std::size_t i = 0; i < monthNames.size(); ++i)
        if (word.size() >= 3 && word.compare(0, 3, monthNames[i]) == 0) return static_cast<int>(i) + 1;
    return {};
}

/// A year in a date whose first number is something else.
std::optional<int> lastYear(Taker& text) {
    const std::size_t digits = text.digitsAhead();
    if (digits != 2 && digits != 4) return {};
    const std::optional<int> year = text.number(digits, digits);
    return year && digits == 2 ? fullYear(*year) : year;
}

std::optional<std::int64_t> dayOfParts(std::optional<int> year, std::optional<int> month,
                                       std::optional<int> day) {
    return year && month && day ? dateSeconds(*year, *month, *day) : std::nullopt;
}

/// 20160109 without separators, optionally followed by hour, minute and second.
std::optional<std::int64_t> compactDate(Taker& text) {
    const std::optional<int> year = text.number(4, 4);
    const std::optional<int> month = text.number(2, 2);
    if (!year || *year < 1900 || *year > 2100) return {};  // seconds of an epoch have as many digits
    return dayOfParts(year, month, text.number(2, 2));
}

std::optional<std::int64_t> takeDate(TimeForm form, Taker& text) {
    const std::size_t digits = text.digitsAhead();
    if (form == TimeForm::YearFirst && digits >= 8) return compactDate(text);
    if ((form == TimeForm::YearFirst) != (digits == 4) || digits > 4) return {};
    std::optional<int> year, month, day;
    if (form == TimeForm::YearFirst) year = text.number(4, 4);
    if (form == TimeForm::DayFirst) day = text.number(1, 2);
    if (form == TimeForm::MonthFirst) month = monthOf(text);
    const char separator = text.front();
    if (separator != '/' && separator != '-' && separator != '.') return {};
    text.skip();
    if (form == TimeForm::MonthFirst)
        day = text.number(1, 2);
    else
        month = monthOf(text);
    if (!text.take(separator)) return {};
    if (form == TimeForm::YearFirst)
        day = text.number(1, 2);
    else
        year = lastYear(text);
    return dayOfParts(year, month, day);
}

std::optional<std::int64_t> takeZone(Taker& text) {
    const std::string word = ucase(text.rest());
    if (word == "Z" || word == "UTC" || word == "GMT") return 0;
    std::string_view rest = text.rest();
    if (word.starts_with("UTC") || word.starts_with("GMT")) rest.remove_prefix(3);
    Taker zone(rest);
    const char sign = zone.front();
    if (sign != '+' && sign != '-') return {};
    zone.skip();
    const std::optional<int> hours = zone.number(2, 2);
    zone.take(':');
    const std::optional<int> minutes = zone.atEnd() ? 0 : zone.number(2, 2);
    if (!hours || !minutes || !zone.atEnd() || *minutes > 59) return {};
    const std::int64_t offset = *hours * anHour + *minutes * std::int64_t{60};
    if (offset > 14 * anHour) return {};
    return sign == '-' ? -offset : offset;
}

struct Clock {
    int hour = 0;
    int minute = 0;
    int second = 0;

    std::optional<std::int64_t> seconds() const {
        if (hour > 24 || minute > 59 || second > 59) return {};
        return hour * anHour + minute * std::int64_t{60} + second;
    }
};

/// The hour of "AM" and "PM"; false for any other word or hour.
bool setHalf(std::string_view word, Clock& clock) {
    const std::string half = ucase(word);
    if ((half != "AM" && half != "PM") || clock.hour < 1 || clock.hour > 12) return false;
    clock.hour = clock.hour % 12 + (half == "PM" ? 12 : 0);
    return true;
}

/// "15", "1530", "153000", "15:30", "15:30:00.0".
bool takeClockNumbers(Taker& text, Clock& clock) {
    const std::size_t digits = text.digitsAhead();
    if (digits == 0 || digits > 6 || digits == 5) return false;
    clock.hour = text.number(1, digits == 3 ? 1 : 2).value_or(99);
    if (digits > 2) clock.minute = text.number(2, 2).value_or(99);
    if (digits == 6) clock.second = text.number(2, 2).value_or(99);
    bool hasSeconds = digits == 6;
    if (digits <= 2 && text.take(':')) {
        clock.minute = text.number(1, 2).value_or(99);
        hasSeconds = text.take(':');
        if (hasSeconds) clock.second = text.number(1, 2).value_or(99);
    }
    if (hasSeconds && (text.take('.') || text.take(',')))
        while (isDigitByte(text.front())) text.skip();
    return true;
}

/// The time of day and the zone after it; an empty text is midnight.
std::optional<TableTime> takeClock(Taker& text, std::int64_t day) {
    text.skipBlanks();
    Clock clock;
    TableTime time;
    if (!text.atEnd()) {
        if (!takeClockNumbers(text, clock)) return {};
        text.skipBlanks();
        const char next = text.front();
        if ((next == 'A' || next == 'a' || next == 'P' || next == 'p') && !setHalf(text.letters(), clock))
            return {};
        text.skipBlanks();
    }
    if (!text.atEnd()) {
        time.zone = takeZone(text);
        if (!time.zone) return {};
    }
    const std::optional<std::int64_t> seconds = clock.seconds();
    if (!seconds) return {};
    time.seconds = day + *seconds;
    return time;
}

std::optional<TableTime> takeDateAndClock(TimeForm form, std::span<const std::string_view> values) {
    Taker text(values[0]);
    const std::optional<std::int64_t> day = takeDate(form, text);
    if (!day) return {};
    if (values.size() == 2) {
        text.skipBlanks();
        if (!text.atEnd()) return {};
        Taker clock(values[1]);
        return takeClock(clock, *day);
    }
    if (text.front() == 'T' || text.front() == 't' || text.front() == '_') text.skip();
    return takeClock(text, *day);
}

std::optional<int> wholeValue(std::string_view text) {
    int value = 0;
    const char* const last = text.data() + text.size();
    const auto [end, error] = std::from_chars(text.data(), last, value);
    if (error != std::errc()) return {};
    std::string_view rest(end, static_cast<std::size_t>(last - end));
    if (!rest.empty() && rest.front() == '.') rest.remove_prefix(1);
    return rest.find_first_not_of('0') == std::string_view::npos ? std::optional(value) : std::nullopt;
}

std::optional<TableTime> partsTime(std::span<const std::string_view> values) {
    std::array<int, 5> parts{};
    if (values.size() < 3 || values.size() > parts.size()) return {};
    for (std::size_t i = 0; i < values.size(); ++i) {
        const std::optional<int> part = wholeValue(values[i]);
        if (!part || *part < 0) return {};
        parts[i] = *part;
    }
    if (values[0].size() <= 2) parts[0] = fullYear(parts[0]);
    const std::optional<std::int64_t> day = dateSeconds(parts[0], parts[1], parts[2]);
    const std::optional<std::int64_t> clock = Clock{parts[3], parts[4], 0}.seconds();
    if (!day || !clock) return {};
    return TableTime{*day + *clock, {}};
}

std::optional<TableTime> epochTime(std::string_view text) {
    constexpr double leastSeconds = 1e8;  // in 1973: smaller numbers are something else
    constexpr double mostSeconds = 1e11;
    constexpr double mostMilliseconds = 1e14;
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size() || !(value >= leastSeconds)) return {};
    if (value >= mostSeconds) value /= 1000;
    if (value >= mostMilliseconds / 1000) return {};
    return TableTime{static_cast<std::int64_t>(value), 0};
}

/// Matches the pattern with the text; characters that are not directives must match exactly.
class PatternTime {
 public:
    PatternTime(std::string_view pattern, std::string_view text) : pattern_(pattern), text_(text) {}

    std::optional<TableTime> read() {
        for (; !pattern_.atEnd(); pattern_.skip()) {
            if (pattern_.front() == ' ') {
                text_.skipBlanks();
            } else if (pattern_.front() != '%') {
                if (!text_.take(pattern_.front())) return {};
            } else {
                pattern_.skip();
                if (!takeDirective(pattern_.front())) return {};
            }
        }
        return text_.atEnd() ? moment() : std::nullopt;
    }

 private:
    bool takeDirective(char directive) {
        switch (directive) {
            case 'Y':
                return set(year_, text_.number(4, 4));
            case 'y':
                if (!set(year_, text_.number(2, 2))) return false;
                year_ = fullYear(year_);
                return true;
            case 'm':
                return set(month_, text_.number(1, 2));
            case 'b':
                return isLetterByte(text_.front()) && set(month_, monthOf(text_));
            case 'd':
                return set(day_, text_.number(1, 2));
            case 'j':
                return set(dayOfYear_, text_.number(1, 3));
            case 'H':
            case 'I':
                return set(clock_.hour, text_.number(1, 2));
            case 'M':
                return set(clock_.minute, text_.number(1, 2));
            case 'S':
                return set(clock_.second, text_.number(1, 2));
            case 'p':
                return setHalf(text_.letters(), clock_);
            case 'z':
                zone_ = takeZone(text_);
                text_ = Taker("");
                return zone_.has_value();
            case 's':
                epoch_ = epochTime(text_.rest());
                text_ = Taker("");
                return epoch_.has_value();
            default:
                return text_.take('%');
        }
    }

    static bool set(int& part, std::optional<int> value) {
        part = value.value_or(0);
        return value.has_value();
    }

    std::optional<TableTime> moment() const {
        if (epoch_) return epoch_;
        std::optional<std::int64_t> day = dateSeconds(year_, month_, day_);
        if (day && dayOfYear_ > 0) day = *day + (dayOfYear_ - 1) * aDay;
        const std::optional<std::int64_t> clock = clock_.seconds();
        if (!day || !clock || dayOfYear_ > 366) return {};
        return TableTime{*day + *clock, zone_};
    }

    Taker pattern_;
    Taker text_;
    int year_ = 0;
    int month_ = 1;
    int day_ = 1;
    int dayOfYear_ = 0;
    Clock clock_;
    std::optional<std::int64_t> zone_;
    std::optional<TableTime> epoch_;
};

std::optional<TableTime> patternTime(const std::string& pattern, std::span<const std::string_view> values) {
    if (values.size() == 1) return PatternTime(pattern, values[0]).read();
    return PatternTime(pattern, std::string(values[0]) + " " + std::string(values[1])).read();
}

}  // namespace

std::optional<std::int64_t> dateSeconds(int year, int month, int day) {
    using namespace std::chrono;
    if (year < 1 || year > 9999 || month < 1 || month > 12 || day < 1 || day > 31) return {};
    const year_month_day date{std::chrono::year(year), std::chrono::month(static_cast<unsigned>(month)),
                              std::chrono::day(static_cast<unsigned>(day))};
    if (!date.ok()) return {};
    return sys_days(date).time_since_epoch().count() * aDay;
}

std::optional<TableTime> tableTime(TimeForm form, const std::string& pattern,
                                   std::span<const std::string_view> values) {
    if (values.empty() || values[0].empty()) return {};
    if (form == TimeForm::Parts) return partsTime(values);
    if (values.size() > 2) return {};
    if (form == TimeForm::Pattern) return patternTime(pattern, values);
    if (form == TimeForm::Epoch) return values.size() == 1 ? epochTime(values[0]) : std::nullopt;
    return takeDateAndClock(form, values);
}

bool isTimePattern(std::string_view text) {
    constexpr std::string_view directives = "YymbdjHIMSpzs%";
    bool any = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] < ' ' || text[i] == '!') return false;
        if (text[i] != '%') continue;
        if (++i == text.size() || directives.find(text[i]) == std::string_view::npos) return false;
        any = any || text[i] != '%';
    }
    return any;
}

std::string zoneWord(std::int64_t offset) {
    const std::int64_t minutes = std::abs(offset) / 60;
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "UTC%c%02d%02d", offset < 0 ? '-' : '+',
                  static_cast<int>(minutes / 60), static_cast<int>(minutes % 60));
    return text.data();
}

std::optional<std::int64_t> zoneOfWord(std::string_view text) {
    Taker zone(withoutBlanks(text));
    return takeZone(zone);
}

std::string timeText(std::int64_t seconds) {
    using namespace std::chrono;
    const sys_seconds moment{std::chrono::seconds(seconds)};
    const sys_days day = floor<days>(moment);
    const year_month_day date(day);
    const auto clock = (moment - day).count();
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%04d-%02u-%02u %02d:%02d", static_cast<int>(date.year()),
                  static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
                  static_cast<int>(clock / 3600), static_cast<int>(clock / 60 % 60));
    return text.data();
}

}  // namespace zg
