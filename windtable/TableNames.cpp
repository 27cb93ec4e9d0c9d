#include "windtable/TableNames.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <initializer_list>
#include <limits>

#include "base/Text.h"

namespace zg {

namespace {

using Words = std::vector<std::string>;

constexpr double aCircle = 360;  // degrees, if the name gives the range of its values

bool isLower(char c) { return c >= 'a' && c <= 'z'; }
bool isUpper(char c) { return c >= 'A' && c <= 'Z'; }
bool isFigure(char c) { return c >= '0' && c <= '9'; }

/// "Spd80mNStd" has the words spd, 80, m, n, std: a capital begins a word if small letters are next to it,
/// and numbers are separate words.
Words wordsOf(std::string_view name) {
    Words words;
    char before = ' ';
    for (std::size_t i = 0; i < name.size(); ++i) {
        const char c = name[i];
        const char after = i + 1 < name.size() ? name[i + 1] : ' ';
        const bool figure = isFigure(c) || (c == '.' && isFigure(before) && isFigure(after));
        if (!figure && !isLower(c) && !isUpper(c)) {
            before = ' ';
            continue;
        }
        const bool wasFigure = isFigure(before) || before == '.';
        const bool wasLetter = isLower(before) || isUpper(before);
        const bool goesOn =
            figure ? wasFigure : wasLetter && !(isUpper(c) && (isLower(before) || isLower(after)));
        if (!goesOn) words.emplace_back();
        words.back() += isUpper(c) ? static_cast<char>(c - 'A' + 'a') : c;
        before = c;
    }
    return words;
}

bool isWordAmong(const std::string& word, std::initializer_list<std::string_view> words) {
    return std::find(words.begin(), words.end(), word) != words.end();
}

bool hasWord(const Words& name, std::initializer_list<std::string_view> words) {
    return std::any_of(name.begin(), name.end(), [&](const std::string& w) { return isWordAmong(w, words); });
}

/// Without anything but letters and figures: "Date/Time (UTC)" is "datetimeutc".
std::string joined(const Words& name) {
    std::string text;
    for (const std::string& word : name) text += word;
    return text;
}

/// Of something else than the mean.
bool isOther(const Words& name) {
    return hasWord(name, {"std",      "stdev", "stddev", "sd",  "sdev",    "dev",        "deviation",
                          "sigma",    "max",   "min",    "mx",  "maximum", "minimum",    "gust",
                          "gusts",    "gst",   "peak",   "ti",  "turb",    "turbulence", "var",
                          "variance", "count", "flag",   "qc",  "quality", "status",     "err",
                          "error",    "rms",   "range",  "fan", "rotor"});
}

bool isSpeed(const Words& name) {
    return !isOther(name) &&
           hasWord(name, {"spd", "speed", "ws", "wspd", "wsp", "wspeed", "windspeed", "windspd", "windgeschw",
                          "windgeschwindigkeit", "sknt", "ff", "anem", "anemometer", "wvel", "windvelocity"});
}

bool isDirection(const Words& name) {
    return !isOther(name) && hasWord(name, {"dir", "direction", "wd", "wdir", "winddir", "winddirection",
                                            "wdirection", "drct", "dd", "vane", "wdr", "windrichtung"});
}

/// How surely the name is that of a time, 0 for not at all.
int timeRank(const Words& name) {
    const std::string text = joined(name);
    if (isWordAmong(text, {"timestamp", "datetime", "time", "valid", "validtime", "ts", "tmstamp", "tmstmp",
                           "dateandtime", "dateutc", "timeutc", "validutc", "datumzeit"}))
        return 4;
    if (hasWord(name, {"timestamp", "datetime", "dateutc", "tmstmp"})) return 3;
    if (hasWord(name, {"time", "valid", "zeit"}) &&
        hasWord(name, {"date", "datum", "utc", "gmt", "local", "obs"}))
        return 3;
    if (hasWord(name, {"time", "valid"})) return 2;
    return hasWord(name, {"date", "datum", "epoch"}) ? 1 : 0;
}

std::size_t columnNamed(const std::vector<Words>& names, std::initializer_list<std::string_view> texts) {
    for (std::size_t i = 0; i < names.size(); ++i)
        if (isWordAmong(joined(names[i]), texts)) return i + 1;
    return 0;
}

/// Year, month and day, with hour and minute if they exist.
std::vector<std::size_t> partColumns(const std::vector<Words>& names) {
    std::vector<std::size_t> columns = {columnNamed(names, {"year", "yyyy", "yr", "iyr"}),
                                        columnNamed(names, {"month", "mo", "mon", "mm"}),
                                        columnNamed(names, {"day", "dy", "dd", "dom"})};
    if (std::find(columns.begin(), columns.end(), 0U) != columns.end()) return {};
    const std::size_t hour = columnNamed(names, {"hour", "hr", "hh", "hours"});
    if (hour == 0) return columns;
    columns.push_back(hour);
    const std::size_t minute = columnNamed(names, {"minute", "minutes", "mi", "mins"});
    if (minute != 0) columns.push_back(minute);
    return columns;
}

void findTime(const std::vector<Words>& names, TableNames& found) {
    found.time = partColumns(names);
    found.timeIsParts = !found.time.empty();
    if (found.timeIsParts) return;
    const std::size_t date = columnNamed(names, {"date", "datum", "day", "obsdate", "localdate", "dateutc"});
    const std::size_t clock = columnNamed(names, {"time", "hour", "hr", "hhmm", "clock", "zeit", "uhrzeit",
                                                  "obstime", "timeofday", "localtime", "timeutc"});
    if (date != 0 && clock != 0) {
        found.time = {date, clock};
        return;
    }
    int best = 0;
    for (std::size_t i = 0; i < names.size(); ++i) {
        const int rank = timeRank(names[i]);
        if (rank <= best) continue;
        best = rank;
        found.time = {i + 1};
    }
}

/// "80 m" in any spelling; a number alone from 10 on, since smaller ones count sensors.
std::optional<double> heightIn(const Words& name) {
    std::optional<double> alone;
    for (std::size_t i = 0; i < name.size(); ++i) {
        double value = 0;
        const std::string& word = name[i];
        const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value);
        if (error != std::errc() || end != word.data() + word.size() || value > 1000 || value == aCircle)
            continue;
        if (i + 1 < name.size() &&
            isWordAmong(name[i + 1], {"m", "mn", "ms", "me", "mw", "meter", "metre", "magl"}))
            return value;
        if (!alone && value >= 10) alone = value;
    }
    return alone;
}

}  // namespace

std::optional<WindUnit> speedUnitIn(std::string_view text) {
    const Words words = wordsOf(text);
    const std::string all = joined(words);
    if (hasWord(words, {"kt", "kts", "kn", "knot", "knots", "sknt"})) return WindUnit::Knots;
    if (hasWord(words, {"kmh", "kph", "kmph", "kmhr"}) || all.find("kmh") != std::string::npos)
        return WindUnit::KilometresAnHour;
    if (hasWord(words, {"mph", "mih"}) || all.find("milesh") != std::string::npos ||
        all.find("milesperh") != std::string::npos)
        return WindUnit::MilesAnHour;
    if (hasWord(words, {"mps", "metrespersecond", "meterspersecond"}) || hasWord(words, {"ms"}) ||
        all.find("ssecond") != std::string::npos || all == "metersec" ||
        text.find("m/s") != std::string_view::npos)
        return WindUnit::MetresASecond;
    return {};
}

WindColumn windColumn(std::size_t column, const std::string& name) {
    return {column, name, heightIn(wordsOf(name)), speedUnitIn(name)};
}

TableNames tableNamesOf(const std::vector<std::string>& names) {
    std::vector<Words> words;
    for (const std::string& name : names) words.push_back(wordsOf(name));
    TableNames found;
    findTime(words, found);
    found.station = columnNamed(words, {"station", "stationid", "stationsid", "stationcode", "stationname",
                                        "stationnumber", "stationno", "stn", "stnid", "stid", "site",
                                        "siteid", "sitecode", "sitename", "icao", "wmo", "wmoid"});
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (std::find(found.time.begin(), found.time.end(), i + 1) != found.time.end()) continue;
        if (isDirection(words[i]))
            found.directions.push_back(windColumn(i + 1, names[i]));
        else if (isSpeed(words[i]))
            found.speeds.push_back(windColumn(i + 1, names[i]));
    }
    return found;
}

const WindColumn& highestOf(const std::vector<WindColumn>& columns) {
    const WindColumn* best = &columns.front();
    for (const WindColumn& column : columns)
        if (column.height.value_or(-1) > best->height.value_or(-1)) best = &column;
    return *best;
}

const WindColumn& nearestTo(const std::optional<double>& height, const std::vector<WindColumn>& columns) {
    const auto distance = [&](const WindColumn& column) {
        if (!height || !column.height) return std::numeric_limits<double>::infinity();
        return std::abs(*column.height - *height);
    };
    const WindColumn* best = &columns.front();
    for (const WindColumn& column : columns)
        if (distance(column) < distance(*best)) best = &column;
    return *best;
}

}  // namespace zg
