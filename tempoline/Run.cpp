#include "tempoline/Run.h"

#include <cstdio>
#include <memory>
#include <vector>

#include "base/Paths.h"
#include "base/Version.h"
#include "tempoline/ControlReader.h"
#include "tempoline/FrqWriter.h"
#include "tempoline/Interrupt.h"
#include "tempoline/Listing.h"
#include "tempoline/ListingName.h"
#include "tempoline/OlderResults.h"
#include "tempoline/OutputFile.h"
#include "tempoline/PeriodLimit.h"
#include "tempoline/ResultNames.h"
#include "tempoline/TabFile.h"
#include "tempoline/Temporaries.h"
#include "tempoline/Texts.h"
#include "tempoline/TsfFile.h"
#include "tempoline/WholeText.h"
#include "tempoline/readers/Reader.h"

namespace zg::tempoline {

namespace {

constexpr std::size_t mostRemarks = 20;
constexpr std::size_t longestControlFile = std::size_t{16} << 20;

void tellError(const std::string& message) { std::fprintf(stderr, "tempoline: %s\n", message.c_str()); }

/// Shown on standard error, because nobody reads the listing of a successful run.
void tellRemarks(const std::vector<std::string>& remarks) {
    for (std::size_t i = 0; i < remarks.size() && i < mostRemarks; ++i) tellError(remarks[i]);
    if (remarks.size() > mostRemarks)
        tellError(std::to_string(remarks.size() - mostRemarks) + " more remarks are in the listing");
}

std::string readControlText(const std::string& path) {
    try {
        return wholeText(path, longestControlFile, "a control file");
    } catch (const Failure& failure) {
        if (failure.status != ExitStatus::Failed) throw;
        throw Failure(ExitStatus::BadControl, failure.what());
    }
}

std::string sourceText(const Control& control) {
    std::string text = mdataOf(control.kind);
    for (std::size_t i = 0; i < control.inputs.size() && i < 3; ++i)
        text += " " + FileNameOf(control.inputs[i]);
    if (control.inputs.size() > 3) text += " and " + std::to_string(control.inputs.size() - 3) + " more";
    return text;
}

/// Files of one name in different directories are different series.
std::string pathsText(const Control& control) {
    std::string text = mdataOf(control.kind) + (" " + control.inputs.front());
    if (control.inputs.size() > 1)
        text += " to " + control.inputs.back() + ", " + std::to_string(control.inputs.size()) + " files";
    return text;
}

void putAside(const Control& control, OlderResults& older) {
    const std::string fault = older.putAside(resultsOf(control));
    if (!fault.empty()) throw Failure(ExitStatus::Failed, fault);
}

/// The results of one output, until all of them get their names.
struct Results {
    std::unique_ptr<TsfFile> series;
    std::unique_ptr<OutputFile> counts;
    std::unique_ptr<OutputFile> frequencies;
};

class Runner {
 public:
    Runner(const Control& control, Listing& listing, OlderResults& older)
        : control_(control), listing_(listing), older_(older) {}

    void run() {
        for (std::size_t i = 0; i < control_.outputs.size(); ++i) series_.emplace_back(control_);
        results_.resize(control_.outputs.size());
        reader_ = makeReader(control_);
        openResults();  // fails before a year of data is read, if they cannot be created
        if (control_.wantsSeries) openSeries();
        try {
            readInputs();
        } catch (...) {
            tellWhatWasRead();
            throw;
        }
        tellNotes();
        for (std::size_t i = 0; i < series_.size(); ++i)
            listing_.describeOutput(control_.outputs[i], series_[i], control_, notesOf(i));
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
        reader_->finish();
        listing_.line("");
        listing_.line("The data say");
        if (!reader_->facts.station.empty()) listing_.line(entryLine("Station", reader_->facts.station));
        if (reader_->facts.height >= 0)
            listing_.line(entryLine("Height", metresText(reader_->facts.height) + " m"));
        listing_.lines(reader_->facts.notes);
    }

    std::vector<std::string> notesOf(std::size_t output) const {
        const auto& notes = reader_->facts.outputNotes;
        return output < notes.size() ? notes[output] : std::vector<std::string>();
    }

    /// The remains of a failed run.
    void tellWhatWasRead() {
        tellNotes();
        listing_.line("");
        listing_.line("What was counted until the run failed:");
        for (std::size_t i = 0; i < series_.size(); ++i)
            listing_.describeRecords(control_.outputs[i], series_[i].records(), notesOf(i));
    }

    void openResults() {
        for (const ResultSet& set : resultsOf(control_))
            for (const std::string& name : set) needFreeName(asideName(name));  // for the next run
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

    /// The FRQ file comes last: if it exists, the others do. Another run may meanwhile have written results
    /// with these names.
    void commit() {
        putAside(control_, older_);
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
    OlderResults& older_;
    std::vector<Series> series_;
    std::vector<Results> results_;
    std::unique_ptr<InputReader> reader_;
};

Control checkedControl(const std::string& text, const std::string& controlFile) {
    Control control = readControl(text, controlFile);
    needNamesApart(control);
    needDataForPeriod(control);
    return control;
}

void runControl(const std::string& controlFile, Listing& listing, OlderResults& older) {
    const std::string text = readControlText(controlFile);
    listing.rename("");  // nothing is written until its name is known to be available
    const std::string name = freeListingName(text, controlFile);
    needFreeName(name);
    const std::shared_ptr<Temporaries> temporaries = Temporaries::ofThisRun();
    listing.rename(name);
    const Control control = [&] {
        try {
            return checkedControl(text, controlFile);
        } catch (const Failure&) {  // no result of this run will have one of these names
            const std::string fault = older.putAside(readableResults(text, controlFile));
            if (!fault.empty()) listing.line("WARNING: " + fault);
            throw;
        }
    }();
    putAside(control, older);
    listing.write("ERROR: the run goes on, or was ended from outside");
    const std::string remains = temporaries->removeRemains();
    if (!remains.empty()) listing.line("WARNING: " + remains);
    listing.describe(control);
    Runner(control, listing, older).run();
    for (const std::string& left : older.remove())
        listing.line("WARNING: " + left + ", an older result, cannot be removed");
}

struct Outcome {
    ExitStatus status = ExitStatus::Completed;
    std::string error;
};

template <typename Work>
Outcome outcomeOf(Work work) {
    try {
        work();
        return {};
    } catch (const Failure& failure) {
        return {failure.status, failure.what()};
    } catch (const std::bad_alloc&) {
        return {ExitStatus::Failed, "there is not enough memory"};
    } catch (const std::exception& error) {  // a system failure, such as a thread that cannot be created
        return {ExitStatus::Failed, error.what()};
    }
}

/// The error itself is the last line of both.
void tellFault(const Outcome& outcome, const OlderResults& older, Listing& listing) {
    const std::vector<std::string> kept = older.kept();
    if (!kept.empty()) {
        tellError(keptText(kept));
        listing.line("");
        listing.line("The results of an earlier run are kept as");
        for (const std::string& name : kept) listing.line("  " + name);
    }
    tellError(outcome.error);
}

}  // namespace

ExitStatus run(const std::string& controlFile) {
    Listing listing(isSameFile(controlFile, defaultListing) ? "" : defaultListing);
    listing.line("TEMPOLINE " + std::string(versionNumber) + ": winds of " + controlFile);
    OlderResults older;
    Outcome outcome = outcomeOf([&] { runControl(controlFile, listing, older); });
    const bool completed = outcome.status == ExitStatus::Completed;
    if (!completed) tellFault(outcome, older, listing);
    try {
        listing.line("");
        listing.write(completed ? "RUN COMPLETED" : "ERROR: " + outcome.error);
    } catch (const Failure& failure) {
        tellError(failure.what());
        if (completed) outcome.status = ExitStatus::Failed;
    }
    if (outcome.status == ExitStatus::Completed) tellRemarks(listing.remarks());
    return outcome.status;
}

}  // namespace zg::tempoline
