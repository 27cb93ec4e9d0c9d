#include "export/PanelPicture.h"

#include <algorithm>
#include <cmath>
#include <memory>

#include "base/Encoding.h"
#include "base/Text.h"
#include "graph/render/Panel.h"
#include "graph/render/RoseWords.h"

namespace zg {

namespace {

bool areOfOneFile(const std::vector<RoseOfFile>& roses) {
    return std::all_of(roses.begin(), roses.end(),
                       [&](const RoseOfFile& rose) { return rose.file == roses.front().file; });
}

PanelRose panelRose(const RoseOfFile& rose, const PictureLook& look, bool nameFile) {
    PanelRose cell{tablesFor(rose, look), *rose.polar, look.rose, {}};
    cell.polar.Radius = look.scale.rings;
    if (nameFile) cell.titles.push_back(trim(cell.tables.FrqTitle1));
    cell.titles.push_back(trim(cell.tables.FrqRoseTitle(rose.rose)));
    cell.titles.push_back(calmWords(cell.tables));
    return cell;
}

std::string wordsOf(const std::vector<PanelRose>& page, const PictureLook& look) {
    std::string words = "A panel of " + std::to_string(page.size()) + " wind roses.";
    for (const PanelRose& rose : page) {
        words += " ";
        for (std::size_t i = 0; i + 1 < rose.titles.size(); ++i) words += toUtf8(rose.titles[i]) + ": ";
        words += roseWords(rose.tables, speedLimits(rose.tables, look.rose.unit));
    }
    return words;
}

}  // namespace

PictureLook sharedLook(const PictureLook& look, const std::vector<RoseOfFile>& roses) {
    PictureLook shared = look;
    if (!look.scalesItself) return shared;
    double longest = 0;
    for (const RoseOfFile& rose : roses) longest = std::max(longest, longestBar(*rose.tables, rose.rose));
    shared.scalesItself = false;
    shared.scale = ringsAround(longest, look.rings);
    shared.rose.percentPerRing = shared.scale.percentPerRing;
    return shared;
}

std::vector<Drawing> panelDrawings(const std::vector<RoseOfFile>& roses, const PictureLook& asked,
                                   const PanelShape& shape, int width) {
    const PictureLook look = sharedLook(asked, roses);
    const bool oneFile = areOfOneFile(roses);
    const auto perPage = static_cast<std::size_t>(shape.columns * shape.rows);
    std::vector<Drawing> pages;
    for (std::size_t first = 0; first < roses.size(); first += perPage) {
        auto page = std::make_shared<std::vector<PanelRose>>();
        for (std::size_t i = first; i < std::min(roses.size(), first + perPage); ++i)
            page->push_back(panelRose(roses[i], look, !oneFile));
        const auto layout = std::make_shared<const PanelLayout>(
            panelLayout(width, shape.columns, shape.rows, oneFile ? 2 : 3, oneFile));
        const std::string title = oneFile ? roses.front().tables->GraphTitle : std::string();
        pages.push_back(
            {width, static_cast<int>(std::ceil(layout->height)), oneFile ? toUtf8(title) : "Wind roses",
             [page, look] { return wordsOf(*page, look); },
             [page, layout, title](Canvas& canvas) { drawPanel(canvas, *layout, *page, title); }});
    }
    return pages;
}

}  // namespace zg
