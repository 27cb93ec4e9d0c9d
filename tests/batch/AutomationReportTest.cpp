#include "batch/AutomationReportWriter.h"

#include <gtest/gtest.h>

#include "base/RunTimeError.h"
#include "tests/batch/ReportSteps.h"

namespace zg {
namespace {

std::string textOf(const AutomationValue& value) {
    if (const auto* const truth = std::get_if<bool>(&value)) return *truth ? "True" : "False";
    if (const auto* const text = std::get_if<std::string>(&value)) return "\"" + *text + "\"";
    if (const auto* const whole = std::get_if<std::int32_t>(&value)) return std::to_string(*whole);
    std::string text = std::to_string(std::get<float>(value));
    return text.substr(0, text.find('.') + 3) + "f";
}

/// What an application was asked for, step by step; one of them may fail.
struct Record {
    Steps steps;
    std::size_t failAt = 0;

    void note(const std::string& step) {
        steps.push_back(step);
        if (steps.size() == failAt) throw RunTimeError(1004, "it broke");
    }
};

class RecordingObject : public AutomationObject {
 public:
    RecordingObject(Record& record, std::string path) : record_(record), path_(std::move(path)) {}
    ~RecordingObject() override {
        // The last step is told by the applications alone.
        if (path_.find('.') == std::string::npos) record_.steps.push_back("release " + path_);
    }

    std::unique_ptr<AutomationObject> object(const std::string& member,
                                             const AutomationArguments& arguments) override {
        const std::string path = path_ + "." + member + shown(arguments);
        record_.note(path);
        return std::make_unique<RecordingObject>(record_, path);
    }
    void call(const std::string& member, const AutomationArguments& arguments) override {
        record_.note(path_ + "." + member + shown(arguments));
    }
    void put(const std::string& property, const AutomationValue& value) override {
        record_.note(path_ + "." + property + " := " + textOf(value));
    }

 private:
    static std::string shown(const AutomationArguments& arguments) {
        std::string text;
        for (const AutomationArgument& one : arguments)
            text += (text.empty() ? "" : ", ") + one.name + " := " + textOf(one.value);
        return arguments.empty() ? "" : "(" + text + ")";
    }

    Record& record_;
    std::string path_;
};

/// Stands for the writer that is asked where no application is installed.
class OtherWriter : public ReportWriter {
 public:
    explicit OtherWriter(Steps& steps) : steps_(steps) {}
    void beginPresentation() override { steps_.emplace_back("other presentation"); }
    void addSlide(const std::string& picture, float, float, float, float) override {
        steps_.push_back("other slide " + picture);
    }
    void savePresentation(const std::string& path) override { steps_.push_back("other save " + path); }
    void beginDocument() override { steps_.emplace_back("other document"); }
    void addPicture(const std::string& picture) override { steps_.push_back("other picture " + picture); }
    void addPageBreak() override { steps_.emplace_back("other break"); }
    void saveDocument(const std::string& path) override { steps_.push_back("other save " + path); }

 private:
    Steps& steps_;
};

class AutomationReport : public ::testing::Test {
 protected:
    void makePresentation(int pictures) { makeReport(writer_, true, pictures); }
    void makeDocument(int pictures) { makeReport(writer_, false, pictures); }

    Record record_;
    std::string installed_ = "PowerPoint.Application Word.Application";
    AutomationReportWriter writer_{
        std::make_unique<OtherWriter>(record_.steps),
        [this](const std::string& application) -> std::unique_ptr<AutomationObject> {
            if (installed_.find(application) == std::string::npos) return nullptr;
            record_.note("create " + application);
            return std::make_unique<RecordingObject>(record_, application.substr(0, application.find('.')));
        }};
};

TEST_F(AutomationReport, OfSlidesMakesEachCallInOrderWithEveryArgumentByName) {
    for (const int pictures : {0, 1, 3}) {
        record_.steps.clear();
        makePresentation(pictures);
        EXPECT_EQ(record_.steps, presentationSteps(pictures)) << pictures;
    }
}

TEST_F(AutomationReport, OfPagesMakesEachCallInOrderWithEveryArgumentByName) {
    for (const int pictures : {0, 1, 3}) {
        record_.steps.clear();
        makeDocument(pictures);
        EXPECT_EQ(record_.steps, documentSteps(pictures)) << pictures;
    }
}

TEST_F(AutomationReport, EndsAtTheStepThatFailsAndTheNextOneBeginsAfresh) {
    for (const bool presentation : {true, false}) {
        const Steps whole = presentation ? presentationSteps(3) : documentSteps(3);
        for (std::size_t step = 1; step < whole.size(); ++step) {
            record_.steps.clear();
            record_.failAt = step;
            int error = 0;
            try {
                makeReport(writer_, presentation, 3);
            } catch (const RunTimeError& told) {
                error = told.number;
            }
            EXPECT_EQ(error, 1004) << whole[step - 1];
            EXPECT_EQ(record_.steps, Steps(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(step)));
            record_.failAt = 0;
            writer_.beginDocument();
            writer_.saveDocument("x");
            record_.steps.clear();
        }
    }
}

TEST_F(AutomationReport, WithoutTheApplicationIsMadeByTheOtherWriter) {
    installed_ = "PowerPoint.Application";
    makeDocument(2);
    EXPECT_EQ(record_.steps, (Steps{"other document", "other picture C:\\b\\1.bmp", "other break",
                                    "other picture C:\\b\\2.bmp", "other save C:\\out\\a.doc"}));
    record_.steps.clear();
    makePresentation(1);
    EXPECT_EQ(record_.steps, presentationSteps(1)) << "the other application is there";
    installed_ = "";
    record_.steps.clear();
    makePresentation(1);
    EXPECT_EQ(record_.steps,
              (Steps{"other presentation", "other slide C:\\b\\1.bmp", "other save C:\\out\\a.ppt"}));
}

}  // namespace
}  // namespace zg
