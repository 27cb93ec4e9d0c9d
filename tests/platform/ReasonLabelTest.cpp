#include "platform/ReasonLabel.h"

#include <gtest/gtest.h>

#include <QTextDocument>

#include "tests/support/Places.h"

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

TEST(ReasonLabel, ADeepDirectoryBreaksAtItsSeparators) {
    ReasonLabel label("lblReason");
    std::string path;
    for (int level = 0; level < 12; ++level) path += nativePath("/directory_within_directory");
    label.setReason("tempoline.exe is missing in " + path);
    const int width = 60 * label.fontMetrics().averageCharWidth();
    EXPECT_LE(label.minimumSizeHint().width(), width);
    EXPECT_GE(label.heightForWidth(width), 4 * label.fontMetrics().height()) << "nothing is cut off";
    EXPECT_TRUE(label.toolTip().contains(QString::fromStdString(path))) << "whole, without the breaks";
}

}  // namespace
}  // namespace zg
