// The dialogs read the header of a raw file and the processor reads all of it, each by parsers of its own.
// Here both get the same files, and whatever they do not agree on stands in a list, with its reason.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <set>

#include "base/Lines.h"
#include "base/Paths.h"
#include "base/Text.h"
#include "formats/ZoneKeys.h"
#include "headers/Zones.h"
#include "tests/formats/BothSides.h"
#include "tests/formats/Differences.h"
#include "tests/headers/GridFiles.h"

namespace zg {
namespace {

std::string text(std::optional<DateTime> moment) {
    return moment ? formatDate(*moment) + " " + longTime(timeOf(*moment)) : "none";
}

// ---- whole samples: the period that a dialog shows is that of the records

struct Sample {
    const char* file;
    InputKind kind;
    Asked asked;
};

class SamplesOfBothSides : public testing::TestWithParam<Sample> {};

TEST_P(SamplesOfBothSides, HaveTheSamePeriodZoneAndStation) {
    const std::string bytes = readWholeFile(std::string(ZG_SOURCE_DIR "/data/samples/") + GetParam().file);
    const Seen dialog = seenByDialog(GetParam().kind, bytes);
    const Seen processor = seenByProcessor(GetParam().kind, bytes, GetParam().asked);
    ASSERT_TRUE(dialog.reads) << dialog.message;
    ASSERT_TRUE(processor.reads) << processor.message;
    EXPECT_EQ(dialog.zone, processor.zone);
    if (!processor.station.empty()) {
        EXPECT_EQ(dialog.station, processor.station);
    }
    EXPECT_EQ(text(dialog.begin), text(processor.begin));
    const bool isSounding = GetParam().kind == InputKind::Up;  // the next one is due at the end
    EXPECT_TRUE(isSounding ? dialog.end >= processor.end : dialog.end == processor.end)
        << text(dialog.end) << " and " << text(processor.end);
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, SamplesOfBothSides,
    testing::Values(Sample{"LOVETT.SFC", InputKind::AermSfc, {}},
                    Sample{"AERMET2.SFC", InputKind::AermSfc, {}},
                    Sample{"AERMET2.PFL", InputKind::AermPfl, {}},
                    Sample{"valley_surf.dat", InputKind::Surf, {"10011"}},
                    Sample{"valley_up.dat", InputKind::Up, {}},
                    Sample{"valley_monitor.csv", InputKind::MonitorW, {"valley"}},
                    Sample{"valley_series.tsf", InputKind::Tsf, {}},
                    Sample{"valley_model.m3d", InputKind::M3d, {"", 2, 2}},
                    Sample{"valley_ventos.dat", InputKind::Ventos, {"", -74.05, 40.75, "LL"}}),
    [](const auto& row) { return std::string(mdataOf(row.param.kind)) + std::to_string(row.index); });

// ---- zones

/// The dialogs must add the half hour of a zone on the same side of Greenwich everywhere, so that it is on
/// the wrong one in the east.
bool isHalfHourEast(const std::string& key) { return key[3] == '+' && key.ends_with("30"); }

TEST(ZonesOfBothSides, AreTheSameHoursButForHalfOnesInTheEast) {
    timeZones = {};
    applicationDirectory = ZG_SOURCE_DIR "/data";
    LoadTimeZones();
    ASSERT_FALSE(timeZones.gsTimeZoneKeys.empty());
    for (const std::string& key : timeZones.gsTimeZoneKeys) {
        const auto dialog = static_cast<std::int64_t>(HoursFromTimeZone(key) * -3600);
        ASSERT_TRUE(zoneOffset(key)) << key;
        EXPECT_EQ(dialog, *zoneOffset(key) - (isHalfHourEast(key) ? 3600 : 0)) << key;
    }
    EXPECT_EQ(HoursFromTimeZone("UTC+0330"), -2.5F);
    EXPECT_EQ(*zoneOffset("UTC+0330"), 3 * 3600 + 1800);
    timeZones = {};
    applicationDirectory.clear();
}

// ---- odd headers

/// A whole header of each kind, with as much data as its kind needs.
std::string plainFile(InputKind kind) {
    switch (kind) {
        case InputKind::Surf:
            return "SURF.DAT        2.1             Hour Start and End Times with "
                   "Seconds\n1\ncomment\nNONE\nUTC-0500\n"
                   "1990 8 0 0 1990 15 23 1800 2\n14606\n14611\n";
        case InputKind::Up:
            return "UP.DAT          2.1             Hour Start and End Times with "
                   "Seconds\n1\ncomment\nNONE\nUTC-0500\n"
                   "1990 8 0 0 1990 15 23 1800\n 500. 2 2\n6201 14606\n";
        case InputKind::MonitorW:
            return "DATETIME,DATAAVID,STNCODE,WDIR,WSPD\n12/1/2003 1:00,60,14606,22,2.2\n";
        case InputKind::AermSfc:
            return "  41.3N 74.0W UA_ID: 1 SF_ID: 14606 OS_ID: 9\n"
                   "88 3 1 61 1 -2.7 0.1 -9. -9. -999. 37. 7.9 0.7 1.5 1. 0.8 317.5 10.0 273.8 20.0\n";
        case InputKind::AermPfl:
            return "88 3 1 1 20.0 1 317.5 0.80\n";
        case InputKind::Tsf:
            return "TIMESERIES.TSF 1.3 x\n1 - comments\nc\nx\nMET\nStation: STATION ID = "
                   "14606\nUTC-0500\nGREGORIAN_YMD\n"
                   "2005 3 7 6 0 2005 12 31 23 0 3600\n2 - variables\nWDIR deg\nWSPEED m/s\n";
        case InputKind::M3d:
            return m3dText();
        case InputKind::Ventos:
            return ventosText("UTM WGS-84 N 18 0 0 NONE NONE NONE NONE");
        default:
            return {};
    }
}

Asked askedOf(InputKind kind) {
    if (kind == InputKind::M3d) return {"", 1.5, 1.5};
    if (kind == InputKind::Ventos) return {"", -80.29, 0.29, "LL"};
    return {"14606"};
}

/// How many fields of a line matter to both sides: the dialogs read no wind, and a station that is not asked
/// has no data.
std::size_t sharedFields(InputKind kind, std::size_t line) {
    constexpr std::size_t all = 20;
    switch (kind) {
        case InputKind::Surf:
            return line <= 6 ? all : 0;
        case InputKind::MonitorW:
            return line == 1 ? all : 2;
        case InputKind::AermSfc:
            return line == 1 ? all : 5;
        case InputKind::AermPfl:
            return 4;
        default:
            return all;
    }
}

/// What is done to a header, as "line 6 field 2: x".
struct Odd {
    std::string what;
    std::string text;
};

std::vector<std::string> linesOf(const std::string& whole) {
    std::vector<std::string> lines;
    LineReader reader = LineReader::ofText(whole);
    while (!reader.atEnd()) lines.emplace_back(reader.readLine());
    return lines;
}

std::string joined(const std::vector<std::string>& lines) {
    std::string whole;
    for (const std::string& line : lines) whole += line + "\n";
    return whole;
}

/// Begin and length of each field of a line.
std::vector<std::pair<std::size_t, std::size_t>> fieldsOf(const std::string& line, const char* separators) {
    std::vector<std::pair<std::size_t, std::size_t>> fields;
    for (std::size_t at = 0; (at = line.find_first_not_of(separators, at)) != std::string::npos;) {
        const std::size_t end = std::min(line.find_first_of(separators, at), line.size());
        fields.emplace_back(at, end - at);
        at = end;
    }
    return fields;
}

/// Every line left out, and every field of every line with other texts instead, everything else as it is.
std::vector<Odd> oddHeaders(InputKind kind) {
    const std::vector<std::string> lines = linesOf(plainFile(kind));
    std::vector<Odd> odd;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const std::string name = "line " + std::to_string(i + 1);
        std::vector<std::string> changed = lines;
        changed.erase(changed.begin() + static_cast<std::ptrdiff_t>(i));
        odd.push_back({name + " left out", joined(changed)});
        const auto fields = fieldsOf(lines[i], kind == InputKind::MonitorW ? "," : " ");
        for (std::size_t k = 0; k < std::min(fields.size(), sharedFields(kind, i + 1)); ++k) {
            const std::string field = lines[i].substr(fields[k].first, fields[k].second);
            for (const std::string& fresh :
                 {std::string(), std::string("x"), std::string("-1"), std::string("0"), std::string("99999"),
                  std::string("1.5"), field + ".", lcase(field), field + "-Text", std::string("24"),
                  std::string("45")}) {
                if (fresh == field) continue;
                changed = lines;
                changed[i].replace(fields[k].first, fields[k].second, fresh);
                odd.push_back({name + " field " + std::to_string(k + 1) + ": " + fresh, joined(changed)});
            }
        }
    }
    return odd;
}

/// Styles that have their own names.
std::vector<Odd> oddStyles(InputKind kind) {
    const std::string plain = plainFile(kind);
    const auto with = [&](const std::string& old, const std::string& fresh) {
        std::string whole = plain;
        return whole.replace(whole.find(old), old.size(), fresh);
    };
    switch (kind) {
        case InputKind::Surf:
            return {{"version in another column", with("SURF.DAT        2.1", "SURF.DAT 2.1")},
                    {"version 2.0", "SURF.DAT        2.0\n0\nNONE\n1990 8 1 1990 15 23 5.0 1\n14606\n"},
                    {"version 2.0, half an hour",
                     "SURF.DAT        2.0\n0\nNONE\n1990 8 1 1990 15 23 -5.5 1\n14606\n"},
                    {"a whole hour of seconds", with("23 1800", "23 3600")},
                    {"day 366 of 1900", with("1990 15 23", "1900 366 23")},
                    {"lines that end in CR", [&] {
                         std::string whole = plain;
                         std::replace(whole.begin(), whole.end(), '\n', '\r');
                         return whole;
                     }()}};
        case InputKind::Up:
            return {{"version 2.0", "UP.DAT 2.0\n0\nNONE\n1990 8 1 1990 15 23\n500\n6201 14606\n"},
                    {"two digits of the year", with("1990 15", "45 15")}};
        case InputKind::MonitorW:
            return {{"names in quotes", with("DATETIME,DATAAVID", "\"DATETIME\",\"DATAAVID\"")},
                    {"byte order mark", "\xEF\xBB\xBF" + plain},
                    {"afternoon", with("1:00", "1:00 PM")},
                    {"hour 24", with("1:00", "24:00")},
                    {"seconds", with("1:00", "1:00:30")},
                    {"two digits of the year", with("2003", "45")}};
        case InputKind::AermSfc:
        case InputKind::AermPfl:
            return {{"hour 24", with(kind == InputKind::AermSfc ? "61 1" : "88 3 1 1",
                                     kind == InputKind::AermSfc ? "61 24" : "88 3 1 24")},
                    {"year 29", with("88 3", "29 3")},
                    {"year 30", with("88 3", "30 3")},
                    {"year 49", with("88 3", "49 3")},
                    {"four digits of the year", with("88 3", "1988 3")}};
        case InputKind::Tsf:
            return {{"hour 24", with("31 23 0", "31 24 0")},
                    {"a whole hour of seconds", with("31 23 0", "31 23 3600")},
                    {"no station", with("Station: STATION ID = 14606", "")}};
        case InputKind::M3d:
            return {{"small letters", with("3D.DAT", "3d.dat")},
                    {"count with text", with("\n1\n", "\n1-Comment\n")},
                    {"range of six numbers", with(" -98 -97 40 41", "")}};
        case InputKind::Ventos:
            return {{"small letters", with("VENTOS.DAT", "ventos.dat")},
                    {"count with text", with("\r\n2\r\n", "\r\n2 - Comments\r\n")},
                    {"heights on two lines", with("\r\n0 20", "\r\n0\r\n20")},
                    {"heights with an empty line", with("\r\n0 20", "\r\n\r\n0 20")},
                    {"half an hour of the zone", with("UTC-0500", "UTC+0330")},
                    {"hour 24", with("31 23 0", "31 24 0")},
                    {"two digits of the year", with("2005 12 31", "45 12 31")}};
        default:
            return {};
    }
}

bool fits(const Difference& difference, InputKind kind, const std::string& what) {
    if (difference.kind != kind) return false;
    int line = 0;
    int first = 0;
    int last = 0;
    if (std::sscanf(difference.where, "line %d fields %d to %d", &line, &first, &last) != 3)
        return what.starts_with(difference.where);
    for (int field = first; field <= last; ++field)
        if (what.starts_with("line " + std::to_string(line) + " field " + std::to_string(field) + ":"))
            return true;
    return false;
}

class OddHeaders : public testing::TestWithParam<InputKind> {};

TEST_P(OddHeaders, AreReadAlikeOrForAReason) {
    const InputKind kind = GetParam();
    const Asked asked = askedOf(kind);
    const Seen plain = seenByProcessor(kind, plainFile(kind), asked);
    ASSERT_TRUE(plain.reads) << plain.message;
    ASSERT_TRUE(seenByDialog(kind, plainFile(kind)).reads) << seenByDialog(kind, plainFile(kind)).message;
    std::set<const Difference*> met;
    std::vector<Odd> all = oddHeaders(kind);
    for (const Odd& style : oddStyles(kind)) all.push_back(style);
    for (const Odd& odd : all) {
        const Seen dialog = seenByDialog(kind, odd.text);
        const Seen processor = seenByProcessor(kind, odd.text, asked);
        const bool sameZone = dialog.zone == processor.zone;
        const bool sameEnd = !processor.end || dialog.end == processor.end;
        const bool sameBegin = !processor.begin || dialog.begin == processor.begin;
        if (dialog.reads == processor.reads && (!dialog.reads || (sameZone && sameEnd && sameBegin)))
            continue;
        const auto* const found =
            std::find_if(std::begin(differences), std::end(differences),
                         [&](const Difference& row) { return fits(row, kind, odd.what); });
        if (found != std::end(differences)) {
            met.insert(found);
            continue;
        }
        ADD_FAILURE() << mdataOf(kind) << ": " << odd.what
                      << "\n  dialog: " << (dialog.reads ? "reads " : "refuses ") << dialog.message << ' '
                      << dialog.zone << ' ' << text(dialog.begin) << " to " << text(dialog.end)
                      << "\n  processor: " << (processor.reads ? "reads " : "refuses ") << processor.message
                      << ' ' << processor.zone << ' ' << text(processor.begin) << " to "
                      << text(processor.end);
    }
    for (const Difference& row : differences)
        EXPECT_TRUE(row.kind != kind || met.count(&row) > 0) << row.where << " is no difference any more";
}

INSTANTIATE_TEST_SUITE_P(Kinds, OddHeaders,
                         testing::Values(InputKind::Surf, InputKind::Up, InputKind::MonitorW,
                                         InputKind::AermSfc, InputKind::AermPfl, InputKind::Tsf,
                                         InputKind::M3d, InputKind::Ventos),
                         [](const auto& row) { return std::string(mdataOf(row.param)); });

}  // namespace
}  // namespace zg
