// Bitmap, clipboard and print of the page in its widget.

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QPrinter>
#include <QTest>
#include <csignal>
#include <filesystem>

#include "base/Paths.h"
#include "graph/frq/ModPolarGraph.h"
#include "platform/PolarGraphWidget.h"
#include "platform/QtPicture.h"
#include "tests/support/Pixels.h"
#include "tests/support/Raises.h"
#include "tests/support/TempDirectory.h"
#include "tests/support/TestHost.h"

namespace zg {
namespace {

class PageOutput : public ::testing::Test {
 protected:
    void SetUp() override {
        modPolarGraph = ModPolarGraph();
        applicationDirectory = directory_.path();
        widget_ = std::make_unique<PolarGraphWidget>(host_, modPolarGraph, PropertyBag());
        widget_->resize(400, 400);
        widget_->show();
        plot().Zoom(100);
        plot().OpenFreqFile(ZG_SOURCE_DIR "/data/samples/LOVETT_1988.frq");
    }

    PolarGraph& plot() { return widget_->graph(); }

    TempDirectory directory_;
    TestHost host_;
    std::unique_ptr<PolarGraphWidget> widget_;
};

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

TEST_F(PageOutput, AFileThatCannotGrowIsToldAndTheOldOneStays) {
    const std::string path = directory_.write("rose.bmp", "old");
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit small{10'000, before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
    EXPECT_THROW(plot().EditCopyTo(path), RunTimeError);
    setrlimit(RLIMIT_FSIZE, &before);
    EXPECT_EQ(directory_.read("rose.bmp"), "old");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(directory_.path()), {}), 1);
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

TEST_F(PageOutput, AFileThatIsReplacedKeepsWhoMayReadItAndItsLink) {
    const std::string path = directory_.write("rose.bmp", "old");
    std::filesystem::permissions(path,
                                 std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
    std::filesystem::create_symlink("rose.bmp", directory_.file("link.bmp"));
    directory_.write("link.bmp.new1", "of another program");
    directory_.write("rose.bmp.new1", "of another program");
    plot().EditCopyTo(directory_.file("link.bmp"));
    EXPECT_TRUE(std::filesystem::is_symlink(directory_.file("link.bmp")));
    EXPECT_EQ(directory_.read("rose.bmp").substr(0, 2), "BM");
    EXPECT_EQ(std::filesystem::status(path).permissions(),
              std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
    EXPECT_EQ(directory_.read("rose.bmp.new1"), "of another program");
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

TEST_F(PageOutput, APrintShowsWhatThePageShowsWhateverHasBeenSetSince) {
    const auto printed = [this](const char* name) {
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
    };
    const std::string before = printed("a.pdf");
    modPolarGraph.ClassesFromFile = false;
    modPolarGraph.GraphTitle = "not painted yet";
    EXPECT_EQ(printed("b.pdf"), before);
    plot().Refresh();
    EXPECT_NE(printed("c.pdf"), before);
}

TEST_F(PageOutput, ACancelledPrinterDialogEndsSilently) {
    widget_->askPrinter = [](QPrinter&) { return false; };
    plot().SentToPrinter();
    EXPECT_TRUE(host_.boxes.empty());
}

}  // namespace
}  // namespace zg
