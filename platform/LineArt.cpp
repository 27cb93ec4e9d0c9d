#include "platform/LineArt.h"

#include <QApplication>
#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <QXmlStreamReader>
#include <cmath>
#include <map>
#include <numbers>
#include <utility>

namespace zg {

namespace {

/// Cuts path data into letters and numbers.
class PathWords {
 public:
    explicit PathWords(QString data) : data_(std::move(data)) {}

    void skipBlanks() {
        while (at_ < data_.size() && (data_[at_].isSpace() || data_[at_] == u',')) ++at_;
    }

    /// The next letter; a null character where a number is next, or nothing.
    QChar letter() {
        skipBlanks();
        if (at_ < data_.size() && data_[at_].isLetter()) return data_[at_++];
        return {};
    }

    bool atEnd() {
        skipBlanks();
        return at_ >= data_.size();
    }

    double number() {
        skipBlanks();
        const qsizetype begin = at_;
        if (at_ < data_.size() && (data_[at_] == u'-' || data_[at_] == u'+')) ++at_;
        bool point = false;
        while (at_ < data_.size() && (data_[at_].isDigit() || (data_[at_] == u'.' && !point)))
            point = data_[at_++] == u'.' || point;
        bool ok = false;
        const double value = QStringView(data_).mid(begin, at_ - begin).toDouble(&ok);
        failed_ = failed_ || !ok;
        return value;
    }

    bool failed() const { return failed_; }

 private:
    QString data_;
    qsizetype at_ = 0;
    bool failed_ = false;
};

/// A circle's arc to a point, after the notes on implementation in the standard.
void arcTo(QPainterPath& path, double radius, bool large, bool clockwise, QPointF to) {
    const QPointF from = path.currentPosition();
    const QPointF half = (to - from) / 2;
    const double chord = std::hypot(half.x(), half.y());
    if (chord == 0) return;
    const double r = std::max(radius, chord);
    const double height = std::sqrt(r * r - chord * chord);
    const double side = large == clockwise ? -1 : 1;
    const QPointF middle = from + half + QPointF(-half.y(), half.x()) * (side * height / chord);
    const auto degrees = [&](QPointF point) {
        return std::atan2(middle.y() - point.y(), point.x() - middle.x()) * 180 / std::numbers::pi;
    };
    double sweep = degrees(to) - degrees(from);
    if (clockwise && sweep > 0) sweep -= 360;
    if (!clockwise && sweep < 0) sweep += 360;
    path.arcTo(QRectF(middle.x() - r, middle.y() - r, 2 * r, 2 * r), degrees(from), sweep);
}

/// One command with its numbers; false for a letter that is not known.
bool addPiece(QPainterPath& path, QChar letter, PathWords& words) {
    const QPointF from = path.currentPosition();
    const QPointF base = letter.isLower() ? from : QPointF();
    const auto point = [&] {
        const double x = words.number();
        return base + QPointF(x, words.number());
    };
    switch (letter.toUpper().unicode()) {
        case 'M':
            path.moveTo(point());
            return true;
        case 'L':
            path.lineTo(point());
            return true;
        case 'H':
            path.lineTo(base.x() + words.number(), from.y());
            return true;
        case 'V':
            path.lineTo(from.x(), base.y() + words.number());
            return true;
        case 'C': {
            const QPointF first = point();
            const QPointF second = point();
            path.cubicTo(first, second, point());
            return true;
        }
        case 'A': {
            const double radius = words.number();
            if (words.number() != radius) return false;
            words.number();  // a circle looks the same however it is turned
            const bool large = words.number() != 0;
            const bool clockwise = words.number() != 0;
            arcTo(path, radius, large, clockwise, point());
            return true;
        }
        case 'Z':
            path.closeSubpath();
            return true;
        default:
            return false;
    }
}

/// Numbers that go on after a command repeat it; after a move they draw.
QChar repeated(QChar letter) {
    if (letter == u'M') return u'L';
    return letter == u'm' ? QChar(u'l') : letter;
}

}  // namespace

bool readPath(const QString& data, QPainterPath& path) {
    PathWords words(data);
    QChar letter;
    while (!words.atEnd()) {
        const QChar next = words.letter();
        if (next.isNull() && (letter.isNull() || letter.toUpper() == u'Z')) return false;
        letter = next.isNull() ? repeated(letter) : next;
        if (!addPiece(path, letter, words) || words.failed()) return false;
    }
    return true;
}

/// Reads a file into its shapes.
class LineArtReader {
 public:
    LineArtReader(QIODevice& device, LineArt& art) : xml_(&device), art_(art) {}

    bool read() {
        Look look;
        if (!xml_.readNextStartElement() || xml_.name() != u"svg" || !readViewBox()) return false;
        return children(look) && !xml_.hasError();
    }

 private:
    /// What an element hands on to those within it.
    struct Look {
        QString fill = QStringLiteral("#000000");
        QString stroke = QStringLiteral("none");
        double width = 1;
        bool roundCap = false;
        bool roundJoin = false;
        QList<double> dashes;
    };

    bool readViewBox() {
        PathWords words(xml_.attributes().value(QLatin1String("viewBox")).toString());
        const double left = words.number();
        const double top = words.number();
        const double width = words.number();
        art_.viewBox_ = QRectF(left, top, width, words.number());
        return !words.failed() && !art_.viewBox_.isEmpty();
    }

    bool children(const Look& look) {
        while (xml_.readNextStartElement())
            if (!element(look)) return false;
        return true;
    }

    bool element(Look look) {
        const QXmlStreamAttributes attributes = xml_.attributes();
        if (!readLook(attributes, look)) return false;
        if (xml_.name() == u"g") return children(look);
        QPainterPath path;
        if (!readShape(xml_.name(), attributes, path)) return false;
        art_.shapes_.push_back({path, brushOf(look), penOf(look)});
        xml_.skipCurrentElement();
        return true;
    }

    bool readLook(const QXmlStreamAttributes& attributes, Look& look) {
        static const QList<QStringView> ofShapes = {u"d", u"cx",    u"cy",     u"r", u"x",
                                                    u"y", u"width", u"height", u"rx"};
        for (const QXmlStreamAttribute& attribute : attributes) {
            const QStringView name = attribute.name();
            const QString value = attribute.value().toString();
            if (name == u"fill")
                look.fill = value;
            else if (name == u"stroke")
                look.stroke = value;
            else if (name == u"stroke-width")
                look.width = value.toDouble();
            else if (name == u"stroke-linecap")
                look.roundCap = value == u"round";
            else if (name == u"stroke-linejoin")
                look.roundJoin = value == u"round";
            else if (name == u"stroke-dasharray")
                look.dashes = dashesOf(value);
            else if (!ofShapes.contains(name))
                return false;
        }
        return true;
    }

    static QList<double> dashesOf(const QString& value) {
        QList<double> dashes;
        PathWords words(value);
        while (!words.atEnd() && !words.failed()) dashes.append(words.number());
        if (dashes.size() % 2 != 0) dashes += QList<double>(dashes);
        return dashes;
    }

    static bool readShape(QStringView name, const QXmlStreamAttributes& attributes, QPainterPath& path) {
        const auto number = [&](const char* key) { return attributes.value(QLatin1String(key)).toDouble(); };
        if (name == u"path") return readPath(attributes.value(QLatin1String("d")).toString(), path);
        if (name == u"circle")
            path.addEllipse(QPointF(number("cx"), number("cy")), number("r"), number("r"));
        else if (name == u"rect")
            path.addRoundedRect(number("x"), number("y"), number("width"), number("height"), number("rx"),
                                number("rx"));
        else
            return false;
        return true;
    }

    static QBrush brushOf(const Look& look) {
        return look.fill == u"none" ? QBrush(Qt::NoBrush) : QBrush(QColor(look.fill));
    }

    static QPen penOf(const Look& look) {
        if (look.stroke == u"none") return QPen(Qt::NoPen);
        QPen pen(QColor(look.stroke), look.width);
        pen.setCapStyle(look.roundCap ? Qt::RoundCap : Qt::FlatCap);
        pen.setJoinStyle(look.roundJoin ? Qt::RoundJoin : Qt::SvgMiterJoin);
        if (look.dashes.isEmpty() || look.width <= 0) return pen;
        QList<double> inWidths;
        for (const double dash : look.dashes) inWidths.append(dash / look.width);
        pen.setDashPattern(inWidths);
        return pen;
    }

    QXmlStreamReader xml_;
    LineArt& art_;
};

LineArt::LineArt(const QString& path) {
    QFile file(path);
    whole_ = file.open(QIODevice::ReadOnly) && LineArtReader(file, *this).read();
}

void LineArt::paint(QPainter& painter, const QRectF& target) const {
    if (viewBox_.isEmpty()) return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(target.topLeft());
    painter.scale(target.width() / viewBox_.width(), target.height() / viewBox_.height());
    painter.translate(-viewBox_.topLeft());
    for (const Shape& shape : shapes_) {
        painter.setBrush(shape.fill);
        painter.setPen(shape.stroke);
        painter.drawPath(shape.path);
    }
    painter.restore();
}

QImage LineArt::image(int side) const {
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    paint(painter, QRectF(0, 0, side, side));
    return image;
}

namespace {

/// Paints the art at the size that is asked for, and greyed where the icon is disabled.
class LineArtEngine : public QIconEngine {
 public:
    explicit LineArtEngine(LineArt art) : art_(std::move(art)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
        const double scale = painter->device()->devicePixelRatio();
        QPixmap drawn = pixmap((QSizeF(rect.size()) * scale).toSize(), mode, state);
        painter->drawPixmap(rect, drawn);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override {
        const int side = std::min(size.width(), size.height());
        if (side <= 0) return {};
        QPixmap& drawn = drawn_[{side, mode}];
        if (drawn.isNull()) {
            drawn = QPixmap::fromImage(art_.image(side));
            QStyleOption option;
            option.palette = QApplication::palette();
            if (mode != QIcon::Normal)
                drawn = QApplication::style()->generatedIconPixmap(mode, drawn, &option);
        }
        return drawn;
    }

    QString key() const override { return QStringLiteral("zephyrgraph"); }
    QIconEngine* clone() const override { return new LineArtEngine(*this); }
    bool isNull() override { return !art_.isWhole(); }

 private:
    LineArt art_;
    std::map<std::pair<int, QIcon::Mode>, QPixmap> drawn_;
};

}  // namespace

QIcon lineArtIcon(const QString& path) { return QIcon(new LineArtEngine(LineArt(path))); }

}  // namespace zg
