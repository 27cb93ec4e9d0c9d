#pragma once

// Text files line by line: 8-bit bytes as they stand, lines ended by CR LF, CR or LF on reading, CR LF on
// writing.

#include <cstdio>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace zg {

struct FileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using FileHandle = std::unique_ptr<std::FILE, FileCloser>;

/// Opens a plain file for binary reading; raises 53, 70, 75 or 76 where that fails, 75 for a directory, a
/// pipe or a device.
FileHandle openForReading(const std::string& path);

/// Reads lines. Only a window of the file is in memory at a time, at least one line.
class LineReader {
 public:
    /// Lines of any length, or those up to so many bytes: readLine raises 6 for a longer one, with its
    /// number.
    explicit LineReader(const std::string& path, std::size_t longestLine = std::string::npos);

    /// Reads from bytes in memory, which must outlive the reader.
    static LineReader ofText(std::string_view text);

    /// No further line is there. A last line without its end is still a line.
    bool atEnd();

    /// What comes next as far as it has been fetched, line ends included, valid until the next call: at least
    /// one byte where the end has not come, the first 64 KiB of a file (or all of it) before any line is
    /// read.
    std::string_view ahead() { return atEnd() ? std::string_view() : window_; }

    /// The next line without its end, valid until the next call; raises 62 past the end.
    std::string_view readLine();

    /// Passes over all lines that are left and gives their number; faster than reading them, and no line is
    /// held whole.
    std::size_t skipAll();

    /// Number of the line last read, from 1.
    std::size_t lineNumber() const { return lineNumber_; }

    /// Hands over the open file, to be closed by the new owner; what has been fetched can still be read.
    FileHandle release() { return std::move(file_); }

 private:
    LineReader() = default;
    bool fill();
    void needShort(std::size_t bytes) const;

    std::size_t longestLine_ = std::string::npos;
    FileHandle file_;
    std::vector<char> buffer_;
    std::string_view window_;  ///< bytes not yet read
    bool endOfFile_ = false;
    std::size_t lineNumber_ = 0;
};

/// Writes lines ended by CR LF; the file is replaced. Raises the fitting error where that fails.
class LineWriter {
 public:
    explicit LineWriter(const std::string& path);

    void writeLine(std::string_view text);

    /// Bytes as they stand, without a line end.
    void write(std::string_view bytes);

    /// Flushes and closes; raises 61 or 57 where the bytes did not reach the file. A writer destroyed without
    /// it closes silently.
    void close();

 private:
    FileHandle file_;
};

/// A quoted record as the graph and expression files hold it: the text in double quotes, inner quotes as they
/// stand, CR LF.
void writeQuoted(LineWriter& writer, std::string_view text);

/// The records of such a file: a quoted text up to its closing quote, or a bare text up to a comma or line
/// end. A comma separates only outside quotes.
class QuotedRecordReader {
 public:
    explicit QuotedRecordReader(std::string text) : text_(std::move(text)) {}

    bool atEnd() const { return at_ >= text_.size(); }

    /// Raises 62 past the end.
    std::string next();

 private:
    std::string text_;
    std::size_t at_ = 0;
};

/// The whole file as bytes; raises as openForReading does.
std::string readWholeFile(const std::string& path);

}  // namespace zg
