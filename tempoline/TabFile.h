#pragma once

// The counts behind an FRQ file, as text that people and the joining of partial runs read.

#include <string>
#include <string_view>

#include "tempoline/RoseReport.h"

namespace zg::tempoline {

std::string tabText(const RoseReport& report);

/// Reads what tabText wrote; the name is for messages. Throws a Failure for any other text, and where the
/// sums of a rose do not agree with its cells.
RoseReport readTab(std::string_view text, const std::string& file);

}  // namespace zg::tempoline
