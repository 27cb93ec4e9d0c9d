#include "tempoline/ControlOutputs.h"

#include <map>
#include <optional>
#include <set>

#include "base/Files.h"

namespace zg::tempoline {

namespace {

constexpr int mostOutputs = 100'000;
constexpr int highestId = 2'000'000'000;
constexpr std::size_t stationValues = 7;  // the station, X, Y and four heights
constexpr std::size_t placeValues = 6;

class OutputReader {
 public:
    OutputReader(ControlKeys& keys, InputKind kind) : keys_(keys), kind_(kind) {}

    std::vector<OutputRequest> read() {
        const std::size_t count = readCount();
        for (const Assignment& entry : keys_.all()) {
            if (entry.key == "TSFID") {
                open(entry);
            } else if (entry.key == "TSFOUT") {
                declare(entry);
            } else if (entry.key == "LOCMET") {
                needId(entry);
                if (location_) throw idFailure(entry, " has a LOCMET before");
                location_ = entry.value;
            } else if (entry.key == "MET") {
                locate(entry);
            }
        }
        needClosed();
        keys_.needCount("TSFOUT", outputs_.size(), count, "NTSFOUT");
        keys_.needCount("MET", located_.size(), count, "NTSFOUT");
        return std::move(outputs_);
    }

 private:
    std::size_t readCount() {
        const int count = keys_.whole("NTSFOUT", 0, mostOutputs);
        if (count == 0) throw keys_.failure("NTSFOUT", "0 outputs are asked for, and at least one is needed");
        if (count > 1 &&
            (kind_ == InputKind::MonitorW || kind_ == InputKind::AermSfc || kind_ == InputKind::Csv))
            throw keys_.failure("NTSFOUT", std::string(mdataOf(kind_)) + " makes one output");
        return static_cast<std::size_t>(count);
    }

    void open(const Assignment& entry) {
        needClosed();
        id_ = keys_.wholeOf(entry, 0, highestId);
        opened_ = &entry;
    }

    /// A TSFID belongs to one TSFOUT or one MET: a second one would discard the first.
    void needClosed() const {
        if (id_) throw idFailure(*opened_, " has neither TSFOUT nor MET after it");
    }

    void close() {
        id_.reset();
        location_.reset();
    }

    int needId(const Assignment& entry) const {
        if (!id_) throw keys_.failure(entry, "a TSFID of its own must come before it");
        return *id_;
    }

    Failure idFailure(const Assignment& entry, const std::string& text) const {
        return keys_.failure(entry, "TSFID " + std::to_string(*id_) + text);
    }

    void declare(const Assignment& entry) {
        OutputRequest output;
        output.id = needId(entry);
        if (location_) throw idFailure(entry, " has a LOCMET, which belongs to a MET");
        if (!declared_.emplace(output.id, outputs_.size()).second)
            throw idFailure(entry, " has been given before");
        keys_.at(entry);
        output.name = plainFileName(keys_, "TSFOUT", entry.value);
        output.line = entry.line;
        outputs_.push_back(output);
        close();
    }

    void locate(const Assignment& entry) {
        const auto found = declared_.find(needId(entry));
        if (found == declared_.end()) throw idFailure(entry, " has no TSFOUT");
        if (!located_.insert(*id_).second) throw idFailure(entry, " has been given before");
        readPlace(entry, outputs_[found->second]);
        outputs_[found->second].location = location_.value_or("");
        close();
    }

    void readPlace(const Assignment& entry, OutputRequest& output) {
        const bool gridded = isGridded(kind_);
        const std::vector<std::string> items = keys_.itemsOf(entry);
        const std::size_t first = items.size() == stationValues ? 1 : 0;
        if (first == 0 && !(gridded && items.size() == placeValues))
            throw keys_.failure(entry, "found " + std::to_string(items.size()) + " values, " +
                                           std::to_string(gridded ? placeValues : stationValues) +
                                           " are needed");
        if (first == 1) output.station = items[0];
        output.x = keys_.numberOf(entry, items[first]);
        output.y = keys_.numberOf(entry, items[first + 1]);
        output.height = keys_.numberOf(entry, items[first + 2]);
        if (output.height < 0) throw keys_.failure(entry, "a height for the wind is needed");
        for (std::size_t i = first + 3; i < items.size(); ++i) keys_.numberOf(entry, items[i]);
    }

    ControlKeys& keys_;
    InputKind kind_;
    std::vector<OutputRequest> outputs_;
    std::map<int, std::size_t> declared_;  ///< place in the outputs by id
    std::set<int> located_;
    std::optional<int> id_;               ///< of the current lines
    const Assignment* opened_ = nullptr;  ///< its TSFID
    std::optional<std::string> location_;
};

std::vector<OutputRequest> readRoseName(ControlKeys& keys) {
    if (keys.whole("NTSFOUT", 0, mostOutputs) != 0)
        throw keys.failure("NTSFOUT", "a run with MDATA = TSF makes no series: 0 is needed");
    OutputRequest output;
    output.id = 1;
    output.name = plainFileName(keys, "ROSEPLT", keys.text("ROSEPLT"));
    for (const Assignment& entry : keys.all())
        if (entry.key == "ROSEPLT") output.line = entry.line;
    output.height = -1;
    return {output};
}

}  // namespace

std::string plainFileName(const ControlKeys& keys, std::string_view key, const std::string& name) {
    if (name.empty()) throw keys.failure(key, "a name is missing");
    if (!isPlainName(name)) throw keys.failure(key, "\"" + name + "\" is no plain file name");
    return name;
}

std::vector<OutputRequest> readOutputs(ControlKeys& keys, InputKind kind) {
    return kind == InputKind::Tsf ? readRoseName(keys) : OutputReader(keys, kind).read();
}

}  // namespace zg::tempoline
