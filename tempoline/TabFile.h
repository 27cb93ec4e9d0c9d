#pragma once

// The counts from which an FRQ file was made, as text for people and for joining partial runs.

#include <string>
#include <string_view>

#include "tempoline/RoseReport.h"

namespace zg::tempoline {

std::string tabText(const RoseReport& report);

/// Reads what tabText wrote; the name is for messages. Throws a Failure for any other text, and if the sums
/// of a rose do not match its cells.
RoseReport readTab(std::string_view text, const std::string& file);

}  // namespace zg::tempoline
