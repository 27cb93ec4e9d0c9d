#pragma once

// The stations that a column of a table names.

#include <cstddef>
#include <functional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace zg {

class TableStations {
 public:
    TableStations() = default;
    TableStations(std::size_t column, std::string name) : column_(column), name_(std::move(name)) {}

    /// From 1; 0 if no column names stations.
    std::size_t column() const { return column_; }
    const std::string& name() const { return name_; }

    /// Whether it differs from that of the record before; false if either has none.
    bool isOther(std::string_view station) const {
        return !last_.empty() && !station.empty() && station != last_;
    }
    void add(std::string_view station);

    bool areSeveral() const { return all_.size() > 1; }

    /// Whether one comes again after another.
    bool alternate() const { return alternate_; }

    /// In the order of the file; only the first thousand.
    const std::vector<std::string>& all() const { return all_; }

 private:
    std::size_t column_ = 0;
    std::string name_;
    std::string last_;
    std::vector<std::string> all_;
    std::set<std::string, std::less<>> known_;
    bool alternate_ = false;
};

/// How many there are but for so many of them, "at least" so many if there may be more than are known.
std::string stationsCount(const std::vector<std::string>& stations, std::size_t without = 0);

/// Their names in quotes, with commas; of many only the first.
std::string stationsText(const std::vector<std::string>& stations);

}  // namespace zg
