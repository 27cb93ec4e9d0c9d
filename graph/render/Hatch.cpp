#include "graph/render/Hatch.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <numbers>

namespace zg {

namespace {

/// Parallel strokes: their angle in degrees counterclockwise from east, the distance between them, and the
/// distance of the dots into which they are cut (0 for none).
struct Strokes {
    double degrees;
    double distance;
    double dots = 0;
};

/// From sparse to dense, so that a faster class is also darker.
std::vector<Strokes> patternOf(int speedClass) {
    switch (speedClass) {
        case 1:
            return {{45, 4.2, 4.2}};
        case 2:
            return {{0, 4}};
        case 3:
            return {{45, 4}};
        case 4:
            return {{135, 3}};
        case 5:
            return {{0, 3.6}, {90, 3.6}};
        default:
            return {{45, 3}, {135, 3}};
    }
}

struct Interval {
    double from = -std::numeric_limits<double>::infinity();
    double to = std::numeric_limits<double>::infinity();
    bool isEmpty() const { return !(from < to); }
};

/// A straight line: its points are at + t x along.
struct Ray {
    Point at;
    Point along;  ///< of length 1
    Point point(double t) const { return {at.x + t * along.x, at.y + t * along.y}; }
};

double dot(Point a, Point b) { return a.x * b.x + a.y * b.y; }

/// The part of the line on the side of an edge to which the normal points.
void cutAtEdge(const Ray& ray, Point edge, Point normal, Interval& part) {
    const double height = (ray.at.x - edge.x) * normal.x + (ray.at.y - edge.y) * normal.y;
    const double rise = dot(ray.along, normal);
    if (rise > 1e-12)
        part.from = std::max(part.from, -height / rise);
    else if (rise < -1e-12)
        part.to = std::min(part.to, -height / rise);
    else if (height < 0)
        part.to = part.from;
}

/// The part of the line within a circle.
Interval withinCircle(const Ray& ray, Point centre, double radius) {
    const Point toCentre{centre.x - ray.at.x, centre.y - ray.at.y};
    const double middle = dot(toCentre, ray.along);
    const double square = radius * radius - (dot(toCentre, toCentre) - middle * middle);
    if (!(square > 0)) return {0, 0};
    return {middle - std::sqrt(square), middle + std::sqrt(square)};
}

/// A stroke, or its dots, whose positions do not depend on the visible part.
void addStroke(const Ray& ray, const Interval& part, double dots, std::vector<HatchStroke>& strokes) {
    constexpr double dotLength = 1.2;
    if (part.isEmpty()) return;
    if (dots <= 0) {
        strokes.push_back({ray.point(part.from), ray.point(part.to)});
        return;
    }
    for (double t = std::ceil(part.from / dots) * dots; t + dotLength <= part.to; t += dots)
        strokes.push_back({ray.point(t), ray.point(t + dotLength)});
}

/// Calls the function with each line of the pattern that comes near a point.
template <typename Use>
void forEachLine(const Strokes& pattern, Point middle, double reach, Use use) {
    const double angle = pattern.degrees * std::numbers::pi / 180;
    const Point along{std::cos(angle), -std::sin(angle)};
    const Point across{-along.y, along.x};
    const double place = dot(middle, across);
    const auto first = static_cast<long>(std::ceil((place - reach) / pattern.distance));
    const auto last = static_cast<long>(std::floor((place + reach) / pattern.distance));
    for (long i = first; i <= last; ++i) {
        const double away = static_cast<double>(i) * pattern.distance;
        use(Ray{{away * across.x, away * across.y}, along});
    }
}

/// No page shows more, and a senseless radius must not exhaust memory.
constexpr double longestReach = 20000;

}  // namespace

std::vector<HatchStroke> hatchOfRectangle(const Rect& rectangle, int speedClass) {
    std::vector<HatchStroke> strokes;
    const Point middle{(rectangle.left + rectangle.right) / 2, (rectangle.top + rectangle.bottom) / 2};
    const double reach = std::hypot(rectangle.right - rectangle.left, rectangle.bottom - rectangle.top) / 2;
    if (!(reach < longestReach)) return strokes;
    for (const Strokes& pattern : patternOf(speedClass))
        forEachLine(pattern, middle, reach, [&](const Ray& ray) {
            Interval part;
            cutAtEdge(ray, {rectangle.left, rectangle.top}, {1, 0}, part);
            cutAtEdge(ray, {rectangle.left, rectangle.top}, {0, 1}, part);
            cutAtEdge(ray, {rectangle.right, rectangle.bottom}, {-1, 0}, part);
            cutAtEdge(ray, {rectangle.right, rectangle.bottom}, {0, -1}, part);
            addStroke(ray, part, pattern.dots, strokes);
        });
    return strokes;
}

std::vector<HatchStroke> hatchOfRingPart(const RingPart& ring, int speedClass) {
    std::vector<HatchStroke> strokes;
    if (!(ring.outer > ring.inner) || !(ring.outer < longestReach)) return strokes;
    // The normals of both edges point into the part: to the left of the start and to the right of the end.
    const Point afterStart{-std::sin(ring.start), -std::cos(ring.start)};
    const Point beforeEnd{std::sin(ring.end), std::cos(ring.end)};
    for (const Strokes& pattern : patternOf(speedClass))
        forEachLine(pattern, ring.centre, ring.outer, [&](const Ray& ray) {
            Interval part = withinCircle(ray, ring.centre, ring.outer);
            cutAtEdge(ray, ring.centre, afterStart, part);
            cutAtEdge(ray, ring.centre, beforeEnd, part);
            const Interval hole = withinCircle(ray, ring.centre, ring.inner);
            if (hole.isEmpty()) {
                addStroke(ray, part, pattern.dots, strokes);
                return;
            }
            addStroke(ray, {part.from, std::min(part.to, hole.from)}, pattern.dots, strokes);
            addStroke(ray, {std::max(part.from, hole.to), part.to}, pattern.dots, strokes);
        });
    return strokes;
}

Colour hatchColour(Colour fill) {
    const double light = 0.299 * redOf(fill) + 0.587 * greenOf(fill) + 0.114 * blueOf(fill);
    constexpr double dark = 110;
    return light < dark ? white : black;
}

void drawHatch(Canvas& canvas, const std::vector<HatchStroke>& strokes, Colour colour) {
    for (const HatchStroke& stroke : strokes) canvas.line(stroke.from, stroke.to, {colour, 1, 0, 0});
}

}  // namespace zg
