#pragma once

#include <string>
#include <vector>

#include "export/RosePicture.h"

namespace zg {

/// One self-contained page for browsers, UTF-8: every rose as a drawing that states its figures, its table in
/// a collapsed section, and a filter by station and period. It can be read without its script.
std::string htmlReport(const std::vector<RoseOfFile>& roses, const PictureLook& look, int side);

/// The same for print: one page per rose, with its table beside it.
std::vector<Drawing> reportPages(const std::vector<RoseOfFile>& roses, const PictureLook& look, int side);

}  // namespace zg
