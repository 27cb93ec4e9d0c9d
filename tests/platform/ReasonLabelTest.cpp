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

}  // namespace
}  // namespace zg
