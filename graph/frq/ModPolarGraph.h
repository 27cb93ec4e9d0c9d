#pragma once

// The tables of the displayed FRQ file and the style of the plot's texts. They persist from one load to the
// next and are shared by the control and the dialogs, which read and write them directly.

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "base/RunTimeError.h"
#include "base/Style.h"

namespace zg {

/// A table that grows with the file; an index out of bounds raises 9, "Subscript out of range".
template <typename T>
class Table {
 public:
    /// Replaces all values by fresh ones, indexes 0 to lastIndex.
    void redim(std::size_t lastIndex) { values_.assign(lastIndex + 1, T()); }
    void clear() { values_.clear(); }
    void assign(std::vector<T> values) { values_ = std::move(values); }

    std::size_t size() const { return values_.size(); }

    T& operator()(std::int64_t i) { return values_[checked(i)]; }
    const T& operator()(std::int64_t i) const { return values_[checked(i)]; }

    auto begin() const { return values_.begin(); }
    auto end() const { return values_.end(); }

 private:
    std::size_t checked(std::int64_t i) const {
        if (i < 0 || static_cast<std::size_t>(i) >= values_.size()) raise(ErrorNumber::SubscriptOutOfRange);
        return static_cast<std::size_t>(i);
    }
    std::vector<T> values_;
};

constexpr std::int16_t freqDirections = 16;  ///< rows of a rose, from 1 for north on clockwise
constexpr std::int16_t speedClasses = 6;     ///< columns of a row, from 1

/// The row of FrqFraction that holds a direction of a rose, both counted from 1. Roses lie one row further
/// apart than they have directions: the row after the last one stays 0.
constexpr std::int64_t fractionRow(std::int64_t rose, std::int64_t direction) {
    return (rose - 1) * (freqDirections + 1) + direction;
}

/// Shares of the periods by table row and speed class; class 0 stays 0.
class FractionTable {
 public:
    static constexpr std::int64_t classes = speedClasses + 1;

    void redim(std::size_t lastRow) { cells_.assign((lastRow + 1) * static_cast<std::size_t>(classes), 0.0); }
    std::int64_t rows() const { return static_cast<std::int64_t>(cells_.size()) / classes; }

    double& operator()(std::int64_t row, std::int64_t speedClass) { return cells_[checked(row, speedClass)]; }
    double operator()(std::int64_t row, std::int64_t speedClass) const {
        return cells_[checked(row, speedClass)];
    }

 private:
    std::size_t checked(std::int64_t row, std::int64_t speedClass) const {
        if (row < 0 || row >= rows() || speedClass < 0 || speedClass >= classes)
            raise(ErrorNumber::SubscriptOutOfRange);
        return static_cast<std::size_t>(row * classes + speedClass);
    }
    std::vector<double> cells_;
};

/// Tables per rose start at index 1; index 0 is unused.
struct ModPolarGraph {
    std::string FrqVersion;         ///< "2.0" to "2.3", "" before the first load
    std::int16_t FrqLineCount = 0;  ///< number of lines in the file plus one
    std::int16_t FrqRoseCount = 0;
    FractionTable FrqFraction;             ///< 0 to 1; fractionRow gives the row
    Table<std::string> FrqDirectionLabel;  ///< 0 to 16
    Table<std::string> FrqClassLimit;      ///< calm threshold, then the lower limits of the classes, m/s
    Table<std::string> FrqCalmPercent;
    Table<std::string> FrqRoseTitle;
    Table<std::string> FrqRoseCaption;
    Table<std::int32_t> FrqTotalPeriods;  ///< empty for version 2.0, as are the next three
    Table<std::int32_t> FrqValidPeriods;
    Table<std::int32_t> FrqCalmPeriods;
    Table<float> FrqPercentValid;
    std::string FrqTitle1;
    std::string FrqTitle2;
    std::string FrqMeasure;
    std::string FrqPeriodText;
    std::string GraphTitle;
    std::string GraphSubTitle;
    std::string GraphCaption;
    bool FrqLoaded = false;
    std::int16_t CurrentRose = 0;  ///< from 1

    Table<std::string> KnotClassLimit;    ///< the limits in knots, made on demand
    Table<std::string> LegendClassLimit;  ///< the limits in the legend's unit, rebuilt at each legend
    bool ClassesFromFile = false;         ///< the legend uses metres per second, as the file does
    bool ClassesInKnots = false;
    bool KnotTableReady = false;

    FontRecord LabelFont;      ///< the three title lines
    FontRecord DirectionFont;  ///< direction labels
    FontRecord PercentFont;    ///< percent labels
    FontRecord LegendFont;
    FontRecord PlotFont{0, "Arial", 8, false, false};  ///< starting style of the surface
    Colour PlotForeColor = black;
    std::array<float, 6> WindClassColor{};  ///< fill of the speed classes 1 to 6
    float GridLineColor = 0;                ///< rings and spokes

    std::string WorkDir;  ///< working directory of the suite, last-used directory of the file dialogs
};

extern ModPolarGraph modPolarGraph;

/// Factory values that the Default buttons restore.
FontRecord factoryLabelFont();
FontRecord factoryDirectionFont();
FontRecord factoryPercentFont();
FontRecord factoryLegendFont();
constexpr float factoryGridLineColor = 14737632;  // 224, 224, 224
std::array<float, 6> factoryWindClassColor();

/// Sets the factory style in every font record without a name, and with it the colours.
void fillFactoryStyle(ModPolarGraph& tables);

}  // namespace zg
