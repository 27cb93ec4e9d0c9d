#include "export/RawOptions.h"

#include <CLI/CLI.hpp>

#include "base/Text.h"
#include "export/RawPlan.h"

namespace zg {

namespace {

constexpr const char* rawGroup = "Raw data";
constexpr const char* tableGroup = "Tables of winds (without these it is found out)";

}  // namespace

RawOptions::RawOptions(CLI::App& app) {
    const auto add = [&app](const char* name, auto& value, const char* text, const char* type,
                            const char* group) {
        return app.add_option(name, value, text)->option_text(type)->group(group);
    };
    const auto several = [&](const char* name, std::vector<std::string>& values, const char* text,
                             const char* type) {
        add(name, values, text, type, rawGroup)->allow_extra_args(false);
    };
    several("--station", wishes_.stations, "Only this station; again for more", "ID");
    several("--height", wishes_.heights, "Height above ground; again for more", "M");
    add("--begin", wishes_.begin, "Begin of the period, ISO 8601", "TIME", rawGroup);
    add("--end", wishes_.end, "End of the period", "TIME", rawGroup);
    add("--step", wishes_.step, "Length of a step: 600, 10min, 1h", "LENGTH", rawGroup);
    add("--zone", wishes_.zone, "Time zone of the roses, UTC-0500", "ZONE", rawGroup);
    add("--classes", wishes_.classes, "Lower limits of the six classes, m/s", "0.5,1.8,...", rawGroup);
    add("--seasons", wishes_.seasons, "Twelve names with commas, or their file", "NAMES", rawGroup);
    add("--title", wishes_.title, "Title of the roses", "TEXT", rawGroup);
    several("--location", wishes_.locations, "Place in gridded data, or a file; again", "LAT,LON");
    several("--cell", wishes_.cells, "Cell of 3D.DAT, or a file; again for more", "I,J");
    app.add_flag("--frq", wishes_.keepsFrq, "Keep the FRQ files in DIR")->group(rawGroup);
    app.add_flag("--keep", wishes_.keeps, "Keep all files of the run in DIR")->group(rawGroup);
    app.add_flag("--dry-run", wishes_.onlyPlans, "Write the control file, run nothing")->group(rawGroup);
    add("--time", wishes_.table.time, "Column of the time, or of date,time", "NAME", tableGroup);
    add("--speed", wishes_.table.speed, "Column of the speed", "NAME", tableGroup);
    add("--direction", wishes_.table.direction, "Column of the direction", "NAME", tableGroup);
    add("--unit", unit_, "m/s, knots, km/h or mph", "UNIT", tableGroup)
        ->check(CLI::IsMember({"m/s", "knots", "km/h", "mph"}, CLI::ignore_case));
    add("--time-format", wishes_.table.timeForm, "dmy, mdy, ymd, epoch or %d.%m.%Y...", "FORM", tableGroup);
    add("--delimiter", delimiter_, "comma, semicolon, tab, blanks or one", "WORD", tableGroup);
    add("--missing", wishes_.table.missing, "What else stands for a missing value", "TEXT", tableGroup);
    add("--stamp", stamp_, "A time is begin or end of its record", "begin|end", tableGroup)
        ->check(CLI::IsMember({"begin", "end"}));
}

const RawWishes& RawOptions::wishes() {
    TableWishes& table = wishes_.table;
    if (!unit_.empty()) table.unit = unitOfWord(unit_);
    if (!delimiter_.empty()) {
        table.delimiter = delimiterOfWord(delimiter_);
        if (!table.delimiter)
            throw RawFault("--delimiter: \"" + delimiter_ +
                               "\" is neither comma, semicolon, tab, blanks nor one character",
                           true);
    }
    TimeForm form = TimeForm::YearFirst;
    std::string pattern;
    if (!table.timeForm.empty() && !setTimeForm(table.timeForm, form, pattern))
        throw RawFault(
            "--time-format: \"" + table.timeForm + "\" is no form of times such as dmy or %d.%m.%Y %H:%M",
            true);
    table.stampsEnd = stamp_ == "end";
    wishes_.isTable = !table.time.empty() || !table.speed.empty() || !table.direction.empty() ||
                      !table.timeForm.empty() || table.delimiter || table.unit || !table.missing.empty() ||
                      table.stampsEnd;
    needPlainWishes(wishes_);
    return wishes_;
}

}  // namespace zg
