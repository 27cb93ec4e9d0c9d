#pragma once

// Any bytes as a data file: gives winds or a Failure, and nothing else.

#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <string>

#include "tempoline/Control.h"
#include "tempoline/Failure.h"
#include "tempoline/readers/Reader.h"

namespace zg::tempoline {

/// The first days of 2004, with two outputs if the format allows several.
inline Control fuzzControl(InputKind kind) {
    Control control;
    control.kind = kind;
    control.begin = momentOf(2004, 1, 1, 0, 0);
    control.end = momentOf(2004, 1, 3, 0, 0);
    control.zone = "UTC-0500";
    control.zoneOffset = -5 * secondsAnHour;
    control.rules.classLimits = {0.5, 1.8, 3.3, 5.4, 8.5, 10.8};
    control.rules.limitTexts = {"0.5", "1.8", "3.3", "5.4", "8.5", "10.8"};
    control.rules.seasonOfMonth = {1, 1, 2, 2, 2, 3, 3, 3, 4, 4, 4, 1};
    control.rules.seasons = {{1, "Winter"}};
    control.rules.hourRanges = {{19, 0}};
    control.cellCoordinates = kind == InputKind::M3d;
    control.map.projection = "LL";
    OutputRequest output;
    output.id = 1;
    output.name = "out";
    output.station = "1001";
    output.x = kind == InputKind::M3d ? 3.25 : -75;
    output.y = kind == InputKind::M3d ? 2.5 : 40;
    output.height = 10;
    control.outputs = {output};
    if (kind == InputKind::Up || kind == InputKind::AermPfl || kind == InputKind::M3d ||
        kind == InputKind::Ventos) {
        output.height = 60;
        control.outputs.push_back(output);
    }
    return control;
}

inline void readAnyBytes(InputKind kind, const std::uint8_t* data, std::size_t size) {
    static const int file = memfd_create("input", 0);
    static const std::string path = "/proc/self/fd/" + std::to_string(file);
    if (ftruncate(file, 0) != 0 || pwrite(file, data, size, 0) != static_cast<ssize_t>(size)) std::abort();
    const Control control = fuzzControl(kind);
    std::vector<Series> series;
    for (std::size_t i = 0; i < control.outputs.size(); ++i) series.emplace_back(control);
    try {
        makeReader(control)->read(path, series);
    } catch (const Failure&) {
        return;  // an expected outcome
    }
    for (Series& one : series) {
        one.finish();
        const RecordCounts& records = one.records();
        if (records.read != records.used + records.missing + records.outside + records.duplicate)
            std::abort();
        for (const RoseCounts& rose : one.table().roses()) {
            std::int64_t counted = rose.calm;
            for (const auto& sector : rose.cells) {
                for (const std::int64_t count : sector) counted += count;
            }
            if (counted != rose.valid || rose.valid > rose.total) std::abort();
        }
    }
}

}  // namespace zg::tempoline
