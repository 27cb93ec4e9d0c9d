#pragma once

#include <QSizeF>
#include <QString>
#include <QTemporaryDir>
#include <vector>

#include "base/Host.h"
#include "batch/ReportWriter.h"

namespace zg {

/// Writes the report as a flat document, which LibreOffice converts to the binary file without a window and
/// without the user's own profile. Events are served meanwhile.
class OfficeReportWriter : public ReportWriter {
 public:
    explicit OfficeReportWriter(Host& host) : host_(host) {}

    void beginPresentation() override;
    void addSlide(const std::string& picture, float left, float top, float width, float height) override;
    void savePresentation(const std::string& path) override;
    void beginDocument() override;
    void addPicture(const std::string& picture) override;
    void addPageBreak() override;
    void saveDocument(const std::string& path) override;

    /// The office program; "" searches the machine for it.
    QString program;
    /// Time limit in milliseconds.
    int patience = 600'000;

 private:
    void begin();
    void write(const QByteArray& part, const char* name = "report.xml");
    QByteArray pageFor(QSizeF picture);
    void save(const std::string& path, const char* tail, const char* filter, const char* extension);
    std::string runOffice(const QStringList& arguments);

    Host& host_;
    std::unique_ptr<QTemporaryDir> scratch_;
    bool breakBefore_ = false;
    QByteArray style_;                ///< of the paragraph that began the page at hand
    std::vector<QSizeF> largePages_;  ///< in points; of pictures that the usual page cannot hold
};

}  // namespace zg
