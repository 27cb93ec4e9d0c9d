#include "export/RosePicture.h"

#include <cerrno>
#include <system_error>

#include "base/Encoding.h"
#include "base/Paths.h"
#include "base/Text.h"
#include "export/PictureFile.h"
#include "graph/render/PartCanvas.h"
#include "graph/render/RedrawGraph.h"
#include "graph/render/RoseWords.h"
#include "graph/render/ShareTable.h"

namespace zg {

namespace {

/// Errors that the next picture would also meet.
bool leavesNoRoom(int fault) {
#ifdef EDQUOT
    if (fault == EDQUOT) return true;
#endif
    return fault == ENOSPC || fault == EFBIG || fault == ENOMEM;
}

/// Draws the rose in the whole of a canvas.
void drawRose(const RoseOfFile& rose, const PictureLook& look, Canvas& canvas) {
    ModPolarGraph tables = tablesFor(rose, look);  // drawing rebuilds the legend's limits
    Polar polar = *rose.polar;
    polar.Radius = look.scale.rings;
    PlotSettings settings;
    settings.Style = look.rose;
    PolarGeometry geometry;
    redrawFrame(settings, polar, tables, canvas, geometry);
}

}  // namespace

std::string stationOf(const RoseOfFile& rose) {
    for (const std::string& title : {rose.tables->FrqTitle1, rose.tables->GraphTitle})
        if (std::string named = trim(title); !named.empty()) return named;
    return rose.source.substr(folderOf(rose.source).size());
}

std::string periodOf(const RoseOfFile& rose) {
    const std::string title = trim(rose.tables->FrqRoseTitle(rose.rose));
    return title.empty() ? "Rose " + std::to_string(rose.rose) : title;
}

ModPolarGraph tablesFor(const RoseOfFile& rose, const PictureLook& look) {
    ModPolarGraph tables = *rose.tables;
    tables.CurrentRose = static_cast<std::int16_t>(rose.rose);
    tables.GraphCaption = tables.FrqRoseCaption(rose.rose);
    if (look.palette)
        for (std::size_t i = 0; i < look.palette->size(); ++i)
            tables.WindClassColor[i] = static_cast<float>((*look.palette)[i]);
    return tables;
}

Drawing roseDrawing(const RoseOfFile& rose, const PictureLook& asked, int side) {
    const PictureLook look = lookFor(asked, *rose.tables, rose.rose);
    Drawing drawing{side, side, {}, {}, {}};
    drawing.title = toUtf8(rose.tables->GraphTitle + ", " + rose.tables->FrqRoseCaption(rose.rose));
    drawing.documentTitle = toUtf8(rose.tables->GraphTitle);
    drawing.words = [rose, look] {
        const ModPolarGraph tables = tablesFor(rose, look);
        return roseWords(tables, speedLimits(tables, look.rose.unit));
    };
    if (!look.besideTable) {
        drawing.draw = [rose, look](Canvas& canvas) { drawRose(rose, look, canvas); };
        return drawing;
    }
    drawing.width = side + shareTableWidth(side);
    drawing.draw = [rose, look, side](Canvas& canvas) {
        canvas.clear(white);
        const auto whole = static_cast<double>(side);
        {
            PartCanvas part(canvas, {0, 0}, whole, whole, 1);
            drawRose(rose, look, part);
        }
        PartCanvas part(canvas, {whole, 0}, canvas.width() - whole, whole, 1);
        const ModPolarGraph own = tablesFor(rose, look);
        drawShareTable(part, own, speedLimits(own, look.rose.unit));
    };
    return drawing;
}

PictureFault savePicture(const Drawing& drawing, const std::string& path, const std::string& format) {
    return saveFile(path, [&](QIODevice& file) { return writeDrawing(drawing, format, file); });
}

PictureFault saveFile(const std::string& path, const std::function<bool(QIODevice&)>& write) {
    PictureFile file(path);
    if (file.fault() == 0 && !write(file) && file.fault() == 0)
        return {path + ": the picture could not be made", true};
    file.commit();
    if (file.fault() == 0) return {};
    return {path + ": " + std::generic_category().message(file.fault()), leavesNoRoom(file.fault())};
}

}  // namespace zg
