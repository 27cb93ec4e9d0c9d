// Pictures, panels and reports of the companion in other looks, by their bytes.

#include <gtest/gtest.h>

#include <QImage>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <sstream>

#include "base/Paths.h"
#include "export/ExportRoses.h"
#include "graph/render/Hatch.h"
#include "platform/QtCanvas.h"
#include "platform/QtText.h"
#include "tests/support/FreqText.h"
#include "tests/support/Pixels.h"
#include "tests/support/TempDirectory.h"

namespace zg {
namespace {

class Pictures : public ::testing::Test {
 protected:
    void SetUp() override {
        modPolarGraph = ModPolarGraph();
        applicationDirectory = directory_.path();
        job_.inputs = {ZG_SOURCE_DIR "/data/samples/LOVETT_1988.frq"};
        job_.directory = directory_.file("out");
    }

    int run() {
        out_.str("");
        errors_.str("");
        return runExport(job_, out_, errors_);
    }
    std::string bytes(const std::string& name) const { return directory_.read("out/" + name); }
    QImage image(const std::string& name) const { return QImage(fileName(directory_.file("out/" + name))); }
    static std::size_t count(const std::string& text, const std::string& part) {
        std::size_t found = 0;
        for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++found;
        return found;
    }

    TempDirectory directory_;
    ExportJob job_;
    std::ostringstream out_;
    std::ostringstream errors_;
};

TEST_F(Pictures, OfBothKindsHaveTheSamePixels) {
    job_.inputs = {ZG_SOURCE_DIR "/data/samples"};
    ASSERT_EQ(run(), exportDone) << errors_.str();
    job_.format = "bmp";
    ASSERT_EQ(run(), exportDone) << errors_.str();
    int pictures = 0;
    for (const auto& entry : std::filesystem::directory_iterator(job_.directory)) {
        if (entry.path().extension() != ".png") continue;
        const std::string stem = entry.path().stem().string();
        EXPECT_TRUE(samePicture(image(stem + ".png"), image(stem + ".bmp"))) << stem;
        EXPECT_LE(std::filesystem::file_size(entry.path()), 80000U) << stem;
        ++pictures;
    }
    EXPECT_GT(pictures, 20);
}

TEST_F(Pictures, APaletteColoursBarsAndLegend) {
    job_.rose = "1";
    job_.style.palette = "okabe-ito";
    ASSERT_EQ(run(), exportDone) << errors_.str();
    const QImage page = image("LOVETT_1988_01.png");
    // The first swatch of the legend, and the first class of the longest bar, towards the east-south-east.
    EXPECT_TRUE(pixelIs(page, 440, 506, rgb(0x56, 0xb4, 0xe9)));
    EXPECT_TRUE(pixelIs(page, 300 + 22, 300 + 9, rgb(0x56, 0xb4, 0xe9)));
}

/// The pattern of a class on white, in black and white.
QImage patternOf(int speedClass) {
    QImage page = makePageImage(40, 20);
    {
        QtCanvas canvas(page, 40, 20);
        canvas.clear(white);
        drawHatch(canvas, hatchOfRectangle({0, 0, 40, 20}, speedClass), black);
    }
    return page.convertToFormat(QImage::Format_Mono, Qt::ThresholdDither | Qt::MonoOnly);
}

TEST(Patterns, StayApartInBlackAndWhite) {
    constexpr int pixels = 40 * 20;
    for (int a = 1; a <= 6; ++a)
        for (int b = 1; b < a; ++b) {
            const QImage first = patternOf(a);
            const QImage second = patternOf(b);
            int differing = 0;
            for (int y = 0; y < 20; ++y)
                for (int x = 0; x < 40; ++x) differing += first.pixel(x, y) != second.pixel(x, y) ? 1 : 0;
            EXPECT_GE(differing, pixels / 8) << "classes " << b << " and " << a;
        }
}

TEST_F(Pictures, APaletteThatIsNoneIsWrongUsage) {
    job_.style.palette = directory_.write("p.txt", "#000000\nblue\n");
    EXPECT_EQ(run(), exportWrongUsage);
    EXPECT_EQ(errors_.str(), job_.style.palette + ":2: colour: Type mismatch (error 13)\n");
    job_.style.palette = "none";
    EXPECT_EQ(run(), exportWrongUsage);
    EXPECT_FALSE(IsDirectory(job_.directory));
}

TEST_F(Pictures, SvgSaysItsFiguresAndIsSmall) {
    job_.format = "svg";
    ASSERT_EQ(run(), exportDone) << errors_.str();
    const std::string svg = bytes("LOVETT_1988_01.svg");
    EXPECT_LT(svg.size(), 25000U);
    EXPECT_NE(svg.find("<title>NNW, 3.3 to 5.4 m/s: 1.53 %, 133 hours</title>"), std::string::npos);
    EXPECT_NE(svg.find("role=\"img\""), std::string::npos);
    EXPECT_EQ(svg.find("Qt"), std::string::npos);
}

TEST_F(Pictures, ScaleThemselvesOrAllAlike) {
    job_.format = "svg";
    job_.inputs = {ZG_SOURCE_DIR "/data/samples/LOVETT_1988.frq", ZG_SOURCE_DIR "/data/samples/north_sea.frq",
                   ZG_SOURCE_DIR "/data/samples/trade_wind_coast.frq"};
    const auto outerLabels = [&] {
        std::map<std::string, int> labels;
        for (const auto& entry : std::filesystem::directory_iterator(job_.directory)) {
            const std::string svg = bytes(entry.path().filename().string());
            const std::size_t end = svg.rfind("%</text>");
            ++labels[svg.substr(svg.rfind('>', end) + 1, end - svg.rfind('>', end))];
        }
        return labels;
    };
    job_.style.radius = "auto";
    ASSERT_EQ(run(), exportDone) << errors_.str();
    EXPECT_GT(outerLabels().size(), 1U);
    job_.style.sameScale = true;
    ASSERT_EQ(run(), exportDone) << errors_.str();
    EXPECT_EQ(outerLabels().size(), 1U);
}

TEST_F(Pictures, APanelHoldsAllRosesOnItsPages) {
    job_.format = "svg";
    job_.style.panel = "auto";
    ASSERT_EQ(run(), exportDone) << errors_.str();
    EXPECT_EQ(out_.str(), directory_.file("out/panel_01.svg") + "\n");
    const std::string page = bytes("panel_01.svg");
    EXPECT_EQ(count(page, "<g class=\"rose\">"), 9U);
    EXPECT_EQ(count(page, "<g class=\"legend\">"), 1U);
    EXPECT_LT(page.find(">All Periods<"), page.find(">Winter<"));
    job_.style.panel = "2x2";
    ASSERT_EQ(run(), exportDone) << errors_.str();
    EXPECT_EQ(out_.str(), directory_.file("out/panel_01.svg") + "\n" + directory_.file("out/panel_02.svg") +
                              "\n" + directory_.file("out/panel_03.svg") + "\n");
    EXPECT_EQ(count(bytes("panel_03.svg"), "<g class=\"rose\">"), 1U);
}

TEST_F(Pictures, APanelNamesWhatItsFilesDifferIn) {
    const auto panelOf = [&](const std::vector<std::pair<std::string, std::string>>& changes) {
        job_.inputs.clear();
        for (std::size_t i = 0; i < changes.size(); ++i) {
            std::ifstream sample(ZG_SOURCE_DIR "/data/samples/LOVETT_1988.frq", std::ios::binary);
            std::string text((std::istreambuf_iterator<char>(sample)), {});
            const std::size_t at = text.find(changes[i].first);
            EXPECT_NE(at, std::string::npos) << changes[i].first;
            text.replace(at, changes[i].first.size(), changes[i].second);
            job_.inputs.push_back(directory_.write("file" + std::to_string(i) + ".frq", text));
        }
        EXPECT_EQ(run(), exportDone) << errors_.str();
        return bytes("panel_01.svg");
    };
    const auto panelOfHours = [&](const std::vector<std::string>& periods) {
        job_.inputs.clear();
        for (std::size_t i = 0; i < periods.size(); ++i) {
            freqtext::Lines lines = freqtext::file("2.0", 1);
            lines.at(7) = periods[i];
            job_.inputs.push_back(
                directory_.write("hours" + std::to_string(i) + ".frq", freqtext::bytes(lines)));
        }
        EXPECT_EQ(run(), exportDone) << errors_.str();
        return bytes("panel_01.svg");
    };
    job_.format = "svg";
    job_.style.panel = "auto";
    job_.rose = "1";
    const std::string period = "1988 1 1 0 0 1988 12 31 24 0";
    const std::string years = panelOf({{period, period}, {period, "1989 1 1 0 0 1989 12 31 24 0"}});
    EXPECT_EQ(count(years, ">Jan 1, 1988 to Jan 1, 1989<"), 1U);
    EXPECT_EQ(count(years, ">Jan 1, 1989 to Jan 1, 1990<"), 1U);
    EXPECT_EQ(count(years, ">Lovett, New York - Hourly surface winds</text>"), 1U) << "above the page";
    EXPECT_EQ(count(years, ">Lovett, New York<"), 0U);
    const std::string hours = panelOfHours({"2001 1 1 0 2001 3 31 23", "2002 1 1 0 2002 4 30 24"});
    EXPECT_EQ(count(hours, ">Jan 1, 2001 to Mar 31, 2001<"), 1U) << "of the first version of the format";
    EXPECT_EQ(count(hours, ">Jan 1, 2002 to May 1, 2002<"), 1U);
    const std::string heights = panelOf({{"50.0 m", "10.0 m"}, {"50.0 m", "50.0 m"}});
    EXPECT_EQ(count(heights, ">Height = 10.0 m<"), 1U);
    EXPECT_EQ(count(heights, "to Jan 1, 1989<"), 0U);
    const std::string stations = panelOf({{"Lovett, New York", "Here"}, {"Lovett, New York", "There"}});
    EXPECT_EQ(count(stations, ">Here<") + count(stations, ">There<"), 2U);
    const std::string equal = panelOf({{period, period}, {period, period}});
    EXPECT_EQ(count(equal, ">file0.frq<") + count(equal, ">file1.frq<"), 2U);
}

TEST_F(Pictures, PanelsAreMadeInEveryKind) {
    job_.style.panel = "3x3";
    for (const char* format : {"png", "bmp", "pdf"}) {
        job_.format = format;
        ASSERT_EQ(run(), exportDone) << errors_.str();
    }
    EXPECT_EQ(image("panel_01.png").width(), 900) << "300 a column";
    EXPECT_TRUE(samePicture(image("panel_01.png"), image("panel_01.bmp")));
    job_.style.sizeIsAsked = true;
    job_.format = "png";
    ASSERT_EQ(run(), exportDone) << errors_.str();
    EXPECT_EQ(image("panel_01.png").width(), job_.sizePixels);
    EXPECT_EQ(bytes("panel_01.pdf").substr(0, 5), "%PDF-");
}

TEST_F(Pictures, ATableStandsBesideItsRose) {
    job_.rose = "1";
    job_.style.besideTable = true;
    job_.format = "svg";
    ASSERT_EQ(run(), exportDone) << errors_.str();
    const std::string page = bytes("LOVETT_1988_01.svg");
    EXPECT_NE(page.find("viewBox=\"0 0 1200 600\""), std::string::npos);
    for (const char* cell : {">Valid hours: 8718 of 8784<", ">Calm: 4.74 %, 413 hours<", ">1.53<", ">All %<"})
        EXPECT_NE(page.find(cell), std::string::npos) << cell;
    job_.format = "png";
    ASSERT_EQ(run(), exportDone) << errors_.str();
    EXPECT_EQ(image("LOVETT_1988_01.png").size(), QSize(1200, 600));
}

TEST_F(Pictures, AReportHasAllRosesAndNothingFromElsewhere) {
    job_.inputs.push_back(ZG_SOURCE_DIR "/data/samples/north_sea.frq");
    job_.style.html = directory_.file("report.html");
    ASSERT_EQ(run(), exportDone) << errors_.str();
    EXPECT_EQ(out_.str(), job_.style.html + "\n");
    const std::string page = directory_.read("report.html");
    const std::size_t roses = count(page, "<article class=\"rose\"");
    EXPECT_GT(roses, 9U);
    EXPECT_EQ(count(page, "<svg "), roses);
    EXPECT_EQ(count(page, "<details>"), roses);
    EXPECT_EQ(count(page, "<section class=\"file\">"), 2U);
    EXPECT_EQ(count(page, " id=\"rose1-title\""), 1U);
    for (const char* elsewhere : {"src=", "href=", "@import", "url("})
        EXPECT_EQ(page.find(elsewhere), std::string::npos) << elsewhere;
    EXPECT_EQ(count(page, "http"), roses) << "the drawings' own namespace alone";
    EXPECT_FALSE(fileExists(directory_.file("out/LOVETT_1988_01.png"))) << "a report alone was asked for";
}

TEST_F(Pictures, NamesInAReportAreTextAndNotMarkup) {
    std::filesystem::copy(job_.inputs[0], directory_.file("x.frq"));
    std::string text = directory_.read("x.frq");
    text.replace(text.find("Lovett, New York"), 16, "<script>\"&'  x</p>");
    job_.inputs = {directory_.write("x.frq", text)};
    job_.style.html = directory_.file("report.html");
    ASSERT_EQ(run(), exportDone) << errors_.str();
    const std::string page = directory_.read("report.html");
    EXPECT_EQ(count(page, "<script>"), 1U) << "its own";
    EXPECT_NE(page.find("&lt;script&gt;&quot;&amp;'"), std::string::npos);
}

TEST_F(Pictures, EveryChoiceOfAReportHasAName) {
    std::filesystem::copy(job_.inputs[0], directory_.file("x.frq"));
    std::string text = directory_.read("x.frq");
    for (const std::string& title :
         {std::string("Lovett, New York"), std::string("Hourly surface winds"), std::string("\nAll Periods")})
        text.replace(text.find(title), title.size(), title[0] == '\n' ? "\n" : "");
    job_.inputs = {directory_.write("x.frq", text)};
    job_.style.html = directory_.file("report.html");
    ASSERT_EQ(run(), exportDone) << errors_.str();
    const std::string page = directory_.read("report.html");
    EXPECT_EQ(count(page, "<option value=\"\">All</option>"), 2U);
    EXPECT_EQ(count(page, "<option value=\"\">"), 2U);
    EXPECT_EQ(count(page, "<option value=\"x.frq\">x.frq</option>"), 1U);
    EXPECT_EQ(count(page, "<option value=\"Rose 1\">Rose 1</option>"), 1U);
    EXPECT_EQ(count(page, "<h2></h2>") + count(page, "<h3></h3>"), 0U);
}

TEST_F(Pictures, AReportForPrintHasAPageARose) {
    job_.style.pdf = directory_.file("report.pdf");
    ASSERT_EQ(run(), exportDone) << errors_.str();
    const std::string pdf = directory_.read("report.pdf");
    EXPECT_NE(pdf.find("/Count 9"), std::string::npos);
    EXPECT_EQ(count(pdf, "/Type /Page\n"), 9U);
}

TEST_F(Pictures, AReportThatCannotBeWrittenIsTold) {
    job_.style.html = directory_.file("no/such/report.html");
    EXPECT_EQ(run(), exportFailed);
    EXPECT_EQ(errors_.str(), job_.style.html + ": No such file or directory\n");
}

}  // namespace
}  // namespace zg
