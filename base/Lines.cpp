#include "base/Lines.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <optional>

#include "base/Files.h"
#include "base/RunTimeError.h"

namespace zg {

namespace {

constexpr std::size_t windowSize = 65536;

/// The first CR or LF of the bytes, or npos. It searches piece by piece: in a file without any LF, a plain
/// search for the next one would scan the rest of the file for every line.
std::size_t lineEnd(std::string_view bytes) {
    constexpr std::size_t pieceSize = 256;
    const auto find = [&bytes](char c, std::size_t from, std::size_t to) {
        const void* at = std::memchr(bytes.data() + from, c, to - from);
        return at == nullptr ? to : static_cast<std::size_t>(static_cast<const char*>(at) - bytes.data());
    };
    for (std::size_t from = 0; from < bytes.size(); from += pieceSize) {
        const std::size_t to = std::min(from + pieceSize, bytes.size());
        const std::size_t end = find('\r', from, find('\n', from, to));
        if (end != to) return end;
    }
    return std::string_view::npos;
}

/// Counts the line ends in the bytes, CR LF as one, given whether the byte before may have been the CR of
/// such a pair. The short inner runs let the compiler vectorise the count.
std::size_t countLineEnds(std::string_view bytes, char before) {
    constexpr std::size_t run = 128;
    std::size_t ends = 0;
    for (std::size_t from = 0; from < bytes.size(); from += run) {
        const std::size_t to = std::min(from + run, bytes.size());
        unsigned char found = bytes[from] == '\r' || (bytes[from] == '\n' && before != '\r') ? 1 : 0;
        for (std::size_t i = from + 1; i < to; ++i) {
            const int lone = (bytes[i] == '\n' ? 1 : 0) & (bytes[i - 1] != '\r' ? 1 : 0);
            found = static_cast<unsigned char>(found + (bytes[i] == '\r' ? 1 : 0) + lone);
        }
        ends += found;
        before = bytes[to - 1];
    }
    return ends;
}

FileHandle openRegularFile(const std::string& path) {
    const std::optional<FileState> state = stateOfFile(path);
    // Opening a pipe that nobody writes to would block for good.
    if (state && state->kind != FileKind::Plain) raise(ErrorNumber::PathFileAccessError);
    FileHandle file(openStream(path, "rb"));
    if (!file) raiseFileError(errno);
    return file;
}

}  // namespace

FileHandle openForReading(const std::string& path) {
    try {
        return openRegularFile(path);
    } catch (RunTimeError& error) {
        error.file = path;
        throw;
    }
}

LineReader::LineReader(const std::string& path, std::size_t longestLine)
    : path_(path), longestLine_(longestLine), file_(openForReading(path)) {
    // The reader has its own window, so a buffer in the stream would only add a copy.
    std::setvbuf(file_.get(), nullptr, _IONBF, 0);
}

LineReader LineReader::ofText(std::string_view text) {
    LineReader reader;
    reader.window_ = text;
    reader.endOfFile_ = true;
    return reader;
}

std::size_t LineReader::readPlain(char* place, std::size_t size) {
    const std::size_t got = std::fread(place, 1, size, file_.get());
    if (got == 0 && std::ferror(file_.get()) != 0) raise(ErrorNumber::DeviceIoError);
    return got;
}

std::size_t LineReader::readUnzipped(char* place, std::size_t size) {
    for (;;) {
        const std::size_t made = unzipper_->unzip(zippedLeft_, place, size);
        if (made > 0) return made;
        const std::size_t got = readPlain(zipped_.data(), zipped_.size());
        if (got == 0 && !unzipper_->isWhole()) Unzipper::failCutOff();
        if (got == 0) return 0;
        zippedLeft_ = {zipped_.data(), got};
    }
}

/// The first bytes of a file tell whether it is compressed.
std::size_t LineReader::readSome(char* place, std::size_t size) {
    if (unzipper_) return readUnzipped(place, size);
    const std::size_t got = readPlain(place, size);
    if (begun_ || !Unzipper::isZipped({place, got})) {
        begun_ = true;
        return got;
    }
    zipped_.assign(place, place + std::max(got, windowSize));
    zippedLeft_ = {zipped_.data(), got};
    unzipper_ = std::make_unique<Unzipper>();
    return readUnzipped(place, size);
}

bool LineReader::fill() {
    if (endOfFile_ || !file_) return false;
    const std::size_t kept = window_.size();
    if (kept > 0 && window_.data() != buffer_.data()) std::memmove(buffer_.data(), window_.data(), kept);
    // A line longer than the window doubles the window, so that long lines cost linear time.
    if (buffer_.size() < kept + windowSize) buffer_.resize(std::max(kept + windowSize, 2 * kept));
    const std::size_t got = readSome(buffer_.data() + kept, buffer_.size() - kept);
    endOfFile_ = got == 0;
    window_ = std::string_view(buffer_.data(), kept + got);
    return got > 0;
}

/// Raises 6, with the line number, if a line of this many bytes exceeds the limit.
void LineReader::needShort(std::size_t bytes) const {
    if (bytes <= longestLine_) return;
    RunTimeError error(static_cast<int>(ErrorNumber::Overflow),
                       "the line is longer than " + std::to_string(longestLine_) + " bytes");
    error.where = std::to_string(lineNumber_ + 1);
    throw error;
}

void LineReader::addPlace(RunTimeError& error) const {
    if (error.file.empty()) error.file = path_;
    if (error.where.empty() && lineNumber_ > 0) error.where = std::to_string(lineNumber_);
}

bool LineReader::atEnd() { return window_.empty() && !fill(); }

std::string_view LineReader::readLine() {
    if (atEnd()) raise(ErrorNumber::InputPastEndOfFile);
    std::size_t searchedTo = 0;
    std::size_t end = lineEnd(window_);
    while (end == std::string_view::npos) {
        searchedTo = window_.size();
        needShort(searchedTo);
        if (!fill()) break;
        end = lineEnd(window_.substr(searchedTo));
        if (end != std::string_view::npos) end += searchedTo;
    }
    if (end != std::string_view::npos) needShort(end);
    ++lineNumber_;
    if (end == std::string_view::npos) {
        const std::string_view last = window_;
        window_ = window_.substr(window_.size());
        return last;
    }
    // A CR at the end of the window may be followed by its LF in the next part of the file.
    if (window_[end] == '\r' && end + 1 == window_.size()) fill();
    const std::string_view line = window_.substr(0, end);
    const bool pair = window_[end] == '\r' && end + 1 < window_.size() && window_[end + 1] == '\n';
    window_.remove_prefix(end + (pair ? 2 : 1));
    return line;
}

std::size_t LineReader::skipAll() {
    std::size_t count = 0;
    char last = '\n';  // the part read so far ended with a line end
    while (!atEnd()) {
        count += countLineEnds(window_, last);
        last = window_.back();
        window_ = window_.substr(window_.size());
    }
    if (last != '\n' && last != '\r') ++count;
    lineNumber_ += count;
    return count;
}

LineWriter::LineWriter(const std::string& path) {
    const std::optional<FileState> state = stateOfFile(path);
    if (path.find('\0') != std::string::npos || (state && state->kind == FileKind::Directory))
        raise(ErrorNumber::PathFileAccessError);
    file_.reset(openStream(path, "wb"));
    if (!file_) raiseFileError(errno == ENOENT ? ENOTDIR : errno);
}

void LineWriter::write(std::string_view bytes) {
    if (bytes.empty()) return;
    if (std::fwrite(bytes.data(), 1, bytes.size(), file_.get()) != bytes.size()) raiseFileError(errno);
}

void LineWriter::writeLine(std::string_view text) {
    write(text);
    write("\r\n");
}

void LineWriter::close() {
    std::FILE* file = file_.release();
    if (file != nullptr && std::fclose(file) != 0) raiseFileError(errno);
}

void writeQuoted(LineWriter& writer, std::string_view text) {
    writer.write("\"");
    writer.write(text);
    writer.writeLine("\"");
}

std::string QuotedRecordReader::next() {
    if (atEnd()) raise(ErrorNumber::InputPastEndOfFile);
    while (at_ < text_.size() && text_[at_] == ' ') ++at_;
    std::string record;
    if (at_ < text_.size() && text_[at_] == '"') {
        const std::size_t close = text_.find('"', at_ + 1);
        record = text_.substr(at_ + 1, close == std::string::npos ? std::string::npos : close - at_ - 1);
        at_ = close == std::string::npos ? text_.size() : close + 1;
        at_ = std::min(text_.find_first_of(",\r\n", at_), text_.size());
    } else {
        const std::size_t end = std::min(text_.find_first_of(",\r\n", at_), text_.size());
        record = text_.substr(at_, end - at_);
        while (!record.empty() && record.back() == ' ') record.pop_back();
        at_ = end;
    }
    if (at_ < text_.size()) at_ += text_.compare(at_, 2, "\r\n") == 0 ? 2U : 1U;
    return record;
}

std::string readWholeFile(const std::string& path) {
    const FileHandle file = openForReading(path);
    std::string out;
    std::vector<char> part(windowSize);
    while (const std::size_t got = std::fread(part.data(), 1, part.size(), file.get()))
        out.append(part.data(), got);
    if (std::ferror(file.get()) != 0) raise(ErrorNumber::DeviceIoError);
    return out;
}

}  // namespace zg
