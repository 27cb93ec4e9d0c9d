// Bitmap, clipboard and print of the page in its widget.

#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QPrinter>
#include <QTest>
#include <filesystem>

#include "platform/QtPicture.h"
#include "tests/platform/PageFixture.h"
#include "tests/support/Pixels.h"
#include "tests/support/Raises.h"

namespace zg {
namespace {

TEST_F(PageOutput, ABitmapIsTheWholePageAsItWasPaintedWithoutTheToolsShapes) {
    const QImage before = widget_->pageImage().copy();
    plot().EditSelectAll();
    plot().SetActiveTool(2);
    const std::string path = directory_.file("rose.bmp");
    plot().EditCopyTo(path);
    const std::string bytes = directory_.read("rose.bmp");
    EXPECT_EQ(bytes.substr(0, 2), "BM");
    EXPECT_EQ(bytes.substr(30, 4), std::string(4, '\0')) << "it is not compressed";
    const QImage read(QString::fromStdString(path));
    EXPECT_EQ(read.size(), QSize(600, 600));
    EXPECT_TRUE(samePicture(read, before));
}

TEST_F(PageOutput, TheClipboardGetsTheSelectionPixelForPixel) {
    plot().SetActiveTool(4);
    plot().mouseDown(leftButton, 0, 290, 280);
    plot().mouseMove(leftButton, 0, 319, 299);
    plot().mouseUp(leftButton, 0, 319, 299);
    const QImage expected = widget_->pageImage().copy(QRect(290, 280, 30, 20));
    plot().EditCopy();
    const QImage got = QGuiApplication::clipboard()->image();
    EXPECT_TRUE(samePicture(got, expected));
}

TEST_F(PageOutput, AFailedSaveIsToldAndLeavesTheOldFile) {
    try {
        plot().EditCopyTo(directory_.file("no/such/rose.bmp"));
        FAIL();
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.number, 75);
        EXPECT_NE(error.description.find(directory_.file("no/such/rose.bmp")), std::string::npos);
    }
    std::filesystem::create_directory(directory_.file("rose.bmp"));
    EXPECT_THROW(plot().EditCopyTo(directory_.file("rose.bmp")), RunTimeError);
    EXPECT_TRUE(std::filesystem::is_directory(directory_.file("rose.bmp")));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(directory_.path()), {}), 1)
        << "no half file is left";
}

TEST_F(PageOutput, ABitmapMayHaveAnyNameAndIsReadBackByIt) {
    const std::string path = directory_.file("\xC9t\xE9.bmp");
    plot().EditCopyTo(path);
    ASSERT_TRUE(std::filesystem::is_regular_file(path));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(directory_.path()), {}), 1);
    const PicturePointer read = loadPicture(path);
    EXPECT_EQ(read->width(), 600);
    EXPECT_EQ(read->height(), 600);
}

TEST_F(PageOutput, APrintIsCentredKeepsItsProportionsAndIsSharp) {
    const std::string path = directory_.file("page.pdf");
    widget_->askPrinter = [&path](QPrinter& printer) {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(QString::fromStdString(path));
        printer.setPageSize(QPageSize(QPageSize::A4));
        return true;
    };
    plot().SentToPrinter();
    const std::string pdf = directory_.read("page.pdf");
    EXPECT_EQ(pdf.substr(0, 5), "%PDF-");
    EXPECT_EQ(pdf.find("/Subtype /Image"), std::string::npos) << "drawn, not copied as a picture";
}

/// What a print writes, without its date.
class PrintBytes : public PageOutput {
 protected:
    std::string bytesOfPrint(const char* name) {
        const std::string path = directory_.file(name);
        widget_->askPrinter = [&path](QPrinter& printer) {
            printer.setOutputFormat(QPrinter::PdfFormat);
            printer.setOutputFileName(QString::fromStdString(path));
            return true;
        };
        plot().SentToPrinter();
        std::string pdf = directory_.read(name);
        const std::size_t date = pdf.find("/CreationDate");
        if (date != std::string::npos) pdf.erase(date, pdf.find('\n', date) - date);
        return pdf;
    }
};

TEST_F(PrintBytes, ShowWhatThePageShowsWhateverHasBeenSetSince) {
    const std::string before = bytesOfPrint("a.pdf");
    modPolarGraph.ClassesFromFile = false;
    modPolarGraph.GraphTitle = "not painted yet";
    EXPECT_EQ(bytesOfPrint("b.pdf"), before);
    plot().Refresh();
    EXPECT_NE(bytesOfPrint("c.pdf"), before);
}

TEST_F(PrintBytes, AndPicturesOfASmallPageHaveTheFontsAsConfigured) {
    plot().Zoom(50);
    plot().Plot().Add("", "2", rgb(0, 0, 255), rgb(0, 0, 255));
    const auto outputs = [this](const std::string& name, const QImage& shown) {
        plot().EditCopyTo(directory_.file(name + ".bmp"));
        plot().EditCopy();
        const QImage copied = QGuiApplication::clipboard()->image();
        EXPECT_EQ(copied.size(), shown.size());
        return std::pair{directory_.read(name + ".bmp") + bytesOfPrint((name + ".pdf").c_str()), copied};
    };
    const auto outputsOf = [&](const std::string& name, bool shrinks) {
        plot().shrinkTexts(shrinks);
        plot().Refresh();
        plot().DrawGraph();
        return outputs(name, widget_->pageImage().copy());
    };
    const auto [configured, copied] = outputsOf("large", false);
    const QImage large = widget_->pageImage().copy();
    const auto [shrunk, copiedShrunk] = outputsOf("small", true);
    const QImage small = widget_->pageImage().copy();
    EXPECT_FALSE(samePicture(small, large)) << "the window has smaller texts";
    EXPECT_TRUE(shrunk == configured);
    EXPECT_TRUE(samePicture(copiedShrunk, copied));
    EXPECT_TRUE(samePicture(copied, large));
    plot().Plot().Item(1).Visible = false;
    plot().DrawGraph();
    EXPECT_FALSE(samePicture(widget_->pageImage(), small));
    EXPECT_FALSE(outputs("without", small).first == configured) << "what the page shows, without the curve";
}

TEST_F(PageOutput, ACancelledPrinterDialogEndsSilently) {
    widget_->askPrinter = [](QPrinter&) { return false; };
    plot().SentToPrinter();
    EXPECT_TRUE(host_.boxes.empty());
}

}  // namespace
}  // namespace zg
