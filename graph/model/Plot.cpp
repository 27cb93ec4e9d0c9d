#include "graph/model/Plot.h"

#include <algorithm>

#include "base/RunTimeError.h"
#include "base/Text.h"

namespace zg {

std::string sweepText(const GrapInfo& graph) {
    std::string text = graph.Coefficient + '\n' + graph.Equation;
    for (const float value : {graph.StartingAngle, graph.EndingAngle, graph.Step})
        text += '\n' + std::to_string(value);
    return text;
}

namespace {

constexpr int keyTaken = 457;

}  // namespace

GrapInfo& Plot::Add(std::string Coefficient, std::string Equation, Colour PenFillColor,
                    Colour MarkerFillColor, std::string Key) {
    if (!Key.empty())
        for (const Entry& entry : items_)
            if (lcase(entry.key) == lcase(Key))
                throw RunTimeError(keyTaken,
                                   "This key is already associated with an element of this collection");
    auto graph = std::make_unique<GrapInfo>();
    graph->Coefficient = std::move(Coefficient);
    graph->Equation = std::move(Equation);
    graph->Series.Pen.FillColor = PenFillColor;
    graph->Series.Marker.FillColor = MarkerFillColor;
    items_.push_back({std::move(Key), std::move(graph)});
    return *items_.back().graph;
}

std::size_t Plot::position(std::int64_t index) const {
    if (index < 1 || index > static_cast<std::int64_t>(items_.size()))
        raise(ErrorNumber::SubscriptOutOfRange);
    return static_cast<std::size_t>(index - 1);
}

std::size_t Plot::position(std::string_view key) const {
    for (std::size_t i = 0; i < items_.size(); ++i)
        if (!items_[i].key.empty() && lcase(items_[i].key) == lcase(key)) return i;
    raise(ErrorNumber::InvalidProcedureCall);
}

GrapInfo& Plot::Item(std::int64_t index) { return *items_[position(index)].graph; }

GrapInfo& Plot::Item(std::string_view key) { return *items_[position(key)].graph; }

const GrapInfo& Plot::Item(std::int64_t index) const { return *items_[position(index)].graph; }

bool Plot::contains(const GrapInfo& graph) const {
    return std::any_of(items_.begin(), items_.end(),
                       [&graph](const Entry& entry) { return entry.graph.get() == &graph; });
}

void Plot::Remove(std::int64_t index) {
    items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(position(index)));
}

void Plot::Remove(std::string_view key) {
    items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(position(key)));
}

}  // namespace zg
