#pragma once

// The process-wide settings and run values that every dialog reads and writes directly. Fonts, colours, the
// legend's unit and the working directory are in modPolarGraph, with the plot's tables.

#include <array>
#include <cstdint>
#include <string>

namespace zg {

using MonthTexts = std::array<std::string, 12>;  ///< January at 0
using ClassTexts = std::array<std::string, 6>;

struct Settings {
    std::string CfgFilePath;  ///< Zephyrgraph.cfg in settingsDirectory
    std::string CfgInMemory;  ///< its lines if they could not be written; "" if they could

    std::string DefaultTimeZone;  ///< label of the time zone offered first
    MonthTexts SeasonOfMonth;
    MonthTexts CustomSeasonOfMonth;
    ClassTexts WindClassMin;      ///< lower bounds of the speed classes in m/s, as typed
    std::string ZoomPercentText;  ///< "100"
    std::int16_t ZoomListIndex = 0;
    std::string RadiusText;  ///< "25%"

    ClassTexts DefaultWindClassMin = {"0.5", "1.8", "3.3", "5.4", "8.5", "10.8"};

    // Derived values in the form for the control file. They remain from one accepted dialog to the next,
    // whatever happens to the texts above meanwhile.
    MonthTexts SeasonNames;  ///< the first SeasonCount are used
    std::int16_t SeasonCount = 0;
    std::array<std::int16_t, 12> MonthSeasonIndex{};  ///< from 1
    std::string MonthSeasonString;                    ///< "1,1,2,2,2,3,3,3,4,4,4,1"
    std::string WindClassString;                      ///< "0.5,1.8,3.3,5.4,8.5,10.8"

    std::string CurrentFrqPath;  ///< displayed file, "" before the first
    bool DebugFlag = false;      ///< the check mark of the About box; nothing else reads it

    // Mirrors of a batch run, which calls its commands with these values and reads none of them here. While
    // BatchMode is set the entries Open and Copy To use them and ask nothing.
    bool BatchMode = false;
    std::string BatchFRQFilename;   ///< full path
    std::string BatchRootFilename;  ///< prefix of the bitmaps' names
    std::string BatchDirectory;     ///< directory for the bitmaps, with its final separator
};

extern Settings settings;

}  // namespace zg
