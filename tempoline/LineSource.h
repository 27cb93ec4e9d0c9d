#pragma once

// Lines of a data file of any size: it is read in large blocks, of which only a few are in memory at a time.

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "tempoline/Failure.h"

namespace zg::tempoline {

class BlockReader;

/// A line of a file, for later messages about it. The path must outlive it.
struct Place {
    /// "path:line: field: text" (without the field if it is empty), for the caller to throw.
    Failure failure(std::string_view field, std::string_view text) const;

    const std::string& path;
    std::size_t line;
};

/// Whether a second thread fetches the next blocks in the meantime.
enum class ReadAhead { No, Yes };

class LineSource {
 public:
    /// A longer line ends the run; no supported format has such lines.
    static constexpr std::size_t longestLine = std::size_t{1} << 20;

    /// Throws if the file cannot be opened or is a directory.
    explicit LineSource(const std::string& path, ReadAhead readAhead = ReadAhead::No);
    ~LineSource();
    LineSource(const LineSource&) = delete;
    LineSource& operator=(const LineSource&) = delete;

    /// The next line without its LF or CR LF, valid until the next call; false at the end of the file. Throws
    /// for a line that is too long, a read error, a file truncated since it was opened, and an interrupt.
    bool next(std::string_view& line);

    /// The next line; throws at the end of the file, with `what` the line should have held.
    std::string_view need(std::string_view what);

    /// Skips that many lines; throws if the file ends before.
    void skip(std::size_t count, std::string_view what);

    const std::string& path() const { return path_; }

    /// Number of the line last returned, from 1.
    std::size_t lineNumber() const { return lineNumber_; }

    /// Like Place::failure, for the line last returned.
    Failure failure(std::string_view field, std::string_view text) const {
        return Place(*this).failure(field, text);
    }

    /// The line last returned.
    operator Place() const { return {path_, lineNumber_}; }

 private:
    bool fill();
    [[noreturn]] void failTooLong() const;

    std::string path_;
    std::unique_ptr<BlockReader> blocks_;
    std::vector<char> buffer_;
    std::size_t begin_ = 0;  ///< not yet returned
    std::size_t end_ = 0;
    std::vector<std::uint32_t> lineEnds_;  ///< in the current block, by offset
    std::size_t nextEnd_ = 0;              ///< of the first line not yet returned
    std::size_t blockBegin_ = 0;           ///< offset of the block in the buffer
    bool endOfFile_ = false;
    std::size_t lineNumber_ = 0;
};

/// Numbers in a line of a file; failures name the field.
int wholeField(const LineSource& source, std::string_view field, std::string_view name);
double valueField(const LineSource& source, std::string_view field, std::string_view name);

/// Like valueField, but a missing value is an error too.
double numberField(const LineSource& source, std::string_view field, std::string_view name);

}  // namespace zg::tempoline
