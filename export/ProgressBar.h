#pragma once

#include <cstddef>
#include <ostream>
#include <string>

namespace zg {

/// A progress bar in one line of a terminal, which is erased before anything else is written there.
class ProgressBar {
 public:
    ProgressBar(std::ostream& terminal, bool shown) : terminal_(terminal), shown_(shown) {}

    void show(std::size_t filesDone, std::size_t files, std::size_t pictures) {
        show(filesDone, files, std::to_string(pictures) + " pictures");
    }

    /// Shows the bar with the current work, of which the first 40 bytes are displayed.
    void show(std::size_t filesDone, std::size_t files, const std::string& what) {
        if (!shown_) return;
        constexpr std::size_t width = 30;
        const std::size_t filled = files == 0 ? 0 : filesDone * width / files;
        terminal_ << "\r\x1B[K[" << std::string(filled, '#') << std::string(width - filled, '.') << "] "
                  << filesDone << " of " << files << " files, " << what.substr(0, 40) << std::flush;
        drawn_ = true;
    }

    void clear() {
        if (drawn_) terminal_ << "\r\x1B[K" << std::flush;
        drawn_ = false;
    }

 private:
    std::ostream& terminal_;
    bool shown_;
    bool drawn_ = false;
};

}  // namespace zg
