#include "batch/BatchBitmap.h"

#include "base/Files.h"
#include "base/Paths.h"
#include "graph/frq/ModPolarGraph.h"
#include "settings/Settings.h"

namespace zg {

std::string asFileName(std::string_view text) {
    // "\" separates directories everywhere in this program.
    constexpr std::string_view refused = onWindows ? "/\\:*?\"<>|" : "/\\";
    constexpr char lowest = onWindows ? ' ' : '\x01';
    std::string name(text);
    for (char& character : name) {
        const bool control = static_cast<unsigned char>(character) < static_cast<unsigned char>(lowest);
        if (control || refused.find(character) != std::string_view::npos) character = '_';
    }
    // What is left to refuse is a device of Windows, such as "CON".
    if (onWindows && !isPlainName(name + ".bmp")) name.insert(0, "_");
    return name;
}

std::string batchBitmapPath(const std::string& directory, const std::string& root, const std::string& title) {
    return directory + asFileName(asPartOfName(root) + asPartOfName(title)) + ".bmp";
}

std::string batchBitmapPath() {
    return batchBitmapPath(settings.BatchDirectory, settings.BatchRootFilename,
                           modPolarGraph.FrqRoseTitle(modPolarGraph.CurrentRose));
}

}  // namespace zg
