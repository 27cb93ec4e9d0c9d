#include "tempoline/Listing.h"

#include <optional>

#include "base/Files.h"
#include "tempoline/Advice.h"
#include "tempoline/MapText.h"
#include "tempoline/OutputFile.h"
#include "tempoline/Texts.h"

namespace zg::tempoline {

namespace {

std::string entry(const std::string& name, std::int64_t value) { return entryLine(name, padded(value, 12)); }

std::string recordText(const RecordMark& record) {
    return isoText(record.begin) + " to " + isoText(record.end) + ", " + record.path + ":" +
           std::to_string(record.line);
}

/// The size of a pipe means nothing.
std::string sizeText(const std::string& path) {
    const std::optional<FileState> state = stateOfFile(path);
    if (!state || state->kind != FileKind::Plain) return {};
    return ", " + std::to_string(state->size) + " bytes";
}

std::string outputText(const OutputRequest& output) {
    std::string text = output.name;
    if (!output.station.empty()) text += ", station " + output.station;
    if (output.height < 0) return text;  // of a series: nothing else applies
    if (!output.location.empty()) text += ", \"" + output.location + "\"";
    return text + ", X " + shortText(output.x) + ", Y " + shortText(output.y) + ", " +
           metresText(output.height) + " m";
}

}  // namespace

void Listing::line(const std::string& text) {
    text_ += text + "\r\n";
    if (text.rfind("WARNING: ", 0) == 0 || text.rfind("NOTE: ", 0) == 0) remarks_.push_back(text);
}

void Listing::describe(const Control& control) {
    describeControlFile(control);
    line("");
    line("So the run is");
    line(entryLine("Title", control.title));
    describeInput(control);
    line(entryLine("Period begins", isoText(control.begin) + " " + control.zone));
    line(entryLine("Period ends", isoText(control.end) + " " + control.zone));
    line(entryLine("Seconds a step", std::to_string(control.step)));
    line(entryLine("Steps of the period", std::to_string((control.end - control.begin) / control.step)));
    describeRules(control.rules);
    if (isGridded(control.kind)) describeMap(control);
    for (const OutputRequest& output : control.outputs)
        line(entryLine("Output " + std::to_string(output.id), outputText(output)));
    for (const std::string& warning : control.warnings) line("WARNING: " + warning);
}

/// In a form that can be copied into another control file.
void Listing::describeControlFile(const Control& control) {
    line("");
    line("The control file says");
    for (const std::string& assignment : control.assignments) line("  ! " + assignment + " !");
    line("");
    line("It does not say, so that these are assumed");
    for (const std::string& assignment : control.assumed) line("  ! " + assignment + " !");
}

void Listing::describeInput(const Control& control) {
    line(entryLine("Input type", mdataOf(control.kind)));
    for (const std::string& input : control.inputs) line(entryLine("Input file", input + sizeText(input)));
    line(entryLine("Roses", control.wantsRoses ? "FRQ and TAB" : "none"));
    line(entryLine("Series", control.wantsSeries ? "TSF" : "none"));
}

void Listing::describeRules(const RoseRules& rules) {
    std::string limits;
    for (const std::string& limit : rules.limitTexts) limits += (limits.empty() ? "" : ", ") + limit;
    line(entryLine("Class limits (m/s)", limits));
    for (const Season& season : rules.seasons) {
        std::string months;
        for (std::size_t month = 0; month < 12; ++month) {
            if (rules.seasonOfMonth[month] == season.id) months.append(" ").append(std::to_string(month + 1));
        }
        line(entryLine("Season " + std::to_string(season.id),
                       season.name + ", months" + (months.empty() ? " none" : months)));
    }
    for (const HourRange& range : rules.hourRanges) line(entryLine("Hours", hourRangeText(range)));
}

void Listing::describeMap(const Control& control) {
    line(entryLine("Between cells", control.method == SpatialMethod::Bilinear
                                        ? "bilinear, in the components (METSIM = 1)"
                                        : "the nearest cell (METSIM = 2)"));
    line(entryLine("X and Y given in",
                   control.cellCoordinates ? "cells of the data (MCELL = 1)" : mapText(control.map)));
    if (control.kind == InputKind::M3d)
        line(entryLine("Below the first level",
                       control.profileMethod == directProfile
                           ? "the wind of 10 m (MPROF = 4)"
                           : "the neutral logarithmic profile over a roughness of 0.1 m (MPROF = " +
                                 std::to_string(control.profileMethod) + ")"));
}

void Listing::describeRecords(const OutputRequest& output, const RecordCounts& records,
                              const std::vector<std::string>& notes) {
    line("");
    line("Output " + std::to_string(output.id) + ": " + output.name);
    lines(notes);
    line(entry("Records read", records.read));
    line(entry("Records used", records.used));
    line(entry("  of them calm", records.calm));
    line(entry("Records missing", records.missing));
    line(entry("  no level there", records.noLevel));
    line(entry("  no speed", records.noSpeed));
    line(entry("  speed out of range", records.wrongSpeed));
    line(entry("  no direction", records.noDirection));
    line(entry("  direction wrong", records.wrongDirection));
    line(entry("Records outside", records.outside));
    line(entry("  before the period", records.early));
    line(entry("  after the period", records.outside - records.early));
    line(entry("Records repeated", records.duplicate));
    if (records.used > 0) {
        line(entryLine("First record used", recordText(records.firstUsed)));
        line(entryLine("Last record used", recordText(records.lastUsed)));
    }
    if (records.duplicate > 0)
        line(
            "WARNING: records of the same time are counted once, the first of them; the first repetition "
            "is " +
            records.firstDuplicate);
}

void Listing::describeSteps(const StepCounts& steps) {
    line(entry("Steps", steps.total));
    line(entry("Steps valid", steps.valid));
    line(entry("Steps missing", steps.total - steps.valid));
    line(entry("  without a record", steps.noRecord));
    line(entry("  without a wind", steps.noWind));
    line(entry("  covered less than half", steps.tooShort));
    line(entry("  no mean direction", steps.noDirection));
}

void Listing::describeOutput(const OutputRequest& output, const Series& series, const Control& control,
                             const std::vector<std::string>& notes) {
    describeRecords(output, series.records(), notes);
    describeSteps(series.steps());
    for (const std::string& advice : adviceOn(series.records(), control))
        line("WARNING: " + output.name + ": " + advice);
    if (!series.hasRecords()) line("WARNING: ALL DATA ARE MISSING: no record lies in the period");
    line("  Rose                           Total       Valid        Calm     Missing");
    for (const RoseCounts& rose : series.table().roses()) {
        std::string name = rose.title.substr(0, 24);
        name.resize(24, ' ');
        line("  " + name + padded(rose.total, 12) + padded(rose.valid, 12) + padded(rose.calm, 12) +
             padded(rose.total - rose.valid, 12));
    }
}

void Listing::write(const std::string& lastLine) {
    if (name_.empty()) return;
    OutputFile file(name_);
    file.write(text_);
    file.write(lastLine + "\r\n");
    file.commit();
}

}  // namespace zg::tempoline
