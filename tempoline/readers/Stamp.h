#pragma once

// Times in the fields of a line, with error messages.

#include <string_view>

#include "tempoline/LineSource.h"
#include "tempoline/Times.h"

namespace zg::tempoline {

/// Year (two digits are completed), month, day, hour (0 to 24) and second within the hour.
Seconds stampOf(const LineSource& place, std::string_view year, std::string_view month, std::string_view day,
                std::string_view hour, std::string_view second = "0");

/// Year, day of the year, hour and second.
Seconds julianStampOf(const LineSource& place, std::string_view year, std::string_view day,
                      std::string_view hour, std::string_view second = "0");

}  // namespace zg::tempoline
