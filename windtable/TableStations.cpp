#include "windtable/TableStations.h"

#include "windtable/TableRecords.h"

namespace zg {

namespace {

constexpr std::size_t mostStations = 1000;
constexpr std::size_t mostNamed = 20;

}  // namespace

void TableStations::add(std::string_view station) {
    if (station.empty() || station == last_) return;
    last_ = station;
    if (known_.contains(station)) {
        alternate_ = true;
    } else if (all_.size() < mostStations) {
        known_.emplace(station);
        all_.emplace_back(station);
    }
}

std::string stationsCount(const std::vector<std::string>& stations, std::size_t without) {
    std::string text = stations.size() < mostStations ? "" : "at least ";
    return text + std::to_string(stations.size() - without);
}

std::string stationsText(const std::vector<std::string>& stations) {
    std::string text;
    for (std::size_t i = 0; i < stations.size() && i < mostNamed; ++i)
        text.append(i == 0 ? "" : ", ").append(quotedValue(stations[i]));
    if (stations.size() <= mostNamed) return text;
    return text + " and " + stationsCount(stations, mostNamed) + " more";
}

}  // namespace zg
