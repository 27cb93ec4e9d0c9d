#pragma once

#include <iosfwd>
#include <map>
#include <string>
#include <vector>

#include "export/StyleRequest.h"

namespace zg {

constexpr int exportDone = 0;
constexpr int exportFailed = 1;
constexpr int exportWrongUsage = 2;

constexpr int smallestExport = 16;
constexpr int largestExport = 16384;
constexpr int mostJobs = 256;

struct ExportJob {
    std::vector<std::string> inputs;  ///< FRQ files, and directories of them
    std::string rose = "all";         ///< a number from 1, or "all"
    int sizePixels = 600;             ///< smallestExport to largestExport; of a panel its width
    std::string format = "png";       ///< "png", "bmp", "svg" or "pdf"
    std::string directory = ".";
    float minValid = 0;                          ///< lowest percent of valid hours, 0 to 100
    int jobs = 1;                                ///< roses drawn in parallel, 1 to mostJobs
    bool tables = false;                         ///< write the tables instead of pictures
    bool tablesAsCsv = false;                    ///< as rows of CSV, and not as JSON
    std::map<std::string, std::string> sources;  ///< of inputs that were made: the file that each was made of
    bool progress = false;                       ///< show a progress bar on errors while roses are drawn
    StyleRequest style;
};

/// Draws the requested roses as DIR/STEM_NN.EXT, where NN is the rose's number in two digits (more if the
/// file has over 99 roses), and writes each name to out, in the order of the inputs and of the roses whatever
/// the number of jobs. Roses of version 2.1 and later with fewer valid hours than requested are left out, and
/// so are those of other versions without that percentage, except 2.0. A file that fails is reported on
/// errors, and the others continue. Panels and reports are drawn after all inputs have been read. Returns the
/// exit status; never leaves a half-written picture.
int runExport(const ExportJob& job, std::ostream& out, std::ostream& errors);

/// Ends a run after the roses in progress; may be called from a signal handler.
void stopExport();

}  // namespace zg
