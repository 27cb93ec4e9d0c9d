#pragma once

// Lines of a data file of any size: big blocks are read one after the other, and never more than a few of
// them are in memory.

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "tempoline/Failure.h"

namespace zg::tempoline {

class BlockReader;

/// A line of a file, for what is told of it later. The path must outlive it.
struct Place {
    /// "path:line: field: text" (without the field where it is empty) to be thrown.
    Failure failure(std::string_view field, std::string_view text) const;

    const std::string& path;
    std::size_t line;
};

/// Whether a second thread fetches the next blocks while this one works.
enum class ReadAhead { No, Yes };

class LineSource {
 public:
    /// A line that is longer ends the run: nothing that is read here has such lines.
    static constexpr std::size_t longestLine = std::size_t{1} << 20;

    /// Throws where the file cannot be opened or is a directory.
    explicit LineSource(const std::string& path, ReadAhead readAhead = ReadAhead::No);
    ~LineSource();
    LineSource(const LineSource&) = delete;
    LineSource& operator=(const LineSource&) = delete;

    /// The next line without its LF or CR LF, valid until the next call; false at the end of the file. Throws
    /// for a line that is too long, a read error, a file that became shorter since it was opened, and an
    /// interrupt.
    bool next(std::string_view& line);

    /// The next line; throws where the file ends, with what it was to hold.
    std::string_view need(std::string_view what);

    /// Passes over so many lines; throws where the file ends before.
    void skip(std::size_t count, std::string_view what);

    const std::string& path() const { return path_; }

    /// Number of the line last given, from 1.
    std::size_t lineNumber() const { return lineNumber_; }

    /// As that of a Place, of the line last given.
    Failure failure(std::string_view field, std::string_view text) const {
        return Place(*this).failure(field, text);
    }

    /// The line last given.
    operator Place() const { return {path_, lineNumber_}; }

 private:
    bool fill();
    [[noreturn]] void failTooLong() const;

    std::string path_;
    std::unique_ptr<BlockReader> blocks_;
    std::vector<char> buffer_;
    std::size_t begin_ = 0;  ///< of what has not been given
    std::size_t end_ = 0;
    std::vector<std::uint32_t> lineEnds_;  ///< of the block read last, by their offsets in it
    std::size_t nextEnd_ = 0;              ///< of the first line that has not been given
    std::size_t blockBegin_ = 0;           ///< where the block stands in the buffer
    bool endOfFile_ = false;
    std::size_t lineNumber_ = 0;
};

/// Numbers of a line of a file, with the field's name in the failure.
int wholeField(const LineSource& source, std::string_view field, std::string_view name);
double valueField(const LineSource& source, std::string_view field, std::string_view name);

/// As valueField, a missing value being a fault too.
double numberField(const LineSource& source, std::string_view field, std::string_view name);

}  // namespace zg::tempoline
