#include "dialogs/gridded/Location.h"

#include "base/RunTimeError.h"

namespace zg {

const std::vector<LocationField>& locationFields(bool withCells) {
    static const std::vector<LocationField> fields = {{"txtXCoord", &Location::x},
                                                      {"txtYCoord", &Location::y},
                                                      {"txtLat", &Location::lat},
                                                      {"txtLon", &Location::lon},
                                                      {"cboNS", &Location::ns},
                                                      {"cboWE", &Location::we},
                                                      {"txtExtractionHeight", &Location::height},
                                                      {"txtFRQOutputFilename", &Location::frqName}};
    static const std::vector<LocationField> all = [] {
        std::vector<LocationField> more = fields;
        more.push_back({"txtGridPointI", &Location::i});
        more.push_back({"txtGridPointJ", &Location::j});
        return more;
    }();
    return withCells ? all : fields;
}

Location& Locations::operator[](std::int32_t number) {
    if (number < 0 || static_cast<std::size_t>(number) >= rows_.size())
        raise(ErrorNumber::SubscriptOutOfRange);
    return rows_[static_cast<std::size_t>(number)];
}

}  // namespace zg
