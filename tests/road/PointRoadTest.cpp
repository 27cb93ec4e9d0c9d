// The dialogs for point data opened from the menu of the main window.

#include <QTimer>
#include <algorithm>
#include <filesystem>

#include "base/Paths.h"
#include "graph/frq/ModPolarGraph.h"
#include "tests/dialogs/point/PointDialogs.h"
#include "tests/shell/MainWindow.h"

namespace zg {
namespace {

class PointRoad : public MainWindow {
 protected:
    void SetUp() override {
        program_.deliver({"TimeZones.txt"});
        MainWindow::SetUp();
    }
};

TEST_F(PointRoad, EveryMenuEntryOpensItsDialog) {
    for (const auto& [name, form] :
         std::vector<std::pair<const char*, const char*>>{{"mnuFileOption_4", "frmOpenAERMETSFCFile"},
                                                          {"mnuFileOption_5", "frmOpenAERMETPFLFile"},
                                                          {"mnuFileOption_6", "frmOpenAMMNETDataFile"},
                                                          {"mnuFileOption_8", "frmOpenSURFDATFile"},
                                                          {"mnuFileOption_9", "frmOpenUPDATFile"},
                                                          {"mnuFileOption_10", "frmOpenTSFDataFile"}}) {
        QString seen;
        QTimer::singleShot(0, [&seen] {
            auto* dialog = QApplication::activeModalWidget();
            seen = dialog->objectName();
            QTest::mouseClick(dialog->findChild<QWidget*>("cmdExit"), Qt::LeftButton);
        });
        entry(name).trigger();
        EXPECT_EQ(seen, form);
    }
}

TEST_F(PointRoad, TheMenuOpensBothWizards) {
    for (const int index : {3, 7}) {
        std::string name;
        QTimer::singleShot(0, [&] {
            QWidget* dialog = QApplication::activeModalWidget();
            ASSERT_NE(dialog, nullptr);
            name = dialog->objectName().toStdString();
            dialog->close();
        });
        window_->mnuFileOption_Click(index);
        EXPECT_EQ(name, index == 3 ? "frmProcess3DDATFiles" : "frmProcessVENTOSDATFiles");
    }
}

TEST_F(PointRoad, AMissingTableOfTimeZonesNamesItself) {
    std::filesystem::remove(directory_.file("TimeZones.txt"));
    for (const int index : {3, 4, 5, 6, 7, 8, 9, 10}) {
        host_.boxes.clear();
        host_.boxAnswers = {BoxAnswer::Ok};
        entry(("mnuFileOption_" + std::to_string(index)).c_str()).trigger();
        ASSERT_EQ(host_.boxes.size(), 1U) << index;
        EXPECT_EQ(host_.boxes[0].text, "Run-time error '53':\n\nFile not found\n\nTimeZones.txt") << index;
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << index;
    }
    directory_.write("TimeZones.txt", "Key\tLabel\r\nUTC+0000\tLondon\r\nUTC+0100 Paris\r\n");
    host_.boxes.clear();
    host_.boxAnswers = {BoxAnswer::Ok};
    entry("mnuFileOption_8").trigger();
    EXPECT_EQ(host_.boxes.at(0).text,
              "Run-time error '9':\n\nSubscript out of range\n\n"
              "TimeZones.txt, line 3: a key, a tab and a label are needed");
}

/// A complete run in the window, with a processor that copies a rose for two of the three stations.
TEST_F(PointRoad, ASurfFileBecomesTheRoseInTheWindow) {
    const std::string processor = directory_.write("tempoline.exe",
                                                   "#!/bin/sh\nfor name in $(grep -v 'wind-1002_' \"$1\" | "
                                                   "sed -n 's/.*TSFOUT = \\(.*\\) !   !END!.*/\\1/p'); do\n"
                                                   "cp " ZG_SOURCE_DIR
                                                   "/data/samples/LOVETT_1988.frq \"$name.FRQ\"; done\n"
                                                   "echo done > \"${1%.inp}.lst\"\n");
    std::filesystem::permissions(processor, std::filesystem::perms::owner_all);
    host_.openAnswers = {directory_.write("wind.dat", surf21)};
    std::vector<std::string> statuses;
    host_.onPump = [&] {
        QTest::qWait(5);
        const auto* dialog = QApplication::activeModalWidget();
        const auto* label = dialog == nullptr ? nullptr : dialog->findChild<QLabel*>("lblStatus");
        if (label != nullptr && (statuses.empty() || statuses.back() != label->text().toStdString()))
            statuses.push_back(label->text().toStdString());
    };
    QTimer::singleShot(0, [&] {
        auto* dialog = QApplication::activeModalWidget();
        ASSERT_NE(dialog, nullptr);
        ASSERT_EQ(dialog->objectName(), "frmOpenSURFDATFile");
        QTest::mouseClick(dialog->findChild<QWidget*>("cmdBrowseFile"), Qt::LeftButton);
        dialog->findChild<QLineEdit*>("txtFRQOutputFilename")->setText("x");
        QTest::mouseClick(dialog->findChild<QWidget*>("cmdView"), Qt::LeftButton);
        EXPECT_EQ(dialog->findChild<QLabel*>("lblStatus")->text(), "Finished");
        QTest::mouseClick(dialog->findChild<QWidget*>("cmdExit"), Qt::LeftButton);
    });
    entry("mnuFileOption_8").trigger();
    ASSERT_GE(statuses.size(), 6U);
    EXPECT_EQ(statuses.size() % 3, 0U) << "whole steps";
    for (std::size_t i = 0; i < statuses.size(); i += 3) {
        EXPECT_EQ(statuses[i], "Running.  ");
        EXPECT_EQ(statuses[i + 1], "Running.. ");
        EXPECT_EQ(statuses[i + 2], "Running...");
    }
    EXPECT_FALSE(fileExists(directory_.file("wind-1002_SURF_19900108-19900115_10m.frq")));
    EXPECT_EQ(window_->windowTitle(), "Zephyrgraph - wind-1003_SURF_19900108-19900115_10m.FRQ");
    EXPECT_TRUE(modPolarGraph.FrqLoaded);
    EXPECT_EQ(modPolarGraph.FrqRoseCount, 9);
}

}  // namespace
}  // namespace zg
