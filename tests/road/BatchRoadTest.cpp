// Batch mode from the menu of the main window to the pictures.

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTimer>
#include <algorithm>
#include <filesystem>

#include "base/Paths.h"
#include "graph/frq/ModPolarGraph.h"
#include "platform/QtPicture.h"
#include "tests/shell/MainWindow.h"
#include "tests/support/FreqText.h"
#include "tests/support/Places.h"

namespace zg {
namespace {

using Names = std::vector<std::string>;

class BatchRoad : public MainWindow {
 protected:
    void SetUp() override {
        MainWindow::SetUp();
        modPolarGraph.WorkDir = directory_.path() + pathSeparator;
    }

    const std::string sample_ = inSources("data/samples/LOVETT_1988.frq");
};

TEST_F(BatchRoad, EveryRoseBecomesABitmap) {
    QTimer::singleShot(0, [&] {
        auto* dialog = QApplication::activeModalWidget();
        ASSERT_NE(dialog, nullptr);
        dialog->findChild<QLineEdit*>("txtSingleFRQFile")->setText(QString::fromStdString(sample_));
        dialog->findChild<QLineEdit*>("txtRootFilename")->setText("L_");
        QTest::mouseClick(dialog->findChild<QWidget*>("cmdBeginBatchMode"), Qt::LeftButton);
        EXPECT_EQ(dialog->findChild<QLabel*>("lblStatus")->text(), "Finished");
        QTest::mouseClick(dialog->findChild<QWidget*>("cmdCancel"), Qt::LeftButton);
    });
    entry("mnuFileOption_13").trigger();
    ASSERT_EQ(modPolarGraph.FrqRoseCount, 9);
    for (int rose = 1; rose <= 9; ++rose) {
        const std::string name = "L_" + modPolarGraph.FrqRoseTitle(rose) + ".bmp";
        const QImage picture(QString::fromStdString(directory_.file(name)));
        EXPECT_EQ(picture.size(), QSize(600, 600)) << name;
    }
    EXPECT_FALSE(settings.BatchMode);
}

/// A batch run over a directory of three files, operated as a user would.
class BatchOfADirectory : public BatchRoad {
 protected:
    void SetUp() override {
        BatchRoad::SetUp();
        write("a.frq", {"Year 2004", "dup", "dup"});
    }
    void write(const char* name, const std::vector<std::string>& titles) {
        freqtext::Lines lines = freqtext::header("2.2");
        int rose = 0;
        for (const std::string& title : titles) {
            const freqtext::Lines rows = freqtext::block("2.2", ++rose, title);
            lines.insert(lines.end(), rows.begin(), rows.end());
        }
        directory_.write(name, freqtext::bytes(lines));
    }
    void runIt() {
        QTimer::singleShot(0, [this] {
            auto* dialog = QApplication::activeModalWidget();
            ASSERT_NE(dialog, nullptr);
            dialog->findChild<QRadioButton*>("optDirectory")->click();
            dialog->findChild<QLineEdit*>("txtDirectory")
                ->setText(QString::fromStdString(directory_.path() + pathSeparator));
            QTest::mouseClick(dialog->findChild<QWidget*>("cmdBeginBatchMode"), Qt::LeftButton);
            status_ = dialog->findChild<QLabel*>("lblStatus")->text().toStdString();
            auto* notes = dialog->findChild<QPlainTextEdit*>("txtNotes");
            notes_ = notes->toPlainText().toStdString();
            notes->selectAll();
            notes->copy();
            QTest::mouseClick(dialog->findChild<QWidget*>("cmdCancel"), Qt::LeftButton);
        });
        entry("mnuFileOption_13").trigger();
    }
    QImage picture(const char* name) { return QImage(QString::fromStdString(directory_.file(name))); }

    std::string status_;
    std::string notes_;
};

TEST_F(BatchOfADirectory, TellsOfARefusedFileAndOfReplacedPictures) {
    directory_.write("b1.frq", "nothing of the kind\n");
    write("c.frq", {"Year 2005"});
    host_.boxAnswers = {BoxAnswer::Ok};
    runIt();
    EXPECT_EQ(status_, "Finished");
    EXPECT_EQ(notes_, "a_dup.bmp: rose 3 of a.frq took the place of rose 2 of a.frq.\n" +
                          directory_.file("b1.frq") +
                          " was refused: it is not in the correct data format.\n"
                          "b1_Year 2004.bmp shows rose 1 of a.frq, since b1.frq was refused.\n"
                          "b1_dup.bmp shows rose 2 of a.frq, since b1.frq was refused.\n"
                          "b1_dup.bmp shows rose 3 of a.frq, since b1.frq was refused.\n"
                          "b1_dup.bmp: rose 3 of a.frq took the place of rose 2 of a.frq.\n"
                          "3 files, 1 refused; 7 roses saved in 5 pictures, 0 left out.");
    EXPECT_EQ(QGuiApplication::clipboard()->text().toStdString(), notes_);
    EXPECT_FALSE(picture("b1_Year 2004.bmp").isNull());
    EXPECT_FALSE(picture("c_Year 2005.bmp").isNull());
}

TEST_F(BatchOfADirectory, IsSilentWithoutFaults) {
    write("a.frq", {"Year 2004", "Winter"});
    runIt();
    EXPECT_EQ(status_, "Finished");
    EXPECT_EQ(notes_, "");
}

TEST_F(BatchOfADirectory, ATruncatedFileIsNamedInTheBoxWithItsLine) {
    std::string bytes = directory_.read("a.frq");
    directory_.write("b.frq", bytes.substr(0, bytes.rfind("Calm Winds")));
    host_.boxAnswers = {BoxAnswer::Ok};
    runIt();
    EXPECT_EQ(host_.boxes[0].text,
              "Run-time error '62':\n\nInput past end of file: " + directory_.file("b.frq") +
                  ", line 74: a text, a colon and the percentage of calms, found the end of the file");
    EXPECT_NE(notes_.find("The run ended with an error at " + directory_.file("b.frq") + ".\n"),
              std::string::npos);
}

TEST_F(BatchOfADirectory, ATitleThatIsTooLongForAFileIsToldWithTheName) {
    const std::string title(300, 'w');
    write("a.frq", {"Year 2004", title});
    host_.boxAnswers = {BoxAnswer::Ok};
    runIt();
    EXPECT_EQ(host_.boxes[0].text, "Run-time error '75':\n\nPath/File access error: " +
                                       directory_.file("a_" + title + ".bmp") + " (File name too long)");
    EXPECT_EQ(notes_, "The run ended with an error at " + directory_.file("a.frq") +
                          ".\n1 file, 0 refused; 1 rose saved in 1 picture, 0 left out.");
}

/// A file of version 2.0, of which every rose is exported, with these titles.
std::string frqWith(const Names& titles) {
    freqtext::Lines lines = freqtext::header("2.0");
    int rose = 0;
    for (const std::string& title : titles) {
        const freqtext::Lines rows = freqtext::block("2.0", ++rose, title);
        lines.insert(lines.end(), rows.begin(), rows.end());
    }
    return freqtext::bytes(lines);
}

const std::string summer = "\xC9t\xE9";              // as a file in windows-1252 has it
const std::string summerUtf8 = "\xC3\x89t\xC3\xA9";  // as the file system has what was typed

class BatchNames : public BatchRoad {
 protected:
    void SetUp() override {
        BatchRoad::SetUp();
        std::filesystem::create_directory(out_);
        modPolarGraph.WorkDir = out_ + pathSeparator;
    }
    /// Opens batch mode from the menu, fills it in and runs it.
    void run(const std::function<void(QWidget&)>& fill) {
        QTimer::singleShot(0, [&] {
            auto* dialog = QApplication::activeModalWidget();
            ASSERT_NE(dialog, nullptr);
            fill(*dialog);
            QTest::mouseClick(dialog->findChild<QWidget*>("cmdBeginBatchMode"), Qt::LeftButton);
            EXPECT_EQ(dialog->findChild<QLabel*>("lblStatus")->text(), "Finished");
            dialog->close();
        });
        entry("mnuFileOption_13").trigger();
    }
    Names made() {
        Names names = filesMatching(out_ + pathSeparator + "*");
        for (const std::string& name : names)
            EXPECT_EQ(loadPicture(out_ + pathSeparator + name)->width(), 600) << name;
        return names;
    }

    std::string out_ = directory_.file("out");
};

TEST_F(BatchNames, ATypedRootIsTextAndATitleKeepsTheBytesOfItsFile) {
    const std::string file = directory_.write("a.frq", frqWith({summer, summerUtf8 + "2", "Winter"}));
    run([&](QWidget& dialog) {
        dialog.findChild<QLineEdit*>("txtSingleFRQFile")->setText(QString::fromStdString(file));
        dialog.findChild<QLineEdit*>("txtRootFilename")->setText(QString::fromUtf8("\xC3\x89t\xC3\xA9_"));
    });
    Names expected = {summerUtf8 + "_" + (onWindows ? summerUtf8 : summer) + ".bmp",
                      summerUtf8 + "_" + summerUtf8 + "2.bmp", summerUtf8 + "_Winter.bmp"};
    Names names = made();
    std::sort(names.begin(), names.end());
    std::sort(expected.begin(), expected.end());
    EXPECT_EQ(names, expected);
}

/// Root, title and name of the picture, on Windows another one if it is given.
struct OddPicture {
    const char* root;
    const char* title;
    const char* name;
    const char* nameOnWindows = nullptr;
};

TEST_F(BatchNames, OddRootsAndTitlesStayInTheWorkingDirectory) {
    for (const OddPicture& odd :
         {OddPicture{"../up", "Winter", ".._upWinter.bmp"}, OddPicture{"..", "", "...bmp"},
          OddPicture{"", "..", "...bmp"}, OddPicture{"", "", ".bmp"},
          OddPicture{" lead", "trail ", " leadtrail .bmp"}, OddPicture{"a/b", "c\\d", "a_bc_d.bmp"},
          OddPicture{"", "CON", "CON.bmp", "_CON.bmp"}, OddPicture{"50%", "%PATH%", "50%%PATH%.bmp"},
          OddPicture{"a&b;", "$(touch PWNED)", "a&b;$(touch PWNED).bmp"},
          OddPicture{"\"q\"", "it's!", "\"q\"it's!.bmp", "_q_it's!.bmp"},
          OddPicture{"<b>", "x</b>", "<b>x<_b>.bmp", "_b_x__b_.bmp"},
          OddPicture{"-dash", "[*]?", "-dash[*]?.bmp", "-dash[_]_.bmp"},
          OddPicture{"", "two\twords", "two\twords.bmp", "two_words.bmp"}}) {
        const std::string file = directory_.write("a.frq", frqWith({odd.title}));
        run([&](QWidget& dialog) {
            dialog.findChild<QLineEdit*>("txtSingleFRQFile")->setText(QString::fromStdString(file));
            dialog.findChild<QLineEdit*>("txtRootFilename")->setText(QString::fromLatin1(odd.root));
        });
        const bool isOther = onWindows && odd.nameOnWindows != nullptr;
        EXPECT_EQ(made(), Names{isOther ? odd.nameOnWindows : odd.name}) << odd.root << "|" << odd.title;
        EXPECT_EQ(modPolarGraph.FrqRoseTitle(1), odd.title);
        std::filesystem::remove_all(out_);
        std::filesystem::create_directory(out_);
    }
    EXPECT_FALSE(fileExists(directory_.file("upWinter.bmp")));
}

TEST_F(BatchNames, AFileOfADirectoryGivesItsNameByteForByte) {
    std::filesystem::create_directory(directory_.file("in " + summer));
    for (const std::string& name : {summer, summerUtf8})
        directory_.write("in " + summer + "/" + name + ".frq", frqWith({"Winter"}));
    host_.folderAnswers = {directory_.file("in " + summer)};
    run([&](QWidget& dialog) {
        dialog.findChild<QRadioButton*>("optDirectory")->click();
        QTest::mouseClick(dialog.findChild<QWidget*>("cmdBrowseDirectory"), Qt::LeftButton);
    });
    Names expected = {summerUtf8 + "_Winter.bmp"};
    if (!onWindows) expected.push_back(summer + "_Winter.bmp");
    Names names = made();
    std::sort(names.begin(), names.end());
    std::sort(expected.begin(), expected.end());
    EXPECT_EQ(names, expected);
}

}  // namespace
}  // namespace zg
