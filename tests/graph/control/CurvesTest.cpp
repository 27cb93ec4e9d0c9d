// Curves on the page, sampled, styled and animated.

#include <gtest/gtest.h>

#include <cmath>

#include "base/MathLibrary.h"
#include "graph/control/CurveEvaluator.h"
#include "graph/script/ScriptError.h"
#include "tests/graph/control/PolarGraphFixture.h"

namespace zg {
namespace {

class Curves : public PolarGraphFixture {
 protected:
    Curves() : graph(window, host, tables) { window.forget(); }

    GrapInfo& add(const std::string& equation, const std::string& coefficient = {}) {
        return graph.Plot().Add(coefficient, equation, rgb(1, 2, 3), rgb(4, 5, 6));
    }

    std::vector<drawn::Line> lines() const { return window.canvas.all<drawn::Line>(); }

    Point onPage(double radius, double degrees) const {
        const PolarGeometry& g = graph.geometry();
        const double a = MathLibrary::Radians(degrees);
        return {static_cast<double>(g.CentreX) + radius * std::cos(a) * static_cast<double>(g.UnitLength),
                static_cast<double>(g.CentreY) - radius * std::sin(a) * static_cast<double>(g.UnitLength)};
    }

    static void expectNear(Point a, Point b) {
        EXPECT_NEAR(a.x, b.x, 1e-4);
        EXPECT_NEAR(a.y, b.y, 1e-4);
    }

    PolarGraph graph;
};

TEST_F(Curves, PointsGoCounterclockwiseFromEastWithUpPositive) {
    GrapInfo& curve = add("2");
    curve.EndingAngle = 180;
    curve.Step = 90;
    graph.DrawGraph();
    ASSERT_EQ(lines().size(), 2U) << "the first point only sets the pen";
    expectNear(lines()[0].from, onPage(2, 0));
    expectNear(lines()[0].to, onPage(2, 90));
    expectNear(lines()[1].to, onPage(2, 180));
    EXPECT_LT(lines()[0].to.y, static_cast<double>(graph.geometry().CentreY)) << "90 degrees is up";
    EXPECT_EQ(lines()[0].style, (LineStyle{rgb(1, 2, 3), 1, 0, 0}));
}

TEST_F(Curves, PenWeightAndStyleAreThoseOfTheLine) {
    GrapInfo& curve = add("2");
    curve.Step = 180;
    curve.Series.Pen.Weight = 5;
    curve.Series.Pen.Style = 2;
    graph.DrawGraph();
    EXPECT_EQ(lines()[0].style, (LineStyle{rgb(1, 2, 3), 5, 2, 0}));
}

TEST_F(Curves, DashesRunThroughFromPieceToPiece) {
    GrapInfo& curve = add("2");
    curve.Step = 90;
    curve.Series.Pen.Style = 1;
    graph.DrawGraph();
    ASSERT_EQ(lines().size(), 4U);
    const double piece = std::hypot(lines()[0].to.x - lines()[0].from.x, lines()[0].to.y - lines()[0].from.y);
    EXPECT_EQ(lines()[0].style.phase, 0);
    EXPECT_NEAR(lines()[1].style.phase, piece, 1e-6);
    EXPECT_NEAR(lines()[3].style.phase, 3 * piece, 1e-3);
}

TEST_F(Curves, TIsInRadiansAndTheCoefficientRunsBefore) {
    GrapInfo& curve = add("a*t/MathLib.Pi", "a=2:b=3");
    curve.EndingAngle = 180;
    curve.Step = 180;
    graph.DrawGraph();
    ASSERT_EQ(lines().size(), 1U);
    expectNear(lines()[0].to, onPage(2, 180));
}

TEST_F(Curves, ACoefficientWithAConstantSurvivesEveryRedraw) {
    add("k", "Const k = 2").Step = 180;
    graph.Refresh();
    graph.Refresh();
    EXPECT_EQ(window.frames(), 2U);
}

TEST_F(Curves, ACoefficientIsTrimmedAndClosedOnce) {
    EXPECT_EQ(coefficientCode("  "), "");
    EXPECT_EQ(coefficientCode(" a=2 "), "a=2:");
    EXPECT_EQ(coefficientCode("a=2:"), "a=2:");
}

TEST_F(Curves, HiddenOnesAreNotDrawnAndOneCanBeAskedFor) {
    add("1").Visible = false;
    add("2").Step = 180;
    add("3").Step = 90;
    graph.DrawGraph();
    EXPECT_EQ(lines().size(), 2U + 4U);
    window.forget();
    graph.DrawGraph(std::int16_t{2});
    EXPECT_EQ(lines().size(), 2U);
    window.forget();
    graph.DrawGraph(std::int16_t{1});
    EXPECT_TRUE(lines().empty());
    EXPECT_THROW(graph.DrawGraph(std::int16_t{4}), RunTimeError);
}

TEST_F(Curves, WithoutPenOrConnectionNoLineIsDrawn) {
    add("2").Series.AllowPen = false;
    graph.DrawGraph();
    EXPECT_TRUE(lines().empty());
    graph.Plot().Item(1).Series.AllowPen = true;
    graph.Plot().Item(1).Series.Pen.AllowConVertices = false;
    graph.DrawGraph();
    EXPECT_TRUE(lines().empty());
}

TEST_F(Curves, ShadingFillsBetweenCentreAndCurve) {
    GrapInfo& curve = add("2");
    curve.Step = 90;
    curve.EndingAngle = 90;
    curve.Series.Pen.AllowShading = true;
    graph.DrawGraph();
    const auto polygons = window.canvas.all<drawn::FillPolygon>();
    ASSERT_EQ(polygons.size(), 1U);
    EXPECT_EQ(polygons[0].colour, rgb(1, 2, 3));
    expectNear(polygons[0].corners[0], onPage(0, 0));
    expectNear(polygons[0].corners[1], onPage(2, 0));
    expectNear(polygons[0].corners[2], onPage(2, 90));
}

TEST_F(Curves, ACharacterMarkerStandsCentredOnEachPoint) {
    GrapInfo& curve = add("2");
    curve.EndingAngle = 90;
    curve.Step = 90;
    curve.Series.AllowPen = false;
    curve.Series.AllowMarker = true;
    graph.DrawGraph();
    const auto texts = window.canvas.all<drawn::Text>();
    ASSERT_EQ(texts.size(), 2U);
    EXPECT_EQ(texts[0].text, "A");
    EXPECT_EQ(texts[0].style.face, "Wingdings");
    EXPECT_EQ(texts[0].style.colour, rgb(4, 5, 6));
    const TextSize size = window.canvas.measure("A", texts[0].style);
    expectNear(texts[0].at, {onPage(2, 0).x - size.width / 2, onPage(2, 0).y - size.height / 2});
}

TEST_F(Curves, AlignmentPlacesTheMarkerLeftOrRightAndAboveOrBelow) {
    const Point at{100, 100};
    const TextSize size{10, 20};
    EXPECT_EQ(alignedCorner(at, size, 0, 4), (Point{90, 80}));
    EXPECT_EQ(alignedCorner(at, size, 1, 8), (Point{100, 100}));
    EXPECT_EQ(alignedCorner(at, size, 2, 16), (Point{95, 90}));
}

TEST_F(Curves, APictureMarkerGoesThroughItsMaskAtItsSize) {
    window.pictures["p"] = std::make_shared<BlankPicture>(40, 40);
    window.pictures["m"] = std::make_shared<BlankPicture>(40, 40);
    GrapInfo& curve = add("0");
    curve.Step = 360;
    curve.Series.AllowPen = false;
    curve.Series.AllowMarker = true;
    Marker& marker = curve.Series.Marker;
    marker.UsePicture = true;
    marker.PicturePath = "p";
    marker.MaskPicturePath = "m";
    marker.SetPictureSize(12, 8);
    graph.DrawGraph();
    auto masked = window.canvas.all<drawn::BlitMasked>();
    ASSERT_EQ(masked.size(), 2U);
    EXPECT_NEAR(masked[0].target.right - masked[0].target.left, 12, 1e-9);
    EXPECT_NEAR(masked[0].target.bottom - masked[0].target.top, 8, 1e-9);
    marker.Transparent = false;
    window.forget();
    graph.DrawGraph();
    EXPECT_EQ(window.canvas.all<drawn::Blit>().size(), 2U);
    marker.PicturePath = "missing";
    window.forget();
    graph.DrawGraph();
    EXPECT_TRUE(window.canvas.all<drawn::Blit>().empty())
        << "a missing picture draws nothing and says nothing";
}

TEST_F(Curves, NegativeStepsSweepDownwards) {
    GrapInfo& curve = add("2");
    curve.StartingAngle = 180;
    curve.EndingAngle = 0;
    curve.Step = -90;
    graph.DrawGraph();
    ASSERT_EQ(lines().size(), 2U);
    expectNear(lines()[0].from, onPage(2, 180));
    expectNear(lines()[1].to, onPage(2, 0));
    curve.Step = 90;
    window.forget();
    graph.DrawGraph();
    EXPECT_TRUE(lines().empty()) << "upwards there is nothing to sweep";
}

TEST_F(Curves, AnglesAddUpInSinglePrecision) {
    GrapInfo& curve = add("1");
    curve.EndingAngle = 1;
    curve.Step = 0.1F;
    std::vector<float> angles;
    graph.events.DrawProgress = [&angles](float angle, float, float, float, float) {
        angles.push_back(angle);
    };
    graph.DrawGraph();
    float expected = 0;
    for (const float angle : angles) {
        EXPECT_EQ(angle, expected);
        expected += 0.1F;
    }
    EXPECT_EQ(angles.size(), 10U) << "the error of singles carries the eleventh above 1";
}

TEST_F(Curves, EventsComeInOrderForEachCurve) {
    add("1").Step = 360;
    add("1").Step = 360;
    std::vector<std::string> seen;
    graph.events.BeforeGraph = [&seen](std::int16_t& index) {
        seen.push_back("before " + std::to_string(index));
    };
    graph.events.DrawBegin = [&seen](bool& value) { seen.push_back(value ? "true" : "false"); };
    graph.events.DrawProgress = [&seen](float angle, float, float, float, float) {
        seen.push_back(std::to_string(static_cast<int>(angle)));
    };
    graph.DrawGraph();
    EXPECT_EQ(seen, (std::vector<std::string>{"before 1", "false", "0", "360", "true", "before 2", "false",
                                              "0", "360", "true"}));
}

TEST_F(Curves, TheHostMayChangeTheNumberOfTheCurve) {
    add("1").Step = 180;
    add("2").Step = 90;
    graph.events.BeforeGraph = [](std::int16_t& index) { index = 2; };
    graph.DrawGraph(std::int16_t{1});
    EXPECT_EQ(lines().size(), 4U);
}

TEST_F(Curves, ARefreshShowsAllAtOnceWhateverTheDelay) {
    GrapInfo& curve = add("2");
    curve.Step = 90;
    curve.Delay = 1000;
    graph.Refresh();
    EXPECT_EQ(host.now, 0) << "nobody waited";
    EXPECT_EQ(curve.Delay, 1000) << "the delay is put back";
    EXPECT_TRUE(window.trackAngles.empty());
    EXPECT_TRUE(graph.StopAni());
}

TEST_F(Curves, AnAnimationWaitsAtEachStepAndTellsItsAngle) {
    GrapInfo& curve = add("2");
    curve.EndingAngle = 180;
    curve.Step = 90;
    curve.Delay = 100;
    bool running = false;
    host.onPump = [&] { running = running || !graph.StopAni(); };
    graph.DrawGraph(std::int16_t{1}, CurveSweep::StepByStep);
    EXPECT_TRUE(running);
    EXPECT_GE(host.now, 300);
    EXPECT_EQ(window.trackAngles,
              (std::vector<std::string>{"Angle : 0\xC2\xB0", "Angle : 0\xC2\xB0", "Angle : 90\xC2\xB0",
                                        "Angle : 180\xC2\xB0", ""}));
    EXPECT_TRUE(graph.StopAni());
    EXPECT_EQ(lines().size(), 2U);
}

TEST_F(Curves, TheAngleStaysUntilTheEndHasBeenTold) {
    GrapInfo& curve = add("2");
    curve.Step = 180;
    curve.Delay = 10;
    std::vector<bool> labelShown;
    graph.events.DrawBegin = [&](bool&) { labelShown.push_back(graph.surfaces().lblTrackAngle.visible); };
    graph.DrawGraph(std::int16_t{1}, CurveSweep::StepByStep);
    EXPECT_EQ(labelShown, (std::vector<bool>{false, true}))
        << "not before its beginning, and still at its end";
    EXPECT_FALSE(graph.surfaces().lblTrackAngle.visible);
}

TEST_F(Curves, StopAniEndsTheSweep) {
    GrapInfo& curve = add("2");
    curve.Delay = 10;
    int steps = 0;
    graph.events.DrawProgress = [&](float, float, float, float, float) { ++steps; };
    host.onPump = [&] {
        if (steps == 5) graph.StopAni(true);
    };
    graph.DrawGraph(std::int16_t{1}, CurveSweep::StepByStep);
    EXPECT_EQ(steps, 5);
}

TEST_F(Curves, AStepOfNothingEndsOnlyByStopAni) {
    add("2").Step = 0;
    int pumps = 0;
    host.onPump = [&] {
        if (++pumps == 50) graph.StopAni(true);
    };
    graph.DrawGraph();
    EXPECT_EQ(pumps, 50);
    EXPECT_TRUE(graph.StopAni());
}

TEST_F(Curves, AStepTooSmallToMoveTheAngleEnds) {
    GrapInfo& curve = add("2");
    curve.StartingAngle = 1e6F;
    curve.EndingAngle = 2e6F;
    curve.Step = 1e-4F;
    int steps = 0;
    graph.events.DrawProgress = [&](float, float, float, float, float) { ++steps; };
    graph.DrawGraph();
    EXPECT_EQ(steps, 1);
}

TEST_F(Curves, AnErrorReachesTheCallerAndLeavesNothingLocked) {
    GrapInfo& curve = add("1/(t-1)");
    curve.Delay = 20;
    curve.StartingAngle = 0;
    add("Sqr(-1)").Delay = 30;
    std::vector<bool> begun;
    graph.events.DrawBegin = [&begun](bool& value) { begun.push_back(value); };
    EXPECT_EQ(errorNumberOf([&] { graph.DrawGraph(std::int16_t{2}, CurveSweep::StepByStep); }), 5);
    EXPECT_EQ(begun, (std::vector<bool>{false, true}));
    EXPECT_TRUE(graph.StopAni());
    EXPECT_EQ(graph.Plot().Item(2).Delay, 30);
    EXPECT_EQ(window.trackAngles.back(), "");
    EXPECT_EQ(errorNumberOf([&] { graph.Refresh(); }), 0) << "it is raised once";
    EXPECT_EQ(graph.Plot().Item(1).Failure, "");
    EXPECT_EQ(graph.Plot().Item(2).Failure, "Invalid procedure call or argument");
    graph.Plot().Item(2).Equation = "Sqr(-2)";
    EXPECT_EQ(errorNumberOf([&] { graph.Refresh(); }), 5);
    graph.Plot().Item(2).Equation = "1";
    EXPECT_EQ(errorNumberOf([&] { graph.Refresh(); }), 0);
    graph.Plot().Item(2).Equation = "Sqr(-2)";
    EXPECT_EQ(errorNumberOf([&] { graph.Refresh(); }), 5) << "it has been whole in between";
}

TEST_F(Curves, AScriptThatDoesNotCompileIsToldWithItsPlace) {
    add("sin(t");
    try {
        graph.DrawGraph();
        FAIL();
    } catch (const ScriptError& error) {
        EXPECT_EQ(error.number, 1006);
        EXPECT_EQ(error.column, 6);
    }
    EXPECT_TRUE(lines().empty());
}

TEST_F(Curves, ACurveRemovedDuringItsAnimationIsFinished) {
    GrapInfo& curve = add("2");
    curve.EndingAngle = 180;
    curve.Step = 90;
    curve.Delay = 10;
    host.onPump = [&] {
        if (graph.Plot().Count() > 0) graph.Plot().Remove(std::int64_t{1});
    };
    graph.DrawGraph(std::int16_t{1}, CurveSweep::StepByStep);
    EXPECT_EQ(lines().size(), 2U);
}

TEST_F(Curves, AMillionPointsDrawNoMoreThanCanBeSeen) {
    GrapInfo& curve = add("4*sin(2*t)");
    curve.Step = 0.00036F;
    int steps = 0;
    graph.events.DrawProgress = [&](float, float, float, float, float) { ++steps; };
    graph.DrawGraph();
    EXPECT_GT(steps, 900000);
    EXPECT_LT(lines().size(), 40000U);
    EXPECT_GT(lines().size(), 5000U);
}

}  // namespace
}  // namespace zg
