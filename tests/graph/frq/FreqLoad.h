#pragma once

#include <gtest/gtest.h>

#include <string>

#include "graph/frq/OpenFreqFile.h"
#include "tests/support/FreqText.h"
#include "tests/support/TempDirectory.h"
#include "tests/support/TestHost.h"

namespace zg {

/// Loads lines or bytes as a file, into separate tables.
class FreqLoad : public ::testing::Test {
 protected:
    FreqFileOutcome loadBytes(const std::string& bytes) {
        return loadFreqFile(directory.write("wind.frq", bytes), tables, host);
    }

    FreqFileOutcome load(const freqtext::Lines& lines) { return loadBytes(freqtext::bytes(lines)); }

    /// Number of the run-time error that the load raises, 0 if none.
    int errorOf(const freqtext::Lines& lines) {
        try {
            load(lines);
        } catch (const RunTimeError& error) {
            return error.number;
        }
        return 0;
    }

    TempDirectory directory;
    TestHost host;
    ModPolarGraph tables;
};

/// A version as part of a test name: "2.0" is "v20".
inline std::string versionName(const ::testing::TestParamInfo<const char*>& info) {
    const std::string version = info.param;
    return "v" + version.substr(0, 1) + version.substr(2);
}

}  // namespace zg
