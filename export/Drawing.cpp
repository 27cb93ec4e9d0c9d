#include "export/Drawing.h"

#include <QPdfWriter>
#include <algorithm>
#include <new>

#include "graph/render/SvgCanvas.h"
#include "platform/PngWriter.h"
#include "platform/QtCanvas.h"

namespace zg {

namespace {

constexpr int layoutDotsPerInch = 96;
constexpr int vectorDotsPerInch = 1200;
constexpr double pointsPerInch = 72;
constexpr double millimetresPerInch = 25.4;

bool writePixels(const Drawing& drawing, bool packed, QIODevice& device) {
    QImage page = makePageImage(drawing.width, drawing.height);
    if (page.isNull()) throw std::bad_alloc();
    {
        QtCanvas canvas(page, drawing.width, drawing.height);
        drawing.draw(canvas);
    }
    return packed ? writePng(page, device) : page.save(&device, "BMP");
}

bool writeSvg(const Drawing& drawing, QIODevice& device) {
    const std::string text = svgOf(drawing);
    return device.write(text.data(), static_cast<qint64>(text.size())) == static_cast<qint64>(text.size());
}

void describe(QPdfWriter& pdf, const std::string& title) {
    pdf.setResolution(vectorDotsPerInch);
    pdf.setTitle(QString::fromStdString(title));
    pdf.setCreator(QStringLiteral("Zephyrgraph"));
}

void drawScaled(const Drawing& drawing, QPainter& painter, double scale) {
    painter.save();
    painter.scale(scale, scale);
    {
        QtCanvas canvas(painter, drawing.width, drawing.height);
        drawing.draw(canvas);
    }
    painter.restore();
}

bool writePdf(const Drawing& drawing, QIODevice& device) {
    QPdfWriter pdf(&device);
    describe(pdf, drawing.documentTitle.empty() ? drawing.title : drawing.documentTitle);
    const QSizeF points(drawing.width * pointsPerInch / layoutDotsPerInch,
                        drawing.height * pointsPerInch / layoutDotsPerInch);
    pdf.setPageSize(QPageSize(points, QPageSize::Point, QString(), QPageSize::ExactMatch));
    pdf.setPageMargins(QMarginsF(0, 0, 0, 0));
    QPainter painter;
    if (!painter.begin(&pdf)) return false;
    drawScaled(drawing, painter, static_cast<double>(vectorDotsPerInch) / layoutDotsPerInch);
    return painter.end();
}

}  // namespace

std::string svgOf(const Drawing& drawing, const std::string& name) {
    QImage device = makePageImage(1, 1);
    const QtCanvas metrics(device, drawing.width, drawing.height);
    SvgCanvas canvas(drawing.width, drawing.height, metrics);
    drawing.draw(canvas);
    return canvas.document(drawing.title, drawing.words(), name);
}

bool writeDrawing(const Drawing& drawing, const std::string& format, QIODevice& device) {
    if (format == "svg") return writeSvg(drawing, device);
    if (format == "pdf") return writePdf(drawing, device);
    return writePixels(drawing, format == "png", device);
}

bool writePages(const std::vector<Drawing>& drawings, const std::string& title, QIODevice& device) {
    constexpr double margin = 10;  // millimetres
    QPdfWriter pdf(&device);
    describe(pdf, title);
    pdf.setPageSize(QPageSize(QPageSize::A4));
    pdf.setPageOrientation(QPageLayout::Landscape);
    pdf.setPageMargins(QMarginsF(margin, margin, margin, margin), QPageLayout::Millimeter);
    QPainter painter;
    if (!painter.begin(&pdf)) return false;
    const double dots = vectorDotsPerInch / millimetresPerInch;
    const double width = (297 - 2 * margin) * dots;
    const double height = (210 - 2 * margin) * dots;
    for (std::size_t i = 0; i < drawings.size(); ++i) {
        if (i > 0 && !pdf.newPage()) return false;
        drawScaled(drawings[i], painter, std::min(width / drawings[i].width, height / drawings[i].height));
    }
    return painter.end();
}

}  // namespace zg
