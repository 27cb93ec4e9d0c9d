#include <cmath>
#include <optional>
#include <vector>

#include "tempoline/Texts.h"
#include "tempoline/readers/Readers.h"
#include "windtable/TableRecords.h"

namespace zg::tempoline {

namespace {

constexpr std::size_t mostNamedColumns = 4096;

/// A table with a time, a speed and a direction in each line, in the layout that the control file gives. A
/// record that begins before the end of the previous one, such as a report between two hourly ones, ends the
/// previous one early.
class Csv : public InputReader {
 public:
    explicit Csv(const Control& control)
        : control_(control), layout_(control.table), records_(control.table) {}

    void read(const std::string& path, std::vector<Series>& series) override {
        LineSource lines(path);
        series_ = &series[0];
        path_ = path;
        std::string_view line;
        while (lines.next(line)) {
            if (lines.lineNumber() == 1) line = withoutByteOrderMark(line);
            if (lines.lineNumber() == layout_.namesLine) keepNames(line);
            if (lines.lineNumber() > layout_.headLines) readLine(lines, line);
        }
        giveWaiting({});
        if (lines.lineNumber() < layout_.headLines)
            throw lines.failure("", "the file ends within the " + std::to_string(layout_.headLines) +
                                        " lines before its first record");
        if (layout_.stationColumn != 0 && !begun_)
            throw Failure(ExitStatus::Failed, path + ": no line has " + quotedValue(layout_.station) +
                                                  " in " + fieldName(layout_.stationColumn) +
                                                  ", where CSVSTN expects the stations");
        if (!begun_) noteNoShift(control_);
    }

 private:
    struct Waiting {
        Seconds begin = 0;
        Seconds end = 0;
        Wind wind;
        std::size_t line = 0;
    };

    void keepNames(std::string_view line) {
        TableFields fields;
        fields.cut(line, layout_.delimiter, mostNamedColumns);
        for (std::size_t column = 1; column <= fields.size(); ++column)
            names_.emplace_back(fields.at(column));
    }

    std::string fieldName(std::size_t column) const {
        if (column == 0) return {};
        std::string name = "column " + std::to_string(column);
        if (column > names_.size() || names_[column - 1].empty()) return name;
        std::string shown = names_[column - 1].substr(0, 40);
        for (char& c : shown)
            if (static_cast<unsigned char>(c) < ' ') c = '?';
        return name + " (" + shown + ")";
    }

    void readLine(const LineSource& lines, std::string_view line) {
        switch (records_.read(line)) {
            case TableLine::Empty:
                return;
            case TableLine::Fault:
                throw lines.failure(fieldName(records_.fault().column), records_.fault().text);
            case TableLine::Record:
                addRecord(records_.record(), lines.lineNumber());
        }
    }

    /// In the zone of the run.
    Seconds momentOf(const TableTime& time) {
        const std::optional<Seconds> zone = time.zone ? time.zone : layout_.zone;
        if (!begun_) zone ? noteShift(control_, *zone) : noteNoShift(control_);
        begun_ = true;
        return zone ? time.seconds - *zone + control_.zoneOffset : time.seconds;
    }

    void addRecord(const TableRecord& record, std::size_t line) {
        const Seconds stamp = momentOf(record.time);
        Wind wind = {record.speed, record.direction};
        if (layout_.unit != WindUnit::MetresASecond) wind.speed = roundedToMillionth(wind.speed);
        if (layout_.stampsEnd) return addEnding(stamp, wind, line);
        if (waiting_ && stamp == waiting_->begin) {
            if (repeats_++ == 0) firstRepeat_ = line;
            return;
        }
        giveWaiting(stamp);
        waiting_ = {stamp, stamp + layout_.recordSeconds, wind, line};
    }

    /// Its begin follows from its length, but is not before the end of the previous record.
    void addEnding(Seconds end, const Wind& wind, std::size_t line) {
        Seconds begin = end - layout_.recordSeconds;
        if (lastEnd_ && end == *lastEnd_) begin = lastBegin_;
        if (lastEnd_ && end > *lastEnd_ && begin < *lastEnd_) begin = *lastEnd_;
        series_->add(begin, end, wind, Place{path_, line});
        lastBegin_ = begin;
        lastEnd_ = end;
    }

    void giveWaiting(std::optional<Seconds> next) {
        if (!waiting_) return;
        if (next && *next > waiting_->begin && *next < waiting_->end) waiting_->end = *next;
        series_->add(waiting_->begin, waiting_->end, waiting_->wind, Place{path_, waiting_->line});
        giveRepeated();
        waiting_.reset();
    }

    /// Lines with the same time as the previous one are only counted.
    void giveRepeated() {
        for (; repeats_ > 0; --repeats_)
            series_->add(waiting_->begin, waiting_->end, waiting_->wind, Place{path_, firstRepeat_});
    }

    const Control& control_;
    const TableLayout& layout_;
    TableRecords records_;
    std::vector<std::string> names_;
    Series* series_ = nullptr;
    std::string path_;
    std::optional<Waiting> waiting_;  ///< until the time of the next one is known
    std::int64_t repeats_ = 0;        ///< lines with its time
    std::size_t firstRepeat_ = 0;     ///< the first of these
    std::optional<Seconds> lastEnd_;
    Seconds lastBegin_ = 0;
    bool begun_ = false;
};

}  // namespace

std::unique_ptr<InputReader> makeCsv(const Control& control) { return std::make_unique<Csv>(control); }

}  // namespace zg::tempoline
