#include "formats/Kinds.h"

#include <algorithm>
#include <array>

#include "base/Text.h"

namespace zg {

namespace {

constexpr std::array<std::string_view, 2> hoursOrSeconds = {"2.0", "2.1"};
constexpr std::array<std::string_view, 1> gridVersions = {"2.1"};
constexpr std::array<std::string_view, 1> tsfVersions = {"1.3"};

constexpr std::array<Format, 9> table = {{
    {InputKind::Surf, "SURF", "SURF.DAT", hoursOrSeconds},
    {InputKind::Up, "UP", "UP.DAT", hoursOrSeconds},
    {InputKind::MonitorW, "MONITORW", "", {}},
    {InputKind::AermSfc, "AERMSFC", "", {}},
    {InputKind::AermPfl, "AERMPFL", "", {}},
    {InputKind::Tsf, "TSF", "TIMESERIES.TSF", tsfVersions},
    {InputKind::M3d, "M3D", "3D.DAT", gridVersions},
    {InputKind::Ventos, "VENTOS", "VENTOS.DAT", gridVersions},
    {InputKind::Csv, "CSV", "", {}},
}};

}  // namespace

bool Format::hasVersion(std::string_view version) const {
    return std::find(versions.begin(), versions.end(), version) != versions.end();
}

std::span<const Format> formats() { return table; }

const Format& formatOf(InputKind kind) {
    return *std::find_if(table.begin(), table.end(), [&](const Format& row) { return row.kind == kind; });
}

const char* mdataOf(InputKind kind) { return formatOf(kind).mdata; }

std::optional<InputKind> kindOfMdata(std::string_view word) {
    for (const Format& row : table)
        if (ucase(word) == row.mdata) return row.kind;
    return {};
}

bool isGridded(InputKind kind) { return kind == InputKind::M3d || kind == InputKind::Ventos; }

}  // namespace zg
