#include "graph/control/PolarGraph.h"
#include "graph/control/Rulers.h"

namespace zg {

RulerView PolarGraph::rulerView(RulerSide side) const {
    RulerView view;
    view.horizontal = side == RulerSide::Top;
    const ChildSurface& ruler = view.horizontal ? surfaces_.picRulerH : surfaces_.picRulerV;
    const ChildSurface& holder = view.horizontal ? surfaces_.picHolderRH : surfaces_.picHolderRV;
    const ChildSurface& page = surfaces_.picGraph;
    view.length = view.horizontal ? ruler.width : ruler.height;
    view.thickness = view.horizontal ? ruler.height : ruler.width;
    view.pageStart = view.horizontal ? page.left - holder.left : page.top - holder.top;
    view.pageLength = view.horizontal ? page.width : page.height;
    view.centre =
        view.pageStart + static_cast<double>(view.horizontal ? geometry_.CentreX : geometry_.CentreY);
    view.unitLength = static_cast<double>(geometry_.UnitLength);
    view.unit = polar_.Unit;
    view.mode = SetRulerMode();
    return view;
}

}  // namespace zg
