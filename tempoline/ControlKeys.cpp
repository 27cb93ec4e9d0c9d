#include "tempoline/ControlKeys.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "base/Text.h"
#include "tempoline/Fields.h"
#include "tempoline/Texts.h"

namespace zg::tempoline {

namespace {

constexpr std::array<std::string_view, 61> singleKeys = {
    "TSFLST",  "ROSEPLT", "NMETINP", "NAQINP",  "NTSFOUT", "LCFILES", "MROSE",   "MDATA",   "IBYR",
    "IBMO",    "IBDY",    "IBHR",    "IBSEC",   "IEYR",    "IEMO",    "IEDY",    "IEHR",    "IESEC",
    "ABTZ",    "NSECDT",  "METSIM",  "NSPEC",   "PMAP",    "FEAST",   "FNORTH",  "IUTMZN",  "UTMHEM",
    "RLAT0",   "RLON0",   "XLAT1",   "XLAT2",   "DATUM",   "MPROF",   "MCELL",   "NLU3D",   "XYCELL1",
    "DXYCELL", "WSBIN",   "NSEASN",  "NTPD",    "NWSP",    "MSN",     "PSPEC",   "PUNIT",   "RROSE",
    "CROSE",   "CSVSEP",  "CSVDEC",  "CSVHEAD", "CSVNAME", "CSVTIME", "CSVFORM", "CSVSTMP", "CSVLEN",
    "CSVSPD",  "CSVUNIT", "CSVDIR",  "CSVMISS", "CSVSTN",  "CSVID",   "CSVZONE"};
constexpr std::array<std::string_view, 9> repeatedKeys = {"METINP", "AQINP",  "TSFID",    "TSFOUT", "LOCMET",
                                                          "MET",    "IDSEAS", "SEASNAME", "HR"};

std::string inQuotes(std::string_view text) { return "\"" + std::string(text.substr(0, 60)) + "\""; }

}  // namespace

ControlKeys::ControlKeys(const ControlText& text) : text_(text) {
    for (const Assignment& entry : text.assignments) {
        const bool single = isAmong(singleKeys, entry.key);
        const auto [place, isNew] = first_.emplace(entry.key, &entry);
        if (!isNew && single)
            throw failure(entry,
                          "the key is given twice; first in line " + std::to_string(place->second->line));
    }
}

void ControlKeys::needKnownKeys() const {
    for (const Assignment& entry : text_.assignments) {
        if (!isAmong(singleKeys, entry.key) && !isAmong(repeatedKeys, entry.key))
            throw failure(entry, "there is no such key");
    }
}

const Assignment* ControlKeys::find(std::string_view key) const {
    const auto found = first_.find(key);
    return found == first_.end() ? nullptr : found->second;
}

Failure ControlKeys::failure(std::string_view key, const std::string& text) const {
    const Assignment* place = current_ != nullptr && current_->key == key ? current_ : find(key);
    return controlFailure(text_.file, place == nullptr ? 0 : place->line, key, text);
}

Failure ControlKeys::failure(const Assignment& entry, const std::string& text) const {
    return controlFailure(text_.file, entry.line, entry.key, text);
}

std::string ControlKeys::text(std::string_view key) {
    const Assignment* entry = find(key);
    if (entry == nullptr) throw failure(key, "the key is missing");
    if (entry->value.empty()) throw failure(key, "the value is missing");
    return entry->value;
}

void ControlKeys::assume(std::string_view key, std::string_view value) {
    assumed_.push_back(std::string(key) + " = " + std::string(value));
}

std::string ControlKeys::textOr(std::string_view key, std::string_view fallback) {
    if (has(key)) return text(key);
    assume(key, fallback);
    return std::string(fallback);
}

std::vector<std::string> ControlKeys::texts(std::string_view key, std::size_t count,
                                            std::string_view countKey) {
    std::vector<std::string> values;
    for (const Assignment& entry : text_.assignments) {
        if (entry.key == key) values.push_back(entry.value);
    }
    needCount(key, values.size(), count, countKey);
    return values;
}

void ControlKeys::needCount(std::string_view key, std::size_t found, std::size_t wanted,
                            std::string_view countKey) {
    if (found == wanted) return;
    throw failure(key, std::string(countKey) + " says " + std::to_string(wanted) + ", and " +
                           std::to_string(found) + " are given");
}

int ControlKeys::wholeIn(std::string_view key, const std::string& item, int lowest, int highest) {
    const std::optional<int> value = tempoline::wholeOf(item);
    if (!value) throw failure(key, inQuotes(item) + " is no whole number");
    if (*value < lowest || *value > highest)
        throw failure(key, std::to_string(*value) + " is not between " + std::to_string(lowest) + " and " +
                               std::to_string(highest));
    return *value;
}

int ControlKeys::wholeOf(const Assignment& entry, int lowest, int highest) {
    at(entry);
    return wholeIn(entry.key, entry.value, lowest, highest);
}

int ControlKeys::whole(std::string_view key, int lowest, int highest) {
    return wholeIn(key, text(key), lowest, highest);
}

int ControlKeys::wholeOr(std::string_view key, int fallback, int lowest, int highest) {
    if (has(key)) return whole(key, lowest, highest);
    assume(key, std::to_string(fallback));
    return fallback;
}

double ControlKeys::number(std::string_view key, const std::string& item) {
    const std::optional<double> value = item.empty() ? std::nullopt : valueOf(item);
    if (!value || !std::isfinite(*value)) throw failure(key, inQuotes(item) + " is no number");
    return *value;
}

double ControlKeys::numberOf(const Assignment& entry, const std::string& item) {
    at(entry);
    return number(entry.key, item);
}

double ControlKeys::numberOr(std::string_view key, double fallback) {
    if (has(key)) return number(key, text(key));
    assume(key, shortText(fallback));
    return fallback;
}

double ControlKeys::degrees(std::string_view key, char positive, char negative, double limit) {
    std::string value = ucase(text(key));
    double sign = 1;
    if (value.back() == positive || value.back() == negative) {
        sign = value.back() == negative ? -1 : 1;
        value.pop_back();
    }
    const double angle = sign * number(key, value);
    if (std::abs(angle) > limit) throw failure(key, inQuotes(text(key)) + " is out of range");
    return angle;
}

double ControlKeys::latitude(std::string_view key) { return degrees(key, 'N', 'S', 90); }
double ControlKeys::longitude(std::string_view key) { return degrees(key, 'E', 'W', 360); }

std::vector<std::string> ControlKeys::itemsOf(const Assignment& entry) {
    std::vector<std::string> items;
    std::string_view rest = entry.value;
    for (;;) {
        const std::size_t comma = rest.find(',');
        items.emplace_back(stripped(rest.substr(0, comma)));
        if (comma == std::string_view::npos) return items;
        rest.remove_prefix(comma + 1);
    }
}

std::vector<std::string> ControlKeys::items(std::string_view key, std::string_view fallback) {
    Assignment entry{std::string(key), textOr(key, fallback), 0};
    if (entry.value.find(',') == std::string::npos) {
        entry.value = squeezeBlanks(entry.value);
        std::replace(entry.value.begin(), entry.value.end(), ' ', ',');
    }
    return itemsOf(entry);
}

}  // namespace zg::tempoline
