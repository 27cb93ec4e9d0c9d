#include "graph/control/GraphFile.h"

#include "base/Lines.h"
#include "base/Numbers.h"

namespace zg {

namespace {

constexpr const char* fileKind = "POLAR GRAPH 1.0";
constexpr const char* fieldEnd = "//";

class Record {
 public:
    Record& add(const std::string& text) {
        text_ += text + fieldEnd;
        return *this;
    }
    Record& add(bool value) { return add(boolText(value)); }
    Record& add(float value) { return add(singleText(value)); }
    Record& add(std::int32_t value) { return add(doubleText(value)); }
    Record& add(std::int16_t value) { return add(std::int32_t{value}); }
    Record& addColour(Colour value) { return add(static_cast<std::int32_t>(value)); }

    std::string endedBy(const std::string& last) const { return text_ + last; }

 private:
    std::string text_;
};

}  // namespace

std::string graphRecord(const GrapInfo& graph, const std::string& comment) {
    const Series& series = graph.Series;
    const Pen& pen = series.Pen;
    const Marker& marker = series.Marker;
    Record record;
    record.add(graph.Coefficient).add(graph.Equation);
    record.add(graph.StartingAngle)
        .add(graph.EndingAngle)
        .add(graph.Step)
        .add(graph.Delay)
        .add(graph.Visible);
    record.add(series.AllowMarker).add(series.AllowPen);
    record.add(pen.AllowConVertices).add(pen.AllowShading).addColour(pen.FillColor);
    record.add(pen.Style).add(pen.Weight);
    record.add(marker.Alignment).add(marker.AutoSize).addColour(marker.FillColor);
    record.add(marker.Font.Name).add(marker.Font.Size).add(marker.Font.Bold).add(marker.Font.Italic);
    record.add(marker.GetHorizAlign).add(marker.GetVertAlign);
    record.add(marker.MaskPicturePath).add(marker.PicturePath);
    record.add(marker.PictureHeight).add(marker.PictureWidth);
    record.add(marker.Style).add(marker.Transparent).add(marker.UsePicture);
    return record.endedBy(comment);
}

void writeGraphFile(const std::string& path, const Plot& plot, const std::string& comment) {
    LineWriter file(path);
    writeQuoted(file, fileKind);
    for (std::int32_t i = 1; i <= plot.Count(); ++i)
        writeQuoted(file, graphRecord(plot.Item(std::int64_t{i}), comment));
    file.close();
}

}  // namespace zg
