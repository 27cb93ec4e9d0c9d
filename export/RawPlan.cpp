#include "export/RawPlan.h"

#include <algorithm>

#include "base/Encoding.h"
#include "base/Files.h"
#include "base/Text.h"
#include "export/RawRules.h"
#include "headers/Stations.h"
#include "windtable/TableTimes.h"

namespace zg {

namespace {

constexpr const char* zoneOfSilentData = "UTC+0000";

[[noreturn]] void refuse(const std::string& path, const std::string& text) {
    throw RawFault(path + ": " + text, true);
}

bool makesOneOutput(InputKind kind) {
    return kind == InputKind::MonitorW || kind == InputKind::AermSfc || kind == InputKind::Csv ||
           kind == InputKind::Tsf;
}

class Planner {
 public:
    Planner(const std::string& path, const std::string& stem, const RawFacts& header, const RawWishes& wishes)
        : path_(path), stem_(stem), header_(header), wishes_(wishes) {}

    std::vector<ControlFile> all() {
        needFittingWishes();
        ControlFile shared = sharedValues();
        const std::vector<std::string> heights = heightsAsked();
        const std::vector<std::string> stations = stationsAsked();
        if (isGridded(header_.kind)) {
            addPlaces(shared, heights);
            return {shared};
        }
        if (header_.kind == InputKind::Tsf) {
            shared.roseName = stem_;
            return {shared};
        }
        if (makesOneOutput(header_.kind)) return oneForEach(shared, stations, heights.front());
        addStations(shared, stations, heights);
        return {shared};
    }

 private:
    void needFittingWishes() const {
        const InputKind kind = header_.kind;
        if (!isGridded(kind) && !wishes_.locations.empty())
            refuse(path_, "--location: only gridded data have places");
        if (!isGridded(kind) && !wishes_.cells.empty()) refuse(path_, "--cell: only gridded data have cells");
        if (kind == InputKind::Ventos && !wishes_.cells.empty())
            refuse(path_, "--cell: VENTOS.DAT takes --location");
        if (isGridded(kind) && wishes_.locations.empty() == wishes_.cells.empty())
            refuse(path_, wishes_.cells.empty()
                              ? "gridded data need a place: --location LAT,LON, or --cell I,J of 3D.DAT"
                              : "--cell and --location cannot go together");
        if (isGridded(kind) && !wishes_.stations.empty())
            refuse(path_, "--station: gridded data have no stations");
        if (makesOneOutput(kind) && wishes_.heights.size() > 1)
            refuse(path_, "--height: these winds are of one height");
        if (kind == InputKind::Tsf && !wishes_.heights.empty())
            refuse(path_, "--height: a time series has the height of its own header");
    }

    std::string zone() const {
        if (!wishes_.zone.empty()) return zoneKeyOf(wishes_.zone);
        return header_.zone.empty() ? zoneOfSilentData : header_.zone;
    }

    /// By the clock of the run.
    DateTime moved(DateTime moment) const {
        if (header_.zone.empty()) return moment;
        const auto run = zoneOfWord(zone());
        const auto data = zoneOfWord(header_.zone);
        return run && data ? addSeconds(moment, *run - *data) : moment;
    }

    void setPeriod(ControlFile& v) const {
        DateTime begin = moved(header_.begin);
        DateTime end = moved(header_.end);
        const auto limit = [&](const char* option, const std::string& wish, DateTime& value, bool isBegin) {
            if (wish.empty()) return;
            const DateTime asked = momentOfWish(option, wish, zone());
            if (isBegin ? asked < value : asked > value)
                refuse(path_,
                       isBegin
                           ? "The selected Starting date/time precedes the starting date/time of the data."
                           : "The selected Ending date/time follows the ending date/time of the data.");
            value = asked;
        };
        limit("--begin", wishes_.begin, begin, true);
        limit("--end", wishes_.end, end, false);
        if (dateOf(end).year < 1 || begin >= end)
            refuse(path_, "Error: The Ending Date/Time must be later than the Starting Date/Time.");
        zg::setPeriod(v, begin, end);
    }

    ControlFile sharedValues() const {
        ControlFile v;
        v.type = header_.kind;
        v.title = wishes_.title.empty() && header_.kind == InputKind::Csv ? stem_ : wishes_.title;
        v.base = stem_;
        v.inputFiles = {path_};
        setPeriod(v);
        v.ABTZ = zone();
        v.NSECDT = std::to_string(wishes_.step.empty() ? header_.stepSeconds : stepOf(wishes_.step));
        v.WSBIN = classesOf(wishes_.classes);
        const RawSeasons seasons = seasonsOf(wishes_.seasons);
        v.seasonNames = seasons.names;
        v.MSN = seasons.months;
        v.METSIM = "1";
        v.MPROF = "3";
        v.MCELL = wishes_.cells.empty() ? "0" : "1";
        v.projection.PMAP = "NONE";
        if (header_.kind == InputKind::Csv)
            for (const TableKey& key : keysOf(header_.table.layout))
                v.tableKeys.push_back({key.key, key.value});
        return v;
    }

    std::vector<std::string> heightsAsked() const {
        if (wishes_.heights.empty()) return header_.heights;
        std::vector<std::string> heights;
        for (const std::string& wish : wishes_.heights) heights.push_back(heightOfWish(wish));
        return heights;
    }

    /// A kind without named stations uses the requested one as its name.
    std::vector<std::string> stationsAsked() const {
        if (wishes_.stations.empty()) return header_.stations;
        if (header_.stations.empty()) {
            if (wishes_.stations.size() > 1) refuse(path_, "--station: these winds are of one station");
            return wishes_.stations;
        }
        std::vector<std::string> stations;
        for (const std::string& wish : wishes_.stations) stations.push_back(stationOfFile(wish));
        return stations;
    }

    /// In the bytes of the file: what is typed is UTF-8.
    std::string stationOfFile(const std::string& wish) const {
        const auto found =
            std::find_if(header_.stations.begin(), header_.stations.end(),
                         [&](const std::string& station) { return toUtf8(station) == toUtf8(wish); });
        if (found != header_.stations.end()) return *found;
        std::string text = "--station: there is no station \"" + toUtf8(wish) + "\"; the file has";
        for (const std::string& station : header_.stations) text.append(" ").append(toUtf8(station));
        refuse(path_, text);
    }

    std::string nameOf(const std::string& station, const std::string& height, bool severalStations,
                       bool severalHeights) const {
        std::string name = stem_;
        if (severalStations) name += "_" + partOfName(station);
        if (severalHeights) name += "_" + partOfName(height) + "m";
        return name;
    }

    std::string locationOf(const std::string& station) const {
        const std::string name = trim(station).empty() ? std::string() : stationNameOf(station);
        return name.empty() ? trim(wishes_.title) : trim(trim(wishes_.title) + " " + name);
    }

    std::vector<ControlFile> oneForEach(const ControlFile& shared, std::vector<std::string> stations,
                                        const std::string& height) const {
        if (stations.empty()) stations = {header_.kind == InputKind::Csv ? stem_ : "0"};
        std::vector<ControlFile> all;
        for (const std::string& station : stations) {
            ControlFile v = shared;
            v.base = nameOf(station, height, stations.size() > 1, false);
            v.outputs = {{"1", v.base, locationOf(station), partOfName(station) + ", 0, 0", height}};
            all.push_back(std::move(v));
        }
        return all;
    }

    void addStations(ControlFile& v, std::vector<std::string> stations,
                     const std::vector<std::string>& heights) const {
        if (stations.empty()) stations = {"0"};
        int id = 0;
        for (const std::string& station : stations) {
            for (const std::string& height : heights) {
                // The row in the file is the number of a station's output.
                const auto row = std::find(header_.stations.begin(), header_.stations.end(), station);
                const bool byRow = header_.kind == InputKind::Surf && heights.size() == 1;
                id = byRow ? static_cast<int>(row - header_.stations.begin()) + 1 : id + 1;
                v.outputs.push_back({std::to_string(id),
                                     nameOf(station, height, stations.size() > 1, heights.size() > 1),
                                     locationOf(station), station + ", 0, 0", height});
            }
        }
    }

    void addPlaces(ControlFile& v, const std::vector<std::string>& heights) const {
        const bool byCells = !wishes_.cells.empty();
        const auto pairs =
            byCells ? pairsOf("--cell", wishes_.cells) : pairsOf("--location", wishes_.locations);
        if (!byCells) {
            v.projection.PMAP = "LL";
            v.projection.DATUM = "WGS-84";
        }
        int id = 0;
        for (const auto& [first, second] : pairs) {
            for (const std::string& height : heights) {
                const std::string place = byCells ? first + ", " + second : second + ", " + first;
                const std::string shown = first + "," + second;
                v.outputs.push_back({std::to_string(++id),
                                     nameOf(shown, height, pairs.size() > 1, heights.size() > 1),
                                     trim(wishes_.title), place, height});
            }
        }
    }

    const std::string& path_;
    const std::string& stem_;
    const RawFacts& header_;
    const RawWishes& wishes_;
};

}  // namespace

std::vector<ControlFile> controlFilesOf(const std::string& path, const std::string& stem,
                                        const RawFacts& header, const RawWishes& wishes) {
    return Planner(path, stem, header, wishes).all();
}

/// It may hold neither separators nor what ends a value of the control file.
std::string partOfName(std::string text) {
    for (char& c : text)
        if (c == '/' || c == '\\' || c == '!' || c == ',' || static_cast<unsigned char>(c) < ' ') c = '_';
    return asPartOfName(trim(text));
}

void needPlainWishes(const RawWishes& wishes) {
    classesOf(wishes.classes);
    seasonsOf(wishes.seasons);
    if (!wishes.step.empty()) stepOf(wishes.step);
    if (!wishes.zone.empty()) zoneKeyOf(wishes.zone);
    for (const std::string& height : wishes.heights) heightOfWish(height);
    if (!wishes.begin.empty()) momentOfWish("--begin", wishes.begin, zoneOfSilentData);
    if (!wishes.end.empty()) momentOfWish("--end", wishes.end, zoneOfSilentData);
    pairsOf("--location", wishes.locations);
    pairsOf("--cell", wishes.cells);
    if (wishes.table.missing.find('!') != std::string::npos || wishes.title.find('!') != std::string::npos)
        throw RawFault("a \"!\" ends a value of the control file", true);
}

}  // namespace zg
