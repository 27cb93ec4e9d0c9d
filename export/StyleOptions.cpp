#include "export/StyleOptions.h"

#include <map>
#include <string>

namespace zg {

namespace {

constexpr const char* lookGroup = "Look";
constexpr const char* pageGroup = "Pages";

const std::map<std::string, SpeedUnit>& units() {
    static const std::map<std::string, SpeedUnit> all = {{"m/s", SpeedUnit::MetresPerSecond},
                                                         {"knots", SpeedUnit::Knots},
                                                         {"km/h", SpeedUnit::KilometresPerHour},
                                                         {"mph", SpeedUnit::MilesPerHour}};
    return all;
}

void addLook(CLI::App& app, StyleRequest& request) {
    app.add_option("--palette", request.palette, "factory, viridis, cividis, okabe-ito, greys, or a file")
        ->type_name("NAME|FILE")
        ->group(lookGroup);
    app.add_flag("--hatch", request.rose.hatch, "A pattern for each class, too")->group(lookGroup);
    app.add_option("--radius", request.radius, "Percent at the outer ring, or auto: what holds all bars")
        ->type_name("PERCENT|auto")
        ->group(lookGroup);
    app.add_flag("--same-scale", request.sameScale, "The same radius auto for all pictures")
        ->group(lookGroup);
    app.add_option("--rings", request.rings, "Number of rings")
        ->check(CLI::Range(1, mostRings))
        ->type_name("N")
        ->group(lookGroup);
    app.add_option("--sector-width", request.rose.sectorWidth, "Width of a bar, 1 to 22.5 degrees")
        ->check(CLI::Range(1.0, 22.5))
        ->type_name("DEGREES")
        ->group(lookGroup);
    app.add_flag("--numbers", request.rose.numbers, "Percent at the end of each bar")->group(lookGroup);
    app.add_flag("--calm-circle", request.rose.calmCircle, "Calms as a disc, where bars begin")
        ->group(lookGroup);
    app.add_option_function<std::string>(
           "--units", [&request](const std::string& word) { request.rose.unit = units().at(word); },
           "Unit of speeds in the legend")
        ->check(CLI::IsMember({"m/s", "knots", "km/h", "mph"}))
        ->group(lookGroup);
}

}  // namespace

void addStyleOptions(CLI::App& app, StyleRequest& request) {
    if (CLI::Option* size = app.get_option_no_throw("--size"))
        size->each([&request](const std::string&) { request.sizeIsAsked = true; });
    addLook(app, request);
    app.add_option("--panel", request.panel, "Many roses on a page: columns x rows, or auto")
        ->type_name("COLSxROWS")
        ->group(pageGroup);
    app.add_flag("--beside-table", request.besideTable, "The table of shares and hours beside each rose")
        ->group(pageGroup);
    app.add_option("--html", request.html, "One page for browsers with all roses and tables")
        ->type_name("FILE")
        ->group(pageGroup);
    app.add_option("--pdf", request.pdf, "The same on pages for print")->type_name("FILE")->group(pageGroup);
}

}  // namespace zg
