// Long sweeps: events are processed meanwhile, the sweeps can be stopped, and none runs for ever.

#include <gtest/gtest.h>

#include "graph/control/CurveTable.h"
#include "graph/control/SweepWatch.h"
#include "tests/graph/control/PolarGraphFixture.h"

namespace zg {
namespace {

constexpr int outOfTime = 32811;

class SlowSweep : public PolarGraphFixture {
 protected:
    SlowSweep() : graph(window, host, tables) {
        graph.events.DrawProgress = [this](float, float, float, float, float) {
            ++points;
            host.now += millisecondsAPoint;
        };
        graph.events.DrawBegin = [this](bool& value) { begins.push_back(value); };
        window.forget();
    }

    GrapInfo& add(const std::string& equation, const std::string& coefficient = {}) {
        GrapInfo& curve = graph.Plot().Add(coefficient, equation, rgb(1, 2, 3), rgb(4, 5, 6));
        curve.Step = 10;
        return curve;
    }
    std::size_t lines() const { return window.canvas.all<drawn::Line>().size(); }
    std::string errorOf(const std::function<void()>& action) {
        try {
            action();
        } catch (const RunTimeError& error) {
            return std::to_string(error.number) + " " + error.description;
        }
        return {};
    }

    PolarGraph graph;
    int millisecondsAPoint = 0;
    int points = 0;
    std::vector<bool> begins;
};

TEST_F(SlowSweep, ServesEventsAndAFastOneNone) {
    add("2");
    graph.DrawGraph();
    EXPECT_EQ(host.pumps, 0);
    millisecondsAPoint = 50;
    bool running = true;
    host.onPump = [&] { running = running && !graph.StopAni(); };
    window.forget();
    graph.DrawGraph();
    EXPECT_EQ(points, 2 * 37);
    EXPECT_GE(host.pumps, 15) << "every 100 ms";
    EXPECT_LE(host.pumps, 19);
    EXPECT_TRUE(running) << "what an animation locks stays locked";
    EXPECT_GE(window.count("pagePainted"), host.pumps) << "the page shows how far it has come";
    EXPECT_EQ(lines(), 36U);
    EXPECT_TRUE(graph.StopAni());
}

TEST_F(SlowSweep, EndsByStopAniAndTheCurvesAfterItWithIt) {
    add("2");
    add("3");
    millisecondsAPoint = 100;
    host.onPump = [this] {
        if (points == 5) graph.StopAni(true);
    };
    graph.DrawGraph();
    EXPECT_EQ(points, 5);
    EXPECT_EQ(begins, (std::vector<bool>{false, true}));
    EXPECT_TRUE(graph.StopAni());
    host.onPump = {};
    points = 0;
    graph.Refresh();
    EXPECT_EQ(points, 2 * 37) << "the next redraw draws all of them again";
}

TEST_F(SlowSweep, ReachesItsLastPointWhereItIsStopped) {
    add("0.001");
    millisecondsAPoint = 100;
    host.onPump = [this] { graph.StopAni(points == 5); };
    EXPECT_FALSE(graph.DrawGraph());
    EXPECT_EQ(points, 5);
    EXPECT_EQ(lines(), 1U) << "steps too small to be seen are one line";
    host.onPump = {};
    EXPECT_TRUE(graph.DrawGraph());
}

TEST_F(SlowSweep, BeyondTheLimitIsAnErrorThatNamesTheFormula) {
    add("2+t");
    millisecondsAPoint = 1000;
    EXPECT_EQ(errorOf([this] { graph.DrawGraph(std::int16_t{1}); }),
              "32811 The script ran out of time: more than 30 seconds for one curve: '2+t'");
    EXPECT_LE(points, 31);
    EXPECT_EQ(begins, (std::vector<bool>{false, true})) << "nothing stays locked";
    EXPECT_TRUE(graph.StopAni());
    graph.Plot().Item(1).EndingAngle = 300;
    EXPECT_EQ(errorNumberOf([this] { graph.Refresh(); }), outOfTime) << "told again for another range";
}

TEST_F(SlowSweep, ALongFormulaIsNamedByItsBeginning) {
    add("0*Len(\"" + std::string(192, 'x') + "\xC3\xBC\")");
    millisecondsAPoint = 1000;
    const std::string told = errorOf([this] { graph.DrawGraph(); });
    EXPECT_EQ(told.substr(told.size() - 8), "xxxx...'") << "no character is cut in two";
}

TEST_F(SlowSweep, ServicesDoNotCountToTheLimit) {
    add("2");
    millisecondsAPoint = 100;
    host.onPump = [this] { host.now += 60'000; };
    graph.DrawGraph();
    EXPECT_EQ(points, 37);
}

TEST_F(SlowSweep, AnAnimationHasNoLimit) {
    add("2").Delay = 5000;
    graph.DrawGraph(std::int16_t{1}, CurveSweep::StepByStep);
    EXPECT_EQ(points, 37);
    EXPECT_GT(host.now, 180'000);
}

TEST_F(SlowSweep, WhatIsToBeDrawnMeanwhileIsDrawnAfterwards) {
    add("2");
    add("3");
    millisecondsAPoint = 100;
    std::vector<std::int16_t> begun;
    graph.events.BeforeGraph = [&](std::int16_t& index) { begun.push_back(index); };
    int asked = 0;
    host.onPump = [&] {
        if (++asked == 1) graph.Refresh();
        if (asked == 1) graph.DrawGraph(std::int16_t{2});
    };
    graph.DrawGraph();
    EXPECT_EQ(begun, (std::vector<std::int16_t>{1, 1, 2})) << "all once more, none within another";
    EXPECT_EQ(begins, (std::vector<bool>{false, true, false, true, false, true}));
    EXPECT_EQ(points, 1 + 2 * 37);
    begun.clear();
    asked = 0;
    graph.DrawGraph(std::int16_t{2});
    EXPECT_EQ(begun, (std::vector<std::int16_t>{2, 1, 2})) << "the page was drawn anew meanwhile";
}

TEST_F(SlowSweep, TheVariablesOfACurveAreItsOwnToTheEnd) {
    add("a", "a=2");
    GrapInfo& other = add("a", "a=5");
    other.Step = 90;
    millisecondsAPoint = 100;
    bool asked = false;
    host.onPump = [&] {
        if (!asked) graph.DrawGraph(std::int16_t{2});
        asked = true;
    };
    std::vector<float> radii;
    graph.events.DrawProgress = [&](float, float radius, float, float, float) {
        radii.push_back(radius);
        host.now += 100;
    };
    graph.DrawGraph();
    ASSERT_GE(radii.size(), 38U);
    for (std::size_t i = 0; i < 38; ++i) EXPECT_EQ(radii[i], 2) << i;
}

/// Each reading of the clock takes time, and scripts read it now and then.
class SlowScript : public SlowSweep {
 protected:
    static constexpr const char* endless = "Function f(x):Do:Loop:End Function";
};

TEST_F(SlowScript, ServesEventsInTheMiddleOfAnAngle) {
    add("f(t)", endless);
    host.tick = 5;
    host.onPump = [this] { graph.StopAni(true); };
    graph.DrawGraph();
    EXPECT_EQ(host.pumps, 1);
    EXPECT_EQ(points, 0);
    EXPECT_TRUE(graph.StopAni());
}

TEST_F(SlowScript, IsNamedWhereOneAngleTakesTooLong) {
    add("f(t)", endless);
    host.tick = 50;
    EXPECT_EQ(errorOf([this] { graph.DrawGraph(); }), "32811 The script ran out of time: 'f(t)'");
}

TEST_F(SlowScript, ServesEventsWhileTheCoefficientRuns) {
    add("t", "Do:Loop");
    host.tick = 5;
    host.onPump = [this] { graph.StopAni(true); };
    graph.DrawGraph();
    EXPECT_EQ(host.pumps, 1);
}

TEST_F(SlowScript, TheEngineGoesOnAfterAStop) {
    add("f(t)", endless);
    add("2");
    host.tick = 5;
    host.onPump = [this] { graph.StopAni(true); };
    graph.DrawGraph();
    host.tick = 0;
    graph.DrawGraph(std::int16_t{2});
    EXPECT_EQ(points, 37);
}

TEST_F(SlowScript, ATableHasALimitOnlyWhereNothingCanStopIt) {
    GrapInfo curve;
    curve.Coefficient = endless;
    curve.Equation = "f(t)";
    std::int64_t now = 0;
    const auto clock = [&now] { return now += 50; };
    EXPECT_EQ(errorOf([&] { tabulateCurve(curve, clock); }),
              "32811 The script ran out of time: more than 30 seconds for one curve: 'f(t)'");
    int served = 0;
    now = 0;
    EXPECT_THROW(tabulateCurve(curve, clock, {}, [&served] { return ++served < 3000; }), SweepStopped);
    EXPECT_EQ(served, 3000);
    EXPECT_GT(now, 2 * SweepWatch::usualLimit);
}

}  // namespace
}  // namespace zg
