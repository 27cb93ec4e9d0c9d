#include "processing/TextViewer.h"

#include <filesystem>
#include <system_error>

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
    needBatchName(batchFile, separator);  // the shell has this time to start
    writeBatchFile(batchFile, viewerLine(path, separator));
    std::error_code error;
    try {
        WaitMs(host, pauseMs);
        starter.start(batchFile, WindowStyle::Hidden);
        WaitMs(host, pauseMs);
    } catch (...) {
        std::filesystem::remove(batchFile, error);
        throw;
    }
    std::filesystem::remove(batchFile, error);
    if (error) raiseFileError(error.value());
}

}  // namespace zg
