#pragma once

// Writes a time series of version 1.3: a header, then one line per step.

#include <memory>
#include <string>

#include "tempoline/OutputFile.h"
#include "tempoline/Times.h"
#include "tempoline/Wind.h"

namespace zg::tempoline {

struct TsfHeading {
    std::string title;
    std::string source;  ///< kind and name of the input
    std::string station;
    std::string zone;
    Seconds begin = 0;
    Seconds end = 0;
    Seconds step = secondsAnHour;
    double height = -1;  ///< metres; negative if unknown
};

class TsfFile {
 public:
    TsfFile(const std::string& name, const TsfHeading& heading);

    /// Writes the step that begins at that moment; 9999 marks a missing value.
    void add(Seconds begin, const Wind& wind);

    OutputFile& file() { return file_; }

 private:
    void appendMoment(Seconds moment);

    OutputFile file_;
    Seconds step_;
    std::string line_;
    std::int64_t day_ = INT64_MIN;
    std::string dayText_;
};

}  // namespace zg::tempoline
