#include "tests/graph/render/RoseTables.h"

zg::ModPolarGraph roseTables(int roses) {
    static const char* labels[] = {"",  "N",   "NNE", "NE",  "ENE", "E",   "ESE", "SE", "SSE",
                                   "S", "SSW", "SW",  "WSW", "W",   "WNW", "NW",  "NNW"};
    zg::ModPolarGraph tables;
    zg::fillFactoryStyle(tables);
    const auto count = static_cast<std::size_t>(roses);
    tables.FrqVersion = "2.2";
    tables.FrqRoseCount = static_cast<std::int16_t>(roses);
    tables.FrqFraction.redim(17 * count + 16);
    tables.FrqDirectionLabel.redim(16);
    for (int row = 1; row <= 16; ++row) tables.FrqDirectionLabel(row) = labels[row];
    for (int rose = 1; rose <= roses; ++rose)
        for (int row = 1; row <= 16; ++row)
            for (int c = 1; c <= 6; ++c) tables.FrqFraction(rose * 17 - 17 + row, c) = 0.01 * c * rose;
    tables.FrqClassLimit.assign({" 0.5", "0.5", "1.8", "3.3", "5.4", "8.5", "10.8 "});
    tables.FrqCalmPercent.redim(count);
    for (int rose = 1; rose <= roses; ++rose) tables.FrqCalmPercent(rose) = std::to_string(rose) + ".50";
    tables.GraphTitle = "Title";
    tables.GraphSubTitle = "Subtitle";
    tables.GraphCaption = "Caption";
    tables.FrqLoaded = true;
    tables.CurrentRose = 1;
    tables.ClassesFromFile = true;
    return tables;
}

std::vector<std::string> labelsFromEast() {
    return {"E", "ENE", "NE", "NNE", "N", "NNW", "NW", "WNW",
            "W", "WSW", "SW", "SSW", "S", "SSE", "SE", "ESE"};
}
