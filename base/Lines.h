#pragma once

// Text files line by line: 8-bit bytes, unconverted. Lines end with CR LF, CR or LF when read, with CR LF
// when written.

#include <cstdio>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/RunTimeError.h"
#include "base/Unzip.h"

namespace zg {

struct FileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using FileHandle = std::unique_ptr<std::FILE, FileCloser>;

/// Opens a regular file for binary reading; raises 53, 70, 75 or 76 on failure, with the path, 75 for a
/// directory, a pipe or a device.
FileHandle openForReading(const std::string& path);

/// Reads lines, those of a gzip file as they were before compression. Only a window of the file, of at least
/// one line, is in memory at a time.
class LineReader {
 public:
    /// Reads lines of any length, or up to a limit in bytes: readLine then raises 6, with the line number,
    /// for a longer one.
    explicit LineReader(const std::string& path, std::size_t longestLine = std::string::npos);

    /// Reads from bytes in memory, which must outlive the reader.
    static LineReader ofText(std::string_view text);

    /// Whether all lines have been read. A last line without a line end is still a line.
    bool atEnd();

    /// The bytes that follow, as far as they have been fetched, line ends included, valid until the next
    /// call: at least one byte unless the end is reached; before the first line, the first 64 KiB of the
    /// file, or all of it if it is shorter.
    std::string_view ahead() { return atEnd() ? std::string_view() : window_; }

    /// The next line without its line end, valid until the next call; raises 62 past the end.
    std::string_view readLine();

    /// Skips all remaining lines and returns how many there were; faster than reading them, and no whole line
    /// is held in memory.
    std::size_t skipAll();

    /// Number of the line last read, from 1.
    std::size_t lineNumber() const { return lineNumber_; }

    /// Of the file that is read; "" for bytes in memory.
    const std::string& path() const { return path_; }

    /// Adds to an error what it does not say yet: the file, and the number of the line last read.
    void addPlace(RunTimeError& error) const;

    /// Hands over the open file, which the new owner closes; what has been fetched can still be read.
    FileHandle release() { return std::move(file_); }

 private:
    LineReader() = default;
    bool fill();
    std::size_t readSome(char* place, std::size_t size);
    std::size_t readPlain(char* place, std::size_t size);
    std::size_t readUnzipped(char* place, std::size_t size);
    void needShort(std::size_t bytes) const;

    std::string path_;
    std::size_t longestLine_ = std::string::npos;
    FileHandle file_;
    std::vector<char> buffer_;
    std::string_view window_;  ///< bytes not yet read
    bool endOfFile_ = false;
    std::size_t lineNumber_ = 0;
    std::unique_ptr<Unzipper> unzipper_;  ///< of a gzip file
    std::vector<char> zipped_;
    std::string_view zippedLeft_;
    bool begun_ = false;
};

/// Writes lines ended by CR LF; an existing file is replaced. Raises the fitting error on failure.
class LineWriter {
 public:
    explicit LineWriter(const std::string& path);

    void writeLine(std::string_view text);

    /// Writes bytes unchanged, without a line end.
    void write(std::string_view bytes);

    /// Flushes and closes; raises 61 or 57 if the bytes did not reach the file. A writer destroyed without
    /// this call closes without reporting errors.
    void close();

 private:
    FileHandle file_;
};

/// A quoted record of the graph and expression files: the text in double quotes, inner quotes unchanged, CR
/// LF.
void writeQuoted(LineWriter& writer, std::string_view text);

/// Reads the records of such a file: quoted text up to its closing quote, or bare text up to a comma or line
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

/// The whole file as bytes; raises the same errors as openForReading.
std::string readWholeFile(const std::string& path);

}  // namespace zg
