// The list of graphs with 1,000 rows in the real window: filling it, selecting all, deleting all.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QMenu>

#include "base/Paths.h"
#include "platform/QtHost.h"
#include "shell/FrmMain.h"

namespace {

constexpr int graphs = 1000;

/// A window whose plot has this many curves, listed.
void fill(zg::frmMain& window) {
    for (int i = 1; i <= graphs; ++i) {
        zg::GrapInfo& graph =
            window.pgPolarGraph().Plot().Add("a=" + std::to_string(i), "a*0.01*sin(2*t)", 0, 0);
        graph.Series.AllowMarker = true;
        graph.Visible = false;  // the list is measured, not the curves
        window.AddGraph(static_cast<std::int16_t>(i));
    }
    QApplication::processEvents();
}

void insert(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        zg::QtHost host;
        zg::frmMain window(host);
        window.SizeLegendSwatch();
        window.show();
        state.ResumeTiming();
        fill(window);
    }
}

void selectAllAndDelete(benchmark::State& state, bool timeDelete) {
    for (auto _ : state) {
        state.PauseTiming();
        zg::QtHost host;
        zg::frmMain window(host);
        window.SizeLegendSwatch();
        window.show();
        fill(window);
        if (!timeDelete) state.ResumeTiming();
        window.mnuGraphOption_Click(4);
        QApplication::processEvents();
        if (timeDelete) {
            state.ResumeTiming();
            window.mnuGraphOption_Click(2);
            QApplication::processEvents();
        }
    }
}

/// A page of 3000 x 3000 pixels in a window: redrawn and shown, or only scrolled and shown.
void largePage(benchmark::State& state, bool scrolled) {
    zg::QtHost host;
    zg::frmMain window(host);
    window.show();
    window.PlotFrqFile(ZG_SOURCE_DIR "/data/samples/LOVETT_1988.frq");
    window.pgPolarGraph().Zoom(500);
    int place = 0;
    for (auto _ : state) {
        place = (place + 40) % 1200;
        if (scrolled)
            window.pgPolarGraph().scrollTo(place, place);
        else
            window.pgPolarGraph().Refresh();
        QApplication::processEvents();
    }
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication app(argc, argv);
    benchmark::RegisterBenchmark("insert 1000 graphs", insert)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("select all of 1000", selectAllAndDelete, false)
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("delete all of 1000", selectAllAndDelete, true)
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("redraw at 500 percent", largePage, false)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("scroll at 500 percent", largePage, true)->Unit(benchmark::kMillisecond);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
