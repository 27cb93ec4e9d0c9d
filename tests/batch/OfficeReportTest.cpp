// Reports made by the real office program and opened again.

#include <gtest/gtest.h>

#include <QImage>
#include <QProcess>
#include <filesystem>
#include <memory>

#include "base/RunTimeError.h"
#include "batch/OfficeReportWriter.h"
#include "tests/support/Pixels.h"
#include "tests/support/StandIn.h"
#include "tests/support/TempDirectory.h"
#include "tests/support/TestHost.h"

namespace zg {
namespace {

class OfficeReport : public ::testing::Test {
 protected:
    static void TearDownTestSuite() { profile_.reset(); }

    /// A picture with colours of its own.
    std::string picture(const char* name, QSize size, QRgb colour) {
        QImage image(size, QImage::Format_RGB32);
        image.fill(colour);
        for (int i = 0; i < 40; ++i)
            image.setPixel(i * 3 % size.width(), i * 7 % size.height(), qRgb(i, 255 - i, 9));
        const std::string path = directory_.file(name);
        EXPECT_TRUE(image.save(QString::fromStdString(path), "BMP"));
        return path;
    }
    /// Converts the report to a readable format, beside it.
    std::string opened(const std::string& report, const char* kind) {
        QProcess office;
        office.start("soffice", {QString::fromStdString("-env:UserInstallation=file://" + profile()),
                                 "--headless", "--convert-to", kind, "--outdir",
                                 QString::fromStdString(directory_.path()), QString::fromStdString(report)});
        EXPECT_TRUE(office.waitForFinished(120'000));
        return std::filesystem::path(report).stem().string() + "." + kind;
    }
    /// The reports are made by a program that does this instead.
    void useOffice(const char* does) {
        makeStandIn(programs_.file("office.exe"), does);
        writer_.program = QString::fromStdString(programs_.file("office.exe"));
    }
    /// One for all tests: the office program takes a while to make it.
    static const std::string& profile() {
        if (!profile_) profile_ = std::make_unique<TempDirectory>();
        return profile_->path();
    }
    static int count(const std::string& text, const std::string& part) {
        int found = 0;
        for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++found;
        return found;
    }
    /// The value of a length attribute after position `from`, in points.
    static double points(const std::string& text, const std::string& attribute, std::size_t from = 0) {
        const std::size_t at = text.find(attribute + "=\"", from) + attribute.size() + 2;
        const double value = std::stod(text.substr(at));
        const std::string unit = text.substr(text.find_first_not_of("0123456789.-", at), 2);
        return unit == "in" ? value * 72 : (unit == "cm" ? value * 72 / 2.54 : value);
    }
    /// In points.
    static std::vector<QSizeF> pageSizes(const std::string& pdf) {
        std::vector<QSizeF> pages;
        const std::string box = "/MediaBox[0 0 ";
        for (std::size_t at = pdf.find(box); at != std::string::npos; at = pdf.find(box, at + 1)) {
            std::size_t used = 0;
            const std::string sizes = pdf.substr(at + box.size(), 60);
            const double width = std::stod(sizes, &used);
            pages.emplace_back(width, std::stod(sizes.substr(used)));
        }
        return pages;
    }
    static std::vector<QImage> pictures(const std::string& text) {
        std::vector<QImage> images;
        const std::string start = "<office:binary-data>";
        for (std::size_t at = text.find(start); at != std::string::npos; at = text.find(start, at + 1)) {
            const std::size_t from = at + start.size();
            const std::string data = text.substr(from, text.find('<', from) - from);
            images.push_back(QImage::fromData(QByteArray::fromBase64(QByteArray::fromStdString(data))));
        }
        return images;
    }

    static inline std::unique_ptr<TempDirectory> profile_;
    TempDirectory directory_;
    TempDirectory programs_;
    TestHost host_;
    OfficeReportWriter writer_{host_};
};

TEST_F(OfficeReport, ASlideShowIsRealAndHasItsPicturesInPlace) {
    const std::string first = picture("a.bmp", {60, 60}, qRgb(200, 10, 20));
    const std::string second = picture("b.bmp", {80, 40}, qRgb(10, 200, 20));
    writer_.beginPresentation();
    for (const std::string& each : {first, second}) writer_.addSlide(each, 102.12F, 0, 539.88F, 539.88F);
    writer_.savePresentation(directory_.file("show.ppt"));
    EXPECT_GT(host_.pumps, 0) << "the window stays alive";
    const std::string bytes = directory_.read("show.ppt");
    EXPECT_EQ(bytes.substr(0, 4), "\xD0\xCF\x11\xE0");
    std::string stream;
    for (const char letter : std::string("PowerPoint Document")) stream += std::string{letter, '\0'};
    EXPECT_NE(bytes.find(stream), std::string::npos);
    const std::string text = directory_.read(opened(directory_.file("show.ppt"), "fodp"));
    EXPECT_EQ(count(text, "<draw:page "), 2);
    const std::size_t master = text.find("<style:master-page ");
    const std::size_t nameAt = text.find("style:page-layout-name=\"", master) + 24;
    const std::string layoutName = text.substr(nameAt, text.find('"', nameAt) - nameAt);
    const std::size_t layout = text.find("<style:page-layout style:name=\"" + layoutName + "\"");
    EXPECT_NEAR(points(text, "fo:page-width", layout), 720, 0.1);
    EXPECT_NEAR(points(text, "fo:page-height", layout), 540, 0.1);
    std::size_t at = 0;
    for (int slide = 0; slide < 2; ++slide) {
        at = text.find("<draw:page ", at + 1);
        const std::size_t frame = text.find("<draw:frame ", at);
        EXPECT_NEAR(points(text, "svg:x", frame), 102.12, 0.2);
        EXPECT_NEAR(points(text, "svg:y", frame), 0, 0.1);
        EXPECT_NEAR(points(text, "svg:width", frame), 539.88, 0.2);
        EXPECT_NEAR(points(text, "svg:height", frame), 539.88, 0.2);
    }
    const auto images = pictures(text);
    ASSERT_EQ(images.size(), 2U);
    EXPECT_TRUE(samePicture(images[0], QImage(QString::fromStdString(first))));
    EXPECT_TRUE(samePicture(images[1], QImage(QString::fromStdString(second))));
}

TEST_F(OfficeReport, ADocumentHasAPageForEachPictureAsLargeAsItNeeds) {
    const std::string first = picture("a.bmp", {600, 600}, qRgb(200, 10, 20));
    writer_.beginDocument();
    writer_.addPicture(first);
    writer_.addPageBreak();
    writer_.addPicture(picture("b.bmp", {96, 48}, qRgb(10, 200, 20)));
    writer_.addPageBreak();
    writer_.addPicture(picture("c.bmp", {1200, 750}, qRgb(10, 20, 200)));
    writer_.addPageBreak();
    writer_.addPicture(picture("d.bmp", {750, 750}, qRgb(10, 200, 200)));
    writer_.saveDocument(directory_.file("pages.doc"));
    const std::string bytes = directory_.read("pages.doc");
    std::string stream;
    for (const char letter : std::string("WordDocument")) stream += std::string{letter, '\0'};
    EXPECT_NE(bytes.find(stream), std::string::npos);

    const std::string text = directory_.read(opened(directory_.file("pages.doc"), "fodt"));
    const std::size_t frame = text.find("<draw:frame ");
    EXPECT_NEAR(points(text, "svg:width", frame), 450, 0.5);
    EXPECT_NEAR(points(text, "svg:height", text.find("<draw:frame ", frame + 1)), 36, 0.5);
    EXPECT_EQ(count(text, "text:anchor-type=\"as-char\""), 4);
    const auto images = pictures(text);
    ASSERT_EQ(images.size(), 4U);
    EXPECT_TRUE(samePicture(images[0], QImage(QString::fromStdString(first))));

    const std::vector<QSizeF> pages = pageSizes(directory_.read(opened(directory_.file("pages.doc"), "pdf")));
    ASSERT_EQ(pages.size(), 4U) << "no picture takes two pages, and none is empty";
    EXPECT_NEAR(pages[0].width(), 612, 2) << "never smaller than the usual page";
    EXPECT_NEAR(pages[0].height(), 792, 2);
    EXPECT_NEAR(pages[1].width(), 612, 2);
    EXPECT_NEAR(pages[1].height(), 792, 2);
    EXPECT_NEAR(pages[2].width(), 900 + 144, 2);
    EXPECT_NEAR(pages[2].height(), 792, 2);
    EXPECT_NEAR(pages[3].width(), 562.5 + 144, 2);
}

TEST_F(OfficeReport, AMissingOfficeIsToldAndNothingIsLeft) {
    writer_.program = "/nowhere/soffice";
    writer_.beginPresentation();
    EXPECT_THROW(writer_.savePresentation(directory_.file("show.ppt")), RunTimeError);
    EXPECT_TRUE(std::filesystem::is_empty(directory_.path()));
}

TEST_F(OfficeReport, AnOfficeThatFailsOrHangsIsToldAndTheOldReportStays) {
    directory_.write("show.ppt", "old");
    for (const char* does : {"crash\n", "await the end\n", ""}) {
        useOffice(does);
        writer_.patience = 200;
        writer_.beginPresentation();
        EXPECT_THROW(writer_.savePresentation(directory_.file("show.ppt")), RunTimeError) << does;
        EXPECT_EQ(directory_.read("show.ppt"), "old");
    }
}

TEST_F(OfficeReport, TheReasonOfAFailureIsTold) {
    struct Row {
        const char* does;
        const char* told;
    };
    for (const Row& row :
         {Row{"say out\nwarn no room\nexit 3\n", "LibreOffice failed with status 3: no room"},
          Row{"say out\nexit 3\n", "LibreOffice failed with status 3: out"},
          Row{"exit 3\n", "LibreOffice failed with status 3 and gave no reason"},
          Row{"warn oops\ncrash\n", "LibreOffice crashed: oops"},
          Row{"crash\n", "LibreOffice crashed and gave no reason"},
          Row{"warn no filter\n", "LibreOffice did not make the report PLACE: no filter"},
          Row{"", "LibreOffice did not make the report PLACE and gave no reason"}}) {
        useOffice(row.does);
        writer_.beginPresentation();
        std::string told = row.told;
        if (const std::size_t at = told.find("PLACE"); at != std::string::npos)
            told.replace(at, 5, directory_.file("show.ppt"));
        try {
            writer_.savePresentation(directory_.file("show.ppt"));
            ADD_FAILURE() << row.does;
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.number, 429);
            EXPECT_EQ(error.description, told);
        }
        EXPECT_TRUE(std::filesystem::is_empty(directory_.path()));
    }
}

TEST_F(OfficeReport, ABitmapCutShortIsNamedWithWhatIsMissing) {
    const std::string path = picture("rose.bmp", {60, 40}, qRgb(200, 10, 20));
    const std::string whole = directory_.read("rose.bmp");
    ASSERT_EQ(whole.size(), 54U + 60 * 40 * 3);
    writer_.beginDocument();
    for (const std::size_t size : {whole.size() - 1, whole.size() / 2, std::size_t{54}}) {
        directory_.write("rose.bmp", whole.substr(0, size));
        for (const bool slide : {false, true}) try {
                if (slide)
                    writer_.addSlide(path, 0, 0, 1, 1);
                else
                    writer_.addPicture(path);
                ADD_FAILURE() << size;
            } catch (const RunTimeError& error) {
                EXPECT_EQ(error.number, 481);
                EXPECT_EQ(error.description, "Invalid picture, cut short at " + std::to_string(size) +
                                                 " of 7254 bytes: " + path);
            }
    }
    directory_.write("rose.bmp", whole.substr(0, 20));
    EXPECT_THROW(writer_.addPicture(path), RunTimeError);
}

TEST_F(OfficeReport, WholeBitmapsOfEveryDepthAreTaken) {
    writer_.beginDocument();
    for (const auto format : {QImage::Format_Mono, QImage::Format_Indexed8, QImage::Format_RGB32,
                              QImage::Format_ARGB32, QImage::Format_RGB16}) {
        QImage image(37, 11, format);
        image.fill(1);
        const std::string path = directory_.file("picture.bmp");
        ASSERT_TRUE(image.save(QString::fromStdString(path), "BMP"));
        EXPECT_NO_THROW(writer_.addPicture(path)) << format;
    }
}

TEST_F(OfficeReport, AFileThatIsNoPictureIsNamed) {
    writer_.beginPresentation();
    const std::string bad = directory_.write("bad.bmp", "no");
    try {
        writer_.addSlide(bad, 0, 0, 1, 1);
        FAIL();
    } catch (const RunTimeError& error) {
        EXPECT_NE(error.description.find(bad), std::string::npos);
    }
}

/// What an office program that accepts any report does.
constexpr const char* takeAnyReport = "after --outdir report.ppt\n";

TEST_F(OfficeReport, ATargetThatCannotBeWrittenIsNamed) {
    useOffice(takeAnyReport);
    writer_.beginPresentation();
    try {
        writer_.savePresentation(directory_.file("no/such/show.ppt"));
        FAIL();
    } catch (const RunTimeError& error) {
        EXPECT_NE(error.description.find(directory_.file("no/such/show.ppt")), std::string::npos);
    }
}

/// The temporary copy has a longer name, which may be too long even if the report's is not.
TEST_F(OfficeReport, AnOldReportIsNoProofOfANewOne) {
    const std::string name = std::string(250, 'r') + ".ppt";
    directory_.write(name, "old");
    useOffice(takeAnyReport);
    writer_.beginPresentation();
    EXPECT_THROW(writer_.savePresentation(directory_.file(name)), RunTimeError);
    EXPECT_EQ(directory_.read(name), "old");
}

}  // namespace
}  // namespace zg
