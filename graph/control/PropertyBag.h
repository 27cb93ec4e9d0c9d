#pragma once

#include <map>
#include <string>

#include "graph/render/Canvas.h"

namespace zg {

/// The host's store of a control's properties: texts by property name, and pictures, which have no text.
class PropertyBag {
 public:
    void WriteProperty(const std::string& name, const std::string& value);
    void WritePicture(const std::string& name, PicturePointer picture);

    /// The stored text, or the default if none is stored.
    std::string ReadProperty(const std::string& name, const std::string& defaultValue) const;

    /// The stored picture, null if none is stored.
    PicturePointer ReadPicture(const std::string& name) const;

 private:
    std::map<std::string, std::string> values_;
    std::map<std::string, PicturePointer> pictures_;
};

}  // namespace zg
