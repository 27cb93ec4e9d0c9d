#include "graph/render/ShareNumbers.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>
#include <vector>

#include "graph/render/Legend.h"
#include "graph/render/RoseWords.h"
#include "graph/render/WindRose.h"

namespace zg {

namespace {

constexpr double numberGap = 2;     // between a number and its neighbours
constexpr double numberStep = 2;    // between one position tried and the next
constexpr double numberReach = 60;  // from the end of a bar that reaches the outer ring

bool overlap(const Rect& a, const Rect& b) {
    return a.left < b.right + numberGap && b.left < a.right + numberGap && a.top < b.bottom &&
           b.top < a.bottom;
}

Rect boxAt(Point corner, const TextSize& size) {
    return {corner.x, corner.y, corner.x + size.width, corner.y + size.height};
}

/// The positions of texts, and of the legend as a whole.
std::vector<Rect> takenPlaces(const Frame& frame, const CanvasRecord& written) {
    std::vector<Rect> places;
    for (const drawn::Command& command : written.commands())
        if (const auto* text = std::get_if<drawn::Text>(&command); text != nullptr && !text->text.empty())
            places.push_back(boxAt(text->at, frame.canvas.measure(text->text, text->style)));
    if (frame.settings.ShowLegend) places.push_back(legendLayout(frame.width, frame.height).box);
    return places;
}

/// The bars, to test whether a position is on one.
class Bars {
 public:
    explicit Bars(const Frame& frame) : frame_(frame) {}

    bool reach(const Rect& box) const {
        constexpr int samples = 4;
        for (int i = 0; i <= samples; ++i)
            for (int j = 0; j <= samples; ++j)
                if (cover({box.left + (box.right - box.left) * i / samples,
                           box.top + (box.bottom - box.top) * j / samples}))
                    return true;
        return false;
    }

 private:
    bool cover(Point point) const {
        const Point centre = frame_.centre();
        const double degrees =
            std::atan2(centre.y - point.y, point.x - centre.x) * 180 / std::numbers::pi + 360;
        const double steps = degrees / sectorStep;
        const double fromAxis = std::fabs(steps - std::round(steps)) * sectorStep;
        if (fromAxis > frame_.settings.Style.sectorWidth / 2) return false;
        const int sector = static_cast<int>(std::lround(steps)) % freqDirections;
        return std::hypot(point.x - centre.x, point.y - centre.y) < barRadius(frame_, sector, speedClasses);
    }

    const Frame& frame_;
};

class Placing {
 public:
    Placing(const Frame& frame, std::vector<Rect> taken)
        : frame_(frame), bars_(frame), taken_(std::move(taken)) {}

    /// Reserves a position for a text of that size on a sector's axis.
    std::optional<Point> placeFor(int sector, const TextSize& size) {
        const double angle = sector * sectorStep * std::numbers::pi / 180;
        const double half =
            std::fabs(std::cos(angle)) * size.width / 2 + std::fabs(std::sin(angle)) * size.height / 2;
        const double first = barRadius(frame_, sector, speedClasses) + half + numberGap;
        const double last = std::max(first + numberReach, frame_.outerRadius());
        std::optional<Rect> best;
        for (double radius = first; radius < last; radius += numberStep) {
            const Point middle{frame_.centre().x + radius * std::cos(angle),
                               frame_.centre().y - radius * std::sin(angle)};
            const Rect box = boxAt({middle.x - size.width / 2, middle.y - size.height / 2}, size);
            if (!isFree(box)) continue;
            if (!best) best = box;
            if (bars_.reach(box)) continue;
            best = box;
            break;
        }
        if (!best) return {};
        taken_.push_back(*best);
        return Point{best->left, best->top};
    }

 private:
    bool isFree(const Rect& box) const {
        if (box.left < 0 || box.top < 0 || box.right > frame_.width || box.bottom > frame_.height)
            return false;
        for (const Rect& other : taken_)
            if (overlap(box, other)) return false;
        return true;
    }

    const Frame& frame_;
    Bars bars_;
    std::vector<Rect> taken_;
};

}  // namespace

void drawShareNumbers(Frame& frame, const CanvasRecord& written) {
    const CanvasGroup group(frame.canvas, "numbers");
    frame.textStyle = textStyleOf(frame.tables.PercentFont);
    Placing placing(frame, takenPlaces(frame, written));
    for (int sector = 0; sector < freqDirections; ++sector) {
        const double share = shareOf(frame.tables, directionRow(sector));
        const std::string text = fixedText(100 * share, 1) + "%";
        if (!(share > 0)) continue;
        const auto place = placing.placeFor(sector, frame.canvas.measure(text, frame.textStyle));
        if (!place) continue;
        frame.canvas.setTextPosition(*place);
        frame.canvas.text(text, frame.textStyle);
    }
}

}  // namespace zg
