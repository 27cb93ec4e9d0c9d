#include "processing/RunNames.h"

#include "base/Numbers.h"
#include "base/Paths.h"
#include "base/RunTimeError.h"

namespace zg {

namespace {

constexpr std::size_t extensionLength = 4;

}  // namespace

std::string periodInName(const std::string& beginYear, const std::string& beginMonth,
                         const std::string& beginDay, const std::string& endYear, const std::string& endMonth,
                         const std::string& endDay) {
    return beginYear + format00(beginMonth) + format00(beginDay) + "-" + endYear + format00(endMonth) +
           format00(endDay);
}

std::string fileBaseOf(const std::string& path) {
    const std::string name = FileNameOf(path);
    if (name.size() < extensionLength) raise(ErrorNumber::InvalidProcedureCall);
    return name.substr(0, name.size() - extensionLength);
}

std::string surfOutputName(const std::string& fileBase, const std::string& row,
                           const std::string& stationName, const std::string& period,
                           const std::string& height) {
    const std::string start = stationName.empty() ? fileBase + "-" + row : stationName;
    return start + "_SURF_" + period + "_" + height + "m";
}

}  // namespace zg
