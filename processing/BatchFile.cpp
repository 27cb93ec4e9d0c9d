#include "processing/BatchFile.h"

#include "base/Console.h"
#include "base/Lines.h"
#include "base/RunTimeError.h"
#include "base/Text.h"

namespace zg {

namespace {

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

}  // namespace

void needBatchName(std::string_view name, char separator) {
    const std::string fault = faultOf(name, isWindows(separator));
    if (!fault.empty())
        throw RunTimeError(badNameError,
                           "Bad file name or number: \"" + spelledOut(name) + "\" has " + fault + " in it");
}

std::vector<std::string> batchLines(const RunBatch& run, char separator) {
    for (const std::string& name : {run.outputDirectory, run.base, run.programDirectory})
        needBatchName(name, separator);
    return {DriveOf(trim(run.outputDirectory)), "cd \"" + run.outputDirectory + "\"",
            "\"" + run.programDirectory + separator + "tempoline.exe\" " + run.base + "_tempoline.inp",
            "copy " + run.base + "_tempoline.lst finished.txt", "pause"};
}

std::string batchDirectory(const std::string& directory) {
    return batchText(directory) ? directory : plainerName(directory);
}

std::string batchBytes(const std::string& line) {
    if (const std::optional<std::string> bytes = batchText(line)) return *bytes;
    throw RunTimeError(badNameError,
                       "Bad file name or number: the command shell has no characters for \"" + line + "\"");
}

std::string viewerLine(const std::string& path, char separator) {
    needBatchName(path, separator);
    return "notepad \"" + path + "\"";
}

bool hasOnlyLines(const std::string& path, const std::vector<std::string>& lines) {
    LineReader reader(path);
    for (const std::string& line : lines)
        if (reader.atEnd() || reader.readLine() != line) return false;
    return reader.atEnd();
}

}  // namespace zg
