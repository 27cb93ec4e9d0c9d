#include "shell/StartSequence.h"

#include <algorithm>
#include "base/Files.h"
#include "base/Numbers.h"
#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "graph/frq/ModPolarGraph.h"
#include "graph/model/Polar.h"
#include "settings/CfgFile.h"
#include "settings/Seasons.h"
#include "settings/Settings.h"
#include "settings/WindClasses.h"

namespace zg {

void startSettings() {
    settings.CfgFilePath = inSettingsDirectory(cfgFileName);
    ReadCfgFile(settings.CfgFilePath);
    acceptSeasons(loadSeasonFields());
    buildWindClassString();
}

double startZoom() { return val(settings.ZoomPercentText); }

std::optional<double> startRadius() {
    if (settings.RadiusText.empty()) return std::nullopt;
    return intFloor(val(trimmed(settings.RadiusText))) / percentPerUnit;
}

void clearLabelLines() {
    modPolarGraph.GraphTitle.clear();
    modPolarGraph.GraphSubTitle.clear();
    modPolarGraph.GraphCaption.clear();
}

void resetWindClassMin() {
    settings.DefaultWindClassMin = Settings().DefaultWindClassMin;
    settings.WindClassMin = settings.DefaultWindClassMin;
}

std::string backgroundPicturePath(std::string_view name) {
    const std::string beside = pathSeparator + std::string(name);
    const std::string own = existingFile(inSettingsDirectory("Bitmap") + beside);
    return own.empty() ? existingFile(inApplicationDirectory("Bitmap") + beside) : own;
}

std::optional<BackgroundPicture> findBackgroundPicture() {
    for (std::int16_t style = 0; style < 4; ++style) {
        const std::string path = backgroundPicturePath("WP" + std::to_string(style + 1) + ".pgw");
        if (!path.empty()) return BackgroundPicture{path, style};
    }
    return std::nullopt;
}

void removeBackgroundPictures() {
    const std::string directory = inSettingsDirectory("Bitmap");
    // A missing directory has none; a name that is nothing but an extension has no extension.
    for (const std::string& name : namesIn(directory))
        if (lcase(name).ends_with(".pgw") && name.size() > 4) removeFile(directory + pathSeparator + name);
}

std::string newBackgroundPicturePath(std::int32_t style) {
    const std::string directory = inSettingsDirectory("Bitmap");
    if (!makeDirectories(directory)) raise(ErrorNumber::PathFileAccessError);
    return directory + pathSeparator + "WP" + std::to_string(std::clamp(style, 0, 3) + 1) + ".pgw";
}

}  // namespace zg
