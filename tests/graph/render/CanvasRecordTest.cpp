#include "graph/render/CanvasRecord.h"

#include <gtest/gtest.h>

#include "tests/support/RecordingCanvas.h"

namespace zg {
namespace {

class CanvasRecordTest : public ::testing::Test {
 protected:
    RecordingCanvas page;
    CanvasRecord record;
    RecordedCanvas canvas{page, record};

    RecordingCanvas replayed() const {
        RecordingCanvas other;
        record.replay(other);
        return other;
    }
};

TEST_F(CanvasRecordTest, EveryOperationIsPaintedAndCanBePaintedAgain) {
    const auto picture = std::make_shared<BlankPicture>(3, 4);
    const auto mask = std::make_shared<BlankPicture>(3, 4);
    const LineStyle dashed{rgb(1, 2, 3), 2, 1, 5};
    const TextStyle bold{"Arial", 9, true, false, rgb(4, 5, 6)};
    canvas.clear(rgb(7, 8, 9));
    canvas.blit(picture, {0, 1, 2, 3});
    canvas.blitMasked(picture, mask, {4, 5, 6, 7});
    canvas.fillRectangle({1, 1, 2, 2}, rgb(1, 0, 0));
    canvas.circle({10, 20}, 30, rgb(2, 0, 0));
    canvas.disc({11, 21}, 31, rgb(3, 0, 0), rgb(4, 0, 0));
    canvas.line({0, 0}, {5, 6}, dashed);
    canvas.pie({12, 22}, 32, 0.5, 1.5, rgb(5, 0, 0), rgb(6, 0, 0));
    canvas.fillPolygon({{0, 0}, {1, 0}, {0, 1}}, rgb(7, 0, 0));
    canvas.setTextPosition({40, 50});
    canvas.text("first", bold);
    canvas.text("below", bold);
    canvas.keepPicture();
    ASSERT_EQ(page.commands.size(), 12U);
    EXPECT_EQ(
        page.commands,
        (std::vector<drawn::Command>{
            drawn::Clear{rgb(7, 8, 9)}, drawn::Blit{picture, {0, 1, 2, 3}},
            drawn::BlitMasked{picture, mask, {4, 5, 6, 7}}, drawn::FillRectangle{{1, 1, 2, 2}, rgb(1, 0, 0)},
            drawn::Circle{{10, 20}, 30, rgb(2, 0, 0)}, drawn::Disc{{11, 21}, 31, rgb(3, 0, 0), rgb(4, 0, 0)},
            drawn::Line{{0, 0}, {5, 6}, dashed},
            drawn::Pie{{12, 22}, 32, 0.5, 1.5, rgb(5, 0, 0), rgb(6, 0, 0)},
            drawn::FillPolygon{{{0, 0}, {1, 0}, {0, 1}}, rgb(7, 0, 0)}, drawn::Text{{40, 50}, "first", bold},
            drawn::Text{{0, 63.5}, "below", bold}, drawn::KeepPicture{}}));
    EXPECT_EQ(record.commands(), page.commands);
    EXPECT_EQ(replayed().commands, page.commands);
}

TEST_F(CanvasRecordTest, MeasuresAreThoseOfTheCanvasThatIsPaintedOn) {
    page.resize(70, 80);
    EXPECT_EQ(canvas.width(), 70);
    EXPECT_EQ(canvas.height(), 80);
    const TextStyle style;
    EXPECT_EQ(canvas.measure("abc", style).width, page.measure("abc", style).width);
    canvas.setTextPosition({3, 4});
    EXPECT_EQ(page.textPosition(), (Point{3, 4}));
    EXPECT_EQ(canvas.textPosition(), (Point{3, 4}));
}

TEST_F(CanvasRecordTest, AClearingForgetsWhatItHides) {
    canvas.circle({1, 1}, 1, black);
    canvas.clear(white);
    canvas.circle({2, 2}, 2, black);
    EXPECT_EQ(record.commands(),
              (std::vector<drawn::Command>{drawn::Clear{white}, drawn::Circle{{2, 2}, 2, black}}));
}

TEST_F(CanvasRecordTest, RestoringGoesBackToWhatWasKept) {
    canvas.clear(white);
    record.keep();
    canvas.circle({2, 2}, 2, black);
    record.restore();
    EXPECT_EQ(record.commands(), std::vector<drawn::Command>{drawn::Clear{white}});
    canvas.circle({3, 3}, 3, black);
    record.restore();
    EXPECT_EQ(record.commands().size(), 1U);
    record.reset();
    EXPECT_TRUE(record.commands().empty());
    canvas.circle({3, 3}, 3, black);
    record.restore();
    EXPECT_TRUE(record.commands().empty()) << "nothing has been kept since";
}

TEST_F(CanvasRecordTest, ItIsBoundedAndSaysSo) {
    canvas.clear(white);
    record.keep();
    for (std::size_t i = 1; i < CanvasRecord::mostCommands; ++i) record.add(drawn::Circle{{1, 1}, 1, black});
    EXPECT_TRUE(record.isComplete());
    record.add(drawn::Circle{{1, 1}, 1, black});
    EXPECT_FALSE(record.isComplete());
    EXPECT_EQ(record.commands().size(), CanvasRecord::mostCommands);
    record.restore();
    EXPECT_TRUE(record.isComplete()) << "what was kept is whole";
    for (std::size_t i = 0; i < CanvasRecord::mostCommands; ++i) record.add(drawn::Circle{{1, 1}, 1, black});
    record.keep();
    record.restore();
    EXPECT_FALSE(record.isComplete());
    canvas.clear(white);
    EXPECT_TRUE(record.isComplete());
    EXPECT_EQ(record.commands().size(), 1U);
}

TEST_F(CanvasRecordTest, APictureIsThereForAsLongAsTheRecord) {
    canvas.blit(std::make_shared<BlankPicture>(5, 6), {0, 0, 5, 6});
    page.commands.clear();
    EXPECT_EQ(replayed().all<drawn::Blit>().at(0).picture->width(), 5);
}

}  // namespace
}  // namespace zg
