#include "processing/BatchFile.h"

#include <array>

#include "base/Console.h"
#include "base/RunTimeError.h"
#include "base/Text.h"

namespace zg {

namespace {

constexpr int badNameError = 52;
constexpr std::string_view controlEnding = "_tempoline.inp";
constexpr std::string_view viewerStart = "notepad \"";
constexpr std::string_view cdStart = "cd \"";

bool isControl(char character) { return static_cast<unsigned char>(character) < 32 || character == 127; }

/// Invisible characters are spelt out: "<LF>", "<1A>".
std::string spelledOut(std::string_view name) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string text;
    for (const char character : name) {
        const auto code = static_cast<unsigned char>(character);
        if (character == '\n')
            text += "<LF>";
        else if (character == '\r')
            text += "<CR>";
        else if (isControl(character))
            text += {'<', digits[code / 16U], digits[code % 16U], '>'};
        else
            text += character;
    }
    return text;
}

/// The part of the name that the lines cannot contain; "" for a valid name.
std::string faultOf(std::string_view name, bool windows) {
    for (const char character : name) {
        if (character == '\n' || character == '\r') return "a line end";
        if (character == '\0' || (windows && isControl(character))) return "a control character";
        if (windows && std::string_view("%&^!\"|<>").find(character) != std::string_view::npos)
            return std::string("a ") + character;
    }
    return {};
}

bool isWindows(char separator) { return separator == '\\'; }

std::string programStart(char separator) { return separator + std::string("tempoline.exe\" "); }

std::vector<std::string> lineTexts(const RunBatch& run, char separator) {
    return {DriveOf(trim(run.outputDirectory)), std::string(cdStart) + run.outputDirectory + "\"",
            "\"" + run.programDirectory + programStart(separator) + run.base + std::string(controlEnding),
            "copy " + run.base + "_tempoline.lst finished.txt", "pause"};
}

}  // namespace

void needBatchName(std::string_view name, char separator) {
    const std::string fault = faultOf(name, isWindows(separator));
    if (!fault.empty())
        throw RunTimeError(badNameError,
                           "Bad file name or number: \"" + spelledOut(name) + "\" has " + fault + " in it");
}

std::vector<std::string> batchLines(const std::string& outputDirectory, const std::string& base,
                                    const std::string& programDirectory, char separator) {
    for (const std::string& name : {outputDirectory, base, programDirectory}) needBatchName(name, separator);
    return lineTexts({outputDirectory, base, programDirectory}, separator);
}

std::string batchDirectory(const std::string& directory) {
    return batchText(directory) ? directory : plainerName(directory);
}

std::string batchBytes(const std::string& line) {
    if (const std::optional<std::string> bytes = batchText(line)) return *bytes;
    throw RunTimeError(badNameError,
                       "Bad file name or number: the command shell has no characters for \"" + line + "\"");
}

std::optional<RunBatch> readRunBatch(const std::vector<std::string>& lines, char separator) {
    if (lines.size() != 5) return std::nullopt;
    const std::string_view cd = lines[1];
    const std::string_view start = lines[2];
    const std::string between = programStart(separator);
    const std::size_t at = start.find(between);
    if (!cd.starts_with(cdStart) || !cd.ends_with("\"") || cd.size() <= cdStart.size() ||
        !start.starts_with("\"") || at == std::string_view::npos || !start.ends_with(controlEnding) ||
        start.size() < at + between.size() + controlEnding.size())
        return std::nullopt;
    RunBatch run;
    run.outputDirectory = cd.substr(cdStart.size(), cd.size() - cdStart.size() - 1);
    run.programDirectory = start.substr(1, at - 1);
    const std::size_t base = at + between.size();
    run.base = start.substr(base, start.size() - base - controlEnding.size());
    for (const std::string& name : {run.outputDirectory, run.base, run.programDirectory})
        if (!faultOf(name, isWindows(separator)).empty()) return std::nullopt;
    if (lineTexts(run, separator) != lines) return std::nullopt;
    return run;
}

std::string viewerLine(const std::string& path, char separator) {
    needBatchName(path, separator);
    return std::string(viewerStart) + path + "\"";
}

std::string viewedFile(std::string_view line, char separator) {
    if (!line.starts_with(viewerStart) || !line.ends_with("\"") || line.size() <= viewerStart.size() + 1)
        return {};
    const std::string_view path = line.substr(viewerStart.size(), line.size() - viewerStart.size() - 1);
    return faultOf(path, isWindows(separator)).empty() ? std::string(path) : std::string();
}

}  // namespace zg
