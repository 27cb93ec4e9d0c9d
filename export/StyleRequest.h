#pragma once

// The requested look of a run's pictures, and the resulting settings.

#include <array>
#include <optional>
#include <string>

#include "export/Palettes.h"
#include "graph/frq/ModPolarGraph.h"
#include "graph/render/RoseStyle.h"

namespace zg {

/// The options of the command. Those left at their defaults change nothing.
struct StyleRequest {
    std::string palette = "factory";  ///< a name, or a file of colours
    std::string radius;               ///< percent at the outer ring, "auto", or "" for 25
    bool sameScale = false;           ///< auto, common to all pictures of the run
    int rings = 0;                    ///< number of rings, 0 for one that suits the radius
    RoseStyle rose;
    std::string panel;         ///< "COLSxROWS", "auto", or "" for one picture per rose
    bool sizeIsAsked = false;  ///< a panel without it is as wide as its columns need
    bool besideTable = false;
    std::string html;  ///< file of the web report, "" for none
    std::string pdf;   ///< file of the paged report, "" for none

    bool scalesItself() const { return sameScale || radius == "auto"; }
    /// Whether the run must know all roses before it draws one.
    bool needsAllRoses() const { return sameScale || !panel.empty() || !html.empty() || !pdf.empty(); }
};

constexpr int mostRings = 20;

/// The rings of a picture.
struct RingScale {
    float rings = 5;  ///< the outer ring's radius in rings, possibly fractional
    double percentPerRing = percentPerUnit;
};

/// Rings for an outer ring at this many percent, in steps of 1, 2 or 5 that give three to seven rings; or the
/// requested number of rings, above 0.
RingScale ringsTo(double percent, int rings);

/// The smallest step of the rings (5 rings if none were requested) with which a bar of this many percent
/// fits.
RingScale ringsAround(double longestPercent, int rings);

/// The longest bar of a rose, in percent.
double longestBar(const ModPolarGraph& tables, int rose);

/// The look of the pictures, ready for drawing.
struct PictureLook {
    std::optional<Palette> palette;  ///< nothing for the tables' own colours
    RoseStyle rose;
    RingScale scale;
    bool scalesItself = false;  ///< each picture according to its own longest bar
    int rings = 0;              ///< as requested, for a picture that scales itself
    bool besideTable = false;
};

/// Checks a request and converts it to a look. Throws WrongStyle with a message for invalid values; raises
/// the errors of a palette file.
struct WrongStyle {
    std::string text;
};
PictureLook lookOf(const StyleRequest& request);

/// The look of a rose's picture, with its scale.
PictureLook lookFor(const PictureLook& look, const ModPolarGraph& tables, int rose);

/// Columns and rows of a panel for this many roses; throws WrongStyle.
struct PanelShape {
    int columns = 1;
    int rows = 1;
};
constexpr int mostPanelSide = 20;
PanelShape panelShape(const std::string& asked, int roses);

/// Width of a panel without a requested size: 300 pixels per column, and at least 600.
int usualPanelWidth(const PanelShape& shape);

}  // namespace zg
