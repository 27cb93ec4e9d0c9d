#include "export/RawRun.h"

#include <QProcess>
#include <algorithm>
#include <filesystem>
#include <map>
#include <system_error>

#include "base/Files.h"
#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "export/PictureFile.h"
#include "export/RawPlan.h"
#include "platform/QtText.h"
#include "processing/ControlFile.h"
#include "windtable/TableRecords.h"

namespace zg {

namespace fs = std::filesystem;

namespace {

constexpr int lookMs = 100;
constexpr int completedStatus = 0;
constexpr const char* processorPrefix = "tempoline: ";

/// The processor reads the file by its whole path; people know it by the one they gave.
std::string inOwnWords(std::string line, const std::string& whole, const std::string& own) {
    if (line.starts_with(processorPrefix)) line.erase(0, std::string(processorPrefix).size());
    for (std::size_t at = 0; (at = line.find(whole, at)) != std::string::npos; at += own.size())
        line.replace(at, whole.size(), own);
    return line;
}

std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find('\n', at), text.size());
        if (end > at) lines.push_back(text.substr(at, end - at));
        at = end + 1;
    }
    return lines;
}

/// For a person to run in the shell of the platform.
std::string commandLine(const std::string& directory, const std::string& processor,
                        const std::string& controlName) {
    constexpr char quote = onWindows ? '"' : '\'';
    const auto quoted = [](const std::string& word) { return quote + word + quote; };
    std::string line = onWindows ? "cd /d " : "cd ";
    line += quoted(directory) + " && " + quoted(processor) + " ";
    return line + quoted(controlName);
}

class RawRunner {
 public:
    RawRunner(const RawInput& input, const RawWishes& wishes, const std::string& directory,
              const std::atomic<bool>& stopped)
        : input_(input),
          wishes_(wishes),
          output_(directory),
          stopped_(stopped),
          whole_(fs::absolute(input.path).lexically_normal().string()) {}

    RawResult run() {
        std::vector<ControlFile> controls = planned();
        if (wishes_.keeps || wishes_.onlyPlans || wishes_.keepsFrq) makeOutputDirectory();
        if (!wishes_.keeps && !wishes_.onlyPlans) result_.directory = std::make_unique<RunDirectory>();
        const std::string directory = result_.directory ? result_.directory->path() : output_;
        for (ControlFile& control : controls) {
            control.inputFiles = {whole_};
            carryOut(withSeparator(directory), control);
        }
        return std::move(result_);
    }

 private:
    std::vector<ControlFile> plannedFor(const std::string& stem, const RawFacts& header,
                                        const RawWishes& wishes) {
        result_.told.insert(result_.told.end(), header.told.begin(), header.told.end());
        return controlFilesOf(input_.path, stem, header, wishes);
    }

    /// The results of one station must not replace those of another.
    [[noreturn]] void refuse(const std::string& station, const std::string& other) const {
        std::string text = input_.path + ": --station: " + quotedValue(station);
        if (station == other)
            text += " is given twice";
        else
            text.append(" would have the names of the results of ").append(quotedValue(other));
        throw RawFault(text, true);
    }

    /// Each station of a table has a period and a step of its own.
    std::vector<ControlFile> planned() {
        const bool areSeveral = input_.kind == InputKind::Csv && wishes_.stations.size() > 1;
        std::vector<ControlFile> controls;
        std::map<std::string, std::string> stationOfStem;
        for (const std::string& station : areSeveral ? wishes_.stations : std::vector<std::string>()) {
            const std::string stem = input_.stem + "_" + partOfName(station);
            const auto [other, isNew] = stationOfStem.try_emplace(nameKey(stem), station);
            if (!isNew) refuse(station, other->second);
            RawWishes one = wishes_;
            one.stations = {station};
            const RawFacts header = rawFactsOf(input_.path, input_.kind, one);
            if (header.table.layout.stationColumn == 0) return plannedFor(input_.stem, header, wishes_);
            const std::vector<ControlFile> more = plannedFor(stem, header, one);
            controls.insert(controls.end(), more.begin(), more.end());
        }
        if (areSeveral) return controls;
        return plannedFor(input_.stem, rawFactsOf(input_.path, input_.kind, wishes_), wishes_);
    }

    void makeOutputDirectory() const {
        std::error_code error;
        fs::create_directories(output_, error);
        if (error && !IsDirectory(output_)) throw RawFault(output_ + ": " + error.message(), false);
    }

    void carryOut(const std::string& directory, const ControlFile& control) {
        WriteControlFile(directory, control);
        const std::string controlName = control.base + "_tempoline.inp";
        const std::string processor = inApplicationDirectory("tempoline.exe");
        if (wishes_.onlyPlans) {
            result_.kept.push_back(directory + controlName);
            result_.told.push_back("would run: " + commandLine(directory, processor, controlName));
            return;
        }
        runIn(directory, processor, controlName);
        if (control.type == InputKind::Tsf) takeResult(directory, control.roseName);
        if (control.type != InputKind::Tsf)
            for (const ControlOutput& output : control.outputs) takeResult(directory, output.name);
        if (!wishes_.keeps) return;
        for (const char* const kind : {"_tempoline.inp", "_tempoline.lst"})
            result_.kept.push_back(directory + control.base + kind);
    }

    void takeResult(const std::string& directory, const std::string& name) {
        const std::string path = directory + name;
        const std::string frq = existingFile(path + ".frq");  // with the letters that the system gave it
        if (frq.empty()) throw RawFault(input_.path + ": the processor made no " + name + ".frq", false);
        result_.frqFiles.push_back(frq);
        if (wishes_.keeps) {
            for (const char* const kind : {".frq", ".tab", ".tsf"})
                if (fileExists(path + kind)) result_.kept.push_back(existingFile(path + kind));
            return;
        }
        if (wishes_.keepsFrq)
            result_.kept.push_back(copied(frq, withSeparator(output_) + frq.substr(folderOf(frq).size())));
        for (const char* const kind : {".tab", ".tsf"}) removeFile(path + kind);  // of many files much
    }

    static std::string copied(const std::string& from, const std::string& to) {
        const std::string bytes = readWholeFile(from);
        PictureFile file(to);
        file.write(bytes.data(), static_cast<qint64>(bytes.size()));
        file.commit();
        if (file.fault() != 0)
            throw RawFault(to + ": " + std::generic_category().message(file.fault()), false);
        return to;
    }

    void runIn(const std::string& directory, const std::string& processor, const std::string& controlName) {
        QProcess process;
        process.setWorkingDirectory(fileName(directory));
        process.setStandardOutputFile(QProcess::nullDevice());
        process.start(fileName(processor), {fileName(controlName)});
        if (!process.waitForStarted(-1))
            throw RawFault(
                processor + ": the processor cannot be started: " + process.errorString().toStdString(),
                false);
        bool isTold = false;
        while (!process.waitForFinished(lookMs)) {
            if (process.state() == QProcess::NotRunning) break;
            if (stopped_ && !isTold) process.terminate();
            isTold = isTold || stopped_;
        }
        const std::vector<std::string> lines = linesOf(process.readAllStandardError().toStdString());
        const bool ended = process.exitStatus() == QProcess::NormalExit;
        if (ended && process.exitCode() == completedStatus) {
            for (const std::string& line : lines)
                result_.told.push_back(input_.path + ": " + inOwnWords(line, whole_, input_.path));
            return;
        }
        if (!ended || lines.empty())
            throw RawFault(input_.path + ": the processor ended before its time", false);
        const std::string fault = inOwnWords(lines.back(), whole_, input_.path);
        throw RawFault(fault.starts_with(input_.path) ? fault : input_.path + ": " + fault, false);
    }

    const RawInput& input_;
    const RawWishes& wishes_;
    const std::string& output_;
    const std::atomic<bool>& stopped_;
    std::string whole_;
    RawResult result_;
};

}  // namespace

RawResult rosesOfRaw(const RawInput& input, const RawWishes& wishes, const std::string& directory,
                     const std::atomic<bool>& stopped) {
    return RawRunner(input, wishes, directory, stopped).run();
}

}  // namespace zg
