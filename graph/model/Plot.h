#pragma once

// The list of curves r = f(t) that are drawn over the rose.

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "graph/model/Series.h"

namespace zg {

/// One curve r = f(t), angles in degrees counterclockwise from east.
struct GrapInfo {
    std::string Coefficient;  ///< script statements run before sampling
    std::string Equation;     ///< script expression in t, radians
    std::int16_t Delay = 0;   ///< pause per step while animating, milliseconds
    float StartingAngle = 0;
    float EndingAngle = 360;
    float Step = 1;
    bool Visible = true;
    zg::Series Series;

    std::string Failure;      ///< why its last painting ended early; "" if it was whole
    std::string ToldFailure;  ///< sweepText() when an error of the painting was last raised
};

/// What decides whether a curve can be evaluated: its texts and its range.
std::string sweepText(const GrapInfo& graph);

/// The curves by number from 1, and by key (letter case does not matter) if one was given. An item keeps its
/// address until it is removed.
class Plot {
 public:
    /// Adds a curve with its colours; raises 457 for a key that is already in use.
    GrapInfo& Add(std::string Coefficient, std::string Equation, Colour PenFillColor, Colour MarkerFillColor,
                  std::string Key = {});

    /// Raises 9 for a number outside 1 to Count, 5 for an unknown key.
    GrapInfo& Item(std::int64_t index);
    GrapInfo& Item(std::string_view key);
    const GrapInfo& Item(std::int64_t index) const;

    /// Whether the graph is in the list.
    bool contains(const GrapInfo& graph) const;

    std::int32_t Count() const { return static_cast<std::int32_t>(items_.size()); }

    /// Raises the same errors as Item.
    void Remove(std::int64_t index);
    void Remove(std::string_view key);

 private:
    struct Entry {
        std::string key;
        std::unique_ptr<GrapInfo> graph;
    };
    std::size_t position(std::int64_t index) const;
    std::size_t position(std::string_view key) const;

    std::vector<Entry> items_;
};

}  // namespace zg
