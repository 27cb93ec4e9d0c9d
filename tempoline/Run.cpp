#include "tempoline/Run.h"

#include <cstdio>
#include <memory>
#include <vector>

#include "base/Paths.h"
#include "tempoline/ControlReader.h"
#include "tempoline/FrqWriter.h"
#include "tempoline/Interrupt.h"
#include "tempoline/Listing.h"
#include "tempoline/ListingName.h"
#include "tempoline/OutputFile.h"
#include "tempoline/TabFile.h"
#include "tempoline/Texts.h"
#include "tempoline/TsfFile.h"
#include "tempoline/WholeText.h"
#include "tempoline/readers/Reader.h"

namespace zg::tempoline {

namespace {

constexpr std::size_t longestControlFile = std::size_t{16} << 20;

void tellError(const std::string& message) { std::fprintf(stderr, "tempoline: %s\n", message.c_str()); }

std::string readControlText(const std::string& path) {
    try {
        return wholeText(path, longestControlFile, "a control file");
    } catch (const Failure& failure) {
        if (failure.status != ExitStatus::Failed) throw;
        throw Failure(ExitStatus::BadControl, failure.what());
    }
}

std::string sourceText(const Control& control) {
    std::string text = keywordOf(control.kind);
    for (std::size_t i = 0; i < control.inputs.size() && i < 3; ++i)
        text += " " + FileNameOf(control.inputs[i]);
    if (control.inputs.size() > 3) text += " and " + std::to_string(control.inputs.size() - 3) + " more";
    return text;
}

/// Files of one name in different directories are different series.
std::string pathsText(const Control& control) {
    std::string text = keywordOf(control.kind) + (" " + control.inputs.front());
    if (control.inputs.size() > 1)
        text += " to " + control.inputs.back() + ", " + std::to_string(control.inputs.size()) + " files";
    return text;
}

/// The results of one output until they all take their names.
struct Results {
    std::unique_ptr<TsfFile> series;
    std::unique_ptr<OutputFile> counts;
    std::unique_ptr<OutputFile> frequencies;
};

class Runner {
 public:
    Runner(const Control& control, Listing& listing) : control_(control), listing_(listing) {}

    void run() {
        for (std::size_t i = 0; i < control_.outputs.size(); ++i) series_.emplace_back(control_);
        results_.resize(control_.outputs.size());
        reader_ = makeReader(control_);
        openResults();  // before a year of data is read it is known that they can be made
        if (control_.wantsSeries) openSeries();
        try {
            readInputs();
        } catch (...) {
            tellWhatWasRead();
            throw;
        }
        tellNotes();
        for (std::size_t i = 0; i < series_.size(); ++i)
            listing_.describeOutput(control_.outputs[i], series_[i]);
        if (control_.wantsRoses) writeRoses();
        for (Results& results : results_) {
            throwIfInterrupted();
            if (results.series) results.series->file().finish();
        }
        throwIfInterrupted();
        commit();
    }

 private:
    void readInputs() {
        for (const std::string& input : control_.inputs) reader_->read(input, series_);
        for (Series& series : series_) series.finish();
    }

    void tellNotes() {
        for (const std::string& note : reader_->facts.notes) listing_.line(note);
    }

    /// Of a run that failed.
    void tellWhatWasRead() {
        tellNotes();
        listing_.line("");
        listing_.line("What was counted until the run failed:");
        for (std::size_t i = 0; i < series_.size(); ++i)
            listing_.describeRecords(control_.outputs[i], series_[i].records());
    }

    void openResults() {
        for (std::size_t i = 0; control_.wantsRoses && i < control_.outputs.size(); ++i) {
            const std::string& name = control_.outputs[i].name;
            results_[i].frequencies = std::make_unique<OutputFile>(name + ".frq");
            results_[i].counts = std::make_unique<OutputFile>(name + ".tab");
        }
    }

    void openSeries() {
        for (std::size_t i = 0; i < control_.outputs.size(); ++i) {
            const OutputRequest& output = control_.outputs[i];
            TsfHeading heading;
            heading.title = oneLine(titleOf(output));
            heading.source = oneLine(sourceText(control_));
            heading.station = output.station;
            heading.zone = control_.zone;
            heading.begin = control_.begin;
            heading.end = control_.end;
            heading.step = control_.step;
            heading.height = output.height;
            results_[i].series = std::make_unique<TsfFile>(output.name + ".tsf", heading);
            series_[i].writeTo(results_[i].series.get());
        }
    }

    std::string titleOf(const OutputRequest& output) const {
        if (!output.location.empty()) return output.location;
        if (!control_.title.empty()) return control_.title;
        const std::string& station = output.station.empty() ? reader_->facts.station : output.station;
        return station.empty() ? output.name : "Station " + station;
    }

    RoseReport reportOf(std::size_t index) const {
        const OutputRequest& output = control_.outputs[index];
        const double height = output.height >= 0 ? output.height : reader_->facts.height;
        RoseReport report;
        report.title1 = titleOf(output);
        report.title2 = sourceText(control_);
        report.height = height >= 0 ? metresText(height) + " m" : "unknown";
        report.zone = control_.zone;
        report.begin = control_.begin;
        report.end = control_.end;
        report.step = control_.step;
        report.rules = control_.rules;
        report.hasRecords = series_[index].hasRecords();
        report.roses = series_[index].table().roses();
        const std::string& station = output.station.empty() ? reader_->facts.station : output.station;
        std::string what = pathsText(control_) + ", station " + station + ", " + report.height;
        if (output.station.empty() && control_.wantsSeries)
            what += ", at " + fixedText(output.x, 6) + " " + fixedText(output.y, 6);
        report.runs.push_back({report.begin, report.end, oneLine(what)});
        return report;
    }

    void writeRoses() {
        for (std::size_t i = 0; i < control_.outputs.size(); ++i) {
            throwIfInterrupted();
            const RoseReport report = reportOf(i);
            results_[i].frequencies->write(frqText(report));
            results_[i].counts->write(tabText(report));
            results_[i].frequencies->finish();
            results_[i].counts->finish();
        }
    }

    /// The FRQ file comes last: where it stands, the others do.
    void commit() {
        std::vector<OutputFile*> files;
        for (Results& results : results_) {
            if (results.series) files.push_back(&results.series->file());
            if (results.counts) files.push_back(results.counts.get());
            if (results.frequencies) files.push_back(results.frequencies.get());
        }
        OutputFile::commitAll(files);
    }

    const Control& control_;
    Listing& listing_;
    std::vector<Series> series_;
    std::vector<Results> results_;
    std::unique_ptr<InputReader> reader_;
};

/// The raw data stay, whatever a result is called.
void needInputsApart(const Control& control) {
    std::vector<const char*> endings;
    if (control.wantsSeries) endings.push_back(".tsf");
    if (control.wantsRoses) endings.insert(endings.end(), {".tab", ".frq"});
    for (const OutputRequest& output : control.outputs)
        for (const char* ending : endings)
            for (const std::string& input : control.inputs)
                if (isSameFile(output.name + ending, input))
                    throw Failure(ExitStatus::BadControl, "the result \"" + output.name + ending +
                                                              "\" would take the place of an input");
}

void runControl(const std::string& text, const std::string& controlFile, Listing& listing) {
    const Control control = readControl(text, controlFile);
    needInputsApart(control);
    listing.describe(control);
    Runner(control, listing).run();
}

}  // namespace

ExitStatus run(const std::string& controlFile) {
    Listing listing(isSameFile(controlFile, defaultListing) ? "" : defaultListing);
    std::string lastLine = "RUN COMPLETED";
    ExitStatus status = ExitStatus::Completed;
    listing.line("TEMPOLINE: winds of " + controlFile);
    try {
        const std::string text = readControlText(controlFile);
        listing.rename("");  // nothing is written until its name is known to be free
        const std::string name = freeListingName(text, controlFile);
        needFreeName(name);
        listing.rename(name);
        runControl(text, controlFile, listing);
    } catch (const Failure& failure) {
        status = failure.status;
        lastLine = std::string("ERROR: ") + failure.what();
        tellError(failure.what());
    } catch (const std::bad_alloc&) {
        status = ExitStatus::Failed;
        lastLine = "ERROR: there is not enough memory";
        tellError("there is not enough memory");
    } catch (const std::exception& error) {  // of the system, such as a thread that it does not give
        status = ExitStatus::Failed;
        lastLine = std::string("ERROR: ") + error.what();
        tellError(error.what());
    }
    try {
        listing.line("");
        listing.write(lastLine);
    } catch (const Failure& failure) {
        tellError(failure.what());
        if (status == ExitStatus::Completed) status = ExitStatus::Failed;
    }
    return status;
}

}  // namespace zg::tempoline
