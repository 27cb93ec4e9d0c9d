#include "graph/render/ShareTable.h"

#include <algorithm>
#include <array>

#include "base/Encoding.h"
#include "base/Numbers.h"
#include "base/Text.h"
#include "graph/render/RoseWords.h"

namespace zg {

namespace {

std::string twoDecimals(double value) { return fixedText(value, 2); }

std::string hoursCell(const ModPolarGraph& tables, double share) {
    const double hours = hoursOf(tables, share);
    return hours < 0 ? std::string() : doubleText(hours);
}

double shareOfClass(const ModPolarGraph& tables, int speedClass) {
    double share = 0;
    for (int direction = 1; direction <= freqDirections; ++direction)
        share += shareOf(tables, direction, speedClass);
    return share;
}

std::vector<std::string> directionRowOf(const ModPolarGraph& tables, int direction) {
    std::vector<std::string> row{toUtf8(trim(tables.FrqDirectionLabel(direction)))};
    for (int c = 1; c <= speedClasses; ++c) row.push_back(twoDecimals(100 * shareOf(tables, direction, c)));
    const double all = shareOf(tables, direction);
    row.push_back(twoDecimals(100 * all));
    row.push_back(hoursCell(tables, all));
    return row;
}

/// A row of the sums by class, in percent or in hours.
template <typename Cell>
std::vector<std::string> sumsRow(const ModPolarGraph& tables, const char* name, Cell cell) {
    std::vector<std::string> row{name};
    double all = 0;
    for (int c = 1; c <= speedClasses; ++c) {
        const double share = shareOfClass(tables, c);
        row.push_back(cell(share));
        all += share;
    }
    row.push_back(cell(all));
    return row;
}

std::vector<std::string> tableLines(const ModPolarGraph& tables, const SpeedLimits& limits) {
    const std::int64_t rose = tables.CurrentRose;
    std::vector<std::string> lines{calmWords(tables)};
    if (tables.FrqValidPeriods.size() > 0)
        lines.push_back("Valid hours: " + std::to_string(tables.FrqValidPeriods(rose)) + " of " +
                        std::to_string(tables.FrqTotalPeriods(rose)));
    const double mean = meanByClassMiddle(tables) * limits.perMetrePerSecond;
    lines.push_back("Mean speed by class middles: " + twoDecimals(mean) + " " + limits.unit);
    return lines;
}

/// The right edges of the columns: the first is for names, the last two are for sums.
double columnEnd(double width, std::size_t column) {
    constexpr double margin = 0.02;
    constexpr double first = 0.11;
    constexpr double other = (1 - 2 * margin - first) / 8;
    return width * (margin + first + other * static_cast<double>(column));
}

class TablePainter {
 public:
    TablePainter(Canvas& canvas, const FontRecord& font) : canvas_(canvas), style_(styleOf(font)) {
        row_ = std::max(canvas.height() / 30, canvas.measure("Ag", style_).height);
        y_ = canvas.height() / 20;
    }

    void row(const std::vector<std::string>& cells, bool bold) {
        style_.bold = bold;
        for (std::size_t i = 0; i < cells.size(); ++i) {
            if (cells[i].empty()) continue;
            const double end = columnEnd(canvas_.width(), i);
            const double width = canvas_.measure(cells[i], style_).width;
            put(i == 0 ? columnEnd(canvas_.width(), 0) * 0.2 : end - width, cells[i]);
        }
        y_ += row_;
    }

    void line(const std::string& text) {
        style_.bold = false;
        put(columnEnd(canvas_.width(), 0) * 0.2, text);
        y_ += row_;
    }

    void rule() {
        const double y = y_ - row_ * 0.2 + 0.5;
        canvas_.line({columnEnd(canvas_.width(), 0) * 0.2, y}, {columnEnd(canvas_.width(), 8), y},
                     {black, 1, 0, 0});
        y_ += row_ * 0.2;
    }

    void gap() { y_ += row_ / 2; }

 private:
    static TextStyle styleOf(const FontRecord& font) {
        return {font.name, static_cast<double>(font.size), false, false, black};
    }

    void put(double x, const std::string& text) {
        canvas_.setTextPosition({x, y_});
        canvas_.text(text, style_);
    }

    Canvas& canvas_;
    TextStyle style_;
    double row_ = 0;
    double y_ = 0;
};

}  // namespace

ShareTable shareTable(const ModPolarGraph& tables, const SpeedLimits& limits) {
    ShareTable table;
    table.heading = {"From"};
    for (int c = 1; c <= speedClasses; ++c) {
        const auto lower = static_cast<std::size_t>(c);
        table.heading.push_back(
            toUtf8(limits.limits[lower] + (c == speedClasses ? "+" : "-" + limits.limits[lower + 1])));
    }
    table.heading.insert(table.heading.end(), {"All", "Hours"});
    for (int direction = 1; direction <= freqDirections; ++direction)
        table.rows.push_back(directionRowOf(tables, direction));
    table.rows.push_back(sumsRow(tables, "All %", [](double share) { return twoDecimals(100 * share); }));
    table.rows.push_back(sumsRow(tables, "Hours", [&](double share) { return hoursCell(tables, share); }));
    table.lines = tableLines(tables, limits);
    return table;
}

double meanByClassMiddle(const ModPolarGraph& tables) {
    std::array<double, 7> limits{};
    for (std::size_t i = 0; i < limits.size(); ++i)
        limits[i] = val(tables.FrqClassLimit(static_cast<std::int64_t>(i)));
    double sum = 0;
    double all = calmShare(tables);
    for (int c = 1; c <= speedClasses; ++c) {
        const auto i = static_cast<std::size_t>(c);
        const double half = (c == speedClasses ? limits[i] - limits[i - 1] : limits[i + 1] - limits[i]) / 2;
        const double share = shareOfClass(tables, c);
        sum += share * (limits[i] + half);
        all += share;
    }
    return all > 0 ? sum / all : 0;
}

int shareTableWidth(int side) { return side; }

void drawShareTable(Canvas& canvas, const ModPolarGraph& tables, const SpeedLimits& limits) {
    const CanvasGroup group(canvas, "table");
    const ShareTable table = shareTable(tables, limits);
    TablePainter painter(canvas, tables.LegendFont);
    painter.line("Share of the valid hours in percent, by direction and speed (" + toUtf8(limits.unit) + ")");
    painter.gap();
    painter.row(table.heading, true);
    painter.rule();
    for (std::size_t i = 0; i < table.rows.size(); ++i) {
        if (i == static_cast<std::size_t>(freqDirections)) painter.rule();
        painter.row(table.rows[i], i >= static_cast<std::size_t>(freqDirections));
    }
    painter.gap();
    for (const std::string& line : table.lines) painter.line(line);
}

}  // namespace zg
