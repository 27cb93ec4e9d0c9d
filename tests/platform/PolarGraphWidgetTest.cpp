#include "platform/PolarGraphWidget.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMouseEvent>
#include <QTest>
#include <algorithm>

#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "platform/PageWidget.h"
#include "platform/QtText.h"
#include "tests/support/Pixels.h"
#include "tests/support/TempDirectory.h"
#include "tests/support/TestHost.h"

namespace zg {
namespace {

class PolarGraphWidgetTest : public ::testing::Test {
 protected:
    void SetUp() override {
        modPolarGraph = ModPolarGraph();
        applicationDirectory = directory_.path();
        designed_.WriteProperty("Zoom", "100");
        widget_ = std::make_unique<PolarGraphWidget>(host_, modPolarGraph, designed_);
        widget_->resize(700, 700);
        widget_->show();
    }

    QWidget* child(const char* name) { return widget_->findChild<QWidget*>(QString::fromLatin1(name)); }

    TempDirectory directory_;
    TestHost host_;
    PropertyBag designed_;
    std::unique_ptr<PolarGraphWidget> widget_;
};

TEST_F(PolarGraphWidgetTest, APageOfZoom100HasSixHundredPixelsWhateverTheWindow) {
    EXPECT_EQ(child("picGraph")->size(), QSize(600, 600));
    widget_->resize(300, 200);
    EXPECT_EQ(child("picGraph")->size(), QSize(600, 600));
}

TEST_F(PolarGraphWidgetTest, TheShadowLiesThreePixelsToTheRightAndBelow) {
    EXPECT_EQ(child("picShadow")->size(), child("picGraph")->size());
    EXPECT_EQ(child("picShadow")->pos(), child("picGraph")->pos() + QPoint(3, 3));
}

TEST_F(PolarGraphWidgetTest, ThePageShowsWhatTheControlPaints) {
    widget_->graph().BackColor(rgb(10, 20, 30));
    const QImage grabbed = child("picGraph")->grab().toImage();
    EXPECT_TRUE(pixelIs(grabbed, 3, 3, rgb(10, 20, 30)));
}

TEST_F(PolarGraphWidgetTest, TheAngleIsToldOnAGroundOfTheTheme) {
    EXPECT_TRUE(child("lblTrackAngle")->autoFillBackground()) << "white text on the white page is not seen";
}

TEST_F(PolarGraphWidgetTest, ScrollingMovesThePage) {
    widget_->resize(300, 300);
    auto* bar = widget_->findChild<QScrollBar*>(QStringLiteral("vsScroll"));
    ASSERT_TRUE(bar->isVisible());
    ASSERT_GT(bar->maximum(), 50);
    const int before = child("picGraph")->y();
    bar->setValue(50);
    EXPECT_EQ(child("picGraph")->y(), before - 50);
}

TEST_F(PolarGraphWidgetTest, EveryMouseMoveTracksThePosition) {
    float bearing = -1;
    widget_->graph().events.TrackPosition = [&bearing](float, float, float b, float, float, float, float) {
        bearing = b;
    };
    QTest::mouseMove(child("picGraph"), QPoint(500, 300));
    EXPECT_NEAR(bearing, 90, 0.01);
}

TEST_F(PolarGraphWidgetTest, MouseEventsReachTheHostWithButtonAndPlace) {
    std::vector<std::string> seen;
    PolarGraphEvents& events = widget_->graph().events;
    events.MouseDown = [&seen](std::int16_t button, std::int16_t shift, float x, float y) {
        seen.push_back("down " + std::to_string(button) + " " + std::to_string(shift) + " " +
                       std::to_string(static_cast<int>(x)) + " " + std::to_string(static_cast<int>(y)));
    };
    events.MouseUp = [&seen](std::int16_t button, std::int16_t, float, float) {
        seen.push_back("up " + std::to_string(button));
    };
    events.Click = [&seen] { seen.push_back("click"); };
    QTest::mouseClick(child("picGraph"), Qt::LeftButton, Qt::ControlModifier, QPoint(20, 30));
    QTest::mouseClick(child("picGraph"), Qt::RightButton, Qt::NoModifier, QPoint(20, 30));
    EXPECT_EQ(seen, (std::vector<std::string>{"down 1 2 20 30", "up 1", "click", "down 2 0 20 30", "up 2"}));
}

TEST_F(PolarGraphWidgetTest, KeysReachTheHostByTheirCodes) {
    std::vector<int> codes;
    widget_->graph().events.KeyDown = [&codes](std::int16_t& code, std::int16_t) { codes.push_back(code); };
    widget_->graph().events.KeyPress = [&codes](std::int16_t& ascii) { codes.push_back(1000 + ascii); };
    QTest::keyClick(child("picGraph"), Qt::Key_A);
    QTest::keyClick(child("picGraph"), Qt::Key_Left);
    EXPECT_EQ(codes, (std::vector<int>{65, 1097, 37}));
}

TEST_F(PolarGraphWidgetTest, KeysHaveTheirUsualCodes) {
    std::vector<int> codes;
    widget_->graph().events.KeyDown = [&codes](std::int16_t& code, std::int16_t) { codes.push_back(code); };
    for (const Qt::Key key : {Qt::Key_Minus, Qt::Key_Plus, Qt::Key_Equal, Qt::Key_Alt, Qt::Key_Shift,
                              Qt::Key_F5, Qt::Key_Insert, Qt::Key_Delete, Qt::Key_MediaPlay})
        QTest::keyClick(child("picGraph"), key);
    QTest::keyClick(child("picGraph"), Qt::Key_Minus, Qt::KeypadModifier);
    QTest::keyClick(child("picGraph"), Qt::Key_Plus, Qt::KeypadModifier);
    EXPECT_EQ(codes, (std::vector<int>{189, 187, 187, 18, 16, 116, 45, 46, 0, 109, 107}));
}

TEST_F(PolarGraphWidgetTest, ADoubleClickIsToldAfterItsPresses) {
    std::vector<std::string> seen;
    PolarGraphEvents& events = widget_->graph().events;
    events.MouseDown = [&seen](std::int16_t, std::int16_t, float, float) { seen.emplace_back("down"); };
    events.Click = [&seen] { seen.emplace_back("click"); };
    events.DblClick = [&seen] { seen.emplace_back("double"); };
    QTest::mouseDClick(child("picGraph"), Qt::LeftButton, Qt::NoModifier, QPoint(20, 30));
    EXPECT_EQ(std::count(seen.begin(), seen.end(), "double"), 1);
    const auto at = std::find(seen.begin(), seen.end(), "double");
    EXPECT_EQ(*(at - 1), "down");
}

TEST_F(PolarGraphWidgetTest, TheRulersSurfacesHavePointersOfTheirOwn) {
    std::vector<QImage> pointers;
    for (const char* name : {"picRulerH", "picRulerV", "picRulerJ"}) {
        const QCursor cursor = child(name)->cursor();
        EXPECT_EQ(cursor.shape(), Qt::BitmapCursor) << name;
        pointers.push_back(cursor.pixmap().toImage());
        EXPECT_FALSE(pointers.back().isNull()) << name;
    }
    EXPECT_NE(pointers[0], pointers[1]);
    EXPECT_NE(pointers[0], pointers[2]);
    EXPECT_NE(pointers[1], pointers[2]);
}

TEST_F(PolarGraphWidgetTest, DraggingEitherRulerMovesThePageAlongBothAxes) {
    widget_->graph().ShowRuler(true);
    for (const char* name : {"picRulerH", "picRulerV"}) {
        QWidget* ruler = child(name);
        widget_->graph().OffsetDrawingAreaX(50);
        widget_->graph().OffsetDrawingAreaY(60);
        QTest::mousePress(ruler, Qt::LeftButton, Qt::NoModifier, QPoint(8, 9));
        QMouseEvent move(QEvent::MouseMove, QPointF(18, 4), ruler->mapToGlobal(QPointF(18, 4)), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(ruler, &move);
        EXPECT_EQ(widget_->graph().OffsetDrawingAreaX(), 60) << name;
        EXPECT_EQ(widget_->graph().OffsetDrawingAreaY(), 55) << name;
        QTest::mouseRelease(ruler, Qt::LeftButton, Qt::NoModifier, QPoint(18, 4));
        QMouseEvent other(QEvent::MouseMove, QPointF(30, 30), ruler->mapToGlobal(QPointF(30, 30)),
                          Qt::NoButton, Qt::RightButton, Qt::NoModifier);
        QApplication::sendEvent(ruler, &other);
        EXPECT_EQ(widget_->graph().OffsetDrawingAreaX(), 60) << name << ": another button drags nothing";
    }
}

TEST_F(PolarGraphWidgetTest, TheCornerResetsByItsLeftButtonAndChangesTheModeByItsRight) {
    widget_->graph().ShowRuler(true);
    widget_->graph().OffsetDrawingAreaX(150);
    QTest::mousePress(child("picRulerJ"), Qt::LeftButton);
    EXPECT_EQ(child("picGraph")->pos(), QPoint(25, 25));
    EXPECT_EQ(widget_->graph().SetRulerMode(), 1);
    QTest::mousePress(child("picRulerJ"), Qt::RightButton);
    EXPECT_EQ(widget_->graph().SetRulerMode(), 0);
    QTest::mousePress(child("picRulerJ"), Qt::MiddleButton);
    EXPECT_EQ(widget_->graph().SetRulerMode(), 0);
}

TEST_F(PolarGraphWidgetTest, TheTrackingLinesGoWhenThePointerLeavesThePage) {
    widget_->graph().ShowRuler(true);
    widget_->graph().ResetDrawingArea();
    const auto tracked = [this](const char* name, QPoint at) {
        return child(name)->grab().toImage().pixelColor(at) == QColor(200, 0, 0);
    };
    QTest::mouseMove(child("picGraph"), QPoint(100, 200));
    // The page is 25 pixels from the edges, the frames of the rulers begin at 20.
    EXPECT_TRUE(tracked("picRulerH", QPoint(105, 2)));
    EXPECT_TRUE(tracked("picRulerV", QPoint(2, 205)));
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(child("picGraph"), &leave);
    EXPECT_FALSE(tracked("picRulerH", QPoint(105, 2)));
    EXPECT_FALSE(tracked("picRulerV", QPoint(2, 205)));
}

TEST_F(PolarGraphWidgetTest, AnErrorInAHandlerIsShownAndTheControlGoesOn) {
    host_.boxAnswers = {BoxAnswer::Ok};
    widget_->graph().events.MouseDown = [](std::int16_t, std::int16_t, float, float) {
        raise(ErrorNumber::Overflow);
    };
    QTest::mousePress(child("picGraph"), Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
    ASSERT_EQ(host_.boxes.size(), 1U);
    EXPECT_EQ(host_.boxes[0].text, "Run-time error '6':\n\nOverflow");
}

TEST_F(PolarGraphWidgetTest, AboutIsAskedOfTheWindowByItsTitle) {
    QString title;
    QObject::connect(widget_.get(), &PolarGraphWidget::aboutRequested,
                     [&title](const QString& t) { title = t; });
    widget_->graph().ShowAbout();
    EXPECT_EQ(title, "About");
}

}  // namespace
}  // namespace zg
