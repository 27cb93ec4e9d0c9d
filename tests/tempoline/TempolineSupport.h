#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "tempoline/Control.h"
#include "tempoline/Failure.h"
#include "tempoline/RoseReport.h"
#include "tempoline/RoseTable.h"
#include "tests/support/TempDirectory.h"

/// The message of the failure that the call throws; fails the test if it throws none.
template <typename Call>
std::string failureOf(Call call, zg::tempoline::ExitStatus status = zg::tempoline::ExitStatus::Failed) {
    try {
        call();
    } catch (const zg::tempoline::Failure& failure) {
        EXPECT_EQ(static_cast<int>(failure.status), static_cast<int>(status)) << failure.what();
        return failure.what();
    }
    ADD_FAILURE() << "there was no failure";
    return {};
}

/// While it exists, the current directory is a directory of the test.
class InDirectory {
 public:
    InDirectory() : before_(std::filesystem::current_path()) {
        std::filesystem::current_path(directory.path());
    }
    ~InDirectory() { std::filesystem::current_path(before_); }
    InDirectory(const InDirectory&) = delete;
    InDirectory& operator=(const InDirectory&) = delete;

    TempDirectory directory;

 private:
    std::filesystem::path before_;
};

/// A day of hours with the usual classes, two seasons and two ranges of hours.
inline zg::tempoline::Control dayControl() {
    using namespace zg::tempoline;
    Control control;
    control.begin = momentOf(2004, 2, 29, 0, 0);
    control.end = momentOf(2004, 3, 1, 0, 0);
    control.zone = "UTC+0000";
    control.rules.classLimits = {0.5, 1.8, 3.3, 5.4, 8.5, 10.8};
    control.rules.limitTexts = {"0.5", "1.8", "3.3", "5.4", "8.5", "10.8"};
    control.rules.seasons = {{1, "Winter"}, {2, "Spring"}};
    control.rules.seasonOfMonth = {1, 1, 2, 2, 2, 3, 3, 3, 3, 3, 3, 1};
    control.rules.hourRanges = {{1, 12}, {13, 0}};
    OutputRequest output;
    output.id = 1;
    output.name = "out";
    output.height = 10;
    control.outputs.push_back(output);
    return control;
}

/// The report of these roses, from a station at 10 m.
inline zg::tempoline::RoseReport reportOf(const zg::tempoline::Control& control,
                                          const zg::tempoline::RoseTable& table) {
    zg::tempoline::RoseReport report;
    report.title1 = "Station 1";
    report.title2 = "AERMSFC a.sfc";
    report.height = "10.0 m";
    report.zone = "UTC-0500";
    report.begin = control.begin;
    report.end = control.end;
    report.rules = control.rules;
    report.roses = table.roses();
    return report;
}
