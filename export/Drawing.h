#pragma once

#include <QIODevice>
#include <functional>
#include <string>
#include <vector>

#include "graph/render/Canvas.h"

namespace zg {

/// A page that can be drawn on any canvas of its size, in pixels or 96ths of an inch, with a description for
/// readers who cannot see it, UTF-8. The description is only made for a canvas that keeps it. A PDF document
/// of this page alone has its own title, or that of the page if it is empty.
struct Drawing {
    int width = 0;
    int height = 0;
    std::string title;
    std::function<std::string()> words;
    std::function<void(Canvas&)> draw;
    std::string documentTitle = {};
};

/// Writes the page as "png", "bmp", "svg" or "pdf"; false if the device or the toolkit refuses. Throws
/// std::bad_alloc for a page that does not fit in memory.
bool writeDrawing(const Drawing& drawing, const std::string& format, QIODevice& device);

/// The page as SVG text; the name distinguishes several on one page.
std::string svgOf(const Drawing& drawing, const std::string& name = "rose");

/// Writes each drawing on its own page, as wide as the paper's longer side without its margins.
bool writePages(const std::vector<Drawing>& drawings, const std::string& title, QIODevice& device);

}  // namespace zg
