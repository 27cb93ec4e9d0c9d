#include "shell/settings/StartSequence.h"

#include "base/Numbers.h"
#include "base/Paths.h"
#include "base/Text.h"
#include "graph/frq/ModPolarGraph.h"
#include "shell/settings/CfgFile.h"
#include "shell/settings/Seasons.h"
#include "shell/settings/Settings.h"
#include "shell/settings/WindClasses.h"

namespace zg {

void startSettings() {
    settings.CfgFilePath = inApplicationDirectory(cfgFileName);
    ReadCfgFile(settings.CfgFilePath);
    acceptSeasons(loadSeasonFields());
    buildWindClassString();
}

double startZoom() { return val(settings.ZoomPercentText); }

std::optional<double> startRadius() {
    if (settings.RadiusText.empty()) return std::nullopt;
    return intFloor(val(trimmed(settings.RadiusText))) / 5;
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
    return existingFile(inApplicationDirectory("Bitmap") + pathSeparator + std::string(name));
}

std::optional<BackgroundPicture> findBackgroundPicture() {
    for (std::int16_t style = 0; style < 4; ++style) {
        const std::string path = backgroundPicturePath("WP" + std::to_string(style + 1) + ".pgw");
        if (!path.empty()) return BackgroundPicture{path, style};
    }
    return std::nullopt;
}

}  // namespace zg
