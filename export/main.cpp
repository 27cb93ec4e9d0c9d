// zephyrgraph-export: draws the roses of an FRQ file without a window, or writes its tables as JSON.

#include <CLI/CLI.hpp>
#include <QGuiApplication>
#include <iostream>

#include "base/Paths.h"
#include "export/ExportRoses.h"

namespace {

/// The toolkit's own remarks are nothing that a user of the companion could act on.
void ignoreRemarks(QtMsgType, const QMessageLogContext&, const QString&) {}

}  // namespace

int main(int argc, char** argv) {
    zg::ExportJob job;
    CLI::App app{"Draws the wind roses of an FRQ file as pictures.", "zephyrgraph-export"};
    app.add_option("file", job.file, "FRQ file (versions 2.0 to 2.3)")->required()->type_name("FILE.frq");
    app.add_option("--rose", job.rose, "Number of the rose to draw, or all")
        ->capture_default_str()
        ->type_name("N|all");
    app.add_option("--size", job.sizePixels, "Width and height of the picture in pixels")
        ->capture_default_str()
        ->check(CLI::Range(zg::smallestExport, zg::largestExport));
    app.add_option("--format", job.format, "Kind of picture")
        ->capture_default_str()
        ->check(CLI::IsMember({"png", "bmp"}));
    app.add_option("--out", job.directory, "Directory for the pictures; made where it is missing")
        ->capture_default_str()
        ->type_name("DIR");
    app.add_flag("--tables", job.tables,
                 "Write every loaded table to standard output as JSON and draw nothing");
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? zg::exportDone : zg::exportWrongUsage;
    }

    // No window is opened: the toolkit only lends its fonts and its rasteriser.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(ignoreRemarks);
    QGuiApplication application(argc, argv);
    zg::applicationDirectory = QCoreApplication::applicationDirPath().toStdString();
    return zg::runExport(job, std::cout, std::cerr);
}
