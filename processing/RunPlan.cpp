#include "processing/RunPlan.h"

#include <cerrno>

#include "base/Files.h"
#include "base/Lines.h"
#include "base/Numbers.h"
#include "base/RunTimeError.h"
#include "base/Text.h"

namespace zg {

namespace {

constexpr std::size_t extensionLength = 4;
constexpr const char* markerName = "finished.txt";

/// The lines of the batch file as the shell reads them.
std::vector<std::string> bytesOfBatch(const RunPlan& plan) {
    std::vector<std::string> lines = batchLines(
        {batchDirectory(plan.directory), plan.control.base, batchDirectory(plan.programDirectory)});
    for (std::string& line : lines) line = batchBytes(line);
    return lines;
}

}  // namespace

RunPlan planOf(std::string directory, ControlFile control) {
    RunPlan plan;
    plan.directory = std::move(directory);
    if (control.type == InputKind::Tsf)
        plan.outputs.push_back({control.roseName, {}});
    else
        for (const ControlOutput& output : control.outputs) plan.outputs.push_back({output.name, {}});
    if (!plan.outputs.empty()) plan.firstName = plan.outputs.front().name;
    plan.control = std::move(control);
    return plan;
}

std::string periodInName(const ControlFile& v) {
    return v.IBYR + format00(v.IBMO) + format00(v.IBDY) + "-" + v.IEYR + format00(v.IEMO) + format00(v.IEDY);
}

std::string fileBaseOf(const std::string& path) {
    const std::string name = FileNameOf(path);
    if (name.size() < extensionLength) raise(ErrorNumber::InvalidProcedureCall);
    return name.substr(0, name.size() - extensionLength);
}

std::string surfOutputName(const std::string& fileBase, const std::string& row,
                           const std::string& stationName, const std::string& period,
                           const std::string& height) {
    const std::string start = stationName.empty() ? fileBase + "-" + row : stationName;
    return start + "_SURF_" + period + "_" + height + "m";
}

void needBatchNames(const RunPlan& plan) {
    bytesOfBatch(plan);
    const auto refuse = [&plan](const char* why) {
        throw RunTimeError(badNameError, "Bad file name or number: \"" + plan.control.base + "\" " + why);
    };
    // A station's name may lead to another directory, or be of any length.
    if (!isPlainName(plan.controlName())) refuse("is no plain file name");
    if (isTooLongName(plan.controlName())) refuse("is too long for a file");
}

void writeControlFile(const RunPlan& plan) { WriteControlFile(plan.directory, plan.control); }

void writeBatchFile(const RunPlan& plan) {
    LineWriter file(plan.batch().path());
    for (const std::string& line : bytesOfBatch(plan)) file.writeLine(line);
    file.close();
}

void removeMarker(const RunPlan& plan) {
    for (std::string marker; !(marker = existingFile(plan.directory + markerName)).empty();)
        if (!removeFile(marker)) raiseFileError(errno);
}

bool hasMarker(const RunPlan& plan) { return fileExists(plan.directory + markerName); }

std::string resultOf(const RunPlan& plan, const RunOutput& output) {
    // Blanks around a value of the control file are no part of it.
    return existingFile(plan.directory + trim(output.name) + ".frq");
}

}  // namespace zg
