#pragma once

#include <QIODevice>
#include <functional>
#include <string>
#include <vector>

#include "graph/render/Canvas.h"

namespace zg {

/// A page that can be drawn on any canvas of its size, in pixels or 96ths of an inch, and what it says to
/// those who do not see it, UTF-8. The words are only made where a canvas keeps them.
struct Drawing {
    int width = 0;
    int height = 0;
    std::string title;
    std::function<std::string()> words;
    std::function<void(Canvas&)> draw;
};

/// Writes it as "png", "bmp", "svg" or "pdf"; false where the device or the toolkit refused. Throws
/// std::bad_alloc for a page that memory cannot hold.
bool writeDrawing(const Drawing& drawing, const std::string& format, QIODevice& device);

/// The same as SVG text; the name keeps several of one page apart.
std::string svgOf(const Drawing& drawing, const std::string& name = "rose");

/// Each on a page of its own, as wide as the paper's longer side without its margins.
bool writePages(const std::vector<Drawing>& drawings, const std::string& title, QIODevice& device);

}  // namespace zg
