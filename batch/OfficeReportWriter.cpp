#include "batch/OfficeReportWriter.h"

#include <QBuffer>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>
#include <algorithm>

#include "base/Files.h"
#include "base/RunTimeError.h"
#include "platform/QtPicture.h"
#include "platform/QtText.h"

namespace zg {

namespace {

constexpr double pointsPerPixel = 72.0 / 96;
constexpr int pollMilliseconds = 20;
constexpr const char* bodyName = "body.xml";

constexpr const char* xmlHead =
    R"(<?xml version="1.0" encoding="UTF-8"?>
<office:document xmlns:office="urn:oasis:names:tc:opendocument:xmlns:office:1.0"
 xmlns:style="urn:oasis:names:tc:opendocument:xmlns:style:1.0" xmlns:text="urn:oasis:names:tc:opendocument:xmlns:text:1.0"
 xmlns:draw="urn:oasis:names:tc:opendocument:xmlns:drawing:1.0" xmlns:fo="urn:oasis:names:tc:opendocument:xmlns:xsl-fo-compatible:1.0"
 xmlns:svg="urn:oasis:names:tc:opendocument:xmlns:svg-compatible:1.0"
 xmlns:presentation="urn:oasis:names:tc:opendocument:xmlns:presentation:1.0" office:version="1.2" office:mimetype=")";

// Without the empty styles element the size of the slides is ignored.
constexpr const char* presentationHead = R"(application/vnd.oasis.opendocument.presentation">
<office:styles/>
<office:automatic-styles>
<style:page-layout style:name="slide"><style:page-layout-properties fo:page-width="720pt" fo:page-height="540pt"
 fo:margin-top="0pt" fo:margin-bottom="0pt" fo:margin-left="0pt" fo:margin-right="0pt" style:print-orientation="landscape"/></style:page-layout>
</office:automatic-styles>
<office:master-styles><style:master-page style:name="blank" style:page-layout-name="slide"/></office:master-styles>
<office:body><office:presentation>
)";
constexpr const char* presentationTail = "</office:presentation></office:body></office:document>\n";

// Letter paper, unless a picture needs more.
constexpr double pageMargin = 72;
constexpr double pageWidth = 612;
constexpr double pageHeight = 792;
constexpr double lineSlack = 12;  // a picture is a character of a line, which is a little higher

constexpr const char* documentTail = "</office:text></office:body></office:document>\n";

QByteArray points(double value) { return QByteArray::number(value, 'f', 2) + "pt"; }

QByteArray pageLayout(const QByteArray& name, QSizeF size) {
    QByteArray margins;
    for (const char* side : {"top", "bottom", "left", "right"})
        margins += QByteArray(" fo:margin-") + side + "=\"" + points(pageMargin) + "\"";
    return "<style:page-layout style:name=\"" + name + "\"><style:page-layout-properties fo:page-width=\"" +
           points(size.width()) + "\" fo:page-height=\"" + points(size.height()) + "\"" + margins +
           "/></style:page-layout>\n";
}

QByteArray masterPage(const QByteArray& name, const QByteArray& layout) {
    return "<style:master-page style:name=\"" + name + "\" style:page-layout-name=\"" + layout + "\"/>\n";
}

/// A paragraph of this style starts a page of that kind.
QByteArray beginsPage(const QByteArray& style, const QByteArray& master) {
    return "<style:style style:name=\"" + style + "\" style:family=\"paragraph\" style:master-page-name=\"" +
           master + "\"/>\n";
}

/// The head of a document with the usual page and larger ones: "page1" and so on in their order.
QByteArray documentHead(const std::vector<QSizeF>& largePages) {
    QByteArray layouts = pageLayout("page", {pageWidth, pageHeight});
    QByteArray styles =
        "<style:style style:name=\"next\" style:family=\"paragraph\"><style:paragraph-properties "
        "fo:break-before=\"page\"/></style:style>\n" +
        beginsPage("usual", "Standard");
    QByteArray masters = masterPage("Standard", "page");
    for (std::size_t i = 0; i < largePages.size(); ++i) {
        const QByteArray name = "page" + QByteArray::number(static_cast<qulonglong>(i + 1));
        layouts += pageLayout(name, largePages[i]);
        styles += beginsPage(name, name);
        masters += masterPage(name, name);
    }
    return "application/vnd.oasis.opendocument.text\">\n<office:automatic-styles>\n" + layouts + styles +
           "</office:automatic-styles>\n<office:master-styles>\n" + masters +
           "</office:master-styles>\n<office:body><office:text>\n";
}

[[noreturn]] void fail(ErrorNumber number, const std::string& text) {
    throw RunTimeError(static_cast<int>(number), text);
}

/// The picture as text, without loss. Pixels that are all the same shade remain so in the office's file.
QByteArray embedded(const QImage& image) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return "<draw:image><office:binary-data>" + bytes.toBase64() + "</office:binary-data></draw:image>";
}

QImage pictureOf(const std::string& path) {
    try {
        return std::static_pointer_cast<const QtPicture>(loadPicture(path))->image();
    } catch (const RunTimeError& error) {
        throw RunTimeError(error.number, error.description + ": " + path);
    }
}

/// The last output of the office program, preferably its error messages.
std::string lastWords(QProcess& process) {
    constexpr qsizetype most = 500;
    QByteArray words = process.readAllStandardError().trimmed();
    if (words.isEmpty()) words = process.readAllStandardOutput().trimmed();
    return words.right(most).toStdString();
}

std::string withReason(const std::string& fault, const std::string& reason) {
    return reason.empty() ? fault + " and gave no reason" : fault + ": " + reason;
}

QByteArray sizeOf(double width, double height) {
    return "svg:width=\"" + points(width) + "\" svg:height=\"" + points(height) + "\"";
}

}  // namespace

void OfficeReportWriter::begin() {
    scratch_ = std::make_unique<QTemporaryDir>();
    if (!scratch_->isValid()) fail(ErrorNumber::PathFileAccessError, scratch_->errorString().toStdString());
}

void OfficeReportWriter::write(const QByteArray& part, const char* name) {
    QFile file(scratch_->filePath(QString::fromLatin1(name)));
    if (!file.open(QIODevice::Append) || file.write(part) != part.size() || !file.flush())
        fail(ErrorNumber::DiskFull, "The report could not be written: " + file.errorString().toStdString());
}

void OfficeReportWriter::beginPresentation() {
    begin();
    write(QByteArray(xmlHead) + presentationHead);
}

void OfficeReportWriter::addSlide(const std::string& picture, float left, float top, float width,
                                  float height) {
    write("<draw:page draw:master-page-name=\"blank\"><draw:frame svg:x=\"" + points(double{left}) +
          "\" svg:y=\"" + points(double{top}) + "\" " + sizeOf(double{width}, double{height}) + ">" +
          embedded(pictureOf(picture)) + "</draw:frame></draw:page>\n");
}

void OfficeReportWriter::savePresentation(const std::string& path) {
    save(path, presentationTail, "MS PowerPoint 97", "ppt");
}

void OfficeReportWriter::beginDocument() {
    begin();
    breakBefore_ = false;
    largePages_.clear();
    style_ = "usual";
}

/// The style of a paragraph on a page that is large enough for the picture: "usual", or that of a larger
/// page.
QByteArray OfficeReportWriter::pageFor(QSizeF picture) {
    const QSizeF needed = picture + QSizeF(2 * pageMargin, 2 * pageMargin + lineSlack);
    if (needed.width() <= pageWidth && needed.height() <= pageHeight) return "usual";
    const QSizeF size = needed.expandedTo({pageWidth, pageHeight});
    const auto known = std::find(largePages_.begin(), largePages_.end(), size);
    const auto index = known - largePages_.begin();
    if (known == largePages_.end()) largePages_.push_back(size);
    return "page" + QByteArray::number(static_cast<qlonglong>(index + 1));
}

void OfficeReportWriter::addPicture(const std::string& picture) {
    const QImage image = pictureOf(picture);
    const QSizeF size(image.width() * pointsPerPixel, image.height() * pointsPerPixel);
    const QByteArray page = pageFor(size);
    const QByteArray style = page != style_ ? page : QByteArray(breakBefore_ ? "next" : "");
    style_ = page;
    write(QByteArray("<text:p") + (style.isEmpty() ? QByteArray() : " text:style-name=\"" + style + "\"") +
              "><draw:frame text:anchor-type=\"as-char\" " + sizeOf(size.width(), size.height()) + ">" +
              embedded(image) + "</draw:frame></text:p>\n",
          bodyName);
    breakBefore_ = false;
}

void OfficeReportWriter::addPageBreak() { breakBefore_ = true; }

/// Only now are the sizes of the pages known, which come before the text.
void OfficeReportWriter::saveDocument(const std::string& path) {
    constexpr qint64 partSize = 1 << 20;
    write(QByteArray(xmlHead) + documentHead(largePages_));
    QFile body(scratch_->filePath(QString::fromLatin1(bodyName)));
    if (body.open(QIODevice::ReadOnly))
        while (!body.atEnd()) write(body.read(partSize));
    body.close();
    save(path, documentTail, "MS Word 97", "doc");
}

void OfficeReportWriter::save(const std::string& path, const char* tail, const char* filter,
                              const char* extension) {
    write(tail);
    const std::unique_ptr<QTemporaryDir> held = std::move(scratch_);  // removed in any case
    const QDir scratch(held->path());
    const QString profile = QUrl::fromLocalFile(scratch.filePath(QStringLiteral("profile"))).toString();
    const std::string said = runOffice(
        {QStringLiteral("-env:UserInstallation=") + profile, QStringLiteral("--headless"),
         QStringLiteral("--norestore"), QStringLiteral("--convert-to"),
         QString::fromLatin1(extension) + QLatin1Char(':') + QString::fromLatin1(filter),
         QStringLiteral("--outdir"), scratch.path(), scratch.filePath(QStringLiteral("report.xml"))});
    const QString made = scratch.filePath(QStringLiteral("report.") + QString::fromLatin1(extension));
    if (!QFile::exists(made))
        fail(ErrorNumber::CannotCreateObject,
             withReason("LibreOffice did not make the report " + path, said));
    // First copied to the same directory, so that the target is never a partial file.
    const QString fresh = fileName(path) + QStringLiteral(".new");
    QFile::remove(fresh);
    if (!QFile::copy(made, fresh) || !moveFile(filePath(fresh), path)) {
        QFile::remove(fresh);
        fail(ErrorNumber::PathFileAccessError, "The report could not be written: " + path);
    }
}

/// The output of the office program.
std::string OfficeReportWriter::runOffice(const QStringList& arguments) {
    QString office = program;
    for (const char* name : {"soffice", "libreoffice"})
        if (office.isEmpty()) office = QStandardPaths::findExecutable(QString::fromLatin1(name));
    if (office.isEmpty())
        fail(ErrorNumber::CannotCreateObject, "LibreOffice, which makes the reports, is not installed");
    QProcess process;
    process.start(office, arguments, QIODevice::ReadOnly);
    if (!process.waitForStarted())
        fail(ErrorNumber::CannotCreateObject, "LibreOffice could not be started: " + filePath(office));
    QElapsedTimer running;
    running.start();
    while (process.state() != QProcess::NotRunning && running.elapsed() < patience) {
        host_.pumpEvents(pollMilliseconds);
        process.waitForFinished(1);
    }
    if (process.state() != QProcess::NotRunning) {
        process.kill();
        process.waitForFinished();
        fail(ErrorNumber::CannotCreateObject, "LibreOffice took too long and was stopped");
    }
    const std::string said = lastWords(process);
    if (process.exitStatus() != QProcess::NormalExit)
        fail(ErrorNumber::CannotCreateObject, withReason("LibreOffice crashed", said));
    if (process.exitCode() != 0)
        fail(ErrorNumber::CannotCreateObject,
             withReason("LibreOffice failed with status " + std::to_string(process.exitCode()), said));
    return said;
}

}  // namespace zg
