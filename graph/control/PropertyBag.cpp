#include "graph/control/PropertyBag.h"

namespace zg {

void PropertyBag::WriteProperty(const std::string& name, const std::string& value) { values_[name] = value; }

void PropertyBag::WritePicture(const std::string& name, PicturePointer picture) {
    pictures_[name] = std::move(picture);
}

std::string PropertyBag::ReadProperty(const std::string& name, const std::string& defaultValue) const {
    const auto found = values_.find(name);
    return found == values_.end() ? defaultValue : found->second;
}

PicturePointer PropertyBag::ReadPicture(const std::string& name) const {
    const auto found = pictures_.find(name);
    return found == pictures_.end() ? nullptr : found->second;
}

}  // namespace zg
