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

/// The filled rectangles without the marks.
std::vector<drawn::FillRectangle> ground(const RecordingCanvas& canvas) {
    std::vector<drawn::FillRectangle> found;
    for (const drawn::FillRectangle& one : canvas.all<drawn::FillRectangle>())
        if (one.colour != black) found.push_back(one);
    return found;
}

TEST(Rulers, TheBaseIsTheButtonFaceWithThePagesOutlineAndABandNextToThePage) {
    RecordingCanvas canvas(700, 20);
    paintRuler(canvas, viewOfSixHundred());
    EXPECT_EQ(canvas.all<drawn::Clear>(), (std::vector<drawn::Clear>{{buttonFaceColour}}));
    const Colour grey = rgb(128, 128, 128);
    const Colour band = rgb(172, 168, 153);
    EXPECT_EQ(ground(canvas),
              (std::vector<drawn::FillRectangle>{
                  {{4, 4, 606, 16}, grey}, {{5, 5, 605, 15}, white}, {{0, 18, 700, 20}, band}}))
        << "white five off, grey four off, its ends one pixel outside the page";
}

TEST(Rulers, AnUprightRulerRunsDownThePage) {
    RulerView view = viewOfSixHundred();
    view.horizontal = false;
    RecordingCanvas canvas(20, 700);
    paintRuler(canvas, view);
    const auto filled = ground(canvas);
    EXPECT_EQ(filled.at(0).rectangle, (Rect{4, 4, 16, 606}));
    EXPECT_EQ(filled.at(1).rectangle, (Rect{5, 5, 15, 605}));
    EXPECT_EQ(filled.at(2).rectangle, (Rect{18, 0, 20, 700}));
}

TEST(Rulers, MarksStandOnTheBandAndNumberedOnesAreLonger) {
    RecordingCanvas canvas(700, 20);
    paintRuler(canvas, viewOfSixHundred());
    std::vector<Rect> marks;
    for (const drawn::FillRectangle& one : canvas.all<drawn::FillRectangle>())
        if (one.colour == black) marks.push_back(one.rectangle);
    ASSERT_EQ(marks.size(), 31U);
    EXPECT_EQ(marks[15], (Rect{305, 14, 306, 18}));
    EXPECT_EQ(marks[16], (Rect{325, 16, 326, 18}));
}

TEST(Rulers, NumbersArePlacedAtTheirMarkByFourFifthsOfTheirSize) {
    RulerView view = viewOfSixHundred();
    RecordingCanvas canvas(700, 20);
    paintRuler(canvas, view);
    const drawn::Text zero = canvas.textReading("0");
    const TextSize size = canvas.measure("0", zero.style);
    EXPECT_DOUBLE_EQ(zero.at.x, 305 - 0.8 * size.width / 2);
    EXPECT_EQ(zero.at.y, 5);
    EXPECT_EQ(zero.style, (TextStyle{"Arial", 6, false, false, black}));
    view.horizontal = false;
    RecordingCanvas upright(20, 700);
    paintRuler(upright, view);
    EXPECT_DOUBLE_EQ(upright.textReading("0").at.y, 305 - 0.8 * size.height);
    EXPECT_EQ(upright.textReading("0").at.x, 6) << "within the strip";
    view.mode = 0;
    RecordingCanvas pixels(20, 700);
    paintRuler(pixels, view);
    const drawn::Text wide = pixels.textReading("600");
    EXPECT_LE(wide.at.x + pixels.measure("600", wide.style).width, 14) << "beside its mark, not over it";
}

TEST(Rulers, MarksOutOfSightAreNotPainted) {
    RulerView view = viewOfSixHundred();
    view.length = 100;
    RecordingCanvas canvas(100, 20);
    paintRuler(canvas, view);
    for (const drawn::FillRectangle& one : canvas.all<drawn::FillRectangle>())
        if (one.colour == black) {
            EXPECT_LE(one.rectangle.left, 100 + 34);
        }
    EXPECT_EQ(ground(canvas).at(2).rectangle, (Rect{0, 18, 100, 20})) << "the band ends with the ruler";
}

TEST(Rulers, MarksOfANumberThatReachesIntoSightArePainted) {
    RulerView view = viewOfSixHundred();
    view.mode = 0;
    view.pageStart = -100;  // marks at -100, -90 and so on
    view.length = 100;
    RecordingCanvas canvas(100, 20);
    paintRuler(canvas, view);
    std::vector<double> places;
    for (const drawn::FillRectangle& one : canvas.all<drawn::FillRectangle>())
        if (one.colour == black) places.push_back(one.rectangle.left);
    ASSERT_FALSE(places.empty());
    EXPECT_EQ(places.front(), -30);
    EXPECT_EQ(places.back(), 130);
    EXPECT_EQ(places.size(), 17U);
}

TEST(Rulers, TheCornerShowsACrossOnTheButtonFace) {
    RecordingCanvas canvas(20, 20);
    paintRulerCorner(canvas);
    EXPECT_EQ(canvas.all<drawn::Clear>(), (std::vector<drawn::Clear>{{buttonFaceColour}}));
    EXPECT_EQ(ground(canvas).at(0).rectangle, (Rect{18, 0, 20, 20}));
    EXPECT_EQ(ground(canvas).at(1).rectangle, (Rect{0, 18, 20, 20}));
    const LineStyle style{rgb(128, 128, 128), 1, 0};
    EXPECT_EQ(canvas.all<drawn::Line>(),
              (std::vector<drawn::Line>{{{4, 9}, {14, 9}, style}, {{9, 4}, {9, 14}, style}}));
}

TEST(Rulers, ACornerThatIsNoSquareFollowsBothItsSizes) {
    RecordingCanvas canvas(20, 40);
    paintRulerCorner(canvas);
    EXPECT_EQ(ground(canvas).at(0), (drawn::FillRectangle{{18, 0, 20, 40}, rgb(172, 168, 153)}));
    EXPECT_EQ(ground(canvas).at(1), (drawn::FillRectangle{{0, 38, 20, 40}, rgb(172, 168, 153)}));
    const auto lines = canvas.all<drawn::Line>();
    EXPECT_EQ(lines.at(0).from, (Point{4, 19}));
    EXPECT_EQ(lines.at(0).to, (Point{14, 19}));
    EXPECT_EQ(lines.at(1).from, (Point{9, 4}));
    EXPECT_EQ(lines.at(1).to, (Point{9, 34}));
}

}  // namespace
}  // namespace zg
