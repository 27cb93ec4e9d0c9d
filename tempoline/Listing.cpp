#include "tempoline/Listing.h"

#include "tempoline/OutputFile.h"
#include "tempoline/Texts.h"

namespace zg::tempoline {

namespace {

std::string entry(const std::string& name, const std::string& value) {
    return "  " + name + std::string(name.size() < 24 ? 24 - name.size() : 1, ' ') + value;
}

std::string entry(const std::string& name, std::int64_t value) { return entry(name, padded(value, 12)); }

}  // namespace

void Listing::describe(const Control& control) {
    line(entry("Title", control.title));
    line(entry("Input type", keywordOf(control.kind)));
    for (const std::string& input : control.inputs) line(entry("Input file", input));
    line(entry("Period begins", isoText(control.begin) + " " + control.zone));
    line(entry("Period ends", isoText(control.end) + " " + control.zone));
    line(entry("Seconds a step", std::to_string(control.step)));
    std::string limits;
    for (const std::string& limit : control.rules.limitTexts) limits += (limits.empty() ? "" : ", ") + limit;
    line(entry("Class limits (m/s)", limits));
    for (const Season& season : control.rules.seasons) {
        std::string months;
        for (std::size_t month = 0; month < 12; ++month) {
            if (control.rules.seasonOfMonth[month] == season.id) months += " " + std::to_string(month + 1);
        }
        line(entry("Season " + std::to_string(season.id),
                   season.name + ", months" + (months.empty() ? " none" : months)));
    }
    for (const HourRange& range : control.rules.hourRanges) line(entry("Hours", hourRangeText(range)));
    for (const OutputRequest& output : control.outputs) {
        std::string text = output.name;
        if (!output.station.empty()) text += ", station " + output.station;
        if (output.height >= 0) text += ", " + metresText(output.height) + " m";
        line(entry("Output " + std::to_string(output.id), text));
    }
    for (const std::string& warning : control.warnings) line("WARNING: " + warning);
}

void Listing::describeRecords(const OutputRequest& output, const RecordCounts& records) {
    line("");
    line("Output " + std::to_string(output.id) + ": " + output.name);
    line(entry("Records read", records.read));
    line(entry("Records used", records.used));
    line(entry("  of them calm", records.calm));
    line(entry("Records missing", records.missing));
    line(entry("Records outside", records.outside));
    line(entry("Records repeated", records.duplicate));
    if (records.duplicate > 0)
        line(
            "WARNING: records of the same time are counted once, the first of them; the first repetition "
            "is " +
            records.firstDuplicate);
}

void Listing::describeOutput(const OutputRequest& output, const Series& series) {
    describeRecords(output, series.records());
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
