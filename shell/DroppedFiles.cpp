#include "shell/DroppedFiles.h"

#include <algorithm>

#include "base/Lines.h"
#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "windtable/TableGuess.h"

namespace zg {

namespace {

bool isTableOfWinds(const std::string& path, std::string_view firstLine) {
    try {
        return isIsdLiteLine(firstLine) || hasTableHead(path);
    } catch (const RunTimeError&) {
        return false;  // a line that is too long for a table
    }
}

/// Whether a run over a directory takes the file.
bool isNamedFrq(const std::string& path) { return lcase(path).ends_with(".frq"); }

std::string batchNote(const std::string& directory, const std::vector<std::string>& names) {
    const auto taken = std::count_if(names.begin(), names.end(), isNamedFrq);
    const std::size_t all = filesMatching(withSeparator(directory) + "*.frq").size();
    std::string note;
    if (all > static_cast<std::size_t>(taken)) {
        note += "BEGIN exports all ";
        note += std::to_string(all);
        note += " FRQ files of this directory, not only the ";
        note += std::to_string(taken);
        note += taken == 1 ? " that was dropped.\n" : " that were dropped.\n";
    }
    for (const std::string& name : names)
        if (!isNamedFrq(name)) note += "Not exported, since its name does not end in .frq: " + name + "\n";
    return note;
}

}  // namespace

std::optional<InputKind> droppedKind(const std::string& path) {
    LineReader lines(path);
    const std::string start = ucase(trimmed(lines.ahead().substr(0, lines.ahead().find_first_of("\r\n"))));
    if (start.starts_with("WIND.FRQ")) return std::nullopt;
    for (const Format& format : formats())
        if (!format.firstWord.empty() && start.starts_with(format.firstWord)) return format.kind;
    if (start.find("DATETIME") != std::string::npos && start.find("STNCODE") != std::string::npos)
        return InputKind::MonitorW;
    const std::string name = lcase(path);
    if (name.ends_with(".sfc")) return InputKind::AermSfc;
    if (name.ends_with(".pfl")) return InputKind::AermPfl;
    if (isTableOfWinds(path, start)) return InputKind::Csv;
    if (name.ends_with(".csv")) return InputKind::MonitorW;  // whose dialog tells what is wrong
    return std::nullopt;
}

std::optional<InputKind> commonGriddedKind(const std::vector<std::string>& paths) {
    std::optional<InputKind> common;
    for (const std::string& path : paths) {
        if (IsDirectory(path)) return std::nullopt;
        const auto kind = droppedKind(path);
        if (kind != InputKind::M3d && kind != InputKind::Ventos) return std::nullopt;
        if (common && common != kind) return std::nullopt;
        common = kind;
    }
    return common;
}

std::optional<DroppedBatch> droppedBatch(const std::vector<std::string>& paths) {
    if (paths.size() == 1 && IsDirectory(paths[0])) return DroppedBatch{paths[0], {}};
    if (paths.size() < 2 || std::none_of(paths.begin(), paths.end(), isNamedFrq)) return std::nullopt;
    const std::string directory = folderOf(paths[0]);
    std::vector<std::string> names;
    for (const std::string& path : paths) {
        if (folderOf(path) != directory || IsDirectory(path)) return std::nullopt;
        names.push_back(FileNameOf(path));
    }
    return DroppedBatch{directory, batchNote(directory, names)};
}

}  // namespace zg
