#include "export/ExportRoses.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstring>
#include <functional>
#include <map>
#include <memory>
#include <new>
#include <ostream>
#include <utility>

#include "base/Files.h"
#include "base/Host.h"
#include "base/Numbers.h"
#include "base/Paths.h"
#include "export/HtmlReport.h"
#include "export/PanelPicture.h"
#include "export/ProgressBar.h"
#include "export/RosePicture.h"
#include "export/TablesCsv.h"
#include "export/TablesJson.h"
#include "export/WorkQueue.h"
#include "graph/control/CreatePolar.h"
#include "graph/frq/OpenFreqFile.h"
#include "graph/frq/ValidHours.h"

namespace zg {

namespace {

std::atomic<bool> isStopped = false;

/// Side of a rose in a report for print, whose pages are scaled to the paper.
constexpr int reportSide = 600;

constexpr const char* outOfMemory = ": out of memory";

/// No FRQ file has longer lines; the limit is the same for raw data.
constexpr std::size_t longestLine = std::size_t{1} << 20;

/// A host without a user: the text of a box goes to the error stream.
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

/// An error of the whole run, reported in one line, with its exit status.
struct ExportFailure {
    std::string text;
    int status = exportFailed;
};

/// The name without its directory and its ending.
std::string stemOf(const std::string& file) {
    const std::string name = file.substr(folderOf(file).size());
    const std::size_t dot = name.rfind('.');
    return dot == 0 ? name : name.substr(0, dot);
}

std::string inDirectory(const std::string& directory, const std::string& name) {
    return directory.size() == folderOf(directory).size() ? directory + name
                                                          : directory + pathSeparator + name;
}

/// The files of the inputs; those of a directory in order of their names.
std::vector<std::string> filesOf(const ExportJob& job) {
    std::vector<std::string> files;
    for (const std::string& input : job.inputs) {
        if (!IsDirectory(input)) {
            files.push_back(input);
            continue;
        }
        const auto names = filesMatching(inDirectory(input, "*.frq"));
        if (names.empty()) throw ExportFailure{input + ": the directory holds no FRQ file"};
        for (const std::string& name : names) files.push_back(inDirectory(input, name));
    }
    std::map<std::string, std::string> fileOfStem;
    for (const std::string& file : files)
        if (const auto [other, fresh] = fileOfStem.try_emplace(stemOf(file), file); !fresh)
            throw ExportFailure{file + ": its pictures would have the names of those of " + other->second,
                                exportWrongUsage};
    return files;
}

std::vector<int> askedRoses(const ExportJob& job, const std::string& file, int roseCount) {
    if (roseCount == 0) throw ExportFailure{file + ": the file holds no rose, all data are missing"};
    std::vector<int> roses;
    if (job.rose == "all") {
        for (int rose = 1; rose <= roseCount; ++rose) roses.push_back(rose);
        return roses;
    }
    int rose = 0;
    try {
        rose = toInt32(job.rose);
    } catch (const RunTimeError&) {
        throw ExportFailure{"--rose: " + job.rose + " is neither a number nor all", exportWrongUsage};
    }
    if (rose < 1 || rose > roseCount)
        throw ExportFailure{"--rose: " + file + " has the roses 1 to " + std::to_string(roseCount) +
                                ", there is no rose " + std::to_string(rose),
                            exportWrongUsage};
    return {rose};
}

std::string pictureName(const ExportJob& job, const std::string& file, int rose, int roseCount) {
    std::string number = format00(rose);
    const std::size_t digits = std::to_string(roseCount).size();
    if (number.size() < digits) number.insert(0, digits - number.size(), '0');
    return stemOf(file) + "_" + number + "." + job.format;
}

/// Wrong words end the run before anything is drawn.
PictureLook checkedLook(const ExportJob& job) {
    try {
        if (!job.style.panel.empty()) panelShape(job.style.panel, 1);
        return lookOf(job.style);
    } catch (const WrongStyle& wrong) {
        throw ExportFailure{wrong.text, exportWrongUsage};
    } catch (const RunTimeError& error) {
        throw ExportFailure{job.style.palette + (error.where.empty() ? "" : ":") + error.where + ": " +
                                error.description + " (error " + std::to_string(error.number) + ")",
                            exportWrongUsage};
    }
}

void makeDirectory(const std::string& directory) {
    if (!zg::makeDirectories(directory)) throw ExportFailure{directory + ": " + std::strerror(errno)};
}

/// One run: loads file after file and passes their roses to the workers.
class Export {
 public:
    Export(const ExportJob& job, std::ostream& out, std::ostream& errors)
        : job_(job),
          out_(out),
          errors_(errors),
          host_(errors),
          bar_(errors, job.progress),
          queue_(job.jobs, [this](const WorkQueue::Result& result) { tell(result); }) {}

    int run() {
        look_ = checkedLook(job_);
        const std::vector<std::string> files = filesOf(job_);
        for (std::size_t i = 0; i < files.size() && !isOver(); ++i) {
            bar_.show(i, files.size(), drawn_);
            exportFile(files[i], files.size() == 1);
        }
        drawFound();
        queue_.finish();
        bar_.clear();
        if (isStopped)
            throw ExportFailure{"the run was stopped after " + std::to_string(drawn_) + " pictures"};
        return failed_ ? exportFailed : exportDone;
    }

 private:
    /// An error in the only file ends the run; one in several is reported, and the others continue.
    void exportFile(const std::string& file, bool only) {
        try {
            loadAndDraw(file);
        } catch (const ExportFailure& failure) {
            if (only || failure.status == exportWrongUsage) throw;
            fail(failure.text);
        } catch (const RunTimeError& error) {
            fail(file + (error.where.empty() ? "" : ":") + error.where + ": " + error.description +
                 " (error " + std::to_string(error.number) + ")");
        } catch (const std::bad_alloc&) {
            tell({{}, file + outOfMemory, true});
        }
    }

    bool isOver() const { return isStopped || ended_; }

    void loadAndDraw(const std::string& file) {
        auto tables = std::make_shared<ModPolarGraph>();
        const auto polar = std::make_shared<const Polar>(createPolar(*tables));
        bar_.clear();
        const auto source = [&file] { return LineReader(file, longestLine); };
        if (loadFreqLines(source, file, *tables, host_) == FreqFileOutcome::Refused) {
            failed_ = true;
            return;
        }
        if (job_.tables) {
            writeTables(*tables, file);
            return;
        }
        const std::vector<int> roses = askedRoses(job_, file, tables->FrqRoseCount);
        makeDirectory(job_.directory);
        for (const int rose : roses)
            if (!isOver() && hasEnoughValidHours(*tables, rose, job_.minValid))
                take({tables, polar, rose, file, sourceOf(file)});
    }

    const std::string& sourceOf(const std::string& file) const {
        const auto source = job_.sources.find(file);
        return source == job_.sources.end() ? file : source->second;
    }

    void writeTables(const ModPolarGraph& tables, const std::string& file) {
        if (!job_.tablesAsCsv) {
            out_ << tablesAsJson(tables) << '\n';
            return;
        }
        if (!std::exchange(hasHeading_, true)) out_ << tablesCsvHeading();
        out_ << tablesAsCsv(tables, sourceOf(file));
    }

    void take(RoseOfFile rose) {
        if (job_.style.needsAllRoses())
            found_.push_back(std::move(rose));
        else
            addRose(rose, look_);
    }

    /// What had to wait for all roses.
    void drawFound() {
        if (found_.empty() || isOver()) return;
        const StyleRequest& asked = job_.style;
        const PictureLook look = asked.sameScale ? sharedLook(look_, found_) : look_;
        if (!asked.html.empty()) addHtml(look);
        if (!asked.pdf.empty()) addPages(look);
        if (!asked.panel.empty()) return drawPanels();
        if (asked.html.empty() && asked.pdf.empty())
            for (const RoseOfFile& rose : found_) addRose(rose, look);
    }

    void addHtml(const PictureLook& look) {
        addWork(job_.style.html, [this, look] {
            const std::string html = htmlReport(found_, look, job_.sizePixels);
            return saveFile(job_.style.html, [&](QIODevice& file) {
                return file.write(html.data(), static_cast<qint64>(html.size())) >= 0;
            });
        });
    }

    void addPages(const PictureLook& look) {
        addWork(job_.style.pdf, [this, look] {
            const std::vector<Drawing> pages = reportPages(found_, look, reportSide);
            return saveFile(job_.style.pdf,
                            [&](QIODevice& file) { return writePages(pages, pages.front().title, file); });
        });
    }

    void drawPanels() {
        const PanelShape shape = panelShape(job_.style.panel, static_cast<int>(found_.size()));
        const int width = job_.style.sizeIsAsked ? job_.sizePixels : usualPanelWidth(shape);
        const std::vector<Drawing> pages = panelDrawings(found_, look_, shape, width);
        const std::size_t digits = std::max<std::size_t>(2, std::to_string(pages.size()).size());
        for (std::size_t i = 0; i < pages.size(); ++i) {
            std::string number = std::to_string(i + 1);
            number.insert(0, digits - number.size(), '0');
            const std::string path = pathOf("panel_" + number + "." + job_.format);
            addWork(path, [this, page = pages[i], path] { return savePicture(page, path, job_.format); });
        }
    }

    std::string pathOf(const std::string& name) const { return inDirectory(job_.directory, name); }

    void addRose(const RoseOfFile& rose, const PictureLook& look) {
        const std::string path = pathOf(pictureName(job_, rose.file, rose.rose, rose.tables->FrqRoseCount));
        addWork(path, [this, rose, look, path] {
            return savePicture(roseDrawing(rose, look, job_.sizePixels), path, job_.format);
        });
    }

    void addWork(const std::string& path, std::function<PictureFault()> make) {
        queue_.add([this, path, make = std::move(make)] {
            if (isOver()) return WorkQueue::Result();
            WorkQueue::Result result = drawn(path, make);
            if (result.endsRun) ended_ = true;
            return result;
        });
    }

    WorkQueue::Result drawn(const std::string& path, const std::function<PictureFault()>& make) const {
        try {
            const PictureFault fault = make();
            if (fault.text.empty()) return {path, {}};
            return {{}, fault.text, fault.noRoom};
        } catch (const RunTimeError& error) {
            return {{}, path + ": " + error.description + " (error " + std::to_string(error.number) + ")"};
        } catch (const std::bad_alloc&) {
            return {{}, path + outOfMemory, true};
        }
    }

    /// An error that ends the run is reported once, whatever other work is in progress.
    void tell(const WorkQueue::Result& result) {
        const bool isNews = !result.endsRun || !endIsTold_;
        if (!result.failed.empty() && isNews) fail(result.failed);
        if (result.endsRun) ended_ = endIsTold_ = true;
        if (result.done.empty()) return;
        ++drawn_;
        bar_.clear();
        out_ << result.done << '\n' << std::flush;  // the waiting code can take it
    }

    void fail(const std::string& text) {
        bar_.clear();
        errors_ << text << '\n';
        failed_ = true;
    }

    const ExportJob& job_;
    std::ostream& out_;
    std::ostream& errors_;
    StreamHost host_;
    ProgressBar bar_;
    PictureLook look_;
    std::vector<RoseOfFile> found_;  ///< of a run that has to know all before it draws one
    std::size_t drawn_ = 0;
    bool failed_ = false;
    bool hasHeading_ = false;          ///< of tables as CSV
    std::atomic<bool> ended_ = false;  ///< by an error that would affect everything after it
    bool endIsTold_ = false;
    WorkQueue queue_;
};

}  // namespace

void stopExport() { isStopped = true; }

int runExport(const ExportJob& job, std::ostream& out, std::ostream& errors) {
    isStopped = false;
    int status = exportDone;
    try {
        status = Export(job, out, errors).run();
    } catch (const ExportFailure& failure) {
        errors << failure.text << '\n';
        return failure.status;
    } catch (const std::bad_alloc&) {
        errors << "zephyrgraph-export" << outOfMemory << '\n';
        return exportFailed;
    }
    if (!out.flush()) {
        errors << "standard output: the result could not be written\n";
        return exportFailed;
    }
    return status;
}

}  // namespace zg
