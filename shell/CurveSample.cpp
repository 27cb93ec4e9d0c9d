#include "shell/CurveSample.h"

#include <QPainter>
#include <cmath>

#include "base/Text.h"
#include "platform/FormParts.h"
#include "platform/MarkerSymbols.h"
#include "platform/QtCanvas.h"
#include "platform/QtText.h"

namespace zg {

namespace {

constexpr int styles = 6;
constexpr int weights = 10;
constexpr QSize linePicture(72, 14);
constexpr int margin = 8;

QIcon lineIcon(const QPalette& palette, const LineStyle& style) {
    QImage image(linePicture, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QtCanvas canvas(image, linePicture.width(), linePicture.height());
    const double middle = linePicture.height() / 2.0;
    LineStyle drawn = style;
    drawn.colour = fromQColor(palette.color(QPalette::Text));
    canvas.line({2, middle}, {linePicture.width() - 2.0, middle}, drawn);
    return QIcon(QPixmap::fromImage(image));
}

QComboBox* lineList(const char* name) {
    auto* list = named(new QComboBox, name);
    list->setIconSize(linePicture);
    return list;
}

bool isPrintable(int code) {
    const bool unused =
        code == 127 || code == 129 || code == 141 || code == 143 || code == 144 || code == 157;
    return code > 32 && !unused && code != 160;
}

}  // namespace

CurveSample::CurveSample() {
    setObjectName(QStringLiteral("picPattern"));
    setMinimumSize(120, 64);
}

void CurveSample::show(const Series& series, const MarkerPictures& pictures) {
    series_ = series;
    series_.Marker.setAlignment(Marker::centred);
    pictures_ = pictures;
    update();
}

void CurveSample::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    QtCanvas canvas(painter, width(), height());
    const Point middle{width() / 2.0,
                       std::floor(height() / 2.0) + 0.5};  // a thin line must be on one row of pixels
    if (series_.AllowPen)
        canvas.line({margin, middle.y}, {width() - static_cast<double>(margin), middle.y},
                    {series_.Pen.FillColor, series_.Pen.Weight, series_.Pen.Style, 0});
    if (series_.AllowMarker) paintMarker(canvas, middle, series_.Marker, pictures_);
}

QComboBox* lineStyleList() {
    static const char* const names[styles] = {"Solid", "Dash", "Dot", "Dash dot", "Dash dot dot", "None"};
    QComboBox* list = lineList("imcLstyle");
    for (int style = 0; style < styles; ++style)
        list->addItem(lineIcon(list->palette(), {black, 2, style, 0}), QString::fromLatin1(names[style]));
    return list;
}

QComboBox* lineWeightList() {
    QComboBox* list = lineList("imcLweight");
    for (int weight = 1; weight <= weights; ++weight)
        list->addItem(lineIcon(list->palette(), {black, weight, 0, 0}), QString::number(weight));
    return list;
}

void fillCharacters(QComboBox& list, const MarkerFont& font) {
    const std::string kept = chosenCharacter(list);
    const bool symbols = needsSymbols(font.Name);
    QFont face(symbols ? symbolFace() : shown(font.Name));
    face.setPointSizeF(12);
    face.setBold(font.Bold);
    face.setItalic(font.Italic);
    list.clear();
    list.setFont(face);
    for (int code = 33; code < 256; ++code) {
        if (!isPrintable(code)) continue;
        const std::string character(1, static_cast<char>(code));
        list.addItem(symbols ? symbolText(character) : shown(character),
                     QByteArray::fromStdString(character));
    }
    if (!kept.empty()) chooseCharacter(list, kept);
}

void chooseCharacter(QComboBox& list, const std::string& character) {
    const QByteArray data = QByteArray::fromStdString(character);
    if (list.findData(data) < 0) list.addItem(shown(character), data);
    list.setCurrentIndex(list.findData(data));
}

std::string chosenCharacter(const QComboBox& list) {
    return trim(list.currentData().toByteArray().toStdString());
}

}  // namespace zg
