#include "platform/ReasonLabel.h"

#include <gtest/gtest.h>

#include <QTextDocument>

namespace zg {
namespace {

TEST(ReasonLabel, ItsTipKeepsTheLinesOfTheText) {
    ReasonLabel label("lblReason");
    const std::string lines = "WARNING: <one>: far away & " + std::string(80, 'x') + "\nWARNING: two\nthree";
    label.setReason(lines);
    QTextDocument shown;
    shown.setHtml(label.toolTip());
    EXPECT_EQ(shown.toPlainText().toStdString(), lines);
    label.setReason("one\ntwo");
    EXPECT_EQ(label.toolTip(), QStringLiteral("one\ntwo")) << "a short one needs no markup";
    label.setReason("");
    EXPECT_EQ(label.toolTip(), QString());
}

TEST(ReasonLabel, ShowsTheNameOfAControlFileWholeButNeedsNoRoomForAnyPath) {
    ReasonLabel label("lblReason");
    const std::string name = "3DDAT_valley_model20231201-20231208_tempoline.inp";
    label.setReason("ERROR: " + name + ":43: x");
    EXPECT_GE(label.minimumSizeHint().width(),
              label.fontMetrics().horizontalAdvance(QString::fromStdString(name)));
    label.setReason("tempoline.exe is missing in " + std::string(300, 'w'));
    EXPECT_LE(label.minimumSizeHint().width(), 70 * label.fontMetrics().averageCharWidth());
}

}  // namespace
}  // namespace zg
