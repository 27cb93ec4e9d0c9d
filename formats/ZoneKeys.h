#pragma once

// The key of a time zone in control files and raw data: "UTC-0330".

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace zg {

/// Seconds east of Greenwich for a key, letters in any case, blanks around it allowed; nothing for any other
/// text, and for more than 14 hours. The dialogs use HoursFromTimeZone (headers/Zones.h) instead, which must
/// put the half hour of "UTC+0330" on the other side.
std::optional<std::int64_t> zoneOffset(std::string_view key);

/// The key of a zone that many seconds east of Greenwich.
std::string zoneText(std::int64_t offset);

}  // namespace zg
