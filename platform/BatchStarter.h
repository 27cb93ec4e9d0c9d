#pragma once

#include "processing/ProcessStarter.h"

namespace zg {

/// Starts batch files on this platform: by the shell where it knows them, else by carrying out their lines.
class BatchStarter : public ProcessStarter {
 public:
    void start(const std::string& batchFile, WindowStyle style) override;
};

/// The file that a line 'notepad "path"' asks to show; "" for another line.
std::string viewedFile(std::string_view line);

}  // namespace zg
