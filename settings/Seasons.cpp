#include "settings/Seasons.h"

#include <algorithm>

#include "base/Text.h"
#include "settings/CfgFile.h"

namespace zg {

namespace {

std::string seasonName(const SeasonFields& fields, std::size_t month) {
    const bool custom = fields.cboSeason[month] == customSeason;
    return trim(custom ? fields.txtCustomSeason[month] : fields.cboSeason[month]);
}

/// Number from 1 of a name among the seasons found so far, 0 if it is new.
std::int16_t seasonNumber(std::string_view name) {
    for (std::int16_t i = 0; i < settings.SeasonCount; ++i)
        if (settings.SeasonNames[static_cast<std::size_t>(i)] == name)
            return static_cast<std::int16_t>(i + 1);
    return 0;
}

}  // namespace

SeasonFields defaultSeasonFields() {
    SeasonFields fields;
    // December begins the winter: shifted by one month, each season is three consecutive months.
    for (std::size_t month = 0; month < 12; ++month)
        fields.cboSeason[month] = seasonChoices[(month + 1) % 12 / 3];
    return fields;
}

SeasonFields loadSeasonFields() {
    SeasonFields fields = defaultSeasonFields();
    ReadCfgFile(settings.CfgFilePath);
    for (std::size_t month = 0; month < 12; ++month) {
        const std::string& stored = settings.SeasonOfMonth[month];
        if (std::ranges::find(seasonChoices, stored) != seasonChoices.end()) fields.cboSeason[month] = stored;
    }
    fields.txtCustomSeason = settings.CustomSeasonOfMonth;
    return fields;
}

std::optional<std::size_t> firstMissingCustomSeason(const SeasonFields& fields) {
    for (std::size_t month = 0; month < 12; ++month)
        if (fields.cboSeason[month] == customSeason && fields.txtCustomSeason[month].empty()) return month;
    return std::nullopt;
}

void deriveSeasons(const SeasonFields& fields) {
    settings.SeasonNames = {};
    settings.SeasonCount = 0;
    settings.MonthSeasonString.clear();
    for (std::size_t month = 0; month < 12; ++month) {
        const std::string name = seasonName(fields, month);
        std::int16_t number = seasonNumber(name);
        if (number == 0) {
            settings.SeasonNames[static_cast<std::size_t>(settings.SeasonCount)] = name;
            number = ++settings.SeasonCount;
        }
        settings.MonthSeasonIndex[month] = number;
        if (month > 0) settings.MonthSeasonString += ",";
        settings.MonthSeasonString += std::to_string(number);
    }
}

void acceptSeasons(const SeasonFields& fields) {
    deriveSeasons(fields);
    settings.SeasonOfMonth = fields.cboSeason;
    settings.CustomSeasonOfMonth = fields.txtCustomSeason;
    WriteCfgFile(settings.CfgFilePath);
}

}  // namespace zg
