#pragma once

// The whole path with obstacles.

#include "platform/ReasonLabel.h"
#include "tests/road/RoadFixture.h"

namespace zg {

class HardRoad : public WholeRoad {
 protected:
    /// The form for AERMET surface data, filled in, with a copy of the sample under that name.
    void openWith(const std::string& name) {
        const std::string data = directory_.file(name);
        std::filesystem::copy(samples + "LOVETT.SFC", data);
        open<frmOpenAERMETFile>(InputKind::AermSfc);
        browse(data);
        fill("txtAnemometerHeight", "50");
        fill("txtStationID", "");
    }
    /// Runs until the second line shows a text, then ends the program.
    std::string reasonOfTheWait(const char* button = "cmdView") {
        std::string reason;
        host_.onPump = [this, &reason] {
            QCoreApplication::processEvents();
            QThread::msleep(1);
            const auto& label = *child<ReasonLabel>("lblReason");
            if (label.isVisible() && reason.empty()) {
                const QString text = label.text().remove(QChar(0x200B));  // where a path may break
                reason = text.toStdString();
                EXPECT_TRUE(label.toolTip() == text ||
                            label.toolTip() == "<p>" + text.toHtmlEscaped() + "</p>");
                EXPECT_TRUE(status().starts_with("Running.")) << "the animated text stays";
                EXPECT_GE(label.height(), label.heightForWidth(label.width())) << "no line is cut off";
                ending_ = true;
            }
        };
        click(button);
        EXPECT_FALSE(child("lblReason")->isVisible());
        return reason;
    }
    std::string tip() { return child<QLabel>("lblStatus")->toolTip().toStdString(); }
};

}  // namespace zg
