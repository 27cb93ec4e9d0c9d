#include "processing/TextViewer.h"

#include <cerrno>

#include "base/Files.h"
#include "base/Lines.h"
#include "base/RunTimeError.h"
#include "processing/BatchFile.h"
#include "processing/Wait.h"

namespace zg {

namespace {

/// Time for the disk before the start, and for the shell to read the batch file after it.
constexpr std::int32_t pauseMs = 500;

void writeBatchFile(const std::string& batchFile, const std::string& line) {
    LineWriter out(batchFile);
    out.writeLine(line);
    out.close();
}

}  // namespace

void ViewTextFile(Host& host, ProcessStarter& starter, const std::string& path, const std::string& directory,
                  char separator) {
    const std::string batchFile = withSeparator(directory, separator) + "open_file.bat";
    needBatchName(batchFile, separator);  // the shell is asked to run it
    writeBatchFile(batchFile, batchBytes(viewerLine(batchDirectory(path), separator)));
    try {
        WaitMs(host, pauseMs);
        starter.startViewer(batchFile, path);
        WaitMs(host, pauseMs);
    } catch (...) {
        removeFile(batchFile);
        throw;
    }
    if (!removeFile(batchFile) && errno != ENOENT) raiseFileError(errno);
}

}  // namespace zg
