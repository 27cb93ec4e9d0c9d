#include "export/RawRules.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>

#include "base/Lines.h"
#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "windtable/TableFields.h"
#include "windtable/TableTimes.h"

namespace zg {

namespace {

constexpr const char* usualClasses = "0.5,1.8,3.3,5.4,8.5,10.8";
constexpr const char* usualSeasons =
    "Winter,Winter,Spring,Spring,Spring,Summer,Summer,Summer,Fall,Fall,Fall,Winter";
constexpr std::size_t classesOfRoses = 6;
constexpr std::size_t monthsAYear = 12;
constexpr int longestStep = 86400;
constexpr std::int64_t epochOf1899 = std::int64_t{25569} * 86400;

[[noreturn]] void refuseWish(const std::string& text) { throw RawFault(text, true); }

std::string inQuotes(std::string_view text) { return "\"" + std::string(text.substr(0, 60)) + "\""; }

std::vector<std::string> itemsAt(std::string_view text, char separator) {
    std::vector<std::string> items;
    for (;;) {
        const std::size_t end = text.find(separator);
        items.emplace_back(withoutBlanks(text.substr(0, end)));
        if (end == std::string_view::npos) return items;
        text.remove_prefix(end + 1);
    }
}

std::optional<double> plainNumberOf(std::string_view text) {
    double value = 0;
    if (text.starts_with('+')) text.remove_prefix(1);
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    const bool whole = error == std::errc() && end == text.data() + text.size() && std::isfinite(value);
    return whole ? std::optional(value) : std::nullopt;
}

/// The lines of a file that are not empty, or the text itself if no such file exists.
std::vector<std::string> linesOrText(const std::string& wish) {
    if (!fileExists(wish)) return {wish};
    std::vector<std::string> found;
    try {
        LineReader lines(wish, std::size_t{1} << 16);
        while (!lines.atEnd()) {
            const std::string line(withoutBlanks(withoutByteOrderMark(lines.readLine())));
            if (!line.empty() && line[0] != '#') found.push_back(line);
        }
    } catch (const RunTimeError& error) {
        throw RawFault(wish + ": " + error.description, false);
    }
    return found;
}

}  // namespace

std::string classesOf(const std::string& wish) {
    if (wish.empty()) return usualClasses;
    const std::vector<std::string> items = itemsAt(wish, ',');
    if (items.size() != classesOfRoses)
        refuseWish("--classes: found " + std::to_string(items.size()) + " speeds, 6 are needed");
    std::string text;
    double before = 0;
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (items[i].empty()) refuseWish("--classes: Please enter a minimum value for the wind speed range.");
        const std::optional<double> speed = plainNumberOf(items[i]);
        if (!speed) refuseWish("--classes: " + inQuotes(items[i]) + " is no speed");
        if (i > 0 && *speed < before)
            refuseWish("--classes: The Wind Speed Class " + std::to_string(i) +
                       " minimum range value must be less than that of Wind Speed Class " +
                       std::to_string(i + 1) + ".");
        before = *speed;
        text += (i == 0 ? "" : ",") + items[i];
    }
    return text;
}

RawSeasons seasonsOf(const std::string& wish) {
    std::string text = wish.empty() ? usualSeasons : wish;
    if (fileExists(text)) {
        std::string joined;
        for (const std::string& line : linesOrText(text)) joined += (joined.empty() ? "" : ",") + line;
        text = joined;
    }
    const std::vector<std::string> months = itemsAt(text, ',');
    if (months.size() != monthsAYear)
        refuseWish("--seasons: found " + std::to_string(months.size()) +
                   " seasons, 12 are needed, one a month from January on");
    RawSeasons seasons;
    for (const std::string& name : months) {
        if (name.empty() || name.find('!') != std::string::npos)
            refuseWish("--seasons: " + inQuotes(name) + " is no name of a season");
        auto found = std::find(seasons.names.begin(), seasons.names.end(), name);
        if (found == seasons.names.end()) found = seasons.names.insert(found, name);
        seasons.months +=
            (seasons.months.empty() ? "" : ",") + std::to_string(found - seasons.names.begin() + 1);
    }
    return seasons;
}

int stepOf(const std::string& wish) {
    int value = 0;
    const auto [end, error] = std::from_chars(wish.data(), wish.data() + wish.size(), value);
    const std::string unit(
        withoutBlanks(std::string_view(wish).substr(static_cast<std::size_t>(end - wish.data()))));
    const int seconds = unit.empty() || unit == "s" ? 1 : unit == "min" ? 60 : unit == "h" ? 3600 : 0;
    if (error != std::errc() || seconds == 0)
        refuseWish("--step: " + inQuotes(wish) + " is no length such as 600, 10min or 1h");
    if (value < 1) refuseWish("--step: Please enter a valid time step.");
    if (value > longestStep / seconds) refuseWish("--step: " + wish + " is more than a day");
    return value * seconds;
}

std::string zoneKeyOf(const std::string& wish) {
    const std::optional<std::int64_t> offset = zoneOfWord(wish);
    if (!offset) refuseWish("--zone: " + inQuotes(wish) + " is no zone such as UTC-0500");
    return zoneWord(*offset);
}

DateTime momentOfWish(const std::string& option, const std::string& wish, const std::string& zone) {
    const std::array<std::string_view, 1> values = {withoutBlanks(wish)};
    const std::optional<TableTime> time = tableTime(TimeForm::YearFirst, {}, values);
    if (!time) refuseWish(option + ": " + inQuotes(wish) + " is no time such as 2016-01-09T15:30");
    std::int64_t seconds = time->seconds;
    if (time->zone) seconds += zoneOfWord(zone).value_or(0) - *time->zone;
    return DateTime{seconds + epochOf1899};
}

std::vector<std::array<std::string, 2>> pairsOf(const std::string& option,
                                                const std::vector<std::string>& wishes) {
    std::vector<std::array<std::string, 2>> pairs;
    for (const std::string& wish : wishes) {
        for (const std::string& line : linesOrText(wish)) {
            const std::vector<std::string> items = itemsAt(line, ',');
            if (items.size() != 2 || !plainNumberOf(items[0]) || !plainNumberOf(items[1]))
                refuseWish(option + ": " + inQuotes(line) +
                           " is neither two numbers with a comma nor a file of them");
            pairs.push_back({items[0], items[1]});
        }
    }
    return pairs;
}

std::string heightOfWish(const std::string& wish) {
    const std::optional<double> height = plainNumberOf(wish);
    if (!height || *height < 0) refuseWish("--height: " + inQuotes(wish) + " is no height in metres");
    return wish;
}

}  // namespace zg
