#include "tempoline/TabFile.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "base/Text.h"
#include "tempoline/Failure.h"
#include "tempoline/Fields.h"
#include "tempoline/Texts.h"

namespace zg::tempoline {

namespace {

constexpr std::string_view kindLine = "WIND.TAB        1.0             Zephyrgraph counts of winds";
constexpr std::size_t labelWidth = 5;
constexpr std::size_t countWidth = 12;
constexpr std::int64_t mostStepsCounted = std::int64_t{1} << 53;

std::string limitsText(const RoseRules& rules) {
    std::string text;
    for (const std::string& limit : rules.limitTexts) text += (text.empty() ? "" : ",") + limit;
    return text;
}

std::string monthsText(const RoseRules& rules) {
    std::string text;
    for (const int season : rules.seasonOfMonth)
        text.append(text.empty() ? "" : ",").append(std::to_string(season));
    return text;
}

void appendCounts(std::string& text, const RoseCounts& rose) {
    text += lineEnd;
    text += "Rose: " + rose.key + lineEnd + "Name: " + oneLine(rose.title) + lineEnd;
    text += "Total: " + std::to_string(rose.total) + lineEnd + "Valid: " + std::to_string(rose.valid) +
            lineEnd + "Calm: " + std::to_string(rose.calm) + lineEnd;
    text += padded(std::string("from"), labelWidth);
    for (int speedClass = 1; speedClass <= 6; ++speedClass)
        text += padded("class " + std::to_string(speedClass), countWidth);
    text += padded(std::string("all"), countWidth) + lineEnd;
    for (std::size_t sector = 0; sector < sectorCount; ++sector) {
        text += padded(std::string(sectorLabels[sector]), labelWidth);
        std::int64_t sum = 0;
        for (const std::int64_t count : rose.cells[sector]) {
            text += padded(count, countWidth);
            sum += count;
        }
        text += padded(sum, countWidth) + lineEnd;
    }
}

class TabReader {
 public:
    TabReader(std::string_view text, const std::string& file) : rest_(text), file_(file) {}

    RoseReport read() {
        if (line() != kindLine) throw failure("the first line is not that of a TAB file of version 1.0");
        RoseReport report;
        report.title1 = value("Title");
        report.title2 = value("Data");
        report.height = value("Height");
        report.zone = value("Zone");
        if (!zoneOffset(report.zone)) throw failure("Zone: this is no zone such as UTC-0500");
        report.step = number(value("Step"), "Step", 1, secondsADay);
        const std::array<Seconds, 2> period = periodOf(value("Period"));
        report.begin = period[0];
        report.end = period[1];
        readRules(report.rules);
        report.hasRecords = number(value("Records"), "Records", 0, 1) == 1;
        const std::int64_t runs = number(value("Runs"), "Runs", 1, 100'000'000);
        for (std::int64_t i = 0; i < runs; ++i) report.runs.push_back(readRun());
        const std::int64_t roses = number(value("Roses"), "Roses", 1, 2000);
        for (std::int64_t i = 0; i < roses; ++i) report.roses.push_back(readRose());
        if (!stripped(rest_).empty()) throw failure("text follows the last rose");
        return report;
    }

 private:
    Failure failure(const std::string& text) const {
        return {ExitStatus::Failed, file_ + ":" + std::to_string(line_) + ": " + text};
    }

    std::string_view line() {
        ++line_;
        if (rest_.empty()) throw failure("the file ends too early");
        const std::size_t end = rest_.find('\n');
        if (end == std::string_view::npos) throw failure("the file ends within a line");
        std::string_view result = rest_.substr(0, end);
        rest_.remove_prefix(end + 1);
        if (!result.empty() && result.back() == '\r') result.remove_suffix(1);
        return result;
    }

    std::string value(std::string_view name) {
        const std::string_view text = line();
        if (text.size() <= name.size() || text.substr(0, name.size()) != name || text[name.size()] != ':')
            throw failure("a line \"" + std::string(name) + ": ...\" is needed");
        return std::string(stripped(text.substr(name.size() + 1)));
    }

    std::int64_t number(std::string_view text, const std::string& name, std::int64_t lowest,
                        std::int64_t highest) const {
        std::int64_t result = 0;
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), result);
        if (error != std::errc() || end != text.data() + text.size() || result < lowest || result > highest)
            throw failure(name + ": a whole number from " + std::to_string(lowest) + " to " +
                          std::to_string(highest) + " is needed");
        return result;
    }

    Seconds momentAt(const std::array<std::string_view, 10>& fields, std::size_t at) const {
        const auto part = [&](std::size_t i, int highest) {
            return static_cast<int>(number(fields[at + i], "Period", 0, highest));
        };
        const int year = part(0, 9999);
        const int month = part(1, 12);
        const int day = part(2, 31);
        const std::string fault = faultOfDate(year, month, day);
        if (!fault.empty()) throw failure("Period: " + fault);
        return momentOf(year, month, day, part(3, 24), part(4, 3600));
    }

    std::array<Seconds, 2> periodOf(std::string_view text) const {
        std::array<std::string_view, 10> fields;
        if (splitBlanks(text, fields) != fields.size()) throw failure("Period: 10 numbers are needed");
        const std::array<Seconds, 2> period = {momentAt(fields, 0), momentAt(fields, 5)};
        if (period[1] <= period[0]) throw failure("Period: it ends before it begins");
        return period;
    }

    void readRules(RoseRules& rules) {
        const std::string limits = value("Limits");
        std::array<std::string_view, classCount + 1> fields;
        if (splitCommas(limits, fields) != classCount) throw failure("Limits: 6 speeds are needed");
        for (std::size_t i = 0; i < classCount; ++i) {
            const double limit = valueOf(fields[i]).value_or(missingValue);
            if (!hasValue(limit) || (i > 0 && limit < rules.classLimits[i - 1]))
                throw failure("Limits: six speeds that do not fall are needed");
            rules.classLimits[i] = limit;
            rules.limitTexts[i] = stripped(fields[i]);
        }
        const std::string months = value("Months");
        std::array<std::string_view, 13> seasons;
        if (splitCommas(months, seasons) != 12) throw failure("Months: 12 seasons are needed");
        for (std::size_t i = 0; i < 12; ++i)
            rules.seasonOfMonth[i] = static_cast<int>(number(seasons[i], "Months", 0, 2'000'000'000));
    }

    /// Fields: y m d h s y m d h s what
    CountedRun readRun() {
        const std::string text = value("Run");
        std::array<std::string_view, 11> fields;
        if (splitBlanks(text, fields) < 10) throw failure("Run: 10 numbers are needed");
        const std::size_t behind =
            static_cast<std::size_t>(fields[9].data() + fields[9].size() - text.data());
        const std::array<Seconds, 2> period = periodOf(std::string_view(text).substr(0, behind));
        return {period[0], period[1], std::string(stripped(std::string_view(text).substr(behind)))};
    }

    RoseCounts readRose() {
        RoseCounts rose;
        line();
        rose.key = value("Rose");
        rose.title = value("Name");
        rose.total = number(value("Total"), "Total", 0, mostStepsCounted);
        rose.valid = number(value("Valid"), "Valid", 0, rose.total);
        rose.calm = number(value("Calm"), "Calm", 0, rose.valid);
        line();
        std::int64_t counted = rose.calm;
        for (std::size_t sector = 0; sector < sectorCount; ++sector) counted += readRow(rose, sector);
        if (counted != rose.valid) throw failure("the cells and the calms of the rose do not sum to Valid");
        return rose;
    }

    std::int64_t readRow(RoseCounts& rose, std::size_t sector) {
        std::array<std::string_view, classCount + 3> fields;
        const std::size_t count = splitBlanks(line(), fields);
        if (count != classCount + 2 || fields[0] != sectorLabels[sector])
            throw failure("a row of " + std::string(sectorLabels[sector]) + " with 7 counts is needed");
        std::int64_t sum = 0;
        for (std::size_t i = 0; i < classCount; ++i)
            sum += rose.cells[sector][i] = number(fields[i + 1], "count", 0, mostStepsCounted);
        if (sum != number(fields[classCount + 1], "all", 0, mostStepsCounted))
            throw failure("the counts of the row do not sum to its last");
        return sum;
    }

    std::string_view rest_;
    const std::string& file_;
    std::size_t line_ = 0;
};

}  // namespace

std::string tabText(const RoseReport& report) {
    std::string text(kindLine);
    const auto entry = [&text](const char* name, const std::string& value) {
        text.append(lineEnd).append(name).append(": ").append(value);
    };
    entry("Title", oneLine(report.title1));
    entry("Data", oneLine(report.title2));
    entry("Height", report.height);
    entry("Zone", report.zone);
    entry("Step", std::to_string(report.step));
    entry("Period", periodText(report.begin) + " " + periodText(report.end));
    entry("Limits", limitsText(report.rules));
    entry("Months", monthsText(report.rules));
    entry("Records", report.hasRecords ? "1" : "0");
    entry("Runs", std::to_string(report.runs.size()));
    for (const CountedRun& run : report.runs)
        entry("Run", periodText(run.begin) + " " + periodText(run.end) + " " + oneLine(run.what));
    entry("Roses", std::to_string(report.roses.size()));
    text += lineEnd;
    for (const RoseCounts& rose : report.roses) appendCounts(text, rose);
    return text;
}

RoseReport readTab(std::string_view text, const std::string& file) { return TabReader(text, file).read(); }

}  // namespace zg::tempoline
