// Copies of the page: clipboard, bitmap file, printer.

#include <QClipboard>
#include <QGuiApplication>
#include <QPrintDialog>
#include <QPrinter>
#include <utility>

#include "base/RunTimeError.h"
#include "platform/NativePicks.h"
#include "platform/PolarGraphWidget.h"
#include "platform/QtPicture.h"
#include "platform/WholeFile.h"

namespace zg {

namespace {

constexpr int printerError = 482;

PicturePointer partOf(QImage page, const Rect& part) {
    const QRect area(
        QPoint(static_cast<int>(part.left), static_cast<int>(part.top)),
        QSize(static_cast<int>(part.right - part.left), static_cast<int>(part.bottom - part.top)));
    if (area.isEmpty()) return nullptr;
    if (page.devicePixelRatio() != 1) {
        // A screen of higher resolution has more pixels per unit than the picture.
        page = page.scaled(page.deviceIndependentSize().toSize(), Qt::IgnoreAspectRatio,
                           Qt::SmoothTransformation);
        page.setDevicePixelRatio(1);
    }
    return std::make_shared<QtPicture>(area == page.rect() ? page : page.copy(area));
}

/// The system's own dialog opens for real printers alone; without one the toolkit would pass over it
/// silently.
bool lacksPrinter(const QPrinter& printer) {
    return hasNativePicks() && printer.outputFormat() != QPrinter::NativeFormat;
}

bool showPrintDialog(QPrinter& printer, QWidget* window) {
    if (lacksPrinter(printer)) throw RunTimeError(printerError, "Printer error: no printer is installed");
    QPrintDialog dialog(&printer, window);
    dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);  // there is one page
    return dialog.exec() == QDialog::Accepted;
}

}  // namespace

PicturePointer PolarGraphWidget::copyPage(const Rect& part) { return partOf(pageImage(), part); }

PicturePointer PolarGraphWidget::paintPage(double side, const Rect& part,
                                           const std::function<void(Canvas&)>& paint) {
    QImage page = makePageImage(static_cast<int>(side), static_cast<int>(side), devicePixelRatioF());
    {
        QtCanvas canvas(page, side, side);
        paint(canvas);
    }
    return partOf(std::move(page), part);
}

void PolarGraphWidget::pictureToClipboard(const Picture& picture) {
    QGuiApplication::clipboard()->clear();
    QGuiApplication::clipboard()->setImage(imageOf(picture));
}

void PolarGraphWidget::saveBitmap(const Picture& picture, const std::string& path) {
    WholeFile file(path);
    if (file.isOpen() && imageOf(picture).save(&file, "BMP") && file.commit()) return;
    const auto number = file.isFull() ? ErrorNumber::DiskFull : ErrorNumber::PathFileAccessError;
    throw RunTimeError(static_cast<int>(number), std::string(errorDescription(number)) + ": " + path + " (" +
                                                     file.errorString().toStdString() + ")");
}

void PolarGraphWidget::print(double side, const std::function<void(Canvas&)>& paint) {
    QPrinter printer(QPrinter::HighResolution);
    const bool agreed = askPrinter ? askPrinter(printer) : showPrintDialog(printer, window());
    if (!agreed) return;
    QPainter painter;
    if (!painter.begin(&printer)) throw RunTimeError(printerError, "Printer error");
    const QRectF paper = printer.pageLayout().paintRectPixels(printer.resolution());
    const double scale = std::min(paper.width(), paper.height()) / side;
    painter.translate((paper.width() - scale * side) / 2, (paper.height() - scale * side) / 2);
    painter.scale(scale, scale);
    {
        QtCanvas canvas(painter, side, side);
        paint(canvas);
    }
    if (!painter.end()) throw RunTimeError(printerError, "Printer error");
}

}  // namespace zg
