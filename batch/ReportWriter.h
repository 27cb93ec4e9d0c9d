#pragma once

// What a report needs from an office application: a slide show of blank slides with one picture each, and a
// document with one picture per page.

#include <string>

namespace zg {

/// Measures are points. Files are given by their paths; each operation raises a RunTimeError on failure.
class ReportWriter {
 public:
    virtual ~ReportWriter() = default;

    virtual void beginPresentation() = 0;
    /// Adds a blank slide of 720 x 540 points with the picture embedded at that position, stretched to that
    /// size.
    virtual void addSlide(const std::string& picture, float left, float top, float width, float height) = 0;
    /// Replaces the file; one that cannot be written is unchanged.
    virtual void savePresentation(const std::string& path) = 0;

    virtual void beginDocument() = 0;
    /// Adds the picture in its own size, in line, at the end of the document.
    virtual void addPicture(const std::string& picture) = 0;
    virtual void addPageBreak() = 0;
    virtual void saveDocument(const std::string& path) = 0;
};

}  // namespace zg
