#include "export/ExportRoses.h"

#include <QCoreApplication>
#include <QSaveFile>
#include <filesystem>
#include <ostream>

#include "base/Numbers.h"
#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "export/TablesJson.h"
#include "graph/control/CreatePolar.h"
#include "graph/frq/OpenFreqFile.h"
#include "graph/render/RedrawGraph.h"
#include "platform/QtCanvas.h"
#include "platform/QtText.h"

namespace zg {

namespace {

/// There is nobody to ask: what a box would say goes to the error stream.
class StreamHost : public Host {
 public:
    explicit StreamHost(std::ostream& errors) : errors_(errors) {}

    BoxAnswer showBox(const MessageBox& box) override {
        errors_ << box.text << '\n';
        return BoxAnswer::Cancel;
    }
    std::string pickFileToOpen(const FilePick&) override { return {}; }
    std::string pickFileToSave(const FilePick&) override { return {}; }
    std::vector<std::string> pickFilesToOpen(const FilePick&) override { return {}; }
    std::string pickFolder(const FolderPick&) override { return {}; }
    std::optional<Colour> pickColour(Colour) override { return {}; }
    std::optional<FontRecord> pickFont(const FontRecord&) override { return {}; }
    std::int64_t tickCount() override { return 0; }
    void pumpEvents(int) override {}

 private:
    std::ostream& errors_;
};

/// A fault of the run that is told in one line, with the exit status it ends in.
struct ExportFailure {
    std::string text;
    int status = exportFailed;
};

struct RoseRange {
    int first = 1;
    int last = 0;
};

RoseRange askedRoses(const ExportJob& job, int roseCount) {
    if (roseCount == 0) throw ExportFailure{job.file + ": the file holds no rose, all data are missing"};
    if (job.rose == "all") return {1, roseCount};
    int rose = 0;
    try {
        rose = toInt32(job.rose);
    } catch (const RunTimeError&) {
        throw ExportFailure{"--rose: " + job.rose + " is neither a number nor all", exportWrongUsage};
    }
    if (rose < 1 || rose > roseCount)
        throw ExportFailure{"--rose: " + job.file + " has the roses 1 to " + std::to_string(roseCount) +
                                ", there is no rose " + std::to_string(rose),
                            exportWrongUsage};
    return {rose, rose};
}

std::string pictureName(const ExportJob& job, int rose, int roseCount) {
    std::string number = format00(rose);
    const std::size_t digits = std::to_string(roseCount).size();
    if (number.size() < digits) number.insert(0, digits - number.size(), '0');
    return std::filesystem::path(job.file).stem().string() + "_" + number + "." + job.format;
}

QImage drawRose(const ExportJob& job, int rose, Polar& polar, ModPolarGraph& tables) {
    tables.CurrentRose = static_cast<std::int16_t>(rose);
    tables.GraphCaption = tables.FrqRoseCaption(rose);
    QImage page = makePageImage(job.sizePixels, job.sizePixels);
    QtCanvas canvas(page, job.sizePixels, job.sizePixels);
    PolarGeometry geometry;
    redrawFrame(PlotSettings{}, polar, tables, canvas, geometry);
    return page;
}

void savePicture(const QImage& page, const std::string& path, const std::string& format) {
    QSaveFile file(fileName(path));
    if (!file.open(QIODevice::WriteOnly) || !page.save(&file, format == "png" ? "PNG" : "BMP") ||
        !file.commit())
        throw ExportFailure{path + ": " + file.errorString().toStdString()};
}

void makeDirectory(const std::string& directory) {
    std::error_code error;
    std::filesystem::create_directories(directory, error);
    if (error && !IsDirectory(directory)) throw ExportFailure{directory + ": " + error.message()};
}

void drawRoses(const ExportJob& job, Polar& polar, ModPolarGraph& tables, std::ostream& out) {
    const RoseRange roses = askedRoses(job, tables.FrqRoseCount);
    makeDirectory(job.directory);
    for (int rose = roses.first; rose <= roses.last; ++rose) {
        const std::string path =
            (std::filesystem::path(job.directory) / pictureName(job, rose, tables.FrqRoseCount)).string();
        savePicture(drawRose(job, rose, polar, tables), path, job.format);
        out << path << '\n';
    }
}

}  // namespace

int runExport(const ExportJob& job, std::ostream& out, std::ostream& errors) {
    StreamHost host(errors);
    ModPolarGraph& tables = modPolarGraph;
    try {
        Polar polar = createPolar(tables);
        if (loadFreqFile(job.file, tables, host) == FreqFileOutcome::Refused) return exportFailed;
        if (job.tables)
            out << tablesAsJson(tables) << '\n';
        else
            drawRoses(job, polar, tables, out);
    } catch (const ExportFailure& failure) {
        errors << failure.text << '\n';
        return failure.status;
    } catch (const RunTimeError& error) {
        errors << job.file << (error.where.empty() ? "" : ":") << error.where << ": " << error.description
               << " (error " << error.number << ")\n";
        return exportFailed;
    }
    if (!out.flush()) {
        errors << "standard output: the result could not be written\n";
        return exportFailed;
    }
    return exportDone;
}

}  // namespace zg
