#include "export/TablesCsv.h"

#include <array>
#include <cmath>
#include <cstdio>

#include "base/Encoding.h"
#include "base/Numbers.h"
#include "base/Text.h"

namespace zg {

namespace {

constexpr std::int64_t directions = 16;
constexpr std::int64_t lastClass = 6;
constexpr double degreesADirection = 22.5;
constexpr std::int64_t rowsARose = 17;

std::string csvField(std::string_view text) {
    const std::string value = toUtf8(trimmed(text));
    if (value.find_first_of(",\"\r\n") == std::string::npos) return value;
    std::string quoted = "\"";
    for (const char c : value) quoted.append(c == '"' ? 2 : 1, c);
    return quoted + "\"";
}

/// With as many decimals as an FRQ file has.
std::string percentText(double fraction) {
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%.4f", 100 * fraction);
    return text.data();
}

class CsvRows {
 public:
    CsvRows(const ModPolarGraph& tables, const std::string& file) : tables_(tables), file_(csvField(file)) {}

    std::string all() {
        for (std::int64_t rose = 1; rose <= tables_.FrqRoseCount; ++rose) addRose(rose);
        return std::move(text_);
    }

 private:
    void addRose(std::int64_t rose) {
        begin_ = file_ + "," + std::to_string(rose) + "," + csvField(tables_.FrqRoseTitle(rose)) + ",";
        addLine(",,calm,0," + limit(0), val(tables_.FrqCalmPercent(rose)) / 100, rose);
        for (std::int64_t direction = 0; direction < directions; ++direction)
            for (std::int64_t speedClass = 1; speedClass <= lastClass; ++speedClass)
                addLine(csvField(tables_.FrqDirectionLabel(direction + 1)) + "," +
                            doubleText(degreesADirection * static_cast<double>(direction)) + "," +
                            std::to_string(speedClass) + "," + limit(speedClass) + "," +
                            (speedClass < lastClass ? limit(speedClass + 1) : std::string()),
                        tables_.FrqFraction(rowsARose * (rose - 1) + 1 + direction, speedClass), rose);
    }

    std::string limit(std::int64_t speedClass) const { return csvField(tables_.FrqClassLimit(speedClass)); }

    void addLine(const std::string& cell, double fraction, std::int64_t rose) {
        text_ += begin_ + cell + ",m/s," + percentText(fraction) + "," + hours(fraction, rose) + "\n";
    }

    /// Of the valid ones; version 2.0 knows none.
    std::string hours(double fraction, std::int64_t rose) const {
        if (tables_.FrqValidPeriods.size() == 0) return {};
        return std::to_string(std::llround(fraction * tables_.FrqValidPeriods(rose)));
    }

    const ModPolarGraph& tables_;
    std::string file_;
    std::string begin_;
    std::string text_;
};

}  // namespace

std::string tablesCsvHeading() {
    return "file,rose,title,direction,degrees,class,from,to,unit,share,hours\n";
}

std::string tablesAsCsv(const ModPolarGraph& tables, const std::string& file) {
    return CsvRows(tables, file).all();
}

}  // namespace zg
