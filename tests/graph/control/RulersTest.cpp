#include "graph/control/Rulers.h"

#include <gtest/gtest.h>

#include "tests/support/RecordingCanvas.h"

namespace zg {
namespace {

RulerView viewOfSixHundred() {
    RulerView view;
    view.length = 700;
    view.thickness = 20;
    view.pageStart = 5;
    view.pageLength = 600;
    view.centre = 305;
    view.unitLength = 40;
    return view;
}

TEST(Rulers, UnitModeMarksEveryUnitFromTheCentre) {
    const auto marks = rulerMarks(viewOfSixHundred());
    ASSERT_EQ(marks.size(), 31U) << "fifteen to each side of the centre, 20 pixels apart";
    EXPECT_EQ(marks[15], (RulerMark{305, "0"}));
    EXPECT_EQ(marks[16], (RulerMark{325, ""}));
    EXPECT_EQ(marks[17], (RulerMark{345, "1"}));
    EXPECT_EQ(marks[13], (RulerMark{265, "1"}));
}

TEST(Rulers, NumbersThinOutBeforeTheyTouch) {
    RulerView view = viewOfSixHundred();
    view.unitLength = 4;
    const auto marks = rulerMarks(view);
    double last = -1000;
    for (const RulerMark& mark : marks)
        if (!mark.text.empty()) {
            EXPECT_GE(mark.position - last, 34);
            last = mark.position;
        }
}

TEST(Rulers, UnitModeShowsDecimals) {
    RulerView view = viewOfSixHundred();
    view.unitLength = 100;
    const auto marks = rulerMarks(view);
    EXPECT_EQ(marks[7], (RulerMark{355, "0.5"}));
}

TEST(Rulers, TheOtherModeNumbersThePagesPixels) {
    RulerView view = viewOfSixHundred();
    view.mode = 0;
    const auto marks = rulerMarks(view);
    EXPECT_EQ(marks.front(), (RulerMark{5, "0"}));
    EXPECT_EQ(marks[1], (RulerMark{15, ""}));
    EXPECT_EQ(marks[5], (RulerMark{55, "50"}));
    EXPECT_EQ(marks.back(), (RulerMark{605, "600"}));
}

TEST(Rulers, NothingIsMarkedBeforeTheFirstDrawing) {
    RulerView view = viewOfSixHundred();
    view.unitLength = 0;
    EXPECT_TRUE(rulerMarks(view).empty());
    view.unitLength = 1e-12;
    EXPECT_TRUE(rulerMarks(view).empty());
}

TEST(Rulers, TheBaseIsTheButtonFaceWithABandNextToThePage) {
    RecordingCanvas canvas(700, 20);
    paintRuler(canvas, viewOfSixHundred());
    EXPECT_EQ(canvas.all<drawn::Clear>().at(0).colour, buttonFaceColour);
    const auto rectangles = canvas.all<drawn::FillRectangle>();
    EXPECT_EQ(rectangles.at(1).rectangle, (Rect{5, 0, 605, 20}));
    EXPECT_EQ(rectangles.at(2).rectangle, (Rect{0, 18, 700, 20}));
    EXPECT_EQ(rectangles.at(2).colour, rgb(172, 168, 153));
}

TEST(Rulers, AnUprightRulerRunsDownThePage) {
    RulerView view = viewOfSixHundred();
    view.horizontal = false;
    RecordingCanvas canvas(20, 700);
    paintRuler(canvas, view);
    EXPECT_EQ(canvas.all<drawn::FillRectangle>().at(1).rectangle, (Rect{0, 5, 20, 605}));
}

}  // namespace
}  // namespace zg
