// Every odd name in every field and table that takes one: what the form shows, and whether a rose comes or
// which words.

#include <QTextDocumentFragment>

#include <algorithm>

#include "base/Encoding.h"
#include "base/Files.h"
#include "base/Text.h"
#include "platform/QtText.h"
#include "platform/ReasonLabel.h"
#include "tests/road/RoadFixture.h"

namespace zg {
namespace {

using Texts = std::vector<std::string>;

const std::string longName(120, 'l');
const std::string tooLongName(300, 'L');
const std::string emptyValue = "!!END! x";  // after a "! KEY = " it ends the value before it begins

/// Names that people give, that other systems refuse, or that mean something to a shell, a table, a control
/// file or a toolkit.
Texts oddStations() {
    return {"New York",
            " lead",
            "trail ",
            "a;b",
            "a+b",
            "a/b",
            "../up",
            "a\\b",
            "a:b",
            "a\"b",
            "it's",
            "50%",
            "%PATH%",
            "a&b",
            "hey!",
            emptyValue,
            "Z\xFCrich",
            "Z\xC3\xBCrich",
            "\xD0\x9C\xD0\xBE\xD1\x81\xD0\xBA\xD0\xB2\xD0\xB0",
            ".",
            "..",
            "CON",
            "a\tb",
            "[*]",
            "<b>x</b>",
            "$(touch${IFS}PWNED)",
            "a,b",
            "-dash",
            "*",
            longName,
            tooLongName};
}

/// One for each way in which a name can be odd.
Texts fewOddStations() {
    return {"New York",      " lead", "a/b", "..",   "hey!",     emptyValue,
            "Z\xC3\xBCrich", "a\tb",  "a,b", "a\\b", tooLongName};
}

class OddNamesRoad : public WholeRoad {
 protected:
    void SetUp() override {
        WholeRoad::SetUp();
        host_.onPump = [this] {
            QCoreApplication::processEvents();
            QThread::msleep(1);
            const QString reason = child<ReasonLabel>("lblReason")->text();
            if (reason.isEmpty() || !status().starts_with("Running.")) return;
            waits_ = reason.toStdString();
            ending_ = true;  // or the wait would not end
        };
    }
    /// A table with that name for the stations of the samples.
    void nameStations(const std::string& name) {
        std::string rows = "STATION_DATA.CSV,V1.0\nheads\n";
        for (const char* code : {"10011", "valley", "14735", "00004417"})
            rows += name + "," + code + ",0,0,,,,40,-97,WGS-84\n";
        directory_.write("the program/Station_Data.csv", rows);
        LoadStationData();
    }
    /// Presses the button, and says in one line what came of it.
    std::string outcome(const char* button = "cmdView") {
        ending_ = false;
        waits_.clear();
        host_.pumps = 0;
        host_.boxes.clear();
        host_.boxAnswers = {BoxAnswer::Cancel};
        settings.CurrentFrqPath.clear();
        click(button);
        host_.boxAnswers.clear();
        std::string text;
        if (!host_.boxes.empty())
            text = "refused: " + host_.boxes[0].text;
        else if (!waits_.empty())
            text = "waits: " + waits_;
        else if (status() == "Finished" && !settings.CurrentFrqPath.empty())
            text =
                "made: " + settings.CurrentFrqPath.substr(settings.CurrentFrqPath.rfind(pathSeparator) + 1);
        else
            text = status() + " " + plain(child("lblStatus")->toolTip());
        expectNothingHalf();
        return withoutPlace(text);
    }
    /// A tool tip as it is read.
    static std::string plain(const QString& tip) {
        return (Qt::mightBeRichText(tip) ? QTextDocumentFragment::fromHtml(tip).toPlainText() : tip)
            .toStdString();
    }
    /// The text without the directories of the test and of the samples.
    std::string withoutPlace(std::string text) const {
        for (const std::string& place : {directory_.path() + pathSeparator, samples})
            for (std::size_t at = 0; (at = text.find(place)) != std::string::npos;)
                text.erase(at, place.size());
        return text;
    }
    /// No unfinished file anywhere, and nothing outside the directory of the results.
    void expectNothingHalf() {
        for (const auto& entry : std::filesystem::recursive_directory_iterator(directory_.path())) {
            const std::string name = entry.path().filename().string();
            EXPECT_NE(name, "PWNED");
            const bool inOut = entry.path().string().starts_with(directory_.file("my results"));
            const bool ofRun = name.find("tempoline.inp") != std::string::npos || name.ends_with(".frq");
            EXPECT_TRUE(inOut || !ofRun) << entry.path();
            EXPECT_FALSE(name.find("~") != std::string::npos || name.ends_with(".tmp")) << entry.path();
        }
        std::error_code inUse;  // on Windows the shell of a run may still be there
        std::filesystem::remove_all(out_, inUse);
        out_ = directory_.file("my results " + std::to_string(++runs_) + "/");
        std::filesystem::create_directory(out_);
    }
    template <typename Form, typename... More>
    void openWith(const char* sample, More... more) {
        open<Form>(more...);
        browse(sample);
        fill("txtFRQOutputFilename", "x");
    }

    std::string waits_;
    int runs_ = 0;
};

/// Whether no file can have the name, for its characters.
bool isNoFile(const std::string& name) {
    return name == "." || name == ".." ||
           name.find_first_of(onWindows ? "/\\:*?\"<>|" : "/") != std::string::npos;
}

/// The file of that name, whose letters Windows keeps in its own encoding.
std::string made(const std::string& output) {
    return "made: " + (onWindows ? toUtf8(output) : output) + ".frq";
}

/// Why the processor makes no file of that name; "" if it does.
std::string faultOf(const std::string& output) {
    if (output.starts_with(emptyValue)) return "TSFOUT: a name is missing";
    if (output.find('\t') != std::string::npos) return "TSFOUT: the value holds a control character";
    if (isNoFile(output)) return "TSFOUT: \"" + output + "\" is no plain file name";
    return {};
}

/// What a run says about a name that its control file can hold: a rose, or words in the tool tip of the
/// status.
std::string ofOutput(const std::string& status, const std::string& control, const std::string& output) {
    const std::string missing = status + " No FRQ file for " + output + ": ERROR: ";
    if (output.size() > 255) return missing + output + ".previous.tsf: cannot be written: File name too long";
    if (const std::string fault = faultOf(output); !fault.empty()) {
        std::string words = missing + control + "_tempoline.inp:81: " + fault;
        std::replace(words.begin(), words.end(), '\t', ' ');  // as a tool tip shows it
        return words;
    }
    return made(output);
}

/// The name of a table's station as the program knows it: a comma ends it, and then its code is another.
bool isInTable(const std::string& name) { return name.find(',') == std::string::npos; }

const std::string blankOf = "waits: a blank in the name: the processor cannot find its control file; ";

/// Why the lines of the batch file cannot hold the name in the shell of Windows; "" if they can.
std::string shellFaultOf(const std::string& output) {
    if (!onWindows) return {};
    const std::size_t at = output.find_first_of("%&^!\"|<>\t");
    if (at == std::string::npos) return {};
    return output[at] == '\t' ? "a control character" : std::string("a ") + output[at];
}

/// What a run says about a name that begins the names of all of its files.
std::string ofRun(const std::string& output, const std::string& remedy) {
    const std::string refused = "refused: The following error has occurred: \"Bad file name or number: ";
    const std::string number = "\".  (Error Number = 52)";
    if (const std::string fault = shellFaultOf(output); !fault.empty()) {
        std::string name = output;
        if (const std::size_t tab = name.find('\t'); tab != std::string::npos) name.replace(tab, 1, "<09>");
        return refused + "\"" + name + "\" has " + fault + " in it" + number;
    }
    if (onWindows && output.find('\xD0') != std::string::npos)
        return refused + "the command shell has no characters for \"\"the program\\tempoline.exe\" " +
               output + "_tempoline.inp\"" + number;
    if (isNoFile(output)) return refused + "\"" + output + "\" is no plain file name" + number;
    if (output.size() > 240) return refused + "\"" + output + "\" is too long for a file" + number;
    if (output.find(' ') != std::string::npos) return blankOf + remedy;
    if (const std::size_t at = output.find_first_of(";,=+"); onWindows && at != std::string::npos)
        return std::string("waits: a ") + output[at] +
               " in the name: the command shell cannot copy the processor's listing; " + remedy;
    if (output.find('\t') != std::string::npos)
        return "waits: tempoline.exe ended with status 2: " + output +
               "_tempoline.inp:21: TSFLST: the value holds a control character";
    return made(output);
}

TEST_F(OddNamesRoad, OfStationsInTheTableNameTheRosesOfSurf) {
    const std::string ending = "_SURF_20231201-20240201_10m";
    for (const std::string& name : fewOddStations()) {
        nameStations(name);
        openWith<frmOpenSURFDATFile>("valley_surf.dat");
        auto* list = child<QListWidget>("lstSURFDATStationIDs");
        list->clearSelection();
        list->item(0)->setSelected(true);
        const std::string output = (isInTable(name) ? trim(name) : "valley_surf-10011") + ending;
        EXPECT_EQ(outcome(), ofOutput("Finished", "valley_surf_SURF_20231201-20240201", output)) << name;
    }
}

TEST_F(OddNamesRoad, OfStationsInTheTableNameTheRunsOfSingleOutputs) {
    const std::string ending = "_AERMETPFL_19880301-19880305_10m";
    for (const std::string& name : oddStations()) {
        nameStations(name);
        openWith<frmOpenAERMETFile>("AERMET2.PFL", InputKind::AermPfl);
        fill("txtStationID", "14735");
        const std::string output = (isInTable(name) ? trim(name) : "AERMET2") + ending;
        EXPECT_EQ(outcome(), ofRun(output, "rename the station in Station_Data.csv")) << name;
    }
}

TEST_F(OddNamesRoad, OfStationsAreTheSameInAllFormsOfSingleOutputs) {
    const std::string remedy = "rename the station in Station_Data.csv";
    for (const std::string name : {"New York", "a/b", "hey!"}) {
        nameStations(name);
        openWith<frmOpenAERMETFile>("AERMET2.SFC", InputKind::AermSfc);
        fill("txtStationID", "14735");
        EXPECT_EQ(outcome(), ofRun(name + "_AERMETSFC_19880301-19880305_10m", remedy));
        openWith<frmOpenAMMNETDataFile>("valley_monitor.csv");
        EXPECT_EQ(outcome(), ofRun(name + "_AMMNETW_20231201-20240201_10m", remedy));
        openWith<frmOpenTSFDataFile>("valley_series.tsf");
        EXPECT_EQ(outcome(), ofRun(name + "_TSFMET_20231201-20240201", remedy));
        openWith<frmOpenUPDATFile>("valley_up.dat");
        const std::string run = name + "_UP_20231201-20240201";
        // A batch file of Windows cannot hold the "!".
        EXPECT_EQ(outcome(), name == "hey!" && !onWindows ? "made: " + run + "_10m.frq" : ofRun(run, remedy));
    }
}

TEST_F(OddNamesRoad, TypedForStationsAreAskedOfTheProcessor) {
    for (const std::string& name :
         {std::string("a b"), std::string(" 10011 "), std::string("a,b"), std::string(), std::string("!"),
          std::string("a/b"), std::string(".."), std::string("\xD0\x9C"), tooLongName}) {
        const std::string commas = "_tempoline.inp:193: MET: found 8 values, 7 are needed";
        openWith<frmOpenUPDATFile>("valley_up.dat");
        fill("txtStationID", name);
        EXPECT_EQ(outcome(),
                  name == "a,b"
                      ? "Error has occurred. No FRQ file for valley_up_UP_20231201-20240201_10m: ERROR: "
                        "valley_up_UP_20231201-20240201" +
                            commas
                      : "made: valley_up_UP_20231201-20240201_10m.frq")
            << "a file of soundings has one station: " << name;
        openWith<frmOpenAMMNETDataFile>("valley_monitor.csv");
        child<QComboBox>("cboStationID")->setEditText(QString::fromStdString(name));
        EXPECT_EQ(outcome(),
                  name == "a,b"
                      ? "Error has occurred. ERROR: valley_monitor_AMMNETW_20231201-20240201_10m" + commas
                      : "Error has occurred. ERROR: valley_monitor.csv:2977: STNCODE: no record is of the "
                        "station \"" +
                            trim(name) + "\"");
    }
}

/// A name in a header, how it is shown, and what comes of its run in the dialogs for SURF.DAT and monitors.
struct InData {
    std::string name;
    std::string shownInSurf;
    std::string shownInMonitor;
    std::string surf;  ///< "" for a rose of both stations
    std::string monitor;
};

TEST_F(OddNamesRoad, InTheDataAreShownWholeAndAskedOfTheProcessor) {
    const std::string surf = readWholeFile(samples + "valley_surf.dat");
    const std::string monitor = readWholeFile(samples + "valley_monitor.csv");
    const auto same = [](const std::string& name) { return InData{name, name, name, "", ""}; };
    for (const InData& odd :
         {same("a b"), same("hey!"), same("\xD0\x9C"),
          InData{"\"q\"", "\"q\"", "q",
                 onWindows ? "s_SURF_20231201-20240201_tempoline.inp:81: TSFOUT: "
                             "\"s-\"q\"_SURF_20231201-20240201_10m\" is no plain file name"
                           : "",
                 ""},
          InData{"a,b", "a,b", "a",
                 "s_SURF_20231201-20240201_tempoline.inp:196: MET: found 8 values, 7 are needed",
                 "m.csv:2: wind direction: \"b\" is no number"},
          InData{"<b>x</b>", "<b>x</b>", "<b>x</b>",
                 "s_SURF_20231201-20240201_tempoline.inp:81: TSFOUT: "
                 "\"s-<b>x</b>_SURF_20231201-20240201_10m\" is no "
                 "plain file name",
                 ""},
          InData{"a\nb", "a", "a", "s.dat:9: time: 8 numbers are needed",
                 "m.csv:2: the record has 3 of at least 5 fields"},
          InData{tooLongName, tooLongName, tooLongName,
                 "s-" + tooLongName +
                     "_SURF_20231201-20240201_10m.previous.tsf: cannot be written: File name too long",
                 ""}}) {
        std::string text = surf;
        text.replace(text.find("10011"), 5, odd.name);
        open<frmOpenSURFDATFile>();
        const int width = form_->width();
        browse(directory_.write("s.dat", text));
        fill("txtFRQOutputFilename", "x");
        const auto* list = child<QListWidget>("lstSURFDATStationIDs");
        ASSERT_GT(list->count(), 0) << odd.name;
        EXPECT_EQ(list->item(0)->text().toStdString(), odd.shownInSurf);
        EXPECT_EQ(plain(list->item(0)->toolTip()), odd.shownInSurf);
        const std::string ran = outcome();
        if (odd.surf.empty())
            EXPECT_EQ(ran, "made: s-10012_SURF_20231201-20240201_10m.frq") << odd.name;
        else
            EXPECT_TRUE(ran.starts_with("Finished No FRQ file for s-") &&
                        ran.ends_with(": ERROR: " + odd.surf))
                << ran;
        EXPECT_EQ(form_->width(), width) << odd.name;
        text = monitor;
        for (std::size_t at = 0; (at = text.find("valley", at)) != std::string::npos; at += odd.name.size())
            text.replace(at, 6, odd.name);
        open<frmOpenAMMNETDataFile>();
        if (odd.name == "a\nb") host_.boxAnswers = {BoxAnswer::Ok};
        browse(directory_.write("m.csv", text));
        const auto* stationBox = child<QComboBox>("cboStationID");
        EXPECT_EQ(stationBox->currentText().toStdString(), odd.shownInMonitor);
        EXPECT_EQ(plain(stationBox->itemData(0, Qt::ToolTipRole).toString()), odd.shownInMonitor);
        EXPECT_EQ(outcome(), odd.monitor.empty() ? "made: m_AMMNETW_20231201-20240201_10m.frq"
                                                 : "Error has occurred. ERROR: " + odd.monitor)
            << odd.name;
    }
}

TEST_F(OddNamesRoad, InTheStatusLeaveTheFormsAsWideAsTheyAre) {
    const auto expectSameWidth = [this] {
        const int width = form_->width();
        child<QLabel>("lblStatus")
            ->setText(QString::fromStdString("Error processing Station " + tooLongName));
        QCoreApplication::processEvents();
        EXPECT_TRUE(child("lblStatus")->isVisible());
        EXPECT_EQ(form_->width(), width) << form_->objectName().toStdString();
    };
    open<frmOpenSURFDATFile>();
    expectSameWidth();
    openModelGrid("1.5", "2.25", "x");
    expectSameWidth();
}

TEST_F(OddNamesRoad, OfInputsNameTheRun) {
    Texts names = fewOddStations();
    names.emplace_back("a\nb");
    std::filesystem::copy(samples + "AERMET2.PFL", directory_.file("sample"));
    const std::string profile = directory_.read("sample");
    for (const std::string& name : names) {
        const bool hasControl = onWindows && name.find_first_of("\t\n") != std::string::npos;
        if (isNoFile(name + ".pfl") || hasControl || name.size() > 200) continue;  // no file has such a name
        const std::string data = directory_.write(name + ".pfl", profile);
        open<frmOpenAERMETFile>(InputKind::AermPfl);
        browse(data);
        // "\" separates directories everywhere in this program.
        const std::string output = name.substr(name.rfind('\\') + 1) + "_AERMETPFL_19880301-19880305_10m";
        if (name == "a\nb")
            EXPECT_EQ(
                outcome(),
                "refused: The following error has occurred: \"Bad file name or number: "
                "\"a<LF>b_AERMETPFL_19880301-19880305_10m\" has a line end in it\".  (Error Number = 52)");
        else
            EXPECT_EQ(outcome(), ofRun(output, "rename the input")) << name;
        EXPECT_TRUE(zg::removeFile(data)) << name;
    }
}

TEST_F(OddNamesRoad, TypedAsTitlesAreThoseOfTheRose) {
    for (const std::string& title :
         {std::string("New York!"), std::string("a;b, c"), std::string("it's \"q\""),
          std::string("50% & <b>x</b>"), std::string("\xD0\x9C\xD0\xBE"), std::string("Z\xC3\xBCrich"),
          std::string(" lead "), std::string(".."), std::string("a/b:c"), tooLongName, emptyValue,
          std::string("a\nb"), std::string("a\tb"), std::string("x ! MDATA = TSF ! y")}) {
        openWith<frmOpenAERMETFile>("AERMET2.PFL", InputKind::AermPfl);
        fill("txtStationID", "1");
        fill("txtTitleLine", title);
        EXPECT_EQ(outcome(), "made: AERMET2_AERMETPFL_19880301-19880305_10m.frq") << title;
        std::string oneLine = trim(title);
        for (char& c : oneLine)
            if (c < ' ' && c > 0) c = ' ';
        EXPECT_EQ(shown(modPolarGraph.FrqTitle1).toStdString(), oneLine);
        EXPECT_EQ(box("txtTitleLine").text().toStdString().size(), title.size());
    }
}

TEST_F(OddNamesRoad, OfPlacesInTheWizardAreNamesOfResults) {
    Texts names = fewOddStations();
    names.insert(names.end(), {"finished", ""});
    for (const std::string& name : names) {
        openModelGrid("1.5", "2.25", "x");
        click("cmdPrevious4");
        fill("txtFRQOutputFilename", name);
        host_.boxes.clear();
        if (name.empty()) host_.boxAnswers = {BoxAnswer::Ok};
        click("cmdNext3");
        if (name.empty())
            EXPECT_EQ(host_.boxes.at(0).text, "Please enter a Filename for the Output FRQ file.");
        else
            EXPECT_EQ(outcome("cmdPROCESS"),
                      ofOutput("Error has occurred.", "3DDAT_valley_model20231201-20231208",
                               nativePath(trim(name))))
                << name;
    }
}

TEST_F(OddNamesRoad, OfStationsInTheWizardAreShownAndNameTheirRoses) {
    for (const std::string& name : fewOddStations()) {
        nameStations(name);
        open<frmProcess3DDATFiles>(nullptr);
        const auto* list = child<QListWidget>("lstStations");
        const std::string inTable = isInTable(name) ? trim(name) : name.substr(0, name.find(','));
        EXPECT_EQ(list->item(0)->text().toStdString(), inTable);
        if (!isInTable(name)) continue;  // its place is no number
        host_.filesAnswers.push_back({samples + "valley_model.m3d"});
        click("cmdBrowseDataFiles");
        click("cmdNext1");
        child<QComboBox>("cboSpatialInterpolationMethod")->setCurrentIndex(0);
        child<QComboBox>("cboVertProfilingMethod")->setCurrentIndex(2);
        child<QRadioButton>("optByStation")->click();
        click("cmdNext2");
        child<QListWidget>("lstStations")->item(0)->setSelected(true);
        click("cmdNext3");
        fill("txtOutputDirectory", out_);
        EXPECT_EQ(outcome("cmdPROCESS"),
                  ofOutput("Error has occurred.", "3DDAT_valley_model20231201-20231208",
                           inTable + "_3DDAT_20231201-20231208_10m"))
            << name;
    }
}

TEST_F(OddNamesRoad, NoLocationIsToldInWords) {
    openModelGrid("1.5", "2.25", "x");
    click("cmdPrevious4");
    click("cmdPrevious3");
    fill("txtNumberOfLocations", "0");
    host_.boxAnswers = {BoxAnswer::Yes};
    click("cmdNext2");
    fill("txtGridPointI", "1");
    fill("txtGridPointJ", "1");
    fill("txtExtractionHeight", "10");
    fill("txtFRQOutputFilename", "x");
    click("cmdNext3");
    const std::string words =
        "ERROR: 3DDAT_valley_model20231201-20231208_tempoline.inp:43: NTSFOUT: 0 outputs are asked for, and "
        "at least "
        "one is needed";
    EXPECT_EQ(outcome("cmdPROCESS"), "Error has occurred. " + words);
    EXPECT_TRUE(child("lblReason")->isVisible());
    EXPECT_EQ(child<QLabel>("lblReason")->text().toStdString(), words);
}

}  // namespace
}  // namespace zg
