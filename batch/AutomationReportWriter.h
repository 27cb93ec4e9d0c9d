#pragma once

#include <functional>
#include <memory>
#include <string>

#include "batch/ReportWriter.h"
#include "platform/Automation.h"

namespace zg {

/// Drives the office applications of Windows step by step, if installed; a report without such an application
/// is passed to another writer.
class AutomationReportWriter : public ReportWriter {
 public:
    /// Returns the object of an application, or nothing if none of that name is installed.
    using Create = std::function<std::unique_ptr<AutomationObject>(const std::string& application)>;

    explicit AutomationReportWriter(std::unique_ptr<ReportWriter> other,
                                    Create create = createAutomationObject)
        : other_(std::move(other)), create_(std::move(create)) {}

    void beginPresentation() override;
    void addSlide(const std::string& picture, float left, float top, float width, float height) override;
    void savePresentation(const std::string& path) override;
    void beginDocument() override;
    void addPicture(const std::string& picture) override;
    void addPageBreak() override;
    void saveDocument(const std::string& path) override;

 private:
    bool begin(const std::string& application);
    void end();
    std::unique_ptr<AutomationObject> endOfDocument();

    std::unique_ptr<ReportWriter> other_;
    Create create_;

    std::unique_ptr<AutomationObject> application_;  ///< null: the other writer makes this report
    std::unique_ptr<AutomationObject> file_;         ///< the presentation or the document
    std::unique_ptr<AutomationObject> slides_;
    std::unique_ptr<AutomationObject> slide_;
    std::int32_t slideCount_ = 0;
};

}  // namespace zg
