#include "tempoline/ControlReader.h"

#include <algorithm>
#include <set>

#include "base/Text.h"
#include "tempoline/ControlKeys.h"
#include "tempoline/ControlLexer.h"
#include "tempoline/ControlOutputs.h"
#include "tempoline/Projection.h"
#include "tempoline/TableKeys.h"

namespace zg::tempoline {

namespace {

constexpr int mostInputs = 10000;
constexpr int mostSeasons = 400;  // few enough that an FRQ file of all its roses can be loaded
constexpr Seconds longestStep = secondsADay;
constexpr Seconds mostSteps = 100'000'000;

class Reader {
 public:
    explicit Reader(const ControlText& text) : keys_(text) {
        control_.file = text.file;
        control_.title = text.title;
        for (const Assignment& entry : text.assignments)
            control_.assignments.push_back(entry.key + " = " + entry.value);
    }

    Control read() {
        readKind();  // unsupported features are reported before their keys are found to be unknown
        keys_.needKnownKeys();
        control_.listing = plainFileName(keys_, "TSFLST", keys_.textOr("TSFLST", "TEMPOLINE.LST"));
        readPeriod();
        control_.outputs = readOutputs(keys_, control_.kind);
        if (isGridded(control_.kind)) readGridSettings();
        if (control_.kind == InputKind::Csv) control_.table = readTableLayout(keys_);
        readRules();
        control_.assumed = keys_.assumed();
        return std::move(control_);
    }

 private:
    void readKind() {
        const std::string word = ucase(keys_.text("MDATA"));
        const std::optional<InputKind> known = kindOfMdata(word);
        if (word == "MONITORC" || word == "POSTIME" || word == "FUMAROL")
            throw keys_.failure("MDATA", word + " is air quality input, which is not supported");
        if (word == "M2D") throw keys_.failure("MDATA", "M2D input is not supported");
        if (!known) throw keys_.failure("MDATA", "\"" + word + "\" is no known type of input");
        control_.kind = *known;
        if (keys_.whole("NAQINP", 0, mostInputs) > 0)
            throw keys_.failure("NAQINP", "air quality input is not supported");
        const int roses = keys_.wholeOr("MROSE", 0, 0, 2);
        if (roses == 2) throw keys_.failure("MROSE", "pollutant roses (2) are not supported");
        control_.wantsRoses = roses == 1;
        control_.wantsSeries = control_.kind != InputKind::Tsf;
        if (!control_.wantsRoses && !control_.wantsSeries)
            throw keys_.failure("MROSE", "a run with MDATA = TSF makes nothing but roses: 1 is needed");
        const int inputs = keys_.whole("NMETINP", 1, mostInputs);
        if (inputs > 1 && !isGridded(control_.kind))
            throw keys_.failure("NMETINP", std::string(mdataOf(control_.kind)) + " takes one file");
        control_.inputs = keys_.texts("METINP", static_cast<std::size_t>(inputs), "NMETINP");
        for (const std::string& input : control_.inputs) {
            if (input.empty()) throw keys_.failure("METINP", "a file name is missing");
        }
    }

    Seconds readMoment(const std::string& prefix) {
        const int year = keys_.whole(prefix + "YR", 1, 9999);
        const int month = keys_.whole(prefix + "MO", 1, 12);
        const int day = keys_.whole(prefix + "DY", 1, 31);
        const std::string fault = faultOfDate(year, month, day);
        if (!fault.empty()) throw keys_.failure(prefix + "DY", fault);
        const int hour = keys_.whole(prefix + "HR", 0, 24);
        return momentOf(year, month, day, hour, keys_.whole(prefix + "SEC", 0, 3600));
    }

    void readPeriod() {
        control_.begin = readMoment("IB");
        control_.end = readMoment("IE");
        for (const Assignment& entry : keys_.all())
            if (entry.key == "IEYR") control_.endLine = entry.line;
        control_.zone = ucase(keys_.text("ABTZ"));
        const std::optional<Seconds> offset = zoneOffset(control_.zone);
        if (!offset) throw keys_.failure("ABTZ", "\"" + control_.zone + "\" is no zone such as UTC-0500");
        control_.zoneOffset = *offset;
        control_.step = keys_.wholeOr("NSECDT", 3600, 1, static_cast<int>(longestStep));
        if (control_.end <= control_.begin) throw keys_.failure("IEYR", "the period ends before it begins");
        const Seconds steps = (control_.end - control_.begin) / control_.step;
        if (steps == 0) throw keys_.failure("NSECDT", "the period is shorter than one step");
        if (steps > mostSteps)
            throw keys_.failure("NSECDT", "the period has " + std::to_string(steps) + " steps, more than " +
                                              std::to_string(mostSteps));
        const Seconds rest = (control_.end - control_.begin) % control_.step;
        if (rest > 0)
            control_.warnings.push_back("the last " + std::to_string(rest) +
                                        " seconds of the period are no whole step and are left out");
    }

    void readGridSettings() {
        control_.method = static_cast<SpatialMethod>(keys_.wholeOr("METSIM", 1, 1, 2));
        if (control_.kind == InputKind::M3d) {
            control_.profileMethod = keys_.whole("MPROF", 1, 4);
            control_.cellCoordinates = keys_.wholeOr("MCELL", 0, 0, 1) == 1;
        }
        MapSetting& map = control_.map;
        map.projection = ucase(keys_.textOr("PMAP", "UTM"));
        map.datum = keys_.textOr("DATUM", "WGS-84");
        static const std::set<std::string> known = {"NONE", "LL", "UTM", "TTM", "LCC", "PS", "EM", "LAZA"};
        if (known.count(map.projection) == 0)
            throw keys_.failure("PMAP", "\"" + map.projection + "\" is no known projection");
        if (map.projection == "NONE" && !control_.cellCoordinates)
            throw keys_.failure("PMAP", "NONE leaves the locations without coordinates");
        if (control_.cellCoordinates) return;
        if (!datumDefinition(map.datum)) throw keys_.failure("DATUM", unknownDatum(map.datum));
        readProjection(map);
    }

    void readProjection(MapSetting& map) {
        const std::string& code = map.projection;
        if (code == "UTM") {
            map.utmZone = keys_.whole("IUTMZN", 1, 60);
            const std::string hemisphere = ucase(keys_.textOr("UTMHEM", "N"));
            if (hemisphere != "N" && hemisphere != "S") throw keys_.failure("UTMHEM", "N or S is needed");
            map.southern = hemisphere == "S";
        }
        if (code == "TTM" || code == "LCC" || code == "LAZA") {
            map.falseEasting = keys_.numberOr("FEAST", 0);
            map.falseNorthing = keys_.numberOr("FNORTH", 0);
        }
        if (code == "TTM" || code == "LCC" || code == "PS" || code == "EM" || code == "LAZA") {
            map.latitude0 = keys_.latitude("RLAT0");
            map.longitude0 = keys_.longitude("RLON0");
        }
        if (code == "LCC" || code == "PS") map.latitude1 = keys_.latitude("XLAT1");
        if (code == "PS" && map.latitude1 == 0)
            throw keys_.failure("XLAT1", "a polar map needs the parallel that it is true at");
        if (code == "LCC") map.latitude2 = keys_.latitude("XLAT2");
    }

    /// Only a run without roses may omit classes, seasons and hours: a truncated control file must not be run
    /// with other rules than it was written with.
    void readRules() {
        if (control_.wantsRoses) {
            for (const char* const key : {"WSBIN", "NSEASN", "NTPD", "MSN"}) keys_.text(key);
        }
        readClasses();
        readSeasons();
        const int ranges = keys_.wholeOr("NTPD", 0, 0, 24 * 24);
        for (const Assignment& entry : keys_.all()) {
            if (entry.key == "HR") control_.rules.hourRanges.push_back(readHours(entry));
        }
        keys_.needCount("HR", control_.rules.hourRanges.size(), static_cast<std::size_t>(ranges), "NTPD");
        if (keys_.wholeOr("NWSP", 0, 0, 1000) > 0)
            throw keys_.failure("NWSP", "roses of single speed ranges are not supported");
    }

    void readClasses() {
        const std::vector<std::string> items = keys_.items("WSBIN", "0.5, 1.8, 3.3, 5.4, 8.5, 10.8");
        if (items.size() != classCount)
            throw keys_.failure("WSBIN", "found " + std::to_string(items.size()) + " speeds, 6 are needed");
        std::array<double, classCount>& limits = control_.rules.classLimits;
        for (std::size_t i = 0; i < classCount; ++i) {
            limits[i] = keys_.number("WSBIN", items[i]);
            if (i > 0 && limits[i] < limits[i - 1])
                throw keys_.failure("WSBIN", "the speeds must not fall: \"" + items[i] + "\"");
            control_.rules.limitTexts[i] = items[i];
        }
    }

    void readSeasons() {
        RoseRules& rules = control_.rules;
        const int count = keys_.wholeOr("NSEASN", 4, 1, mostSeasons);
        std::set<int> ids;
        const Assignment* open = nullptr;
        const auto needClosed = [&] {
            if (open != nullptr) throw keys_.failure(*open, "no SEASNAME follows it");
        };
        for (const Assignment& entry : keys_.all()) {
            if (entry.key == "IDSEAS") {
                needClosed();
                open = &entry;
                const int id = keys_.wholeOf(entry, 1, mostSeasons);
                if (!ids.insert(id).second)
                    throw keys_.failure(entry, std::to_string(id) + " has been given before");
                rules.seasons.push_back({id, ""});
            } else if (entry.key == "SEASNAME") {
                if (open == nullptr) throw keys_.failure(entry, "an IDSEAS must come before it");
                rules.seasons.back().name = entry.value;
                open = nullptr;
            }
        }
        needClosed();
        const bool defaults = rules.seasons.empty() && !keys_.has("NSEASN");
        if (defaults) rules.seasons = {{1, "Winter"}, {2, "Spring"}, {3, "Summer"}, {4, "Fall"}};
        if (!defaults)
            keys_.needCount("IDSEAS", rules.seasons.size(), static_cast<std::size_t>(count), "NSEASN");
        readMonths(ids, defaults);
    }

    void readMonths(const std::set<int>& ids, bool defaults) {
        const std::vector<std::string> items = keys_.items("MSN", "1 1 2 2 2 3 3 3 4 4 4 1");
        if (items.size() != 12)
            throw keys_.failure("MSN", "found " + std::to_string(items.size()) + " seasons, 12 are needed");
        std::set<int> unknown;
        for (std::size_t month = 0; month < 12; ++month) {
            const int id = keys_.wholeIn("MSN", items[month], 0, 2'000'000'000);
            control_.rules.seasonOfMonth[month] = id;
            if (!defaults && ids.count(id) == 0) unknown.insert(id);
        }
        for (const int id : unknown)
            control_.warnings.push_back("MSN: no season has the number " + std::to_string(id) +
                                        "; its months are in no season's rose");
    }

    HourRange readHours(const Assignment& entry) {
        const std::vector<std::string> items = keys_.itemsOf(entry);
        if (items.size() != 2) throw keys_.failure(entry, "a first and a last hour are needed");
        keys_.at(entry);
        return {keys_.wholeIn("HR", items[0], 0, 24) % 24, keys_.wholeIn("HR", items[1], 0, 24) % 24};
    }

    ControlKeys keys_;
    Control control_;
};

}  // namespace

Control readControl(std::string_view text, const std::string& file) {
    const ControlText assignments = readAssignments(text, file);
    return Reader(assignments).read();
}

}  // namespace zg::tempoline
