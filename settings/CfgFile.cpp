#include "settings/CfgFile.h"

#include <array>

#include "base/Lines.h"
#include "base/Numbers.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "graph/frq/ModPolarGraph.h"
#include "settings/Settings.h"
#include "settings/WholeText.h"

namespace zg {

namespace {

constexpr const char* lineEnd = "\r\n";

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
    explicit ValueReader(LineReader lines) : lines_(std::move(lines)) {}

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
    void operator()(const std::string& value) { text_ += value + lineEnd; }
    void operator()(const float& value) { (*this)(singleText(value)); }
    void operator()(const std::int16_t& value) { (*this)(std::to_string(value)); }
    void operator()(const bool& value) { (*this)(std::string(boolText(value))); }
    void timeZone(const std::string& value) { (*this)(trim(value)); }
    std::string text() && { return std::move(text_); }

 private:
    std::string text_;
};

template <typename Visitor>
void visitFont(Visitor& visit, FontRecord& font) {
    visit(font.colour);
    visit(font.name);
    visit(font.size);
    visit(font.bold);
    visit(font.italic);
}

std::string factoryText() {
    std::string text;
    for (const char* line : defaultLines) text += line + std::string(lineEnd);
    return text;
}

/// Writes the text to the file or, if that fails, keeps it in memory; returns whether it was written.
bool keep(const std::string& text) {
    const bool written = replaceFile(settings.CfgFilePath, text);
    settings.CfgInMemory = written ? std::string() : text;
    return written;
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
    // The format contains this font twice, and the second copy counts.
    visitFont(visit, modPolarGraph.LabelFont);
    visitFont(visit, modPolarGraph.DirectionFont);
    visitFont(visit, modPolarGraph.PercentFont);
    visitFont(visit, modPolarGraph.LegendFont);
    visit(modPolarGraph.GridLineColor);
}

}  // namespace

void ReadCfgFile(const std::string& path) {
    const std::string inMemory = path == settings.CfgFilePath ? settings.CfgInMemory : std::string();
    try {
        ValueReader reader(inMemory.empty() ? LineReader(path) : LineReader::ofText(inMemory));
        visitLines(reader);
    } catch (const RunTimeError&) {
        WriteDefaultCfgFile();
    }
}

void WriteCfgFile(const std::string& path) {
    ValueWriter writer;
    visitLines(writer);
    const std::string text = std::move(writer).text();
    if (path != settings.CfgFilePath) {
        if (!replaceFile(path, text)) WriteDefaultCfgFile();
    } else if (!keep(text) && replaceFile(path, factoryText())) {
        settings.CfgInMemory.clear();
    }
}

void WriteDefaultCfgFile() { keep(factoryText()); }

}  // namespace zg
