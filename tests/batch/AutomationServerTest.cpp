// The reports through the automation interfaces of Windows, with a library that records what it is asked for
// in the place of the office applications.

#include <gtest/gtest.h>

#include "base/RunTimeError.h"
#include "base/WindowsNames.h"
#include "batch/AutomationReportWriter.h"
#include "tests/batch/ReportSteps.h"
#include "tests/batch/office_recorder.h"
#include "tests/support/TempDirectory.h"

namespace zg {
namespace {

const std::wstring classes = L"Software\\Classes\\";

void enter(const std::wstring& key, const std::wstring& value) {
    const auto bytes = static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t));
    ASSERT_EQ(
        RegSetKeyValueW(HKEY_LOCAL_MACHINE, (classes + key).c_str(), nullptr, REG_SZ, value.c_str(), bytes),
        ERROR_SUCCESS);
}

class AutomationServer : public ::testing::Test {
 protected:
    void SetUp() override {
        const std::wstring library = wideUnits(ZG_OFFICE_RECORDER);
        for (const auto& [application, id] : applications_) {
            enter(application + L"\\CLSID", id);
            enter(L"CLSID\\" + id + L"\\InprocServer32", library);
        }
        SetEnvironmentVariableW(L"ZG_RECORD", wideUnits(directory_.file("record")).c_str());
        failAt(0);
    }
    void TearDown() override {
        for (const auto& [application, id] : applications_) {
            RegDeleteTreeW(HKEY_LOCAL_MACHINE, (classes + application).c_str());
            RegDeleteTreeW(HKEY_LOCAL_MACHINE, (classes + L"CLSID\\" + id).c_str());
        }
    }

    static void failAt(std::size_t step) {
        SetEnvironmentVariableW(L"ZG_FAIL_AT", std::to_wstring(step).c_str());
    }

    /// The steps since the last call.
    Steps recorded() {
        Steps steps;
        std::string bytes = directory_.read("record");
        for (std::size_t end = 0; (end = bytes.find('\n')) != std::string::npos; bytes.erase(0, end + 1))
            steps.push_back(bytes.substr(0, end));
        directory_.write("record", "");
        return steps;
    }

    const std::vector<std::pair<std::wstring, std::wstring>> applications_ = {
        {L"PowerPoint.Application", slidesClass}, {L"Word.Application", pagesClass}};
    TempDirectory directory_;
};

TEST_F(AutomationServer, IsAskedForEachStepInOrder) {
    AutomationReportWriter writer(nullptr);
    for (const int pictures : {0, 1, 3}) {
        makeReport(writer, true, pictures);
        EXPECT_EQ(recorded(), presentationSteps(pictures));
        makeReport(writer, false, pictures);
        EXPECT_EQ(recorded(), documentSteps(pictures));
    }
}

TEST_F(AutomationServer, SaysWhatFailsAtEachStep) {
    for (const bool presentation : {true, false}) {
        const Steps whole = presentation ? presentationSteps(3) : documentSteps(3);
        for (std::size_t step = 1; step < whole.size(); ++step) {
            failAt(step);
            std::string told;
            {
                AutomationReportWriter writer(nullptr);
                try {
                    makeReport(writer, presentation, 3);
                } catch (const RunTimeError& error) {
                    told = std::to_string(error.number) + ": " + error.description;
                }
            }
            EXPECT_EQ(told, step == 1 ? "429: ActiveX component can't create object" : "1004: it broke");
            Steps done(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(step));
            if (step > 1) done.push_back(whole.back());
            EXPECT_EQ(recorded(), done);
        }
    }
}

TEST_F(AutomationServer, ThatIsNotEnteredGivesNothing) {
    EXPECT_EQ(createAutomationObject("Zephyrgraph.NoSuchApplication"), nullptr);
}

}  // namespace
}  // namespace zg
