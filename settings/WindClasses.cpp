#include "settings/WindClasses.h"

#include "base/Numbers.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "settings/CfgFile.h"

namespace zg {

namespace {

ClassFault disorder(std::size_t row) {
    return {row, "The Wind Speed Class " + std::to_string(row + 1) +
                     " minimum range value must be less than that of Wind Speed Class " +
                     std::to_string(row + 2) + "."};
}

}  // namespace

ClassTexts loadWindClasses() {
    ReadCfgFile(settings.CfgFilePath);
    return settings.WindClassMin;
}

std::optional<ClassFault> findEmptyClass(const ClassTexts& texts) {
    for (std::size_t row = 0; row < texts.size(); ++row)
        if (texts[row].empty())
            return ClassFault{row, "Please enter a minimum value for the wind speed range."};
    return std::nullopt;
}

std::optional<ClassFault> findDisorderedClass(const ClassTexts& texts) {
    std::size_t converting = 0;
    try {
        float minimum = toSingle(texts[0]);
        while (++converting < texts.size()) {
            const float next = toSingle(texts[converting]);
            if (next < minimum) return disorder(converting - 1);
            minimum = next;
        }
        return std::nullopt;
    } catch (const RunTimeError& error) {
        return ClassFault{converting, error.description};
    }
}

void acceptWindClasses(const ClassTexts& texts) {
    for (std::size_t row = 0; row < texts.size(); ++row) settings.WindClassMin[row] = trim(texts[row]);
    WriteCfgFile(settings.CfgFilePath);
    buildWindClassString();
}

void buildWindClassString() {
    settings.WindClassString.clear();
    for (const std::string& minimum : settings.WindClassMin) {
        if (&minimum != &settings.WindClassMin.front()) settings.WindClassString += ",";
        settings.WindClassString += minimum;
    }
}

std::string windClassLabel(std::string_view text) { return trim(text) + " m/s"; }

std::int16_t KeyWindClass(std::int16_t keyAscii) {
    const bool digit = keyAscii >= '0' && keyAscii <= '9';
    const bool control = keyAscii >= 0 && keyAscii < 32 && keyAscii != 13;
    const bool passes = digit || control || keyAscii == '.' || keyAscii == '-' || keyAscii == 127;
    return passes ? keyAscii : std::int16_t{0};
}

}  // namespace zg
