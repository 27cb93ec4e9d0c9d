// What people expect of any window: drops, keys, the wheel, recent files, a place that is remembered.

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMimeData>
#include <QTimer>
#include <QToolButton>
#include <QUrl>
#include <QWheelEvent>
#include <array>
#include <cstdlib>
#include <filesystem>

#include "base/Paths.h"
#include "platform/PolarGraphWidget.h"
#include "settings/CfgFile.h"
#include "shell/RecentFiles.h"
#include "shell/WindowPlace.h"
#include "tests/shell/MainWindow.h"
#include "tests/support/Places.h"

namespace zg {
namespace {

class FrmMainHabits : public ActiveMainWindow {
 protected:
    std::string sample(const char* name) const {
        const std::string path = directory_.file(name);
        std::filesystem::copy(ZG_SOURCE_DIR "/data/samples/LOVETT_1988.frq", path);
        return path;
    }
    bool drop(const std::vector<std::string>& paths) {
        QMimeData data;
        QList<QUrl> urls;
        for (const std::string& path : paths) urls.append(QUrl::fromLocalFile(QString::fromStdString(path)));
        data.setUrls(urls);
        QDragEnterEvent enter(QPoint(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(window_.get(), &enter);
        if (!enter.isAccepted()) return false;
        QTimer guard;  // a dialog that nobody expects does not stop the tests
        QObject::connect(&guard, &QTimer::timeout, &guard, [] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr) return;
            ADD_FAILURE() << dialog->objectName().toStdString() << " is open";
            dialog->reject();
        });
        guard.start(5000);
        QDropEvent dropped(QPointF(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(window_.get(), &dropped);
        QApplication::processEvents();
        return true;
    }
    /// Looks at the next modal dialog and cancels it.
    void inModalDialog(const std::function<void(QDialog&)>& look) {
        QTimer::singleShot(20, window_.get(), [look] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            look(*dialog);
            dialog->reject();
        });
    }
    void turnWheel(int degrees, Qt::KeyboardModifiers keys = Qt::ControlModifier) {
        QWidget* plotWidget = child("pgPolarGraph");
        QWheelEvent wheel(QPointF(50, 50), plotWidget->mapToGlobal(QPointF(50, 50)), QPoint(),
                          QPoint(0, degrees), Qt::NoButton, keys, Qt::NoScrollPhase, false);
        QApplication::sendEvent(plotWidget, &wheel);
    }
    PolarGraphWidget& plotWidget() { return *child<PolarGraphWidget>("pgPolarGraph"); }
};

TEST_F(FrmMainHabits, AFileDroppedOnTheWindowIsPlotted) {
    EXPECT_TRUE(drop({sample("dropped.frq")}));
    EXPECT_EQ(window_->windowTitle(), "Zephyrgraph - dropped.frq");
    EXPECT_TRUE(modPolarGraph.FrqLoaded);
    EXPECT_EQ(modPolarGraph.WorkDir, directory_.path() + pathSeparator) << "as after the open dialog";
}

TEST_F(FrmMainHabits, ForDroppedRawDataTheirDialogOpensWithTheFile) {
    struct Row {
        const char* sample;
        const char* form;
        const char* box;
    };
    program_.deliver({"TimeZones.txt"});
    for (const Row& row : {Row{"valley_surf.dat", "frmOpenSURFDATFile", "txtSURFDATFile"},
                           Row{"valley_up.dat", "frmOpenUPDATFile", "txtUPDATFile"},
                           Row{"valley_monitor.csv", "frmOpenAMMNETDataFile", "txtAMMNETDataFile"},
                           Row{"valley_series.tsf", "frmOpenTSFDataFile", "txtTSFDataFile"}}) {
        QString form;
        QString text;
        QTimer look;
        QObject::connect(&look, &QTimer::timeout, &look, [&] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            const auto* box =
                dialog == nullptr ? nullptr : dialog->findChild<QLineEdit*>(QLatin1String(row.box));
            if (box == nullptr || box->text().isEmpty()) return;
            form = dialog->objectName();
            text = box->text();
            dialog->reject();
        });
        look.start(5);
        const std::string path = inSources("data/samples/") + row.sample;
        EXPECT_TRUE(drop({path}));
        EXPECT_EQ(form.toStdString(), row.form);
        EXPECT_EQ(text.toStdString(), path);
    }
    EXPECT_TRUE(host_.openPicks.empty()) << "no picker asks";
}

TEST_F(FrmMainHabits, ForDroppedGriddedDataTheirWizardOpensWithTheFileInItsList) {
    struct Row {
        const char* sample;
        const char* form;
        const char* list;
    };
    program_.deliver({"TimeZones.txt"});
    modPolarGraph.WorkDir = "before";
    settings.CurrentFrqPath = "before.frq";
    for (const Row& row : {Row{"valley_ventos.dat", "frmProcessVENTOSDATFiles", "lstVENTOSDATFiles"},
                           Row{"valley_model.m3d", "frmProcess3DDATFiles", "lst3DDATFiles"}}) {
        QString form;
        QString text;
        QTimer look;
        QObject::connect(&look, &QTimer::timeout, &look, [&] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            const auto* list =
                dialog == nullptr ? nullptr : dialog->findChild<QListWidget*>(QLatin1String(row.list));
            if (list == nullptr || list->count() != 1) return;
            form = dialog->objectName();
            text = list->item(0)->text();
            dialog->reject();
        });
        look.start(5);
        QTimer::singleShot(5000, &look, [] {
            if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) dialog->reject();
        });
        const std::string path = inSources("data/samples/") + row.sample;
        EXPECT_TRUE(drop({path}));
        EXPECT_EQ(form.toStdString(), row.form);
        EXPECT_EQ(text.toStdString(), path);
    }
    EXPECT_TRUE(host_.boxes.empty());
    EXPECT_EQ(window_->windowTitle(), "Zephyrgraph");
    EXPECT_EQ(modPolarGraph.WorkDir, "before");
    EXPECT_EQ(settings.CurrentFrqPath, "before.frq");
}

TEST_F(FrmMainHabits, ADroppedFrqFileIsPlottedWhateverItsName) {
    const std::string roses = directory_.read(FileNameOf(sample("a.frq")));
    EXPECT_TRUE(drop({directory_.write("roses.csv", "  " + roses)}));
    EXPECT_EQ(window_->windowTitle(), "Zephyrgraph - roses.csv");
    EXPECT_TRUE(modPolarGraph.FrqLoaded);
}

TEST_F(FrmMainHabits, ADroppedTableOfWindsChangesNothingAndSaysWhatDrawsIt) {
    host_.boxAnswers = {BoxAnswer::Ok};
    modPolarGraph.WorkDir = "before";
    EXPECT_TRUE(drop({directory_.write("mast.csv", "time,ws,wd\n2016-01-09 15:30,3,90\n")}));
    ASSERT_EQ(host_.boxes.size(), 1U);
    EXPECT_EQ(host_.boxes[0].text,
              "\"mast.csv\" is a table of winds. zephyrgraph-export makes wind roses of it.");
    EXPECT_EQ(host_.boxes[0].icon, BoxIcon::Information);
    EXPECT_EQ(window_->windowTitle(), "Zephyrgraph");
    EXPECT_EQ(modPolarGraph.WorkDir, "before");
    EXPECT_TRUE(recentFiles().empty());
}

TEST_F(FrmMainHabits, AnotherFileThatIsDroppedIsToldByTheLoader) {
    host_.boxAnswers = {BoxAnswer::Ok};
    EXPECT_TRUE(drop({directory_.write("letter.txt", "Dear all\r\n")}));
    EXPECT_EQ(host_.boxes.size(), 1U);
    EXPECT_FALSE(modPolarGraph.FrqLoaded);
}

TEST_F(FrmMainHabits, SeveralDroppedFrqFilesFillBatchModeIn) {
    const std::string one = sample("one.frq");
    const std::string two = sample("two.frq");
    modPolarGraph.WorkDir.clear();
    QString status;
    inModalDialog([&](QDialog& dialog) {
        EXPECT_EQ(dialog.objectName(), "frmBatchMode");
        EXPECT_EQ(dialog.findChild<QLineEdit*>("txtDirectory")->text().toStdString(),
                  directory_.path() + pathSeparator);
        QTest::mouseClick(dialog.findChild<QWidget*>("cmdBeginBatchMode"), Qt::LeftButton);
        status = dialog.findChild<QLabel*>("lblStatus")->text();
    });
    EXPECT_TRUE(drop({one, two}));
    EXPECT_EQ(status, "Finished");
    EXPECT_TRUE(std::filesystem::exists(directory_.file("one_Winter.bmp")));
    EXPECT_TRUE(std::filesystem::exists(directory_.file("two_Winter.bmp")));
    EXPECT_TRUE(host_.boxes.empty());
}

TEST_F(FrmMainHabits, ADroppedDirectoryFillsBatchModeIn) {
    QString text;
    inModalDialog([&](QDialog& dialog) { text = dialog.findChild<QLineEdit*>("txtDirectory")->text(); });
    EXPECT_TRUE(drop({directory_.path()}));
    EXPECT_EQ(text.toStdString(), directory_.path() + pathSeparator);
}

TEST_F(FrmMainHabits, SeveralDroppedFilesOfAGridAreListedInTheirWizard) {
    program_.deliver({"TimeZones.txt"});
    const std::string first = directory_.file("first.m3d");
    const std::string second = directory_.file("second.m3d");
    for (const std::string& path : {first, second})
        std::filesystem::copy(ZG_SOURCE_DIR "/data/samples/valley_model.m3d", path);
    QStringList rows;
    QTimer look;  // the wizard is filled in when it is open
    QObject::connect(&look, &QTimer::timeout, &look, [&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        const auto* list = dialog == nullptr ? nullptr : dialog->findChild<QListWidget*>("lst3DDATFiles");
        if (list == nullptr || list->count() == 0) return;
        EXPECT_EQ(dialog->objectName(), "frmProcess3DDATFiles");
        for (int row = 0; row < list->count(); ++row) rows.append(list->item(row)->text());
        dialog->reject();
    });
    look.start(5);
    EXPECT_TRUE(drop({first, second}));
    EXPECT_EQ(rows, (QStringList{QString::fromStdString(first), QString::fromStdString(second)}));
}

TEST_F(FrmMainHabits, OtherSeveralFilesAreTold) {
    host_.boxAnswers = {BoxAnswer::Ok};
    EXPECT_TRUE(drop({sample("one.frq"), inSources("data/samples/valley_surf.dat")}));
    ASSERT_EQ(host_.boxes.size(), 1U);
    EXPECT_EQ(
        host_.boxes[0].text,
        "Several files can be dropped together if they are FRQ files of one directory (batch mode) or the "
        "3D.DAT or VENTOS.DAT files of one run. Please drop other files one by one.");
    EXPECT_EQ(window_->windowTitle(), "Zephyrgraph");
}

TEST_F(FrmMainHabits, DropsDuringACurveAreNotTaken) {
    bool free = false;
    plot().events.DrawBegin(free);
    EXPECT_FALSE(drop({sample("one.frq")}));
    EXPECT_EQ(window_->windowTitle(), "Zephyrgraph");
}

TEST_F(FrmMainHabits, TheUsualKeyOpensAFile) {
    host_.openAnswers = {sample("a.frq")};
    QTest::keyClick(child("picGraph"), Qt::Key_O, Qt::ControlModifier);
    EXPECT_EQ(window_->windowTitle(), "Zephyrgraph - a.frq");
}

TEST_F(FrmMainHabits, TheWheelWithControlZoomsThroughTheList) {
    ASSERT_EQ(plot().Zoom(), 100);
    turnWheel(120);
    EXPECT_EQ(plot().Zoom(), 125);
    EXPECT_EQ(settings.ZoomListIndex, 4) << "as by a click in the list";
    turnWheel(-120);
    turnWheel(-120);
    EXPECT_EQ(plot().Zoom(), 75);
    plot().Zoom(110);
    turnWheel(-120);
    EXPECT_EQ(plot().Zoom(), 100) << "the next one of the list";
    plot().Zoom(500);
    turnWheel(120);
    EXPECT_EQ(plot().Zoom(), 500);
    turnWheel(-120, Qt::NoModifier);
    EXPECT_EQ(plot().Zoom(), 500) << "without Ctrl it scrolls";
}

TEST_F(FrmMainHabits, TheArrowBesideOpenOffersTheFilesOpenedLast) {
    auto* menu = child<QToolButton>("tblToolbar_open")->menu();
    emit menu->aboutToShow();
    ASSERT_EQ(menu->actions().size(), 1);
    EXPECT_FALSE(menu->actions().constFirst()->isEnabled()) << "none yet";
    const std::string first = sample("first & only.frq");
    drop({first});
    drop({sample("second.frq")});
    emit menu->aboutToShow();
    ASSERT_EQ(menu->actions().size(), 2);
    EXPECT_TRUE(menu->actions().at(0)->text().endsWith(QLatin1String("second.frq")));
    EXPECT_TRUE(menu->actions().at(1)->text().endsWith(QLatin1String("first && only.frq")));
    menu->actions().at(1)->trigger();
    EXPECT_EQ(window_->windowTitle(), "Zephyrgraph - first & only.frq");
    EXPECT_EQ(recentFiles().front(), first);
    std::filesystem::remove(first);
    EXPECT_EQ(recentFiles().size(), 1U) << "what is gone is not offered";
}

TEST_F(FrmMainHabits, ATabInANameDoesNotSplitItsEntry) {
    const std::string path = sample("summer\tonly.frq");
    drop({path});
    auto* menu = child<QToolButton>("tblToolbar_open")->menu();
    emit menu->aboutToShow();
    ASSERT_EQ(menu->actions().size(), 1);
    const QString text = menu->actions().constFirst()->text();
    EXPECT_TRUE(text.endsWith(QLatin1String("summer only.frq")))
        << text.toStdString() << ": what follows a tab is a key of the entry";
    start();
    menu = child<QToolButton>("tblToolbar_open")->menu();
    emit menu->aboutToShow();
    menu->actions().constFirst()->trigger();
    EXPECT_EQ(window_->windowTitle(), "Zephyrgraph - summer\tonly.frq") << "listed by its own name";
}

TEST_F(FrmMainHabits, OnlyTheLatestFilesAreKept) {
    for (int i = 0; i < 12; ++i) rememberFile(sample(("f" + std::to_string(i) + ".frq").c_str()));
    ASSERT_EQ(recentFiles().size(), 8U);
    EXPECT_EQ(FileNameOf(recentFiles().front()), "f11.frq");
    rememberFile(recentFiles().back());
    EXPECT_EQ(recentFiles().size(), 8U) << "no file is listed twice";
}

TEST_F(FrmMainHabits, TheEmptyPageInvitesInTheWindowButNotInAPicture) {
    EXPECT_EQ(plotWidget().invitation(), "Open a frequency file, or drop one here");
    QWidget* page = child("picGraph");
    const QImage seen = page->grab().toImage();
    const QImage drawn = plotWidget().pageImage();
    plotWidget().setInvitation({});
    EXPECT_NE(page->grab().toImage(), seen);
    EXPECT_EQ(plotWidget().pageImage(), drawn) << "what is saved and printed never has it";
}

TEST_F(FrmMainHabits, TheInvitationGoesWithTheFirstFileOrCurve) {
    drop({sample("a.frq")});
    EXPECT_EQ(plotWidget().invitation(), "");
    start();
    plot().Plot().Add("", "2", rgb(0, 0, 255), rgb(0, 0, 255));
    plot().DrawGraph();
    EXPECT_EQ(plotWidget().invitation(), "");
}

TEST_F(FrmMainHabits, ViewWindRoseOnAFileWithoutRosesSaysSo) {
    modPolarGraph.FrqLoaded = true;
    modPolarGraph.FrqRoseCount = 0;
    host_.boxAnswers = {BoxAnswer::Ok};
    entry("mnuAvePeriod").trigger();
    ASSERT_EQ(host_.boxes.size(), 1U);
    EXPECT_EQ(host_.boxes[0].text, "The file has no wind roses: it ends after its header.");
    EXPECT_EQ(host_.boxes[0].icon, BoxIcon::Information);
}

TEST_F(FrmMainHabits, ARightClickOnTheCornerMovesTheMenusMark) {
    plot().cornerPressed(rightButton);
    emit entry("mnuViewRulerMode").menu()->aboutToShow();
    EXPECT_TRUE(entry("mnuViewRulerModeOption_0").isChecked());
    plot().cornerPressed(rightButton);
    emit entry("mnuViewRulerMode").menu()->aboutToShow();
    EXPECT_TRUE(entry("mnuViewRulerModeOption_1").isChecked());
}

TEST_F(FrmMainHabits, ThePageStaysInTheMiddleOfTheWindow) {
    const auto margins = [this] {
        const QRect page = child("picGraph")->geometry();
        return std::array<int, 4>{
            page.left() - child("picHolderRV")->width(), child("vsScroll")->x() - page.right() - 1,
            page.top() - child("picHolderRH")->height(), child("hsScroll")->y() - page.bottom() - 1};
    };
    for (const QSize size : {QSize(1300, 1200), QSize(1600, 1100)}) {
        window_->resize(size);
        const auto [left, right, top, bottom] = margins();
        EXPECT_GT(left, 100);
        EXPECT_LE(std::abs(left - right), 1);
        EXPECT_GT(top, 30);
        EXPECT_LE(std::abs(top - bottom), 1);
    }
    plot().ResetDrawingArea();
    window_->resize(1300, 1200);
    EXPECT_EQ(margins()[0], 5) << "as the corner has put it";
    EXPECT_EQ(margins()[2], 5);
}

TEST_F(FrmMainHabits, AtSmallZoomsTheLinesOfTheLegendDoNotOverlap) {
    drop({sample("a.frq")});
    plot().Zoom(25);
    QWidget* page = child("picGraph");
    const QImage small = plotWidget().pageImage();
    // Beside the swatches each line of the legend has paper above and below it.
    const auto scale = small.devicePixelRatio();
    int paper = 0;
    for (int y = page->height() * 4 / 5 + 1; y < page->height(); ++y) {
        bool white = true;
        for (int x = page->width() * 77 / 100; x < page->width(); ++x)
            white =
                white && qGray(small.pixel(static_cast<int>(x * scale), static_cast<int>(y * scale))) > 200;
        paper += white ? 1 : 0;
    }
    EXPECT_GE(paper, 5);
}

TEST(WindowPlace, AtTheFirstStartIsAPartOfALargeScreen) {
    EXPECT_EQ(startSizeOn({1280, 1024}), QSize(740, 880)) << "the whole page";
    EXPECT_EQ(startSizeOn({800, 600}), QSize(740, 540));
    EXPECT_EQ(startSizeOn({3840, 2160}), QSize(2073, 1836));
}

TEST(WindowPlace, IsRememberedInAFileOfItsOwn) {
    const FreshProgram program;
    {
        QWidget window;
        const WindowPlace place(window);
        window.show();
        window.resize(431, 317);
        EXPECT_TRUE(
            QTest::qWaitFor([&] { return std::filesystem::exists(program.directory.file("window.txt")); }));
    }
    QWidget window;
    const WindowPlace place(window);
    EXPECT_EQ(window.size(), QSize(431, 317));
}

TEST(WindowPlace, ADamagedFileChangesNothing) {
    const FreshProgram program;
    program.directory.write("window.txt", "no place at all");
    QWidget window;
    window.resize(300, 200);
    const WindowPlace place(window);
    EXPECT_EQ(window.size(), QSize(300, 200));
}

}  // namespace
}  // namespace zg
