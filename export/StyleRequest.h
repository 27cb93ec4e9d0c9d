#pragma once

// How the pictures of a run are to look, as it was asked for, and what comes of it.

#include <array>
#include <optional>
#include <string>

#include "export/Palettes.h"
#include "graph/frq/ModPolarGraph.h"
#include "graph/render/RoseStyle.h"

namespace zg {

/// The words of the command. Those that are left as they are change nothing.
struct StyleRequest {
    std::string palette = "factory";  ///< a name, or a file of colours
    std::string radius;               ///< percent at the outer ring, "auto", or "" for 25
    bool sameScale = false;           ///< auto over all pictures of the run
    int rings = 0;                    ///< number of rings, 0 for what suits the radius
    RoseStyle rose;
    std::string panel;  ///< "COLSxROWS", "auto", or "" for a picture a rose
    bool besideTable = false;
    std::string html;  ///< file of the web report, "" for none
    std::string pdf;   ///< file of the paged report, "" for none

    bool scalesItself() const { return sameScale || radius == "auto"; }
    /// The run has to know all roses before it draws one.
    bool needsAllRoses() const { return sameScale || !panel.empty() || !html.empty() || !pdf.empty(); }
};

constexpr int mostRings = 20;

/// The rings of a picture.
struct RingScale {
    float rings = 5;  ///< the outer ring's radius in rings, which need not be whole
    double percentPerRing = percentPerUnit;
};

/// Rings for an outer ring at so many percent, in steps of 1, 2 or 5 that give three to seven rings; or as
/// many rings as asked, above 0.
RingScale ringsTo(double percent, int rings);

/// The smallest step of rings (5 where none were asked for) that holds a bar of so many percent.
RingScale ringsAround(double longestPercent, int rings);

/// The longest bar of a rose, in percent.
double longestBar(const ModPolarGraph& tables, int rose);

/// How the pictures look, ready for drawing.
struct PictureLook {
    std::optional<Palette> palette;  ///< nothing for the tables' own colours
    RoseStyle rose;
    RingScale scale;
    bool scalesItself = false;  ///< each picture by its own longest bar
    int rings = 0;              ///< as asked, for a picture that scales itself
    bool besideTable = false;
};

/// Checks a request and makes a look of it. Throws a text in WrongStyle for words without sense; raises the
/// errors of a palette's file.
struct WrongStyle {
    std::string text;
};
PictureLook lookOf(const StyleRequest& request);

/// The look of a rose's picture, with its scale.
PictureLook lookFor(const PictureLook& look, const ModPolarGraph& tables, int rose);

/// Columns and rows of a panel of so many roses; throws WrongStyle.
struct PanelShape {
    int columns = 1;
    int rows = 1;
};
constexpr int mostPanelSide = 20;
PanelShape panelShape(const std::string& asked, int roses);

}  // namespace zg
