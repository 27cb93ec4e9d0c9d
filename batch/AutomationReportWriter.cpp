#include "batch/AutomationReportWriter.h"

namespace zg {

namespace {

// Constants of the applications.
constexpr std::int32_t minimised = 2;
constexpr std::int32_t blankLayout = 12;
constexpr std::int32_t asPresentation = 1;
constexpr std::int32_t mixedFonts = -2;
constexpr std::int32_t pageBreak = 7;

}  // namespace

/// First releases the rest of a failed report. False if another writer is to be used.
bool AutomationReportWriter::begin(const std::string& application) {
    end();
    application_ = create_(application);
    if (!application_) return false;
    application_->put("Visible", true);
    application_->put("WindowState", minimised);
    return true;
}

/// Releases the inner objects first.
void AutomationReportWriter::end() {
    slide_.reset();
    slides_.reset();
    file_.reset();
    application_.reset();
    slideCount_ = 0;
}

void AutomationReportWriter::beginPresentation() {
    if (!begin("PowerPoint.Application")) return other_->beginPresentation();
    file_ = application_->object("Presentations")->object("Add", {{"WithWindow", true}});
    slides_ = file_->object("Slides");
}

void AutomationReportWriter::addSlide(const std::string& picture, float left, float top, float width,
                                      float height) {
    if (!application_) return other_->addSlide(picture, left, top, width, height);
    slide_ = slides_->object("Add", {{"Index", ++slideCount_}, {"Layout", blankLayout}});
    slide_->object("Shapes")->call("AddPicture", {{"FileName", picture},
                                                  {"LinkToFile", false},
                                                  {"SaveWithDocument", true},
                                                  {"Left", left},
                                                  {"Top", top},
                                                  {"Width", width},
                                                  {"Height", height}});
}

void AutomationReportWriter::savePresentation(const std::string& path) {
    if (!application_) return other_->savePresentation(path);
    file_->put("Saved", false);
    file_->call("SaveAs",
                {{"FileName", path}, {"FileFormat", asPresentation}, {"EmbedTrueTypeFonts", mixedFonts}});
    slide_.reset();
    slides_.reset();
    file_.reset();
    application_->call("Quit");
    end();
}

void AutomationReportWriter::beginDocument() {
    if (!begin("Word.Application")) return other_->beginDocument();
    file_ = application_->object("Documents")->object("Add");
}

std::unique_ptr<AutomationObject> AutomationReportWriter::endOfDocument() {
    return file_->object("Bookmarks")
        ->object("Item", {{"Index", std::string("\\endofdoc")}})
        ->object("Range");
}

void AutomationReportWriter::addPicture(const std::string& picture) {
    if (!application_) return other_->addPicture(picture);
    endOfDocument()
        ->object("InlineShapes")
        ->call("AddPicture", {{"FileName", picture}, {"LinkToFile", false}, {"SaveWithDocument", true}});
}

void AutomationReportWriter::addPageBreak() {
    if (!application_) return other_->addPageBreak();
    endOfDocument()->call("InsertBreak", {{"Type", pageBreak}});
}

void AutomationReportWriter::saveDocument(const std::string& path) {
    if (!application_) return other_->saveDocument(path);
    file_->put("Saved", false);
    file_->call("SaveAs", {{"FileName", path}});
    application_->call("Quit");
    end();
}

}  // namespace zg
