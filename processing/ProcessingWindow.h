#pragma once

#include <functional>
#include <string>

namespace zg {

/// What a processing dialog needs from the main window.
struct ProcessingWindow {
    std::function<void(const std::string&)> plotFrqFile;
    std::function<bool()> ending;  ///< the program is being closed
    std::function<void()> setSeasons;
    std::function<void()> setWindSpeedClasses;
};

}  // namespace zg
