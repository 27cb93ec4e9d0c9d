#pragma once

#include <iosfwd>
#include <string>

namespace zg {

constexpr int exportDone = 0;
constexpr int exportFailed = 1;
constexpr int exportWrongUsage = 2;

constexpr int smallestExport = 16;
constexpr int largestExport = 16384;

struct ExportJob {
    std::string file;
    std::string rose = "all";    ///< a number from 1, or "all"
    int sizePixels = 600;        ///< smallestExport to largestExport
    std::string format = "png";  ///< "png" or "bmp"
    std::string directory = ".";
    bool tables = false;  ///< write the tables as JSON instead of pictures
};

/// Draws the asked roses as DIR/STEM_NN.EXT, NN the rose's number in two digits (more where the file holds
/// over 99 roses), and names each file on out. Gives the exit status; messages of failures go to errors, and
/// no half-written picture stays.
int runExport(const ExportJob& job, std::ostream& out, std::ostream& errors);

}  // namespace zg
