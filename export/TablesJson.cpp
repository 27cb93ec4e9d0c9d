#include "export/TablesJson.h"

#include <nlohmann/json.hpp>

#include "base/Encoding.h"
#include "base/Numbers.h"

namespace zg {

namespace {

using Json = nlohmann::ordered_json;

Json texts(const Table<std::string>& table) {
    Json array = Json::array();
    for (const std::string& text : table) array.push_back(toUtf8(text));
    return array;
}

Json counts(const Table<std::int32_t>& table) {
    if (table.size() == 0) return nullptr;
    Json array = Json::array();
    for (const std::int32_t count : table) array.push_back(count);
    return array;
}

/// Singles in their shortest form, so that 92.4 stays 92.4.
Json percents(const Table<float>& table) {
    if (table.size() == 0) return nullptr;
    Json array = Json::array();
    for (const float percent : table) array.push_back(toDouble(singleText(percent)));
    return array;
}

Json fractions(const FractionTable& table) {
    Json rows = Json::array();
    for (std::int64_t row = 0; row < table.rows(); ++row) {
        Json cells = Json::array();
        for (std::int64_t speedClass = 0; speedClass < FractionTable::classes; ++speedClass)
            cells.push_back(table(row, speedClass));
        rows.push_back(std::move(cells));
    }
    return rows;
}

}  // namespace

std::string tablesAsJson(const ModPolarGraph& tables) {
    Json all;
    all["FrqVersion"] = tables.FrqVersion;
    all["FrqLineCount"] = tables.FrqLineCount;
    all["FrqRoseCount"] = tables.FrqRoseCount;
    all["FrqFraction"] = fractions(tables.FrqFraction);
    all["FrqDirectionLabel"] = texts(tables.FrqDirectionLabel);
    all["FrqClassLimit"] = texts(tables.FrqClassLimit);
    all["FrqCalmPercent"] = texts(tables.FrqCalmPercent);
    all["FrqRoseTitle"] = texts(tables.FrqRoseTitle);
    all["FrqRoseCaption"] = texts(tables.FrqRoseCaption);
    all["FrqTotalPeriods"] = counts(tables.FrqTotalPeriods);
    all["FrqValidPeriods"] = counts(tables.FrqValidPeriods);
    all["FrqCalmPeriods"] = counts(tables.FrqCalmPeriods);
    all["FrqPercentValid"] = percents(tables.FrqPercentValid);
    all["FrqTitle1"] = toUtf8(tables.FrqTitle1);
    all["FrqTitle2"] = toUtf8(tables.FrqTitle2);
    all["FrqMeasure"] = toUtf8(tables.FrqMeasure);
    all["FrqPeriodText"] = toUtf8(tables.FrqPeriodText);
    all["GraphTitle"] = toUtf8(tables.GraphTitle);
    all["GraphSubTitle"] = toUtf8(tables.GraphSubTitle);
    all["GraphCaption"] = toUtf8(tables.GraphCaption);
    all["FrqLoaded"] = tables.FrqLoaded;
    all["CurrentRose"] = tables.CurrentRose;
    return all.dump(1, '\t');
}

}  // namespace zg
