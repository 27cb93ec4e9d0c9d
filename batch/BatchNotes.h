#pragma once

// What a batch run did that its status does not say: which files were refused, which pictures show another
// file's roses, and which overwrote an earlier one.

#include <map>
#include <string>
#include <vector>

namespace zg {

/// Receives the steps of a run in their order. Roses are numbered from 1 within their file.
class BatchNotes {
 public:
    /// The roses of that file are exported now; if it was refused, the roses in memory.
    void tookFile(const std::string& path, bool refused);

    /// That rose was saved under that path.
    void savedRose(int rose, const std::string& picture);
    void leftOutRose() { ++leftOut_; }

    /// The run has ended with an error in that file.
    void brokeOff(const std::string& path);

    /// Lines separated by LF, the last one with the counts; empty if there is nothing to report.
    std::string text() const;

 private:
    struct Saved {
        std::string picture;
        std::string rose;
    };
    Saved* earlier(const std::string& picture);

    std::vector<std::string> lines_;
    std::multimap<std::string, Saved> saved_;  ///< the picture files by their paths in lower case
    std::string file_;
    std::string source_;  ///< the file whose roses are in memory, "" for those from before the run
    int files_ = 0;
    int refused_ = 0;
    int roses_ = 0;
    int pictures_ = 0;
    int leftOut_ = 0;
};

}  // namespace zg
