#include "export/RawStage.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <memory>
#include <new>
#include <ostream>
#include <set>

#include "base/Lines.h"
#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "export/ProgressBar.h"
#include "export/RawKind.h"
#include "export/RawRun.h"
#include "export/WorkQueue.h"
#include "headers/Stations.h"
#include "windtable/TableFields.h"

namespace zg {

namespace {

namespace fs = std::filesystem;

std::atomic<bool> rawStopped = false;

/// A requested file: of raw data, or an FRQ file, which has no kind.
struct AskedFile {
    std::string path;
    std::optional<InputKind> kind;
    std::string stem;
};

std::string withoutGz(const std::string& name) {
    return name.size() > 3 && lcase(name.substr(name.size() - 3)) == ".gz" ? name.substr(0, name.size() - 3)
                                                                           : name;
}

bool isFrqName(const std::string& path) {
    return lcase(fs::path(withoutGz(path)).extension().string()) == ".frq";
}

bool beginsAsFrq(const std::string& path) {
    try {
        LineReader lines(path, std::size_t{1} << 20);
        return lines.atEnd() || trimmed(withoutByteOrderMark(lines.readLine())).starts_with("WIND.FRQ");
    } catch (const RunTimeError&) {
        return true;  // loading it reports why it cannot be read
    }
}

/// A file given by name: for an unknown kind, reports what a table would need.
std::optional<InputKind> kindOfNamed(const std::string& path, const RawWishes& wishes) {
    if (beginsAsFrq(path) || isFrqName(path)) return {};
    const std::optional<InputKind> kind = rawKindOf(path);
    if (!kind || (wishes.isTable && *kind == InputKind::MonitorW)) return InputKind::Csv;
    return kind;
}

/// Files of winds in a directory. A series beside the FRQ file that was made with it is the same once more.
void addDirectory(const std::string& directory, std::vector<AskedFile>& files) {
    for (const std::string& name : filesMatching((fs::path(directory) / "*").string())) {
        if (name.empty() || name[0] == '.') continue;
        const std::string path = (fs::path(directory) / name).string();
        if (isFrqName(path)) {
            files.push_back({path, {}, {}});
        } else if (const std::optional<InputKind> kind = rawKindOf(path)) {
            const fs::path frq = fs::path(path).replace_extension(".frq");
            if (*kind != InputKind::Tsf || !fileExists(frq.string())) files.push_back({path, kind, {}});
        }
    }
}

/// The stems of the files' names; those that two kinds share get their extensions too.
void nameThem(std::vector<AskedFile>& files) {
    std::map<std::string, int> count;
    for (AskedFile& file : files) {
        file.stem = fs::path(withoutGz(FileNameOf(file.path))).stem().string();
        ++count[file.stem];
    }
    for (AskedFile& file : files) {
        if (count[file.stem] == 1 || !file.kind) continue;
        file.stem = withoutGz(FileNameOf(file.path));
        std::replace(file.stem.begin(), file.stem.end(), '.', '_');
    }
    std::map<std::string, std::string> pathOfStem;
    for (AskedFile& file : files) {
        std::replace(file.stem.begin(), file.stem.end(), '!', '_');
        if (const auto [other, fresh] = pathOfStem.try_emplace(file.stem, file.path); !fresh)
            throw RawFault(file.path + ": its pictures would have the names of those of " + other->second,
                           true);
    }
}

class RawStage {
 public:
    RawStage(ExportJob& job, const RawWishes& wishes, std::ostream& out, std::ostream& errors)
        : job_(job), wishes_(wishes), out_(out), errors_(errors), bar_(errors, job.progress) {}

    int run() {
        std::vector<AskedFile> files = askedFiles();
        const bool anyRaw = std::any_of(files.begin(), files.end(),
                                        [](const AskedFile& file) { return file.kind.has_value(); });
        if (!anyRaw) return runExport(job_, out_, errors_);
        nameThem(files);
        LoadStationData();
        makeRoses(files);
        if (rawStopped) {
            errors_ << "the run was stopped\n";
            return exportFailed;
        }
        job_.inputs.clear();
        for (std::size_t i = 0; i < files.size(); ++i) takeFrqFiles(files[i], results_[i]);
        if (files.size() == 1 && status_ != exportDone) return status_;
        if (wishes_.onlyPlans || job_.inputs.empty()) return status_;
        const int drawn = runExport(job_, out_, errors_);
        return drawn != exportDone || status_ == exportDone ? drawn : exportFailed;
    }

 private:
    std::vector<AskedFile> askedFiles() const {
        std::vector<AskedFile> files;
        for (const std::string& input : job_.inputs) {
            if (!IsDirectory(input)) {
                files.push_back({input, kindOfNamed(input, wishes_), {}});
                continue;
            }
            const std::size_t before = files.size();
            addDirectory(input, files);
            if (files.size() == before)
                throw RawFault(input + ": the directory holds no FRQ file and no raw data", false);
        }
        return files;
    }

    void makeRoses(const std::vector<AskedFile>& files) {
        results_.resize(files.size());
        faults_.resize(files.size());
        std::size_t done = 0;
        WorkQueue queue(job_.jobs, [&](const WorkQueue::Result&) {
            tell(files[done], done);
            ++done;
            show(files, done);
        });
        show(files, 0);
        for (std::size_t i = 0; i < files.size(); ++i)
            queue.add([this, &files, i] {
                if (files[i].kind && !rawStopped) makeOne(files[i], i);
                return WorkQueue::Result();
            });
        queue.finish();
        bar_.clear();
    }

    void makeOne(const AskedFile& file, std::size_t i) {
        Fault& fault = faults_[i];
        try {
            results_[i] = rosesOfRaw({file.path, *file.kind, file.stem}, wishes_, job_.directory, rawStopped);
        } catch (const RawFault& raw) {
            fault = {raw.what(), raw.isWrongWish ? exportWrongUsage : exportFailed};
        } catch (const RunTimeError& error) {
            fault = {file.path + (error.where.empty() ? "" : ":" + error.where) + ": " + error.description +
                         " (error " + std::to_string(error.number) + ")",
                     exportFailed};
        } catch (const std::bad_alloc&) {
            fault = {file.path + ": out of memory", exportFailed};
        } catch (const std::exception& error) {
            fault = {file.path + ": " + error.what(), exportFailed};
        }
    }

    void tell(const AskedFile& file, std::size_t i) {
        bar_.clear();
        for (const std::string& line : results_[i].told) errors_ << line << '\n';
        for (const std::string& path : results_[i].kept) out_ << path << '\n' << std::flush;
        if (faults_[i].text.empty() || rawStopped) return;
        errors_ << faults_[i].text << '\n';
        status_ = file.kind && status_ != exportFailed ? faults_[i].status : exportFailed;
    }

    void show(const std::vector<AskedFile>& files, std::size_t done) {
        bar_.show(done, files.size(), done < files.size() ? "roses of " + files[done].path : "drawing");
    }

    void takeFrqFiles(const AskedFile& file, const RawResult& result) {
        if (!file.kind) job_.inputs.push_back(file.path);
        for (const std::string& frq : result.frqFiles) {
            job_.inputs.push_back(frq);
            job_.sources[frq] = file.path;
        }
    }

    struct Fault {
        std::string text;
        int status = exportDone;
    };

    ExportJob& job_;
    const RawWishes& wishes_;
    std::ostream& out_;
    std::ostream& errors_;
    ProgressBar bar_;
    std::vector<RawResult> results_;
    std::vector<Fault> faults_;
    int status_ = exportDone;
};

}  // namespace

void stopRawRuns() { rawStopped = true; }

int runAllExport(ExportJob job, const RawWishes& wishes, std::ostream& out, std::ostream& errors) {
    rawStopped = false;
    try {
        return RawStage(job, wishes, out, errors).run();
    } catch (const RawFault& fault) {
        errors << fault.what() << '\n';
        return fault.isWrongWish ? exportWrongUsage : exportFailed;
    }
}

}  // namespace zg
