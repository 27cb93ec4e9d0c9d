#include "graph/render/TitleLines.h"

namespace zg {

void drawTitleLines(Frame& frame) {
    const ModPolarGraph& tables = frame.tables;
    if (tables.GraphTitle.empty() && tables.GraphSubTitle.empty() && tables.GraphCaption.empty()) return;
    const CanvasGroup group(frame.canvas, "titles");
    frame.textStyle = lineStyleOf(tables.LabelFont, frame.settings);
    const double left = frame.width / 20;
    const double gap = frame.height / 100;
    Canvas& canvas = frame.canvas;
    canvas.setTextPosition({left, frame.height / 20});
    canvas.text(tables.GraphTitle, frame.textStyle);
    canvas.setTextPosition({left, canvas.textPosition().y + gap});
    canvas.text(tables.GraphSubTitle, frame.textStyle);
    canvas.setTextPosition({left, canvas.textPosition().y + gap});
    canvas.text(tables.GraphCaption, frame.textStyle);
}

}  // namespace zg
