#include "batch/OfficeReportWriter.h"

#include <QBuffer>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

#include "base/Files.h"
#include "base/RunTimeError.h"
#include "platform/QtPicture.h"
#include "platform/QtText.h"

namespace zg {

namespace {

constexpr double pointsPerPixel = 72.0 / 96;
constexpr int pollMilliseconds = 20;

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

constexpr const char* documentHead = R"(application/vnd.oasis.opendocument.text">
<office:automatic-styles>
<style:page-layout style:name="page"><style:page-layout-properties fo:page-width="612pt" fo:page-height="792pt"
 fo:margin-top="72pt" fo:margin-bottom="72pt" fo:margin-left="72pt" fo:margin-right="72pt"/></style:page-layout>
<style:style style:name="next" style:family="paragraph"><style:paragraph-properties fo:break-before="page"/></style:style>
</office:automatic-styles>
<office:master-styles><style:master-page style:name="Standard" style:page-layout-name="page"/></office:master-styles>
<office:body><office:text>
)";
constexpr const char* documentTail = "</office:text></office:body></office:document>\n";

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

QByteArray points(double value) { return QByteArray::number(value, 'f', 2) + "pt"; }

QByteArray sizeOf(double width, double height) {
    return "svg:width=\"" + points(width) + "\" svg:height=\"" + points(height) + "\"";
}

}  // namespace

void OfficeReportWriter::begin(const char* head) {
    scratch_ = std::make_unique<QTemporaryDir>();
    if (!scratch_->isValid()) fail(ErrorNumber::PathFileAccessError, scratch_->errorString().toStdString());
    write(QByteArray(xmlHead) + head);
}

void OfficeReportWriter::write(const QByteArray& part) {
    QFile file(scratch_->filePath(QStringLiteral("report.xml")));
    if (!file.open(QIODevice::Append) || file.write(part) != part.size() || !file.flush())
        fail(ErrorNumber::DiskFull, "The report could not be written: " + file.errorString().toStdString());
}

void OfficeReportWriter::beginPresentation() { begin(presentationHead); }

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
    begin(documentHead);
    breakBefore_ = false;
}

void OfficeReportWriter::addPicture(const std::string& picture) {
    const QImage image = pictureOf(picture);
    write(QByteArray("<text:p") + (breakBefore_ ? " text:style-name=\"next\"" : "") +
          "><draw:frame text:anchor-type=\"as-char\" " +
          sizeOf(image.width() * pointsPerPixel, image.height() * pointsPerPixel) + ">" + embedded(image) +
          "</draw:frame></text:p>\n");
    breakBefore_ = false;
}

void OfficeReportWriter::addPageBreak() { breakBefore_ = true; }

void OfficeReportWriter::saveDocument(const std::string& path) {
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
