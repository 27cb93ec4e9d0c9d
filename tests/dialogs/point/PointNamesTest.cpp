// Names that are not ASCII, everywhere a name can occur: stations of the table, identifiers in the data,
// paths.

#include "base/Lines.h"
#include "dialogs/point/FrmOpenAERMETFile.h"
#include "dialogs/point/FrmOpenAMMNETDataFile.h"
#include "dialogs/point/FrmOpenSURFDATFile.h"
#include "dialogs/point/FrmOpenTSFDataFile.h"
#include "dialogs/point/FrmOpenUPDATFile.h"
#include "platform/BatchStarter.h"
#include "tests/dialogs/point/PointDialogs.h"
#include "tests/support/CarriedOut.h"
#include "tests/support/Places.h"
#include "tests/support/StandIn.h"

namespace zg {
namespace {

constexpr int mostPumps = 5'000;

/// "Montréal" in windows-1252 and in UTF-8.
const std::string montreals[] = {
    "Montr\xE9"
    "al",
    "Montr\xC3\xA9"
    "al"};
const QString shownName = QString::fromUtf8(
    "Montr\xC3\xA9"
    "al");

/// Runs the batch file, with a processor that writes each rose that its control file names.
class PointNames : public PointDialogs {
 protected:
    void SetUp() override {
        PointDialogs::SetUp();
        makeStandIn(directory_.file("tempoline.exe"), "roses\nlisting\n");
        starter_.onRun = [](const RunBatch& run) {
            // On Windows its console would wait for a person.
            if (onWindows)
                carriedOut(run);
            else
                BatchStarter().startRun(run);
        };
        host_.onPump = [this] {
            QTest::qWait(2);
            ending_ = host_.pumps >= mostPumps;
        };
        std::filesystem::create_directory(out_);
    }
    void nameAllStations(const std::string& name) {
        stations.gsStationCol1 = {"1001", "4417", "14606", "77", "A1", "14735", ""};
        stations.gsStationCol0.assign(6, name);
        stations.gsStationCol0.emplace_back();
        stations.gsStationCol2 = stations.gsStationCol3 = std::vector<std::string>(7);
    }
    void browseTo(const std::string& file, const std::string& text) {
        browse(file, text);
        box("txtFRQOutputFilename").setText("x");
        box("txtOutputDirectory").setText(QString::fromStdString(out_));
    }
    /// Presses RUN and returns the bytes of the control file.
    std::string run(const std::string& base) {
        plotted_.clear();
        host_.pumps = 0;
        click("cmdView");
        EXPECT_LT(host_.pumps, mostPumps) << "no marker came";
        return readWholeFile(out_ + pathSeparator + base + "_tempoline.inp");
    }
    void expectRun(const std::string& base, const std::string& output, const std::string& key) {
        const std::string text = run(base);
        EXPECT_NE(text.find("! " + key + " = " + output + " !"), std::string::npos) << output;
        EXPECT_EQ(plotted_, std::vector<std::string>{nameOnDisk(output + ".FRQ")});
        EXPECT_EQ(status(), "Finished");
        EXPECT_TRUE(box("txtFRQOutputFilename").text().startsWith(shownName));
    }

    std::string out_ = directory_.file("out here");
};

TEST_F(PointNames, AStationOfTheTableNamesItsRoseInTheBytesOfTheTable) {
    for (const std::string& name : montreals) {
        nameAllStations(name);
        open<frmOpenSURFDATFile>();
        browseTo("s.dat", surfText);
        expectRun("s_SURF_19900108-19900115", name + "_SURF_19900108-19900115_10m", "TSFOUT");
        open<frmOpenUPDATFile>();
        browseTo("u.dat", upText);
        expectRun(name + "_UP_19900108-19900115", name + "_UP_19900108-19900115_10m", "TSFOUT");
        open<frmOpenAERMETFile>(InputKind::AermSfc);
        browseTo("a.sfc", sfcText);
        expectRun(name + "_AERMETSFC_19880101-19890101_10m", name + "_AERMETSFC_19880101-19890101_10m",
                  "TSFOUT");
        open<frmOpenAERMETFile>(InputKind::AermPfl);
        browseTo("a.pfl", pflText);
        box("txtStationID").setText("77");
        expectRun(name + "_AERMETPFL_19880101-19880102_10m", name + "_AERMETPFL_19880101-19880102_10m",
                  "TSFOUT");
        open<frmOpenAMMNETDataFile>();
        browseTo("m.csv", csvText);
        expectRun(name + "_AMMNETW_20050315-20050315_10m", name + "_AMMNETW_20050315-20050315_10m", "TSFOUT");
        open<frmOpenTSFDataFile>();
        browseTo("t.tsf", seriesText);
        expectRun(name + "_TSFMET_20050307-20051231", name + "_TSFMET_20050307-20051231", "ROSEPLT");
    }
}

std::string replacing(std::string text, const std::string& part, const std::string& other) {
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + other.size()))
        text.replace(at, part.size(), other);
    return text;
}

TEST_F(PointNames, TheProcessorIsAskedForTheStationInTheBytesOfItsData) {
    for (const std::string& name : montreals) {
        const std::string met = "! MET = " + name + ", 0, 0, 10, -1., -1., -1. !";
        open<frmOpenSURFDATFile>();
        browseTo("s.dat", replacing(surfText, "1001", name));
        EXPECT_EQ(child<QListWidget>("lstSURFDATStationIDs")->item(0)->text(), shownName);
        EXPECT_NE(run("s_SURF_19900108-19900115").find(met), std::string::npos);
        EXPECT_EQ(plotted_,
                  std::vector<std::string>{nameOnDisk("s-" + name + "_SURF_19900108-19900115_10m.FRQ")});
        open<frmOpenUPDATFile>();
        browseTo("u.dat", replacing(upText, "4417", name));
        EXPECT_EQ(box("txtStationID").text(), shownName);
        EXPECT_NE(run("u_UP_19900108-19900115").find(met), std::string::npos);
        open<frmOpenAERMETFile>(InputKind::AermSfc);
        browseTo("a.sfc", replacing(sfcText, "14606", name));
        EXPECT_NE(run("a_AERMETSFC_19880101-19890101_10m").find(met), std::string::npos);
        open<frmOpenAMMNETDataFile>();
        browseTo("m.csv", replacing(csvText, "A1", name));
        EXPECT_EQ(child<QComboBox>("cboStationID")->currentText(), shownName);
        EXPECT_NE(run("m_AMMNETW_20050315-20050315_10m").find(met), std::string::npos);
    }
}

TEST_F(PointNames, AnIdentifierTypedInsteadIsWrittenAsAnyTypedText) {
    open<frmOpenUPDATFile>();
    browseTo("u.dat", replacing(upText, "4417", montreals[1]));
    box("txtStationID").setText(QString::fromUtf8("Qu\xC3\xA9"));
    EXPECT_NE(run("u_UP_19900108-19900115").find("! MET = Qu\xE9, 0, 0, 10,"), std::string::npos);
    open<frmOpenAMMNETDataFile>();
    browseTo("m.csv", replacing(csvText, "A1", montreals[1]));
    child<QComboBox>("cboStationID")->setEditText(QString::fromUtf8("Qu\xC3\xA9"));
    EXPECT_NE(run("m_AMMNETW_20050315-20050315_10m").find("! MET = Qu\xE9, 0, 0, 10,"), std::string::npos);
}

TEST_F(PointNames, ThePathsOfInputAndOutputKeepTheirBytes) {
    for (const std::string& name : montreals) {
        const std::string place = directory_.file("in " + name);
        makeDirectory(place);
        open<frmOpenAERMETFile>(InputKind::AermSfc);
        browse("in " + name + "/" + name + ".sfc", sfcText);
        EXPECT_EQ(box("txtAERMETDataFile").text().toStdString(),
                  directory_.file("in " + montreals[1] + "/" + montreals[1] + ".sfc"))
            << "whatever the bytes, it can be read";
        out_ = place;
        host_.folderAnswers = {place};
        click("cmdBrowseDirectory");
        box("txtTitleLine").setText(shownName);
        const std::string base = name + "_AERMETSFC_19880101-19890101_10m";
        const std::string text = run(base);
        EXPECT_NE(text.find("! METINP = " + place + pathSeparator + name + ".sfc !"), std::string::npos);
        EXPECT_EQ(text.substr(text.find("\r\n") + 2, montreals[0].size()), montreals[0])
            << "a typed title is windows-1252";
        EXPECT_EQ(plotted_, std::vector<std::string>{nameOnDisk(base + ".FRQ")});
        EXPECT_EQ(status(), "Finished");
    }
}

}  // namespace
}  // namespace zg
