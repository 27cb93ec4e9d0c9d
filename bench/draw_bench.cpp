// One redraw of a 600 x 600 page compared with the same shapes and texts painted directly with the toolkit's
// painter.

#include <benchmark/benchmark.h>

#include <QElapsedTimer>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainterPath>
#include <cmath>
#include <numbers>

#include "graph/control/CreatePolar.h"
#include "graph/control/CurveEvaluator.h"
#include "graph/control/SweepWatch.h"
#include "graph/frq/OpenFreqFile.h"
#include "graph/render/CanvasRecord.h"
#include "graph/render/Curve.h"
#include "graph/render/RedrawGraph.h"
#include "platform/QtCanvas.h"
#include "platform/QtText.h"
#include "tests/support/DeafHost.h"
#include "tests/support/RecordingCanvas.h"

namespace {

constexpr int side = 600;

zg::Polar& loadedPolar() {
    static zg::Polar polar = [] {
        zg::Polar fresh = zg::createPolar(zg::modPolarGraph);
        DeafHost host;
        zg::loadFreqFile(ZG_SOURCE_DIR "/data/samples/LOVETT_1988.frq", zg::modPolarGraph, host);
        return fresh;
    }();
    return polar;
}

void redraw(benchmark::State& state) {
    zg::Polar& polar = loadedPolar();
    QImage page = zg::makePageImage(side, side);
    for (auto _ : state) {
        zg::QtCanvas canvas(page, side, side);
        zg::PolarGeometry geometry;
        zg::redrawFrame(zg::PlotSettings{}, polar, zg::modPolarGraph, canvas, geometry);
    }
}
BENCHMARK(redraw)->Unit(benchmark::kMillisecond);

/// The same with the record that is needed for printing.
void redrawWithRecord(benchmark::State& state) {
    zg::Polar& polar = loadedPolar();
    QImage page = zg::makePageImage(side, side);
    zg::CanvasRecord record;
    for (auto _ : state) {
        zg::QtCanvas surface(page, side, side);
        zg::RecordedCanvas canvas(surface, record);
        zg::PolarGeometry geometry;
        zg::redrawFrame(zg::PlotSettings{}, polar, zg::modPolarGraph, canvas, geometry);
    }
}
BENCHMARK(redrawWithRecord)->Unit(benchmark::kMillisecond);

/// Paints one recorded command with plain painter calls.
struct Straight {
    QPainter& painter;

    void operator()(const drawn::Clear& c) const {
        painter.fillRect(0, 0, side, side, zg::toQColor(c.colour));
    }
    void operator()(const drawn::FillRectangle& r) const {
        painter.fillRect(QRectF(QPointF(r.rectangle.left, r.rectangle.top),
                                QPointF(r.rectangle.right, r.rectangle.bottom)),
                         zg::toQColor(r.colour));
    }
    void operator()(const drawn::Circle& c) const {
        painter.setPen(zg::toQColor(c.colour));
        painter.setBrush(Qt::NoBrush);
        painter.drawEllipse(QPointF(c.centre.x, c.centre.y), c.radius, c.radius);
    }
    void operator()(const drawn::Disc& d) const {
        painter.setPen(zg::toQColor(d.outline));
        painter.setBrush(zg::toQColor(d.fill));
        painter.drawEllipse(QPointF(d.centre.x, d.centre.y), d.radius, d.radius);
    }
    void operator()(const drawn::Line& l) const {
        painter.setPen(zg::toQColor(l.style.colour));
        painter.drawLine(QPointF(l.from.x, l.from.y), QPointF(l.to.x, l.to.y));
    }
    void operator()(const drawn::Pie& p) const {
        if (!(p.radius > 0)) return;
        const double degrees = 180 / std::numbers::pi;
        const double sweep = p.end < p.start ? p.end + 2 * std::numbers::pi - p.start : p.end - p.start;
        QPainterPath path(QPointF(p.centre.x, p.centre.y));
        path.arcTo(QRectF(p.centre.x - p.radius, p.centre.y - p.radius, 2 * p.radius, 2 * p.radius),
                   p.start * degrees, sweep * degrees);
        path.closeSubpath();
        painter.setPen(zg::toQColor(p.outline));
        painter.setBrush(zg::toQColor(p.fill));
        painter.drawPath(path);
    }
    void operator()(const drawn::Text& t) const {
        QFont font(QString::fromStdString(t.style.face));
        font.setPointSizeF(t.style.size);
        font.setBold(t.style.bold);
        font.setItalic(t.style.italic);
        painter.setFont(font);
        painter.setPen(zg::toQColor(t.style.colour));
        painter.drawText(QPointF(t.at.x, t.at.y + t.style.size), QString::fromStdString(t.text));
    }
    template <typename Other>
    void operator()(const Other&) const {}
};

void paintedStraight(benchmark::State& state) {
    RecordingCanvas recording(side, side);
    zg::PolarGeometry geometry;
    zg::redrawFrame(zg::PlotSettings{}, loadedPolar(), zg::modPolarGraph, recording, geometry);
    QImage page = zg::makePageImage(side, side);
    for (auto _ : state) {
        QPainter painter(&page);
        painter.setRenderHint(QPainter::Antialiasing);
        for (const auto& command : recording.commands) std::visit(Straight{painter}, command);
    }
}
BENCHMARK(paintedStraight)->Unit(benchmark::kMillisecond);

/// A surface that accepts drawing and does nothing, to measure the work apart from rasterising.
class NoSurface : public RecordingCanvas {
 public:
    NoSurface() : RecordingCanvas(side, side) {}
    void line(zg::Point, zg::Point, const zg::LineStyle&) override { ++lines; }
    long lines = 0;
};

void curve(benchmark::State& state) {
    zg::ScriptEngine engine([] { return std::int64_t{0}; });
    zg::GrapInfo graph;
    graph.Equation = "4*sin(2*t)";
    graph.Step = 360.0F / static_cast<float>(state.range(0));
    zg::PolarGeometry geometry{0, 0, side / 2, side / 2, 40};
    NoSurface surface;
    QElapsedTimer clock;
    clock.start();
    for (auto _ : state) {
        zg::SweepWatch watch([&clock] { return clock.elapsed(); });
        zg::sweepUnderWatch(engine, watch, graph.Equation, [&] {
            zg::CurveEvaluator equation(engine, {}, graph.Equation);
            zg::CurvePainter painter(graph.Series, {}, geometry);
            for (zg::SweepAngles angles(graph); !angles.done(); angles.advance()) {
                const double radians = equation.turnTo(angles.angle());
                const double radius = equation.radius();
                painter.paint(surface,
                              geometry.onCanvas({radius * std::cos(radians), -radius * std::sin(radians)}));
                watch.look();
            }
            painter.finish(surface);
        });
    }
}
BENCHMARK(curve)->Arg(360)->Arg(1000000)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
