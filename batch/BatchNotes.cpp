#include "batch/BatchNotes.h"

#include "base/Files.h"
#include "base/Paths.h"
#include "base/Text.h"

namespace zg {

namespace {

/// Whether two names lead to one file, as on a file system that ignores letter case.
bool isSameFile(const std::string& one, const std::string& other) {
    return one == other || isOneFile(one, other);
}

std::string counted(int count, const char* what) {
    return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

}  // namespace

void BatchNotes::tookFile(const std::string& path, bool refused) {
    ++files_;
    file_ = path;
    if (!refused) {
        source_ = path;
        return;
    }
    ++refused_;
    lines_.push_back(path + " was refused: it is not in the correct data format.");
}

BatchNotes::Saved* BatchNotes::earlier(const std::string& picture) {
    const auto [first, last] = saved_.equal_range(lcase(picture));
    for (auto at = first; at != last; ++at)
        if (isSameFile(at->second.picture, picture)) return &at->second;
    return nullptr;
}

void BatchNotes::savedRose(int rose, const std::string& picture) {
    const std::string of = source_.empty() ? "what stood in memory before the run" : FileNameOf(source_);
    const std::string shownRose = "rose " + std::to_string(rose) + " of " + of;
    const std::string name = FileNameOf(picture);
    if (source_ != file_)
        lines_.push_back(name + " shows " + shownRose + ", since " + FileNameOf(file_) + " was refused.");
    ++roses_;
    if (Saved* replaced = earlier(picture)) {
        lines_.push_back(name + ": " + shownRose + " took the place of " + replaced->rose + ".");
        replaced->rose = shownRose;
        return;
    }
    ++pictures_;
    saved_.emplace(lcase(picture), Saved{picture, shownRose});
}

void BatchNotes::brokeOff(const std::string& path) {
    lines_.push_back("The run ended with an error at " + path + ".");
}

std::string BatchNotes::text() const {
    if (lines_.empty()) return {};
    std::string all;
    for (const std::string& line : lines_) all += line + "\n";
    return all + counted(files_, "file") + ", " + std::to_string(refused_) + " refused; " +
           counted(roses_, "rose") + " saved in " + counted(pictures_, "picture") + ", " +
           std::to_string(leftOut_) + " left out.";
}

}  // namespace zg
