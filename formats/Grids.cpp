#include "formats/Grids.h"

#include <algorithm>
#include <array>

namespace zg {

bool hasMap(InputKind kind, std::string_view code) {
    // Those of the models come first.
    static constexpr std::array<std::string_view, 7> codes = {"LCC", "PS", "EM", "LL", "UTM", "TTM", "LAZA"};
    constexpr std::size_t mapsOfModels = 4;
    const std::size_t known = kind == InputKind::M3d ? mapsOfModels : codes.size();
    return std::find(codes.begin(), codes.begin() + known, code) != codes.begin() + known;
}

}  // namespace zg
