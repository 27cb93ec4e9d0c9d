// The sample of a font beside its buttons.

#include "shell/FontChoice.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QTest>
#include <QTextDocumentFragment>
#include <QVBoxLayout>

#include "tests/support/TestHost.h"

namespace zg {
namespace {

class FontSample : public ::testing::Test {
 protected:
    FontSample() : choice_(new FontChoice(host_, small(), small(), "_X", {"&Font", "&Color", "&Default"})) {
        (new QVBoxLayout(&dialog_))->addWidget(choice_);
        dialog_.show();
        QApplication::processEvents();
    }
    static FontRecord small() { return {0, "Liberation Sans", 7, false, false}; }
    QLabel& sample() { return *dialog_.findChild<QLabel*>("lblSample_X"); }
    void choose(const FontRecord& font) {
        host_.fontAnswers.emplace_back(font);
        QTest::mouseClick(dialog_.findChild<QPushButton*>("cmdSelectFont_X"), Qt::LeftButton);
        QApplication::processEvents();
    }

    TestHost host_;
    QDialog dialog_;
    FontChoice* choice_;
};

TEST_F(FontSample, MakesRoomForALargeFont) {
    const int before = sample().width();
    choose({0, "Liberation Sans", 20, false, false});
    EXPECT_EQ(sample().text(), "Liberation Sans 20");
    EXPECT_GT(sample().sizeHint().width(), before) << "the test has no large font";
    EXPECT_GE(sample().width(), sample().sizeHint().width());
    EXPECT_GE(sample().height(), sample().sizeHint().height());
}

TEST_F(FontSample, OfAHugeFontShowsTheBeginningAndIsItsTip) {
    choose({0, "Liberation Sans", 96, false, false});
    EXPECT_LT(sample().width(), sample().sizeHint().width());
    EXPECT_TRUE(sample().alignment().testFlag(Qt::AlignLeft));
    EXPECT_EQ(sample().toolTip(), "Liberation Sans 96");
    EXPECT_LE(dialog_.height(), 200);
    choose(small());
    EXPECT_TRUE(sample().alignment().testFlag(Qt::AlignHCenter));
}

TEST_F(FontSample, ShowsANameWithMarkupAsItIs) {
    choose({0, "<b>Sans</b>", 7, false, false});
    EXPECT_EQ(sample().text(), "<b>Sans</b> 7");
    EXPECT_EQ(sample().textFormat(), Qt::PlainText);
    EXPECT_EQ(QTextDocumentFragment::fromHtml(sample().toolTip()).toPlainText(), "<b>Sans</b> 7");
}

}  // namespace
}  // namespace zg
