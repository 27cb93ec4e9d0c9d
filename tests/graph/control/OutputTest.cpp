// Graph file, copies of the page, and printed output.

#include "base/Lines.h"
#include "graph/control/GraphFile.h"
#include "tests/graph/control/PolarGraphFixture.h"
#include "tests/graph/render/RoseTables.h"

namespace zg {
namespace {

class Output : public PolarGraphFixture {
 protected:
    void SetUp() override { graph.Zoom(100); }
    void select(float x1, float y1, float x2, float y2) {
        graph.SetActiveTool(4);
        graph.mouseDown(leftButton, 0, x1, y1);
        graph.mouseMove(leftButton, 0, x2, y2);
        graph.mouseUp(leftButton, 0, x2, y2);
    }

    PolarGraph graph{window, host, tables};
};

TEST_F(Output, AGraphFileOfAnEmptyPlotHasOneLine) {
    graph.SaveGraph(directory.file("a.grp"));
    EXPECT_EQ(directory.read("a.grp"), "\"POLAR GRAPH 1.0\"\r\n");
}

TEST_F(Output, AGraphFileHoldsItsFieldsInOrder) {
    GrapInfo& curve = graph.Plot().Add("a=1", "a//t", rgb(1, 2, 3), rgb(4, 5, 6));
    curve.StartingAngle = 0.5F;
    curve.EndingAngle = 1080;
    curve.Step = 0.25F;
    curve.Delay = 20;
    curve.Visible = false;
    curve.Series.AllowMarker = true;
    curve.Series.AllowPen = false;
    curve.Series.Pen.AllowConVertices = false;
    curve.Series.Pen.AllowShading = true;
    curve.Series.Pen.Style = 2;
    curve.Series.Pen.Weight = 7;
    Marker& marker = curve.Series.Marker;
    marker.setAlignment(1 + 8);
    marker.Font = {"Courier", 9.5F, true, false};
    marker.MaskPicturePath = "/m.bmp";
    marker.PicturePath = "/p.bmp";
    marker.SetPictureSize(11, 22);
    marker.Style = "Q";
    marker.UsePicture = true;
    graph.Comment("said \"so\"");
    graph.SaveGraph(directory.file("a.grp"));
    EXPECT_EQ(
        directory.read("a.grp"),
        "\"POLAR GRAPH 1.0\"\r\n"
        "\"a=1//a//t//0.5//1080//0.25//20//False//True//False//False//True//197121//2//7//9//-1//394500//"
        "Courier//9.5//True//False//1//8///m.bmp///p.bmp//22//11//Q//True//True//said \"so\"\"\r\n");
}

TEST_F(Output, TheRecordHasThirtyOneFields) {
    const std::string record = graphRecord(GrapInfo(), "end");
    std::size_t fields = 1;
    for (std::size_t at = record.find("//"); at != std::string::npos; at = record.find("//", at + 2))
        ++fields;
    EXPECT_EQ(fields, 31U);
    EXPECT_EQ(record.substr(record.size() - 5), "//end");
}

TEST_F(Output, AGraphFileThatCannotBeWrittenIsToldByItsDescription) {
    host.boxAnswers = {BoxAnswer::Ok};
    graph.SaveGraph(directory.file("no/such/directory.grp"));
    EXPECT_EQ(host.boxes[0].text, "Path not found");
    EXPECT_EQ(host.boxes[0].icon, BoxIcon::Stop);
}

TEST_F(Output, CopyTakesTheSelectionOrTheWhole) {
    graph.EditCopy();
    select(10, 20, 59, 39);
    graph.EditCopy();
    EXPECT_EQ(window.clipboard, (std::vector<std::pair<int, int>>{{600, 600}, {50, 20}}));
    EXPECT_EQ(window.copied[1], (Rect{10, 20, 60, 40}));
}

TEST_F(Output, ASelectionBeyondASmallerPageIsCut) {
    select(100, 100, 500, 500);
    graph.Zoom(50);
    graph.EditCopy();
    EXPECT_EQ(window.copied[0], (Rect{100, 100, 300, 300}));
}

TEST_F(Output, CopyToAlwaysTakesTheWholePageAndAsksWithAnOverwritePrompt) {
    select(10, 20, 59, 39);
    host.saveAnswers = {"/pictures/rose.bmp", "   ", ""};
    for (int i = 0; i < 3; ++i) graph.EditCopyTo();
    EXPECT_EQ(window.saved, (std::vector<std::pair<std::string, int>>{{"/pictures/rose.bmp", 600}}));
    EXPECT_EQ(host.savePicks[0].filter, "Bitmap Files (*.bmp) | *.bmp;");
    EXPECT_EQ(host.savePicks[0].filterIndex, 1);
    EXPECT_EQ(host.savePicks[0].fileName, "");
    EXPECT_TRUE(host.savePicks[0].overwritePrompt);
}

TEST_F(Output, ThePrinterGetsWhatThePageShowsStrokeByStroke) {
    tables = roseTables();
    graph.Plot().Add("", "1", rgb(9, 0, 0), 0).Visible = false;
    graph.Plot().Add("", "2", rgb(0, 9, 0), 0).Step = 90;
    window.canvas.commands.clear();
    graph.Refresh();
    const std::vector<drawn::Command> shown = window.canvas.commands;
    window.canvas.commands.clear();
    graph.SentToPrinter();
    EXPECT_TRUE(window.canvas.commands.empty()) << "the page on screen is left alone";
    EXPECT_EQ(window.printed.width(), 600);
    EXPECT_EQ(window.printed.all<drawn::Pie>().size(), 96U);
    EXPECT_EQ(window.printed.commands, shown);
    EXPECT_TRUE(window.copied.empty()) << "no pixels are copied";
}

TEST_F(Output, SettingsChangedSinceAreNotPrinted) {
    tables = roseTables();
    graph.Refresh();
    tables.ClassesFromFile = false;
    tables.GraphTitle = "later";
    graph.Plot().Add("", "2", rgb(0, 9, 0), 0);
    graph.Polar().Radius = 0;
    graph.SentToPrinter();
    EXPECT_EQ(window.printed.texts().front(), "Calm Winds [<0.5 m/s] = 1.50%");
    EXPECT_EQ(window.printed.texts()[7], "Title");
    for (const drawn::Line& line : window.printed.all<drawn::Line>())
        EXPECT_NE(line.style.colour, rgb(0, 9, 0));
}

TEST_F(Output, ACurveThatWasStoppedIsPrintedAsFarAsItCame) {
    GrapInfo& curve = graph.Plot().Add("", "2", rgb(0, 9, 0), 0);
    curve.Step = 90;
    curve.Delay = 10;
    int pumps = 0;
    host.onPump = [&] {
        if (++pumps == 5) graph.StopAni(true);
    };
    graph.ClearGraph();
    graph.DrawGraph(std::int16_t{1}, CurveSweep::StepByStep);
    const auto green = [](const RecordingCanvas& canvas) {
        long count = 0;
        for (const drawn::Line& line : canvas.all<drawn::Line>()) count += line.style.colour == rgb(0, 9, 0);
        return count;
    };
    ASSERT_GT(green(window.canvas), 0);
    ASSERT_LT(green(window.canvas), 4);
    graph.SentToPrinter();
    EXPECT_EQ(green(window.printed), green(window.canvas));
}

TEST_F(Output, ACurveThatFailedIsPrintedAsItStandsAndSilently) {
    GrapInfo& curve = graph.Plot().Add("", "2/(t<1.6)", rgb(0, 9, 0), 0);  // fails beyond 90 degrees
    curve.Step = 45;
    EXPECT_THROW(graph.DrawGraph(), RunTimeError);
    EXPECT_NO_THROW(graph.SentToPrinter());
    EXPECT_TRUE(host.boxes.empty());
    long green = 0;
    for (const drawn::Line& line : window.printed.all<drawn::Line>())
        green += line.style.colour == rgb(0, 9, 0);
    EXPECT_EQ(green, 2);
}

TEST_F(Output, AClearedPageIsPrintedWithoutItsCurves) {
    graph.Plot().Add("", "2", rgb(0, 9, 0), 0).Step = 90;
    graph.Refresh();
    graph.ClearGraph();
    graph.SentToPrinter();
    for (const drawn::Line& line : window.printed.all<drawn::Line>())
        EXPECT_NE(line.style.colour, rgb(0, 9, 0));
    EXPECT_EQ(window.printed.all<drawn::Disc>().size(), 1U) << "the frame stays";
}

TEST_F(Output, OfMoreThanTheRecordHoldsThePixelsArePrinted) {
    GrapInfo& curve = graph.Plot().Add("", "4*sin(100000*t)", rgb(0, 9, 0), 0);
    curve.Step = 0.002F;
    graph.Refresh();
    ASSERT_GT(window.canvas.all<drawn::Line>().size(), CanvasRecord::mostCommands);
    graph.SentToPrinter();
    ASSERT_EQ(window.copied.size(), 1U);
    EXPECT_EQ(window.copied[0], (Rect{0, 0, 600, 600}));
    ASSERT_EQ(window.printed.commands.size(), 1U);
    EXPECT_EQ(window.printed.all<drawn::Blit>()[0].target, (Rect{0, 0, 600, 600}));
    graph.ClearGraph();
    window.printed.commands.clear();
    graph.SentToPrinter();
    EXPECT_EQ(window.printed.all<drawn::Disc>().size(), 1U) << "without the curve it is strokes again";
}

TEST_F(Output, ANewPageSizeLeavesNothingOfTheOldPage) {
    tables = roseTables();
    graph.Refresh();
    graph.suspendUpdates(true);
    graph.Zoom(50);
    graph.SentToPrinter();
    EXPECT_TRUE(window.printed.commands.empty()) << "the page is blank until it is painted";
}

}  // namespace
}  // namespace zg
