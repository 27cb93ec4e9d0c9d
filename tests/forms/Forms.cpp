#include "tests/forms/Forms.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <array>
#include <filesystem>

#include "base/Paths.h"
#include "batch/FrmBatchMode.h"
#include "batch/FrmCreateReport.h"
#include "dialogs/gridded/FrmProjectionInfo.h"
#include "dialogs/gridded/GridForm.h"
#include "dialogs/point/FrmOpenAERMETFile.h"
#include "dialogs/point/FrmOpenAMMNETDataFile.h"
#include "dialogs/point/FrmOpenSURFDATFile.h"
#include "dialogs/point/FrmOpenTSFDataFile.h"
#include "dialogs/point/FrmOpenUPDATFile.h"
#include "headers/Stations.h"
#include "headers/Zones.h"
#include "platform/ReasonLabel.h"
#include "settings/CfgFile.h"
#include "settings/Settings.h"
#include "shell/FrmAboutZephyrgraph.h"
#include "shell/FrmAddLabel.h"
#include "shell/FrmAspect.h"
#include "shell/FrmChangeDir.h"
#include "shell/FrmChangeRadius.h"
#include "shell/FrmComment.h"
#include "shell/FrmError.h"
#include "shell/FrmExpr.h"
#include "shell/FrmGridFonts.h"
#include "shell/FrmGuide.h"
#include "shell/FrmMain.h"
#include "shell/FrmOptions.h"
#include "shell/FrmOptionsLegend.h"
#include "shell/FrmProperties.h"
#include "shell/FrmSelectWindRose.h"
#include "shell/FrmSetSeasons.h"
#include "shell/FrmSetWindSpeedClasses.h"
#include "shell/FrmSplashScreen.h"
#include "shell/FrmTable.h"
#include "shell/FrmZoom.h"
#include "shell/StartSequence.h"
#include "tests/headers/GridFiles.h"
#include "tests/support/Places.h"

namespace zg {

namespace {

using FormPointer = std::unique_ptr<QWidget>;

void startProgramIn(const TempDirectory& directory) {
    modPolarGraph = ModPolarGraph();
    settings = Settings();
    timeZones = TimeZoneTable();
    stations = StationTable();
    applicationDirectory = directory.path();
    std::filesystem::copy(ZG_SOURCE_DIR "/data/TimeZones.txt", directory.file("TimeZones.txt"));
    directory.write("expr.dat", "\"Polar Graph 1.0\"\r\n\"sin(2*t)\"\r\n\"MathLib.pow(t,2)\"\r\n");
    directory.write("Station_Data.csv",
                    "STATION_DATA.CSV,V1.0\nheads\nBoston,1,0,0,a,b,c,42.36,-71.01,NAR-B\n"
                    "Albany,2,0,0,a,b,c,42.75,-73.8,WGS-84\n");
    startSettings();
}

GrapInfo curve() {
    GrapInfo graph;
    graph.Equation = "a*sin(2*t)";
    graph.Coefficient = "a=4";
    graph.Step = 15;
    graph.Series.AllowMarker = true;
    return graph;
}

template <typename Form>
FormPointer ofHost(FormWorld& world) {
    return std::make_unique<Form>(world.host);
}

template <typename Form>
FormPointer ofPlot(FormWorld& world) {
    return std::make_unique<Form>(world.host, world.plot.graph());
}

ProcessingWindow idleWindow() {
    return {[](const std::string&) {}, [] { return false; }, [] {}, [] {}};
}

template <typename Form>
FormPointer ofInput(FormWorld& world) {
    return std::make_unique<Form>(world.host, world.starter, idleWindow());
}

template <InputKind Kind>
FormPointer ofAermet(FormWorld& world) {
    return std::make_unique<frmOpenAERMETFile>(world.host, world.starter, idleWindow(), Kind);
}

FormPointer mainWindow(FormWorld& world) {
    auto window = std::make_unique<frmMain>(world.host);
    window->Form_Load();
    window->PlotFrqFile(inSources("data/samples/LOVETT_1988.frq"));
    return window;
}

std::function<void(QWidget&)> withTool(Tool tool) {
    return [tool](QWidget& form) { dynamic_cast<frmMain&>(form).pressTool(tool); };
}

std::function<void(QWidget&)> withClickOn(const char* control) {
    return [control](QWidget& form) { form.findChild<QAbstractButton*>(QLatin1String(control))->click(); };
}

/// The button rejects the text of the field and says so in the status line.
std::function<void(QWidget&)> withRefusal(const char* field, const char* text, const char* button) {
    return [=](QWidget& form) {
        auto* file = form.findChild<QLineEdit*>(QStringLiteral("txtSingleFRQFile"));
        if (file != nullptr) file->setText(QString::fromStdString(inSources("data/samples/LOVETT_1988.frq")));
        form.findChild<QLineEdit*>(QLatin1String(field))->setText(QLatin1String(text));
        form.findChild<QAbstractButton*>(QLatin1String(button))->click();
        EXPECT_NE(form.findChild<QLabel*>(QStringLiteral("lblStatus"))->text(), QString());
    };
}

/// A run is waiting, and the line below the status says why.
void waitWithReason(QWidget& form) {
    form.findChild<QLabel*>(QStringLiteral("lblStatus"))->setText(QStringLiteral("Running..."));
    dynamic_cast<ReasonLabel&>(*form.findChild<QLabel*>(QStringLiteral("lblReason")))
        .setReason(
            "tempoline.exe ended with status 1: Lovett_1988_surface_observations.sfc:51: hour: \"25\" is not "
            "between 0 and 24, and the lines after it are not read");
}

FormPointer customSeasons(FormWorld& world) {
    settings.CustomSeasonOfMonth.fill("Monsoon");
    WriteCfgFile(settings.CfgFilePath);
    return ofHost<frmSetSeasons>(world);
}

FormPointer errorForm(FormWorld&) {
    auto form = std::make_unique<frmError>();
    form->findChild<QLabel*>(QStringLiteral("lblDescr"))
        ->setText(QStringLiteral(
            "Line 12 of the file Lovett_1988_surface_observations.dat holds no wind direction: "
            "its columns 27 to 29 are blank. The lines behind it are not read."));
    return form;
}

BatchHooks batchHooks(bool accepted) {
    return {[accepted](const std::string&) { return accepted; }, [](const std::string&) {}};
}

FormPointer batchForm(FormWorld& world) {
    return std::make_unique<frmBatchMode>(world.host, batchHooks(true));
}

/// Every file is refused: the roses still in memory are saved under its names.
FormPointer refusingBatchForm(FormWorld& world) {
    return std::make_unique<frmBatchMode>(world.host, batchHooks(false));
}

void runBatchOfSample(QWidget& form) {
    form.findChild<QLineEdit*>(QStringLiteral("txtSingleFRQFile"))
        ->setText(QString::fromStdString(inSources("data/samples/LOVETT_1988.frq")));
    form.findChild<QAbstractButton*>(QStringLiteral("cmdBeginBatchMode"))->click();
    EXPECT_NE(form.findChild<QPlainTextEdit*>(QStringLiteral("txtNotes"))->toPlainText(), QString());
}

FormPointer propertiesForm(FormWorld& world) {
    return std::make_unique<frmProperties>(world.host, world.graph, [] {});
}

FormPointer tableForm(FormWorld& world) {
    QPixmap legend(46, 18);
    legend.fill(Qt::blue);
    return std::make_unique<frmTable>(world.host, world.graph, legend, [] {});
}

FormPointer directoryForm(FormWorld& world) {
    std::string start = world.chosenDirectory;
    if (start.empty()) {
        for (const char* name : {"Albany", "Boston", "Lovett/1988", "Lovett/1989", "Valley"})
            std::filesystem::create_directories(world.directory.file(std::string("data/met data/") + name));
        start = world.directory.file("data/met data/Lovett");
    }
    std::filesystem::create_directories(start);
    return std::make_unique<frmChangeDir>(world.host, world.chosenDirectory, start);
}

/// Its period ends where it begins, which a box reports.
FormPointer refusingUpForm(FormWorld& world) {
    world.host.boxAnswers = {BoxAnswer::Ok};
    return ofInput<frmOpenUPDATFile>(world);
}

void click(QWidget& form, const char* button) {
    form.findChild<QAbstractButton*>(QLatin1String(button))->click();
}

/// High enough for the whole page with the legend.
FormPointer knotsWindow(FormWorld& world) {
    constexpr int height = 880;
    FormPointer window = mainWindow(world);
    window->resize(window->width(), height);
    const std::array<Colour, 6> colours = {rgb(42, 121, 180), rgb(4, 164, 200),  rgb(149, 233, 155),
                                           rgb(249, 208, 87), rgb(242, 158, 46), rgb(215, 25, 28)};
    for (std::size_t i = 0; i < colours.size(); ++i)
        modPolarGraph.WindClassColor.at(i) = static_cast<float>(colours.at(i));
    frmOptionsLegend legend(world.host, dynamic_cast<frmMain&>(*window).pgPolarGraph());
    click(legend, "optKnots");
    click(legend, "cmdApply");
    return window;
}

/// A wizard at the given step with one file.
std::unique_ptr<GridForm> wizardAt(FormWorld& world, const GridVariation& variation, int step,
                                   bool byStation) {
    LoadStationData();
    auto form = std::make_unique<GridForm>(variation, world.host, world.starter, idleWindow(), nullptr);
    const bool model = variation.kind == InputKind::M3d;
    const std::string file = world.directory.write("wind.dat", model ? m3dText() : ventosText());
    world.host.filesAnswers.push_back({file});
    click(*form, "cmdBrowseDataFiles");
    if (step == 1) return form;
    click(*form, "cmdNext1");
    form->findChild<QComboBox*>(QStringLiteral("cboSpatialInterpolationMethod"))->setCurrentIndex(0);
    if (model) form->findChild<QComboBox*>(QStringLiteral("cboVertProfilingMethod"))->setCurrentIndex(1);
    if (byStation) click(*form, "optByStation");
    if (step == 2) return form;
    if (!byStation) world.host.boxAnswers = {BoxAnswer::Yes};
    click(*form, "cmdNext2");
    if (step == 3) return form;
    click(*form, "cmdSelectAll");
    click(*form, "cmdNext3");
    return form;
}

template <const GridVariation& Variation, int Step, bool ByStation = false>
FormPointer wizard(FormWorld& world) {
    return wizardAt(world, Variation, Step, ByStation);
}

/// Stations after the question about grid cells was answered Yes.
FormPointer stationsAfterCells(FormWorld& world) {
    auto form = wizardAt(world, m3dVariation, 3, false);
    for (const char* button : {"cmdPrevious3", "optByStation", "cmdNext2"}) click(*form, button);
    return form;
}

/// A place in degrees; a timer passes the projection dialog.
FormPointer degreesForm(FormWorld& world) {
    std::filesystem::copy(ZG_SOURCE_DIR "/data/datums.csv", world.directory.file("datums.csv"));
    auto form = wizardAt(world, ventosVariation, 2, false);
    projection.PMAP = "LL";
    QTimer::singleShot(0, [] {
        QWidget* dialog = QApplication::activeModalWidget();
        dialog->findChild<QComboBox*>(QStringLiteral("cboCode"))->setEditText(QStringLiteral("WGS-84"));
        click(*dialog, "cmdOK");
    });
    click(*form, "cmdNext2");
    return form;
}

template <int Entry>
FormPointer projectionForm(FormWorld& world) {
    std::filesystem::copy(ZG_SOURCE_DIR "/data/datums.csv", world.directory.file("datums.csv"));
    projection = {};
    auto form = std::make_unique<frmProjectionInfo>(world.host);
    auto* list = form->findChild<QComboBox*>(QStringLiteral("cboProj"));
    list->setCurrentIndex(Entry);
    emit list->activated(Entry);
    form->findChild<QComboBox*>(QStringLiteral("cboCode"))->setEditText(QStringLiteral("NAS-C"));
    return form;
}

FormPointer deepDirectoryForm(FormWorld& world) {
    world.chosenDirectory = world.directory.path();
    for (int level = 0; level < 12; ++level)
        world.chosenDirectory += nativePath("/directory_within_directory");
    return directoryForm(world);
}

FormPointer longTableForm(FormWorld& world) {
    for (int term = 0; term < 20; ++term) world.graph.Equation += "+a*sin(2*t)";
    return tableForm(world);
}

}  // namespace

FormWorld::FormWorld()
    : plot((startProgramIn(directory), host), modPolarGraph, PropertyBag()), graph(curve()) {
    plot.resize(500, 500);
    plot.graph().OpenFreqFile(inSources("data/samples/LOVETT_1988.frq"));
    modPolarGraph.WorkDir = directory.path() + pathSeparator;
}

const std::vector<FormRow>& forms() {
    static const std::vector<FormRow> rows = {
        {"frmMain", "", mainWindow},
        {"frmMain", "Aspect", mainWindow, withTool(Tool::Aspect)},
        {"frmMain", "Zoom", mainWindow, withTool(Tool::Zoom)},
        {"frmMain", "Knots", knotsWindow},
        {"frmSplashScreen", "",
         [](FormWorld& world) { return std::make_unique<frmSplashScreen>(world.host, [] {}); }},
        {"frmAboutZephyrgraph", "", [](FormWorld&) { return std::make_unique<frmAboutZephyrgraph>(); }},
        {"frmAddLabel", "", ofPlot<frmAddLabel>},
        {"frmAspect", "", ofPlot<frmAspect>},
        {"frmBatchMode", "File", batchForm},
        {"frmBatchMode", "Directory", batchForm, withClickOn("optDirectory")},
        {"frmBatchMode", "Dropped", batchForm,
         [](QWidget& form) {
             dynamic_cast<frmBatchMode&>(form).openDirectory(
                 inSources("data/samples"),
                 "BEGIN exports all 12 FRQ files of this directory, not only the 2 that were dropped.\n");
         }},
        {"frmBatchMode", "Refused", batchForm,
         withRefusal("txtPercentValidLimit", "101", "cmdBeginBatchMode")},
        {"frmBatchMode", "Notes", refusingBatchForm, runBatchOfSample},
        {"frmChangeDir", "", directoryForm},
        {"frmChangeDir", "Deep", deepDirectoryForm},
        {"frmChangeRadius", "", ofPlot<frmChangeRadius>},
        {"frmComment", "", ofPlot<frmComment>},
        {"frmCreateReport", "", ofHost<frmCreateReport>},
        {"frmCreateReport", "Refused", ofHost<frmCreateReport>,
         withRefusal("txtBMPDirectory", "/nowhere/", "cmdCreateReport")},
        {"frmError", "", errorForm},
        {"frmExpr", "", ofHost<frmExpr>},
        {"frmExpr", "Add", ofHost<frmExpr>, withClickOn("cmdAdd")},
        {"frmGridFonts", "", ofPlot<frmGridFonts>},
        {"frmGuide", "", [](FormWorld&) { return std::make_unique<frmGuide>(inSources("docs/guide.md")); }},
        {"frmOpenAERMETPFLFile", "", ofAermet<InputKind::AermPfl>},
        {"frmOpenAERMETSFCFile", "", ofAermet<InputKind::AermSfc>},
        {"frmOpenAERMETSFCFile", "Reason", ofAermet<InputKind::AermSfc>, waitWithReason},
        {"frmOpenAMMNETDataFile", "", ofInput<frmOpenAMMNETDataFile>},
        {"frmOpenSURFDATFile", "", ofInput<frmOpenSURFDATFile>},
        {"frmOpenSURFDATFile", "Reason", ofInput<frmOpenSURFDATFile>, waitWithReason},
        {"frmOpenTSFDataFile", "", ofInput<frmOpenTSFDataFile>},
        {"frmOpenUPDATFile", "", ofInput<frmOpenUPDATFile>},
        {"frmOpenUPDATFile", "Reason", ofInput<frmOpenUPDATFile>, waitWithReason},
        {"frmOpenUPDATFile", "Refused", refusingUpForm, withClickOn("cmdView")},
        {"frmOptions", "", ofPlot<frmOptions>},
        {"frmOptionsLegend", "", ofPlot<frmOptionsLegend>},
        {"frmProcess3DDATFiles", "Files", wizard<m3dVariation, 1>},
        {"frmProcess3DDATFiles", "Information", wizard<m3dVariation, 2>},
        {"frmProcess3DDATFiles", "Cells", wizard<m3dVariation, 3>},
        {"frmProcess3DDATFiles", "Stations", wizard<m3dVariation, 3, true>},
        {"frmProcess3DDATFiles", "StationsAfterCells", stationsAfterCells},
        {"frmProcess3DDATFiles", "Directory", wizard<m3dVariation, 4, true>},
        {"frmProcess3DDATFiles", "Reason", wizard<m3dVariation, 4, true>, waitWithReason},
        {"frmProcessVENTOSDATFiles", "Files", wizard<ventosVariation, 1>},
        {"frmProcessVENTOSDATFiles", "Information", wizard<ventosVariation, 2>},
        {"frmProcessVENTOSDATFiles", "Degrees", degreesForm},
        {"frmProcessVENTOSDATFiles", "Directory", wizard<ventosVariation, 4, true>},
        {"frmProjectionInfo", "LL", projectionForm<0>},
        {"frmProjectionInfo", "UTM", projectionForm<1>},
        {"frmProjectionInfo", "LCC", projectionForm<2>},
        {"frmProjectionInfo", "PS", projectionForm<4>},
        {"frmProjectionInfo", "LAZA", projectionForm<6>},
        {"frmProperties", "Font", propertiesForm, withClickOn("optMtype_1")},
        {"frmProperties", "Picture", propertiesForm, withClickOn("optMtype_0")},
        {"frmSelectWindRose", "", ofPlot<frmSelectWindRose>},
        {"frmSetSeasons", "", ofHost<frmSetSeasons>},
        {"frmSetSeasons", "Custom", customSeasons},
        {"frmSetWindSpeedClasses", "", ofHost<frmSetWindSpeedClasses>},
        {"frmTable", "", tableForm},
        {"frmTable", "Long", longTableForm},
        {"frmZoom", "", ofPlot<frmZoom>},
    };
    return rows;
}

std::string rowName(const FormRow& row) {
    return std::string(row.form) + (*row.state == '\0' ? "" : "_") + row.state;
}

void PrintTo(const FormRow& row, std::ostream* out) { *out << rowName(row); }

std::unique_ptr<QWidget> open(const FormRow& row, FormWorld& world) {
    FormPointer form = row.make(world);
    EXPECT_EQ(form->objectName(), row.form);
    form->show();
    form->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(form.get()));
    if (row.bring) row.bring(*form);
    QCoreApplication::processEvents();
    return form;
}

void forEachPage(QWidget& form, const std::function<void(const std::string& page)>& look) {
    auto* tabs = form.findChild<QTabWidget*>();
    if (tabs == nullptr) {
        look("");
        return;
    }
    for (int page = 0; page < tabs->count(); ++page) {
        tabs->setCurrentIndex(page);
        QCoreApplication::processEvents();
        look(tabs->tabText(page).toStdString());
    }
}

}  // namespace zg
