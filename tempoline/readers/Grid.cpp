#include "tempoline/readers/Grid.h"

#include <algorithm>
#include <cmath>

#include "tempoline/Texts.h"
#include "tempoline/readers/Levels.h"

namespace zg::tempoline {

namespace {

constexpr double roughness = 0.1;  // metres
constexpr double noise = 1e-9;     // cells: the error of converting a place to the grid
constexpr double halfCell = 0.5;

/// The same longitude, within a full turn east of the grid's western edge: grids may cross the date line or
/// run from 0 to 360 degrees.
double longitudeIn(const Grid& grid, double longitude) {
    const double west = grid.x1 + (grid.firstI - 1 - halfCell - noise) * grid.cellSize;
    return longitude + 360 * std::ceil((west - longitude) / 360);
}

/// X and Y on the map of the data are used as given.
MapPoint mapPlace(const OutputRequest& output, const Control& control, const Grid& grid) {
    if (control.cellCoordinates)
        return {grid.x1 + (output.x - 1) * grid.cellSize, grid.y1 + (output.y - 1) * grid.cellSize};
    MapPoint place = {output.x, output.y};
    const MapSetting asked = completed(control.map, grid.map);
    if (!isSameMap(asked, grid.map)) place = converted(place, asked, grid.map);
    if (grid.map.projection == "LL") place.x = longitudeIn(grid, place.x);
    return place;
}

struct Pair {
    int low = 1;
    double share = 0;  ///< of the higher neighbour
};

Pair pairAt(double place, int first, int last) {
    const double inside = std::clamp(place, static_cast<double>(first), static_cast<double>(last));
    const int low = static_cast<int>(std::floor(inside));
    return {low, inside - low};
}

int nearest(double place, int first, int last) {
    return std::clamp(static_cast<int>(std::floor(place + halfCell)), first, last);
}

}  // namespace

GridPlace placeIn(const Grid& grid, const OutputRequest& output, const Control& control) {
    GridPlace place;
    place.onMap = mapPlace(output, control, grid);
    if (control.cellCoordinates) {
        place.inCells = {output.x, output.y};
        return place;
    }
    place.inCells = {1 + (place.onMap.x - grid.x1) / grid.cellSize,
                     1 + (place.onMap.y - grid.y1) / grid.cellSize};
    // A place at a cell's centre must take the value of that cell alone.
    for (double* const value : {&place.inCells.x, &place.inCells.y}) {
        if (std::abs(*value - std::round(*value)) < noise) *value = std::round(*value);
    }
    return place;
}

std::vector<CellShare> cellsAround(const GridPlace& gridPlace, const OutputRequest& output,
                                   SpatialMethod method, const Grid& grid) {
    const MapPoint place = gridPlace.inCells;
    const double rim = halfCell + noise;
    const bool inside = place.x >= grid.firstI - rim && place.x <= grid.lastI + rim &&
                        place.y >= grid.firstJ - rim && place.y <= grid.lastJ + rim;
    if (!inside)
        throw Failure(ExitStatus::Failed, "the location " + fixedText(output.x, 4) + ", " +
                                              fixedText(output.y, 4) + " of output " + output.name +
                                              " lies outside the grid");
    if (method == SpatialMethod::Nearest)
        return {{nearest(place.x, grid.firstI, grid.lastI), nearest(place.y, grid.firstJ, grid.lastJ), 1}};
    const Pair x = pairAt(place.x, grid.firstI, grid.lastI);
    const Pair y = pairAt(place.y, grid.firstJ, grid.lastJ);
    const CellShare corners[] = {{x.low, y.low, (1 - x.share) * (1 - y.share)},
                                 {x.low + 1, y.low, x.share * (1 - y.share)},
                                 {x.low, y.low + 1, (1 - x.share) * y.share},
                                 {x.low + 1, y.low + 1, x.share * y.share}};
    std::vector<CellShare> shares;
    for (const CellShare& corner : corners) {
        if (corner.weight > 0) shares.push_back(corner);
    }
    return shares;
}

Wind combined(const std::vector<CellShare>& shares, const std::vector<Wind>& winds) {
    if (shares.size() == 1) return winds[0];
    Components sum;
    for (std::size_t i = 0; i < shares.size(); ++i) {
        if (!hasComponents(winds[i])) return {};
        const Components part = componentsOf(winds[i]);
        sum.u += shares[i].weight * part.u;
        sum.v += shares[i].weight * part.v;
    }
    return windOf(sum);
}

Wind neutralProfile(const Wind& lowest, double lowestHeight, double height) {
    if (!hasSpeed(lowest)) return {};
    if (height <= roughness) return {0, lowest.direction};
    if (lowestHeight <= roughness) return lowest;
    const double factor = std::log(height / roughness) / std::log(lowestHeight / roughness);
    return {roundedToMillionth(lowest.speed * factor), lowest.direction};
}

}  // namespace zg::tempoline
