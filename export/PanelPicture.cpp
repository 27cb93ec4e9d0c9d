#include "export/PanelPicture.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <memory>
#include <string_view>

#include "base/Encoding.h"
#include "base/Paths.h"
#include "base/Text.h"
#include "graph/render/Panel.h"
#include "graph/render/RoseWords.h"

namespace zg {

namespace {

using RoseText = std::string (*)(const RoseOfFile&);

std::string measureOf(const RoseOfFile& rose) { return trim(rose.tables->FrqMeasure); }
std::string graphTitleOf(const RoseOfFile& rose) { return rose.tables->GraphTitle; }
std::string fileNameOf(const RoseOfFile& rose) { return rose.source.substr(folderOf(rose.source).size()); }

/// "Jan 1, 1988 to Jan 1, 1989" of "Jan 1, 1988 - 12:00:00 AM to Jan 1, 1989 - 12:00:00 AM (UTC-0500)" and of
/// "Jan 1, 1988 - HR00 to Jan 1, 1989 - HR00".
std::string datesOf(const RoseOfFile& rose) {
    constexpr std::string_view between = " to ";
    const auto dateOf = [](std::string_view end) { return end.substr(0, end.find(" - ")); };
    const std::string_view text = rose.tables->FrqPeriodText;
    const std::size_t middle = text.find(between);
    std::string dates(dateOf(text.substr(0, middle)));
    if (middle == std::string_view::npos) return dates;
    return dates.append(between).append(dateOf(text.substr(middle + between.size())));
}

bool isCommon(const std::vector<RoseOfFile>& roses, RoseText text) {
    const std::string first = text(roses.front());
    return std::all_of(roses.begin(), roses.end(),
                       [&](const RoseOfFile& rose) { return text(rose) == first; });
}

bool tellApart(const std::vector<RoseText>& names, const std::vector<RoseOfFile>& roses) {
    std::map<std::string, std::string> fileOfName;
    return std::all_of(roses.begin(), roses.end(), [&](const RoseOfFile& rose) {
        std::string name;
        for (const RoseText text : names) name += text(rose) + "\n";
        return fileOfName.try_emplace(name, rose.file).first->second == rose.file;
    });
}

/// What tells the files of a panel apart, one line each: their stations; heights and periods if a station has
/// several files; the names of files if nothing else differs.
std::vector<RoseText> namesOfFiles(const std::vector<RoseOfFile>& roses) {
    std::vector<RoseText> names;
    for (const RoseText text : {&stationOf, &measureOf, &datesOf, &fileNameOf})
        if (!tellApart(names, roses) && !isCommon(roses, text)) names.push_back(text);
    return names;
}

/// What all roses have in common, "" for nothing.
std::string panelTitle(const std::vector<RoseOfFile>& roses) {
    for (const RoseText text : {&graphTitleOf, &stationOf})
        if (isCommon(roses, text)) return text(roses.front());
    return {};
}

PanelRose panelRose(const RoseOfFile& rose, const PictureLook& look, const std::vector<RoseText>& names) {
    PanelRose cell{tablesFor(rose, look), *rose.polar, look.rose, {}};
    cell.polar.Radius = look.scale.rings;
    for (const RoseText name : names) cell.titles.push_back(name(rose));
    cell.titles.push_back(periodOf(rose));
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
    const std::vector<RoseText> names = namesOfFiles(roses);
    const std::string title = panelTitle(roses);
    const auto perPage = static_cast<std::size_t>(shape.columns * shape.rows);
    std::vector<Drawing> pages;
    for (std::size_t first = 0; first < roses.size(); first += perPage) {
        auto page = std::make_shared<std::vector<PanelRose>>();
        for (std::size_t i = first; i < std::min(roses.size(), first + perPage); ++i)
            page->push_back(panelRose(roses[i], look, names));
        const int titleLines = static_cast<int>(names.size()) + 2;
        const auto layout = std::make_shared<const PanelLayout>(
            panelLayout(width, shape.columns, shape.rows, titleLines, !title.empty()));
        pages.push_back(
            {width, static_cast<int>(std::ceil(layout->height)), title.empty() ? "Wind roses" : toUtf8(title),
             [page, look] { return wordsOf(*page, look); },
             [page, layout, title](Canvas& canvas) { drawPanel(canvas, *layout, *page, title); }});
    }
    return pages;
}

}  // namespace zg
