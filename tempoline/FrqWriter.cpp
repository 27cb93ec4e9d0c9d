#include "tempoline/FrqWriter.h"

#include "base/Text.h"
#include "tempoline/Texts.h"

namespace zg::tempoline {

namespace {

std::string classLimits(const RoseRules& rules) {
    std::string text = rules.limitTexts[0];
    for (const std::string& limit : rules.limitTexts) text += "," + limit;
    return text;
}

std::string percentText(std::int64_t count, std::int64_t valid, int decimals) {
    if (valid == 0) return fixedText(0, decimals);
    return fixedText(100 * static_cast<double>(count) / static_cast<double>(valid), decimals);
}

void appendRose(std::string& text, const RoseCounts& rose) {
    text += lineEnd;
    text += oneLine(rose.title) + lineEnd;
    text.append("Direction: six wind speed classes").append(lineEnd);
    for (std::size_t sector = 0; sector < sectorCount; ++sector) {
        text += padded(std::string(sectorLabels[sector]), 3) + " :";
        for (const std::int64_t count : rose.cells[sector])
            text += padded(percentText(count, rose.valid, 4), 10) + "%";
        text += lineEnd;
    }
    text.append(70, '-').append(lineEnd);
    text += "Calm Winds: " + percentText(rose.calm, rose.valid, 2) + "%" + lineEnd;
    text += "Total Periods = " + std::to_string(rose.total) +
            "; Valid Periods = " + std::to_string(rose.valid) +
            "; Calm Wind Periods = " + std::to_string(rose.calm) + lineEnd;
}

}  // namespace

std::string oneLine(const std::string& text) {
    std::string line = text;
    for (char& c : line) {
        if (static_cast<unsigned char>(c) < ' ') c = ' ';
    }
    return trim(line);
}

std::string frqText(const RoseReport& report) {
    std::string text = "WIND.FRQ        2.3             Zephyrgraph FRQ File Format\r\n1 - Comment lines\r\n";
    text += "Frequencies of winds, " + std::to_string(report.step) + " seconds a step" + lineEnd;
    text.append("5 - Header lines").append(lineEnd);
    text += oneLine(report.title1) + lineEnd + oneLine(report.title2) + lineEnd;
    text += "Height: " + report.height + lineEnd;
    text += "Wind Speed Classes (m/s): " + classLimits(report.rules) + lineEnd;
    text += periodText(report.begin) + " " + periodText(report.end) + " " + report.zone + lineEnd;
    if (!report.hasRecords) return text;
    for (const RoseCounts& rose : report.roses) {
        if (rose.total > 0) appendRose(text, rose);
    }
    return text;
}

}  // namespace zg::tempoline
