#include "shell/settings/CfgFile.h"

#include <array>

#include "base/Lines.h"
#include "base/Numbers.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "graph/frq/ModPolarGraph.h"
#include "shell/settings/Settings.h"

namespace zg {

namespace {

constexpr std::array<const char*, 68> defaultLines = {
    "(UTC-05:00) Eastern Time (US & Canada)",
    // season and custom season of each month
    "Winter", "", "Winter", "", "Spring", "", "Spring", "", "Spring", "", "Summer", "",  //
    "Summer", "", "Summer", "", "Fall", "", "Fall", "", "Fall", "", "Winter", "",
    // lower bounds of the speed classes
    "0.5", "1.8", "3.3", "5.4", "8.5", "10.8",
    // zoom and radius
    "100", "3", "25%",
    // LabelFont, first copy
    "0", "Arial", "8", "False", "False",
    // unit of the legend
    "False", "False",
    // colours of the speed classes
    "255", "65280", "1.671168E+07", "65535", "1.677696E+07", "0",
    // LabelFont, second copy; DirectionFont; PercentFont; LegendFont
    "0", "Arial", "8", "False", "False",  //
    "0", "Arial", "8", "True", "False",   //
    "0", "Arial", "7", "False", "False",  //
    "0", "Arial", "7", "False", "False",
    // GridLineColor
    "1.473763E+07"};

class ValueReader {
 public:
    explicit ValueReader(const std::string& path) : lines_(path) {}

    void operator()(std::string& value) { value = trim(lines_.readLine()); }
    void operator()(float& value) { value = toSingle(lines_.readLine()); }
    void operator()(std::int16_t& value) { value = toInt16(lines_.readLine()); }
    void operator()(bool& value) { value = toBool(lines_.readLine()); }
    void timeZone(std::string& value) { (*this)(value); }

 private:
    LineReader lines_;
};

class ValueWriter {
 public:
    explicit ValueWriter(const std::string& path) : lines_(path) {}

    void operator()(const std::string& value) { lines_.writeLine(value); }
    void operator()(const float& value) { lines_.writeLine(singleText(value)); }
    void operator()(const std::int16_t& value) { lines_.writeLine(std::to_string(value)); }
    void operator()(const bool& value) { lines_.writeLine(boolText(value)); }
    void timeZone(const std::string& value) { lines_.writeLine(trimmed(value)); }
    void close() { lines_.close(); }

 private:
    LineWriter lines_;
};

template <typename Visitor>
void visitFont(Visitor& visit, FontRecord& font) {
    visit(font.colour);
    visit(font.name);
    visit(font.size);
    visit(font.bold);
    visit(font.italic);
}

/// The one order of the lines, for reading and writing.
template <typename Visitor>
void visitLines(Visitor& visit) {
    visit.timeZone(settings.DefaultTimeZone);
    for (std::size_t month = 0; month < 12; ++month) {
        visit(settings.SeasonOfMonth[month]);
        visit(settings.CustomSeasonOfMonth[month]);
    }
    for (std::string& minimum : settings.WindClassMin) visit(minimum);
    visit(settings.ZoomPercentText);
    visit(settings.ZoomListIndex);
    visit(settings.RadiusText);
    visitFont(visit, modPolarGraph.LabelFont);
    visit(modPolarGraph.ClassesFromFile);
    visit(modPolarGraph.ClassesInKnots);
    for (float& colour : modPolarGraph.WindClassColor) visit(colour);
    // The format holds this font twice, and the second copy counts.
    visitFont(visit, modPolarGraph.LabelFont);
    visitFont(visit, modPolarGraph.DirectionFont);
    visitFont(visit, modPolarGraph.PercentFont);
    visitFont(visit, modPolarGraph.LegendFont);
    visit(modPolarGraph.GridLineColor);
}

}  // namespace

void ReadCfgFile(const std::string& path) {
    try {
        ValueReader reader(path);
        visitLines(reader);
    } catch (const RunTimeError&) {
        WriteDefaultCfgFile();
    }
}

void WriteCfgFile(const std::string& path) {
    try {
        ValueWriter writer(path);
        visitLines(writer);
        writer.close();
    } catch (const RunTimeError&) {
        WriteDefaultCfgFile();
    }
}

void WriteDefaultCfgFile() {
    try {
        LineWriter lines(settings.CfgFilePath);
        for (const char* line : defaultLines) lines.writeLine(line);
        lines.close();
    } catch (const RunTimeError&) {
        // The program runs on with what it has; the next start tries again.
    }
}

}  // namespace zg
