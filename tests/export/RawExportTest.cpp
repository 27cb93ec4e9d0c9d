// Raw data by the companion: from a file of winds to pictures, tables and control files in one command.

#include <gtest/gtest.h>

#include <QProcess>
#include <algorithm>
#include <filesystem>

#include "base/Lines.h"
#include "tests/support/Gzip.h"
#include "tests/support/Places.h"
#include "tests/support/TempDirectory.h"

namespace {

const std::string samples = ZG_SOURCE_DIR "/data/samples/";

struct Outcome {
    int status = -1;
    std::string out;
    std::string errors;
};

Outcome runRaw(const QStringList& words, const std::string& directory = {}) {
    QProcess process;
    if (!directory.empty()) process.setWorkingDirectory(QString::fromStdString(directory));
    process.start(QStringLiteral(ZG_COMPANION), words);
    EXPECT_TRUE(process.waitForFinished(120000));
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    return {process.exitCode(), process.readAllStandardOutput().toStdString(),
            process.readAllStandardError().toStdString()};
}

QString q(const std::string& text) { return QString::fromStdString(text); }

/// The names in a directory, in order.
std::string namesIn(const std::string& directory) {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(directory))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    std::string text;
    for (const std::string& name : names) text += name + " ";
    return text;
}

/// The text from the place where it first says that.
std::string from(const std::string& text, const std::string& mark) {
    const std::size_t at = text.find(mark);
    return at == std::string::npos ? "without " + mark : text.substr(at);
}

bool holds(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }

const std::string table =
    "time,ws,wd\n2016-01-01 00:00,3,90\n2016-01-01 01:00,4,180\n2016-01-01 02:00,0.1,VRB\n2016-01-01 "
    "03:00,M,M\n";

}  // namespace

TEST(RawExport, ASurfaceFileBecomesTheRosesOfAnotherProgram) {
    const TempDirectory directory;
    const Outcome outcome = runRaw(
        {q(samples + "LOVETT.SFC"), "--out", q(directory.path()), "--frq", "--rose", "1", "--size", "100"});
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_EQ(outcome.out, directory.file("LOVETT.frq") + "\n" + directory.file("LOVETT_01.png") + "\n");
    EXPECT_EQ(namesIn(directory.path()), "LOVETT.frq LOVETT_01.png ");
    const auto roses = [](const std::string& frq) { return from(frq, "All Periods"); };
    const std::string expected = zg::readWholeFile(ZG_SOURCE_DIR "/tests/tempoline/data/LOVETT_1988.frq");
    std::string lines = roses(directory.read("LOVETT.frq"));
    std::erase(lines, '\r');
    std::string expectedLines = roses(expected);
    std::erase(expectedLines, '\r');
    EXPECT_EQ(lines.substr(0, 900), expectedLines.substr(0, 900));
}

// The loader takes blanks on either side of the first line.
TEST(RawExport, AnFrqFileIsKnownByItsFirstWordAfterBlanks) {
    const TempDirectory directory;
    const std::string path =
        directory.write("roses.txt", "  " + zg::readWholeFile(samples + "LOVETT_1988.frq"));
    const Outcome outcome = runRaw({q(path), "--out", q(directory.path()), "--rose", "1", "--size", "100"});
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_EQ(namesIn(directory.path()), "roses.txt roses_01.png ");
}

TEST(RawExport, EveryKindOfTheSamplesIsFoundByItsContent) {
    const TempDirectory directory;
    QStringList words = {"--out", q(directory.path()), "--frq", "--rose", "1", "--size", "50", "--jobs",
                         "2",     "--location",        "0,0"};
    std::string copies = directory.file("in");
    std::filesystem::create_directory(copies);
    int number = 0;
    for (const char* const name : {"LOVETT.SFC", "AERMET2.PFL", "valley_surf.dat", "valley_up.dat",
                                   "valley_monitor.csv", "valley_series.tsf"})
        std::filesystem::copy_file(samples + name, copies + "/x" + std::to_string(++number) + ".data");
    words.removeAt(words.indexOf("--location") + 1);
    words.removeAt(words.indexOf("--location"));
    const Outcome outcome = runRaw(QStringList{q(copies)} + words);
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    for (const char* const name : {"x1.frq", "x4.frq", "x6.frq"})
        EXPECT_TRUE(holds(outcome.out, name)) << outcome.out;
    for (const char* const name : {"x1_01.png", "x2_", "x3_", "x4_01.png", "x5_", "x6_01.png"})
        EXPECT_TRUE(holds(outcome.out, name)) << outcome.out;
}

TEST(RawExport, GriddedDataNeedAPlaceAndTakeSeveral) {
    const TempDirectory directory;
    const QString model = q(samples + "valley_model.m3d");
    const Outcome none = runRaw({model, "--out", q(directory.path())});
    EXPECT_EQ(none.status, 2);
    EXPECT_TRUE(holds(none.errors, "gridded data need a place")) << none.errors;
    EXPECT_EQ(namesIn(directory.path()), "");
    const std::string cells = directory.write("cells.txt", "# cells\n1,1\n2,2\n");
    const Outcome cell =
        runRaw({model, "--cell", q(cells), "--out", q(directory.path()), "--rose", "1", "--size", "50"});
    EXPECT_EQ(cell.status, 0) << cell.errors;
    EXPECT_TRUE(holds(cell.out, "valley_model_1_1_01.png")) << cell.out;
    EXPECT_TRUE(holds(cell.out, "valley_model_2_2_01.png")) << cell.out;
    const Outcome ventos =
        runRaw({q(samples + "valley_ventos.dat"), "--cell", "1,1", "--out", q(directory.path())});
    EXPECT_EQ(ventos.status, 2);
    EXPECT_TRUE(holds(ventos.errors, "VENTOS.DAT takes --location")) << ventos.errors;
}

TEST(RawExport, ATableIsToldAndDrawnPackedOrNot) {
    const TempDirectory directory;
    const std::string plain = directory.write("mast.csv", table);
    const Outcome outcome = runRaw({"mast.csv", "--frq", "--rose", "1", "--size", "50"}, directory.path());
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(
        outcome.errors,
        "mast.csv: a table by COMMA, time \"time\" (year first, the begin of a record), speed \"ws\" in M/S, "
        "direction \"wd\", 4 records of 1 h from 2016-01-01 00:00 to 2016-01-01 04:00, no zone named\n");
    EXPECT_TRUE(
        holds(directory.read("mast.frq"), "Total Periods = 4; Valid Periods = 3; Calm Wind Periods = 1"))
        << directory.read("mast.frq");
    directory.write("packed.csv.gz", gzipped(table));
    EXPECT_EQ(runRaw({"packed.csv.gz", "--frq", "--rose", "1", "--size", "50"}, directory.path()).status, 0);
    EXPECT_EQ(from(directory.read("packed.frq"), "All Periods"),
              from(directory.read("mast.frq"), "All Periods"));
}

TEST(RawExport, OneOrMoreStationsOfATableAreTaken) {
    const TempDirectory directory;
    std::string text = "station,time,ws,wd\n";
    for (int hour = 0; hour < 10; ++hour)
        for (const char* const rest : {"A,2016-01-01 0%:00,3,90\n", "B B,2016-01-01 0%:00,4,180\n"})
            text += std::string(rest).replace(std::string(rest).find('%'), 1, std::to_string(hour));
    directory.write("net.csv", text);
    const Outcome all = runRaw({"net.csv"}, directory.path());
    EXPECT_EQ(all.status, 2);
    EXPECT_EQ(all.errors,
              "net.csv: the column \"station\" names 2 stations, whose times overlap or are not in order: "
              "\"A\", \"B B\"; --station "
              "\"A\" takes one of them\n");
    const Outcome one =
        runRaw({"net.csv", "--station", "B B", "--frq", "--rose", "1", "--size", "50"}, directory.path());
    EXPECT_EQ(one.status, 0) << one.errors;
    EXPECT_EQ(one.out, nativePath("./net.frq\n./net_01.png\n"));
    EXPECT_TRUE(holds(directory.read("net.frq"), "Total Periods = 10; Valid Periods = 10;"))
        << directory.read("net.frq");
    EXPECT_TRUE(holds(directory.read("net.frq"), "  S :    0.0000%    0.0000%  100.0000%"))
        << directory.read("net.frq");
    const Outcome both =
        runRaw({"net.csv", "--station", "A", "--station", "B B", "--frq", "--rose", "1", "--size", "50"},
               directory.path());
    EXPECT_EQ(both.status, 0) << both.errors;
    EXPECT_EQ(both.out, nativePath("./net_A.frq\n./net_B B.frq\n./net_A_01.png\n./net_B B_01.png\n"));
    EXPECT_TRUE(holds(directory.read("net_A.frq"), "Total Periods = 10; Valid Periods = 10;"));
    EXPECT_EQ(from(directory.read("net_B B.frq"), "All Periods"),
              from(directory.read("net.frq"), "All Periods"));
    directory.write("mast.csv", table);
    const Outcome none = runRaw({"mast.csv", "--station", "A", "--station", "B"}, directory.path());
    EXPECT_EQ(none.status, 2);
    EXPECT_TRUE(holds(none.errors, "mast.csv: --station: these winds are of one station\n")) << none.errors;
}

TEST(RawExport, StationsWhoseResultsWouldHaveOneNameAreRefused) {
    const TempDirectory directory;
    std::string text = "station,time,ws,wd\n";
    for (const char* const hour : {"00", "01"})
        for (const char* const station : {"A/B", "A_B"})
            text += std::string(station) + ",2016-01-01 " + hour + ":00,3,90\n";
    directory.write("net.csv", text);
    const Outcome alike =
        runRaw({"net.csv", "--station", "A/B", "--station", "A_B", "--frq"}, directory.path());
    EXPECT_EQ(alike.status, 2);
    EXPECT_EQ(alike.errors, "net.csv: --station: \"A_B\" would have the names of the results of \"A/B\"\n");
    const Outcome twice =
        runRaw({"net.csv", "--station", "A_B", "--station", "A_B", "--dry-run"}, directory.path());
    EXPECT_EQ(twice.status, 2);
    EXPECT_EQ(twice.errors, "net.csv: --station: \"A_B\" is given twice\n");
    EXPECT_EQ(alike.out + twice.out, "");
    EXPECT_EQ(namesIn(directory.path()), "net.csv ");
}

TEST(RawExport, OptionsReachTheControlFileAndADryRunRunsNothing) {
    const TempDirectory directory;
    directory.write("mast.csv", table);
    const Outcome outcome = runRaw({"mast.csv",  "--dry-run",
                                    "--out",     "plans",
                                    "--begin",   "2016-01-01T01:00",
                                    "--end",     "2016-01-01T03:00",
                                    "--step",    "30min",
                                    "--zone",    "-05:00",
                                    "--classes", "1,2,3,4,5,6",
                                    "--seasons", "A,A,A,B,B,B,A,A,A,B,B,B",
                                    "--title",   "Hill",
                                    "--height",  "25",
                                    "--unit",    "knots",
                                    "--missing", "x",
                                    "--stamp",   "begin",
                                    "--station", "S1"},
                                   directory.path());
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_EQ(outcome.out, nativePath("plans/mast_tempoline.inp\n"));
    EXPECT_EQ(namesIn(directory.file("plans")), "mast_tempoline.inp ");
    EXPECT_TRUE(holds(outcome.errors,
                      onWindows ? "would run: cd /d \"plans\\\" && \"" : "would run: cd 'plans/' && '"))
        << outcome.errors;
    EXPECT_TRUE(holds(outcome.errors, onWindows ? "\\tempoline.exe\" \"mast_tempoline.inp\"\n"
                                                : "/tempoline.exe' 'mast_tempoline.inp'\n"))
        << outcome.errors;
    const std::string control = directory.read("plans/mast_tempoline.inp");
    for (const char* const line :
         {"\r\nHill\r\n", "! MDATA = CSV !", "! IBHR  = 1 !", "! IEHR  = 3 !", "! NSECDT = 1800 !",
          "! ABTZ = UTC-0500 !", "! WSBIN = 1,2,3,4,5,6 !", "! NSEASN = 2 !", "! SEASNAME = A !",
          "! MSN = 1,1,1,2,2,2,1,1,1,2,2,2 !", "! MET = S1, 0, 0, 25,", "! CSVUNIT = KNOTS !",
          "! CSVMISS = x !", "! CSVSPD  = 2 !"})
        EXPECT_TRUE(holds(control, line)) << line << "\n" << control;
}

TEST(RawExport, KeepLeavesTheFilesOfTheRun) {
    const TempDirectory directory;
    directory.write("mast.csv", table);
    const Outcome outcome =
        runRaw({"mast.csv", "--keep", "--out", "o", "--rose", "1", "--size", "50"}, directory.path());
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_EQ(namesIn(directory.file("o")),
              "mast.frq mast.tab mast.tsf mast_01.png mast_tempoline.inp mast_tempoline.lst ");
}

TEST(RawExport, WishesThatTheDataContradictAreRefusedInTheDialogsWords) {
    const TempDirectory directory;
    directory.write("mast.csv", table);
    const auto refusal = [&](const QStringList& words) {
        const Outcome outcome = runRaw(QStringList{"mast.csv", "--out", "o"} + words, directory.path());
        EXPECT_EQ(outcome.status, 2) << outcome.errors;
        EXPECT_EQ(outcome.out, "");
        EXPECT_EQ(std::count(outcome.errors.begin(), outcome.errors.end(), '\n'), 1) << outcome.errors;
        EXPECT_FALSE(std::filesystem::exists(directory.file("o")));
        return outcome.errors;
    };
    EXPECT_EQ(refusal({"--begin", "2015-12-31"}),
              "mast.csv: The selected Starting date/time precedes the starting date/time of the data.\n");
    EXPECT_EQ(refusal({"--end", "2017-01-01"}),
              "mast.csv: The selected Ending date/time follows the ending date/time of the data.\n");
    EXPECT_EQ(refusal({"--begin", "2016-01-01T03:00", "--end", "2016-01-01T02:00"}),
              "mast.csv: Error: The Ending Date/Time must be later than the Starting Date/Time.\n");
    EXPECT_EQ(refusal({"--step", "0"}), "--step: Please enter a valid time step.\n");
    EXPECT_EQ(refusal({"--classes", "1,2,1,4,5,6"}),
              "--classes: The Wind Speed Class 2 minimum range value must be less than that of Wind Speed "
              "Class 3.\n");
    EXPECT_EQ(refusal({"--seasons", "A,B"}),
              "--seasons: found 2 seasons, 12 are needed, one a month from January on\n");
    EXPECT_EQ(refusal({"--height", "low"}), "--height: \"low\" is no height in metres\n");
    EXPECT_EQ(refusal({"--zone", "EST"}), "--zone: \"EST\" is no zone such as UTC-0500\n");
    EXPECT_EQ(refusal({"--begin", "yesterday"}),
              "--begin: \"yesterday\" is no time such as 2016-01-09T15:30\n");
    EXPECT_EQ(refusal({"--time-format", "dmmy"}),
              "--time-format: \"dmmy\" is no form of times such as dmy or %d.%m.%Y %H:%M\n");
    EXPECT_EQ(refusal({"--speed", "Spd"}),
              "mast.csv:1: the columns' names have no wind speed \"Spd\" (--speed NAME): they are \"time\" "
              "\"ws\" \"wd\"\n");
    directory.write("net.csv",
                    "station,time,ws,wd\nA!B,2016-01-01 00:00,3,90\nC,2016-01-01 00:00,4,180\n"
                    "A!B,2016-01-01 01:00,3,90\nC,2016-01-01 01:00,4,180\n");
    EXPECT_EQ(runRaw({"net.csv", "--station", "A!B"}, directory.path()).errors,
              "net.csv: --station: a \"!\" ends a value of the control file\n");
    const Outcome station =
        runRaw({q(samples + "valley_surf.dat"), "--station", "nowhere"}, directory.path());
    EXPECT_EQ(station.status, 2);
    EXPECT_TRUE(holds(station.errors, "--station: there is no station \"nowhere\"; the file has "))
        << station.errors;
}

TEST(RawExport, OneFaultyFileIsToldAndTheOthersAreDrawn) {
    const TempDirectory directory;
    directory.write("a.csv", table);
    directory.write("b.csv", "time,ws,wd\n2016-01-01 00:00,3,90\n2016-01-01 01:00,fast,90\n");
    directory.write("c.txt", "a poem\n");
    const Outcome outcome =
        runRaw({"a.csv", "b.csv", "c.txt", "--rose", "1", "--size", "50", "--jobs", "2"}, directory.path());
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.out, nativePath("./a_01.png\n"));
    EXPECT_TRUE(holds(outcome.errors, "\nb.csv:3: column 2 (ws): \"fast\" is no speed\n")) << outcome.errors;
    EXPECT_TRUE(
        holds(outcome.errors, "\nc.txt: no line of names with a time, a wind speed and a wind direction"))
        << outcome.errors;
    EXPECT_EQ(namesIn(directory.path()), "a.csv a_01.png b.csv c.txt ");
    EXPECT_EQ(runRaw({"b.csv"}, directory.path()).status, 1);
}

TEST(RawExport, FilesOfOneNameAndTwoKindsKeepTheirExtensions) {
    const TempDirectory directory;
    std::filesystem::copy_file(samples + "AERMET2.SFC", directory.file("A.SFC"));
    std::filesystem::copy_file(samples + "AERMET2.PFL", directory.file("A.PFL"));
    const Outcome outcome =
        runRaw({"A.SFC", "A.PFL", "--height", "10", "--rose", "1", "--size", "50"}, directory.path());
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_EQ(outcome.out, nativePath("./A_SFC_01.png\n./A_PFL_01.png\n"));
}

TEST(RawExport, TablesOfRawDataAreTidyRows) {
    const TempDirectory directory;
    directory.write("mast.csv", table);
    const Outcome outcome = runRaw({"mast.csv", "--tables", "csv"}, directory.path());
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_TRUE(
        outcome.out.starts_with("file,rose,title,direction,degrees,class,from,to,unit,share,hours\n"
                                "mast.csv,1,All Periods,,,calm,0,0.5,m/s,33.3300,1\n"
                                "mast.csv,1,All Periods,N,0,1,0.5,1.8,m/s,0.0000,0\n"))
        << outcome.out.substr(0, 300);
    EXPECT_TRUE(holds(outcome.out, "mast.csv,1,All Periods,E,90,2,1.8,3.3,m/s,33.3333,1\n"));
    EXPECT_TRUE(holds(outcome.out, "mast.csv,1,All Periods,NNW,337.5,6,10.8,,m/s,0.0000,0\n"));
    EXPECT_EQ(namesIn(directory.path()), "mast.csv ");
    const Outcome json = runRaw({"mast.csv", "--tables"}, directory.path());
    EXPECT_EQ(json.status, 0);
    EXPECT_TRUE(json.out.starts_with("{")) << json.out.substr(0, 50);
}

TEST(RawExport, AStationInAnotherEncodingNamesItsRose) {
    const TempDirectory directory;
    std::string text = zg::readWholeFile(samples + "valley_surf.dat");
    text.replace(text.find("10011"), 5, "Z\xFCri");
    directory.write("s.dat", text);
    const Outcome outcome =
        runRaw({"s.dat", "--frq", "--rose", "1", "--size", "50", "--quiet"}, directory.path());
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    const std::vector<std::string> names = zg::filesMatching(directory.file("s_Z*.frq"));
    ASSERT_EQ(names.size(), 1U);
    EXPECT_TRUE(names[0].starts_with(onWindows ? "s_Z\xC3\xBCri" : "s_Z\xFCri")) << names[0];
    EXPECT_EQ(zg::filesMatching(directory.file("s_Z*.png")).size(), 1U);
    EXPECT_TRUE(holds(outcome.out, names[0])) << "told by its name";
}

TEST(RawExport, AStationThatIsOnlyANameIsTold) {
    const TempDirectory directory;
    directory.write("one.csv", "station,time,ws,wd\nA,2016-01-01 00:00,3,90\nA,2016-01-01 01:00,4,180\n");
    const std::string line = "one.csv: its only station is \"A\"; \"B\" is only the name\n";
    const auto errorsOf = [&](const char* station) {
        const Outcome outcome = runRaw({"one.csv", "--station", station, "--dry-run"}, directory.path());
        EXPECT_EQ(outcome.status, 0) << outcome.errors;
        return outcome.errors;
    };
    EXPECT_TRUE(holds(errorsOf("B"), ", no zone named\n" + line)) << errorsOf("B");
    EXPECT_FALSE(holds(errorsOf("A"), "its only station")) << errorsOf("A");
}

TEST(RawExport, AStationInAnotherEncodingCanBeTyped) {
    const TempDirectory directory;
    const std::string typed = "Z\xC3\xBCri";
    std::string text = zg::readWholeFile(samples + "valley_surf.dat");
    text.replace(text.find("10011"), 5, "Z\xFCri");
    directory.write("s.dat", text);
    const Outcome surface =
        runRaw({"s.dat", "--station", q(typed), "--rose", "1", "--size", "50"}, directory.path());
    EXPECT_EQ(surface.status, 0) << surface.errors;
    EXPECT_EQ(surface.out, nativePath("./s_01.png\n"));
    const Outcome none = runRaw({"s.dat", "--station", "nowhere"}, directory.path());
    EXPECT_TRUE(holds(none.errors, "the file has " + typed)) << none.errors;
    directory.write("net.csv",
                    "station,time,ws,wd\nZ\xFCri,2016-01-01 00:00,3,90\nB,2016-01-01 00:00,4,180\n"
                    "Z\xFCri,2016-01-01 01:00,3,90\nB,2016-01-01 01:00,4,180\n");
    const Outcome table =
        runRaw({"net.csv", "--station", q(typed), "--keep", "--rose", "1", "--size", "50"}, directory.path());
    EXPECT_EQ(table.status, 0) << table.errors;
    EXPECT_TRUE(holds(directory.read("net_tempoline.inp"), "! CSVID   = Z\xFCri !")) << "as the table has it";
    EXPECT_TRUE(holds(directory.read("net.frq"), "Total Periods = 2; Valid Periods = 2;"));
}

TEST(RawExport, AReportNamesTheFileThatWasGiven) {
    const TempDirectory directory;
    const std::string page = directory.file("report.html");
    const Outcome outcome =
        runRaw({q(samples + "LOVETT.SFC"), "--html", q(page), "--out", q(directory.path())});
    ASSERT_EQ(outcome.status, 0) << outcome.errors;
    const std::string html = directory.read("report.html");
    EXPECT_TRUE(holds(html, "LOVETT.SFC"));
    EXPECT_FALSE(holds(html, "LOVETT.frq"));
}

TEST(RawExport, TheScriptForManyFilesDrawsEachAndTellsWhichFailed) {
    const TempDirectory directory;
    directory.write("a.csv", table);
    directory.write("b.csv", table);
    directory.write("c.csv", "nothing\n");
    const std::string list = directory.write("list", "a.csv\nc.csv\nb.csv\n");
    QProcess process;
    process.setWorkingDirectory(q(directory.path()));
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("ZEPHYRGRAPH_EXPORT"), QStringLiteral(ZG_COMPANION));
    process.setProcessEnvironment(environment);
    process.setStandardInputFile(q(list));
    process.start(QStringLiteral(ZG_SOURCE_DIR "/data/cluster/pictures.sh"),
                  {"p", "--rose", "1", "--size", "50"});
    EXPECT_TRUE(process.waitForFinished(120000));
    EXPECT_NE(process.exitCode(), 0);
    EXPECT_EQ(namesIn(directory.file("p")), "a_01.png b_01.png ");
    EXPECT_TRUE(holds(process.readAllStandardError().toStdString(), "c.csv: no line of names"));
}
