#include "export/RosePicture.h"

#include <QPdfWriter>
#include <QSvgGenerator>
#include <cerrno>
#include <new>
#include <system_error>

#include "export/PictureFile.h"
#include "graph/render/RedrawGraph.h"
#include "platform/PngWriter.h"
#include "platform/QtCanvas.h"
#include "platform/QtText.h"

namespace zg {

namespace {

constexpr int layoutDotsPerInch = 96;
constexpr int vectorDotsPerInch = 1200;
constexpr double pointsPerInch = 72;

void draw(ModPolarGraph& tables, const Polar& polar, QtCanvas& canvas) {
    PolarGeometry geometry;
    Polar own = polar;
    redrawFrame(PlotSettings{}, own, tables, canvas, geometry);
}

bool saveRaster(ModPolarGraph& tables, const Polar& polar, QIODevice& file, bool packed, int side) {
    QImage page = makePageImage(side, side);
    if (page.isNull()) throw std::bad_alloc();
    {
        QtCanvas canvas(page, side, side);
        draw(tables, polar, canvas);
    }
    return packed ? writePng(page, file) : page.save(&file, "BMP");
}

bool saveSvg(ModPolarGraph& tables, const Polar& polar, QIODevice& file, int side) {
    QSvgGenerator svg;
    svg.setOutputDevice(&file);
    svg.setSize({side, side});
    svg.setViewBox(QRect(0, 0, side, side));
    svg.setResolution(layoutDotsPerInch);
    svg.setTitle(shown(tables.GraphTitle));
    QPainter painter;
    if (!painter.begin(&svg)) return false;
    {
        QtCanvas canvas(painter, side, side);
        draw(tables, polar, canvas);
    }
    return painter.end();
}

bool savePdf(ModPolarGraph& tables, const Polar& polar, QIODevice& file, int side) {
    QPdfWriter pdf(&file);
    const double points = side * pointsPerInch / layoutDotsPerInch;
    pdf.setResolution(vectorDotsPerInch);
    pdf.setPageSize(QPageSize(QSizeF(points, points), QPageSize::Point, QString(), QPageSize::ExactMatch));
    pdf.setPageMargins(QMarginsF(0, 0, 0, 0));
    pdf.setTitle(shown(tables.GraphTitle));
    pdf.setCreator(QStringLiteral("Zephyrgraph"));
    QPainter painter;
    if (!painter.begin(&pdf)) return false;
    const double scale = static_cast<double>(vectorDotsPerInch) / layoutDotsPerInch;
    painter.scale(scale, scale);
    {
        QtCanvas canvas(painter, side, side);
        draw(tables, polar, canvas);
    }
    return painter.end();
}

bool save(ModPolarGraph& tables, const Polar& polar, QIODevice& file, const std::string& format, int side) {
    if (format == "svg") return saveSvg(tables, polar, file, side);
    if (format == "pdf") return savePdf(tables, polar, file, side);
    return saveRaster(tables, polar, file, format == "png", side);
}

/// Errors that the next picture would also meet.
bool leavesNoRoom(int fault) {
#ifdef EDQUOT
    if (fault == EDQUOT) return true;
#endif
    return fault == ENOSPC || fault == EFBIG || fault == ENOMEM;
}

}  // namespace

PictureFault drawRosePicture(ModPolarGraph& tables, const Polar& polar, int rose, const std::string& path,
                             const std::string& format, int side) {
    tables.CurrentRose = static_cast<std::int16_t>(rose);
    tables.GraphCaption = tables.FrqRoseCaption(rose);
    PictureFile file(path);
    if (file.fault() == 0 && !save(tables, polar, file, format, side) && file.fault() == 0)
        return {path + ": the picture could not be made", true};
    file.commit();
    if (file.fault() == 0) return {};
    return {path + ": " + std::generic_category().message(file.fault()), leavesNoRoom(file.fault())};
}

}  // namespace zg
