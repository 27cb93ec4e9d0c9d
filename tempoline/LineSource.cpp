#include "tempoline/LineSource.h"

#include <algorithm>
#include <cstring>

#include "tempoline/BlockReader.h"
#include "tempoline/Fields.h"
#include "tempoline/Wind.h"

namespace zg::tempoline {

LineSource::LineSource(const std::string& path, ReadAhead readAhead)
    : path_(path),
      blocks_(readAhead == ReadAhead::Yes ? openBlocksAhead(path) : openBlocks(path)),
      buffer_(longestLine + BlockReader::blockSize + 2) {}

LineSource::~LineSource() = default;

void LineSource::failTooLong() const {
    throw Failure(ExitStatus::Failed, path_ + ":" + std::to_string(lineNumber_ + 1) +
                                          ": the line is longer than " + std::to_string(longestLine) +
                                          " bytes");
}

/// Appends another block to the rest of the last one, which holds no whole line; false at the end.
bool LineSource::fill() {
    if (end_ - begin_ > longestLine) failTooLong();
    if (endOfFile_) return false;
    if (begin_ > 0) {
        std::memmove(buffer_.data(), buffer_.data() + begin_, end_ - begin_);
        end_ -= begin_;
        begin_ = 0;
    }
    blockBegin_ = end_;
    nextEnd_ = 0;
    const std::size_t got = blocks_->read(buffer_.data() + end_, lineEnds_);
    end_ += got;
    endOfFile_ = got == 0;
    // Only the first line of a block can be longer than a block.
    if (!lineEnds_.empty() && blockBegin_ + lineEnds_[0] > longestLine) failTooLong();
    return got > 0;
}

bool LineSource::next(std::string_view& line) {
    while (nextEnd_ == lineEnds_.size() && fill()) {
    }
    if (nextEnd_ < lineEnds_.size()) {
        const std::size_t end = blockBegin_ + lineEnds_[nextEnd_++];
        line = {buffer_.data() + begin_, end - begin_};
        begin_ = end + 1;
    } else {
        if (begin_ == end_) return false;
        line = {buffer_.data() + begin_, end_ - begin_};
        begin_ = end_;
    }
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    ++lineNumber_;
    return true;
}

std::string_view LineSource::need(std::string_view what) {
    std::string_view line;
    if (!next(line))
        throw Failure(ExitStatus::Failed, path_ + ":" + std::to_string(lineNumber_ + 1) +
                                              ": the file ends where " + std::string(what) + " should be");
    return line;
}

void LineSource::skip(std::size_t count, std::string_view what) {
    while (count > 0) {
        const std::size_t here = std::min(count, lineEnds_.size() - nextEnd_);
        if (here == 0) {
            need(what);
            --count;
            continue;
        }
        nextEnd_ += here;
        begin_ = blockBegin_ + lineEnds_[nextEnd_ - 1] + 1;
        lineNumber_ += here;
        count -= here;
    }
}

Failure Place::failure(std::string_view field, std::string_view text) const {
    std::string message = path + ":" + std::to_string(line) + ": ";
    if (!field.empty()) message.append(field).append(": ");
    return {ExitStatus::Failed, message.append(text)};
}

namespace {

/// The text in a form fit for a message of one line.
std::string shown(std::string_view field) {
    std::string text(field.substr(0, 40));
    for (char& c : text) {
        if (static_cast<unsigned char>(c) < ' ') c = '?';
    }
    return "\"" + text + (field.size() > 40 ? "...\"" : "\"");
}

}  // namespace

int wholeField(const LineSource& source, std::string_view field, std::string_view name) {
    const std::optional<int> value = wholeOf(field);
    if (!value) throw source.failure(name, shown(field) + " is no whole number");
    return *value;
}

double valueField(const LineSource& source, std::string_view field, std::string_view name) {
    const std::optional<double> value = valueOf(field);
    if (!value) throw source.failure(name, shown(field) + " is no number");
    return *value;
}

double numberField(const LineSource& source, std::string_view field, std::string_view name) {
    const double value = valueField(source, field, name);
    if (!hasValue(value)) throw source.failure(name, shown(field) + " is no number");
    return value;
}

}  // namespace zg::tempoline
