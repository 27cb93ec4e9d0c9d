// zephyrgraph-export: draws the roses of FRQ files without a window, or writes their tables as JSON.

#include <CLI/CLI.hpp>
#include <QGuiApplication>
#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <memory>
#include <new>
#include <string>
#include <string_view>
#include <vector>

#include "base/Console.h"
#include "base/Paths.h"
#include "base/Version.h"
#include "export/Crashes.h"
#include "export/ExportRoses.h"
#include "export/HelpText.h"
#include "export/PictureFile.h"
#include "export/RawOptions.h"
#include "export/RawStage.h"
#include "export/StyleOptions.h"
#include "platform/Fonts.h"
#include "platform/QtText.h"

namespace {

/// "--tables csv" is "--tables=csv"; a file of that name is one all the same.
void joinFormOfTables(std::vector<std::string>& words) {
    for (std::size_t i = 0; i + 1 < words.size(); ++i) {
        const std::string form = words[i + 1];
        if (words[i] != "--tables" || (form != "csv" && form != "json") || zg::fileExists(form)) continue;
        words[i] += "=" + form;
        words.erase(words.begin() + static_cast<std::ptrdiff_t>(i) + 1);
    }
}

/// In the order in which the parser consumes them, the last one first. It reads "[a]" as a list of one name.
std::vector<std::string> wordsOf(int argc, char** argv) {
    std::vector<std::string> words = zg::programWords(argc, argv);
    for (std::string& word : words)
        if (word.size() > 1 && word.front() == '[' && word.back() == ']') word.insert(0, "./");
    joinFormOfTables(words);
    std::reverse(words.begin(), words.end());
    return words;
}

/// A user of the companion cannot act on the toolkit's own messages; only the last one is kept.
void ignoreRemarks(QtMsgType kind, const QMessageLogContext&, const QString& text) {
    if (kind != QtFatalMsg) return;
    std::fprintf(stderr, "zephyrgraph-export: %s\n", qPrintable(text.section(QLatin1Char('\n'), 0, 0)));
    std::_Exit(zg::exportFailed);
}

/// Handles what no other handler has caught: only lack of memory, also when the toolkit allocates it.
[[noreturn]] void endInOneLine() {
    const char* fault = "zephyrgraph-export: internal error\n";
    try {
        if (const std::exception_ptr thrown = std::current_exception()) std::rethrow_exception(thrown);
    } catch (const std::bad_alloc&) {
        fault = "zephyrgraph-export: out of memory\n";
    } catch (...) {
    }
    zg::dropUnfinishedPictures();
    std::fputs(fault, stderr);
    std::_Exit(zg::exportFailed);
}

constexpr const char* examples =
    "Examples:\n"
    "  zephyrgraph-export LOVETT.SFC --out pictures\n"
    "  zephyrgraph-export mast.csv --speed Spd80mN --zone UTC+0100 --frq --jobs 2\n"
    "  zephyrgraph-export stations/ --rose 1 --tables csv > roses.csv";

int runCommand(int argc, char** argv) {
    zg::ExportJob job;
    CLI::App app{"Draws wind roses of FRQ files and of raw data.", "zephyrgraph-export"};
    app.add_option("inputs", job.inputs, "FRQ files, raw data (also .gz), or directories")
        ->required()
        ->option_text("FILE|DIR ...");
    app.formatter(std::make_shared<zg::HelpText>());
    app.set_help_flag("-h,--help", "Print the options on a screen and exit");
    app.set_help_all_flag("--help-all", "Explain all options and exit");
    app.add_option("--rose", job.rose, "Number of the rose to draw, or all (default)")
        ->capture_default_str()
        ->option_text("N|all");
    app.add_option("--size", job.sizePixels, "Width and height in pixels (600)")
        ->capture_default_str()
        ->check(CLI::Range(zg::smallestExport, zg::largestExport))
        ->option_text("PIXELS");
    app.add_option("--format", job.format, "png (default), bmp, svg or pdf")
        ->capture_default_str()
        ->check(CLI::IsMember({"png", "bmp", "svg", "pdf"}))
        ->option_text("KIND");
    app.add_option("--out", job.directory, "Directory for the pictures (.)")
        ->capture_default_str()
        ->option_text("DIR");
    app.add_option("--min-valid", job.minValid, "Leave out roses with fewer percent of valid hours")
        ->capture_default_str()
        ->check(CLI::Range(0, 100))
        ->option_text("PERCENT");
    app.add_option("--jobs", job.jobs, "Roses to draw side by side")
        ->capture_default_str()
        ->check(CLI::Range(1, zg::mostJobs))
        ->option_text("N");
    app.set_version_flag("--version", std::string("zephyrgraph-export ") + zg::versionNumber,
                         "Tell the version and exit");
    bool quiet = false;
    app.add_flag("--quiet", quiet, "Show no progress bar on a terminal");
    std::string formOfTables;
    app.add_flag("--tables{json}", formOfTables, "Write tables as json (default) or csv, draw nothing")
        ->check(CLI::IsMember({"json", "csv"}))
        ->option_text("[json|csv]");
    zg::addStyleOptions(app, job.style);
    zg::RawOptions raw(app);
    app.footer(examples);
    try {
        app.parse(wordsOf(argc, argv));
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? zg::exportDone : zg::exportWrongUsage;
    }

    for (std::string& input : job.inputs) input = zg::withOwnSeparators(input);
    job.directory = zg::withOwnSeparators(job.directory);
    job.tables = !formOfTables.empty();
    job.tablesAsCsv = formOfTables == "csv";
    job.progress = !quiet && zg::isTerminal(stderr);
#ifdef SIGXFSZ
    std::signal(SIGXFSZ, SIG_IGN);  // the size limit becomes a write error with the file's name
#endif
    for (const int signal : {SIGINT, SIGTERM})
        std::signal(signal, [](int) {
            zg::stopExport();
            zg::stopRawRuns();
        });
    // No window is opened: the toolkit only provides its fonts and its rasteriser.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(ignoreRemarks);
    QGuiApplication application(argc, argv);
    zg::applicationDirectory = zg::filePath(QCoreApplication::applicationDirPath());
    zg::useFontsBeside(zg::applicationDirectory);
    try {
        return zg::runAllExport(job, raw.wishes(), std::cout, std::cerr);
    } catch (const zg::RawFault& fault) {
        std::cerr << fault.what() << '\n';
        return fault.isWrongWish ? zg::exportWrongUsage : zg::exportFailed;
    }
}

}  // namespace

int main(int argc, char** argv) {
    std::set_terminate(endInOneLine);
    zg::tellLackOfMemory();
    zg::useUtf8Console();
    try {
        return runCommand(argc, argv);
    } catch (...) {
        endInOneLine();
    }
}
