#pragma once

// What each report asks of its application, step by step.

#include <string>
#include <vector>

#include "batch/ReportWriter.h"

using Steps = std::vector<std::string>;

inline Steps presentationSteps(int pictures) {
    const std::string slides = "PowerPoint.Presentations.Add(WithWindow := True).Slides";
    Steps steps = {"create PowerPoint.Application",
                   "PowerPoint.Visible := True",
                   "PowerPoint.WindowState := 2",
                   "PowerPoint.Presentations",
                   "PowerPoint.Presentations.Add(WithWindow := True)",
                   slides};
    for (int i = 1; i <= pictures; ++i) {
        const std::string slide = slides + ".Add(Index := " + std::to_string(i) + ", Layout := 12)";
        steps.push_back(slide);
        steps.push_back(slide + ".Shapes");
        steps.push_back(slide + ".Shapes.AddPicture(FileName := \"C:\\b\\" + std::to_string(i) +
                        ".bmp\", LinkToFile := False, SaveWithDocument := True, Left := 102.12f, Top := "
                        "0.00f, Width := 539.88f, Height := 539.88f)");
    }
    steps.emplace_back("PowerPoint.Presentations.Add(WithWindow := True).Saved := False");
    steps.emplace_back(
        "PowerPoint.Presentations.Add(WithWindow := True).SaveAs(FileName := \"C:\\out\\a.ppt\", FileFormat "
        ":= 1, EmbedTrueTypeFonts := -2)");
    steps.emplace_back("PowerPoint.Quit");
    steps.emplace_back("release PowerPoint");
    return steps;
}

inline Steps documentSteps(int pictures) {
    const std::string bookmark = "Word.Documents.Add.Bookmarks.Item(Index := \"\\endofdoc\")";
    const Steps toEnd = {"Word.Documents.Add.Bookmarks", bookmark, bookmark + ".Range"};
    Steps steps = {"create Word.Application", "Word.Visible := True", "Word.WindowState := 2",
                   "Word.Documents", "Word.Documents.Add"};
    for (int i = 1; i <= pictures; ++i) {
        steps.insert(steps.end(), toEnd.begin(), toEnd.end());
        steps.push_back(bookmark + ".Range.InlineShapes");
        steps.push_back(bookmark + ".Range.InlineShapes.AddPicture(FileName := \"C:\\b\\" +
                        std::to_string(i) + ".bmp\", LinkToFile := False, SaveWithDocument := True)");
        if (i == pictures) continue;
        steps.insert(steps.end(), toEnd.begin(), toEnd.end());
        steps.push_back(bookmark + ".Range.InsertBreak(Type := 7)");
    }
    steps.emplace_back("Word.Documents.Add.Saved := False");
    steps.emplace_back("Word.Documents.Add.SaveAs(FileName := \"C:\\out\\a.doc\")");
    steps.emplace_back("Word.Quit");
    steps.emplace_back("release Word");
    return steps;
}

/// Makes a report of so many pictures: a presentation, or a document.
inline void makeReport(zg::ReportWriter& writer, bool presentation, int pictures) {
    const auto picture = [](int number) { return "C:\\b\\" + std::to_string(number) + ".bmp"; };
    presentation ? writer.beginPresentation() : writer.beginDocument();
    for (int i = 1; i <= pictures; ++i) {
        if (presentation) {
            writer.addSlide(picture(i), 102.12F, 0, 539.88F, 539.88F);
            continue;
        }
        writer.addPicture(picture(i));
        if (i < pictures) writer.addPageBreak();
    }
    presentation ? writer.savePresentation("C:\\out\\a.ppt") : writer.saveDocument("C:\\out\\a.doc");
}
