#pragma once

// FRQ files as lines, for tests and benchmarks that need one of a given shape and then modify it.

#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

namespace freqtext {

using Lines = std::vector<std::string>;

inline bool twoCounts(std::string_view version) { return version == "2.2" || version == "2.3"; }

/// The header for a version: titles "Station A" and "Site survey 2001", a period in 2001.
inline Lines header(std::string_view version) {
    Lines lines = {"WIND.FRQ        " + std::string(version) + "             Zephyrgraph FRQ File Format"};
    if (twoCounts(version)) {
        lines.insert(lines.end(), {"1 - Comment lines", "Made by hand", "5 - Header lines"});
    } else {
        lines.insert(lines.end(), {"6", "free text"});
    }
    lines.insert(lines.end(), {"Station A", "Site   survey 2001", "Height: 10.0 m",
                               "Wind Speed Classes (m/s): 0.5,0.5,1.8,3.3,5.4,8.5,10.8"});
    if (version == "2.2") {
        lines.emplace_back("2001 1 1 1 0 2001 12 31 24 0");
    } else if (version == "2.3") {
        lines.emplace_back("2001 1 1 1 0 2001 12 31 24 0 utc-0500");
    } else {
        lines.emplace_back("2001 1 1 0 2001 12 31 23");
    }
    return lines;
}

constexpr const char* directions[16] = {"N", "NNE", "NE", "ENE", "E", "ESE", "SE", "SSE",
                                        "S", "SSW", "SW", "WSW", "W", "WNW", "NW", "NNW"};

/// The percentage of a class in row r of rose k, different for each: "3.0502" is class 3, row 5, rose 2.
inline std::string percent(int rose, int row, int speedClass) {
    char text[32];
    std::snprintf(text, sizeof text, "%d.%02d%02d", speedClass, row, rose % 100);
    return text;
}

inline std::string directionRow(int rose, int row) {
    std::string line(directions[row - 1]);
    line += " :";
    for (int speedClass = 1; speedClass <= 6; ++speedClass)
        line += "   " + percent(rose, row, speedClass) + "%";
    return line;
}

/// The block of rose k with the calm percentage "4.k0".
inline Lines block(std::string_view version, int rose, const std::string& title) {
    Lines lines;
    if (version != "2.0") lines.emplace_back();
    lines.push_back(title);
    lines.emplace_back("Direction: columns");
    for (int row = 1; row <= 16; ++row) lines.push_back(directionRow(rose, row));
    lines.emplace_back("--------");
    lines.push_back("Calm Winds: 4." + std::to_string(rose % 10) + "0%");
    lines.emplace_back(
        version == "2.0" ? "" : "Total Periods = 8760; Valid Periods = 8700; Calm Wind Periods = 392");
    return lines;
}

/// A whole file whose roses are titled "Rose 1", "Rose 2" and so on.
inline Lines file(std::string_view version, int roses) {
    Lines lines = header(version);
    for (int rose = 1; rose <= roses; ++rose) {
        const Lines rows = block(version, rose, "Rose " + std::to_string(rose));
        lines.insert(lines.end(), rows.begin(), rows.end());
    }
    return lines;
}

inline std::string bytes(const Lines& lines, std::string_view end = "\r\n") {
    std::string out;
    for (const std::string& line : lines) out.append(line).append(end);
    return out;
}

}  // namespace freqtext
