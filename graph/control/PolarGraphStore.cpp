// The control's properties in the host's property store.

#include "base/Numbers.h"
#include "graph/control/PolarGraph.h"

namespace zg {

namespace {

/// Whole numbers and colours are stored as signed 32-bit numbers.
std::string wholeText(std::int32_t value) { return doubleText(value); }

class Reader {
 public:
    explicit Reader(const PropertyBag& bag) : bag_(bag) {}

    void read(const char* name, bool& value) const { value = toBool(text(name, boolText(value))); }
    void read(const char* name, float& value) const { value = toSingle(text(name, singleText(value))); }
    void read(const char* name, std::int16_t& value) const { value = toInt16(text(name, wholeText(value))); }
    void read(const char* name, std::int32_t& value) const { value = toInt32(text(name, wholeText(value))); }
    void read(const char* name, Colour& value) const {
        value = static_cast<Colour>(toInt32(text(name, wholeText(static_cast<std::int32_t>(value)))));
    }
    void read(const char* name, std::string& value) const { value = text(name, value); }
    void read(const char* name, PicturePointer& value) const { value = bag_.ReadPicture(name); }

 private:
    std::string text(const char* name, const std::string& defaultValue) const {
        return bag_.ReadProperty(name, defaultValue);
    }
    const PropertyBag& bag_;
};

class Writer {
 public:
    explicit Writer(PropertyBag& bag) : bag_(bag) {}

    void write(const char* name, bool value) const { bag_.WriteProperty(name, boolText(value)); }
    void write(const char* name, float value) const { bag_.WriteProperty(name, singleText(value)); }
    void write(const char* name, std::int16_t value) const { bag_.WriteProperty(name, wholeText(value)); }
    void write(const char* name, std::int32_t value) const { bag_.WriteProperty(name, wholeText(value)); }
    void write(const char* name, Colour value) const {
        bag_.WriteProperty(name, wholeText(static_cast<std::int32_t>(value)));
    }
    void write(const char* name, const std::string& value) const { bag_.WriteProperty(name, value); }
    void write(const char* name, const PicturePointer& value) const { bag_.WritePicture(name, value); }

 private:
    PropertyBag& bag_;
};

/// Names every property once, in the order of the control's interface, for both reading and writing.
template <typename Visit>
void eachProperty(Visit&& visit, auto& settings, auto& page, auto& own) {
    visit("AspectRatio", settings.AspectRatio);
    visit("AutoUpdate", own.AutoUpdate);
    visit("BackColor", settings.BackColor);
    visit("Comment", own.Comment);
    visit("OffsetDrawingAreaX", page.OffsetDrawingAreaX);
    visit("OffsetDrawingAreaY", page.OffsetDrawingAreaY);
    visit("MouseIcon", own.MouseIcon);
    visit("MousePointer", own.MousePointer);
    visit("Picture", settings.Picture);
    visit("PictureStyle", settings.PictureStyle);
    visit("ScrollBars", page.ScrollBars);
    visit("SetActiveTool", own.SetActiveTool);
    visit("SetRulerMode", own.SetRulerMode);
    visit("ShowCoordinateSystem", settings.ShowCoordinateSystem);
    visit("ShowGrid", settings.ShowGrid);
    visit("ShowLabel", settings.ShowLabel);
    visit("ShowLegend", settings.ShowLegend);
    visit("ShowRuler", page.ShowRuler);
    visit("StopAni", own.StopAni);
    visit("Zoom", settings.Zoom);
}

}  // namespace

void PolarGraph::ReadProperties(const PropertyBag& bag) {
    PlotSettings settings;
    PageLayout page;
    ControlProperties own;
    const Reader reader(bag);
    eachProperty([&reader](const char* name, auto& value) { reader.read(name, value); }, settings, page, own);
    page.width = page_.width;
    page.height = page_.height;
    settings_ = settings;
    page_ = page;
    own_ = own;
    window_.pointerChanged();
    resizePage();
    Refresh();
}

void PolarGraph::WriteProperties(PropertyBag& bag) const {
    const Writer writer(bag);
    eachProperty([&writer](const char* name, const auto& value) { writer.write(name, value); }, settings_,
                 page_, own_);
}

}  // namespace zg
