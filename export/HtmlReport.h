#pragma once

#include <string>
#include <vector>

#include "export/RosePicture.h"

namespace zg {

/// One page for browsers, UTF-8, that needs nothing from elsewhere: every rose as a drawing that says its
/// figures, its table behind a fold, and a filter by station and period. It can be read without its script.
std::string htmlReport(const std::vector<RoseOfFile>& roses, const PictureLook& look, int side);

/// The same for print: a page a rose, with its table beside it.
std::vector<Drawing> reportPages(const std::vector<RoseOfFile>& roses, const PictureLook& look, int side);

}  // namespace zg
