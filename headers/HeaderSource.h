#pragma once

// The lines of a raw file as its header's reader takes them: from a file or from text in memory. The source
// knows at any time which line and field is at hand, so that readers convert fields with the plain
// conversions of base/ and what these raise leaves the reader as a HeaderError with its place.

#include <cstdint>
#include <string>
#include <string_view>

#include "base/Lines.h"
#include "base/Text.h"
#include "headers/HeaderError.h"

namespace zg {

class HeaderSource {
 public:
    /// Opens a file. Errors name it without its directory. Raises a HeaderError for a file that cannot be
    /// opened.
    explicit HeaderSource(const std::string& path);

    /// Reads from text, which must outlive the source; errors name it by the display name.
    HeaderSource(std::string_view text, std::string displayName);

    /// The next line without its end, valid until the next call, and what it is to hold ("period"); raises 62
    /// if the file ends here.
    std::string_view readLine(const char* part);

    bool atEnd() { return lines_.atEnd(); }

    /// See LineReader::ahead.
    std::string_view ahead() { return lines_.ahead(); }

    /// Makes a field of the line the one at hand, with its text if there is one to quote and what it should
    /// be.
    void atField(const char* field, std::string_view text = {}, const char* wanted = "a number");

    /// A line that was read, to come back to when its fields turn out wrong later.
    struct Line {
        std::size_t number = 0;
        const char* part = "";
    };
    Line line() const { return line_; }
    void atLine(Line line);

    /// Raises 13 for the line, and the field, at hand.
    [[noreturn]] void fail(const std::string& problem, const std::string& notice = {}) const;

    /// Runs the reader; what conversions raise in it becomes a HeaderError for the line and the field at
    /// hand.
    template <typename Read>
    auto placing(Read read) {
        try {
            return read();
        } catch (const HeaderError&) {
            throw;
        } catch (const RunTimeError& error) {
            failBy(error);
        }
    }

 private:
    HeaderPlace place() const;
    [[noreturn]] void failBy(const RunTimeError& error) const;

    std::string name_;
    LineReader lines_;
    Line line_;
    const char* field_ = "";
    std::string text_;  ///< of the field, as far as it is quoted
    const char* wanted_ = "";
};

/// The fields of a line, parted by blanks, one after the other. Each call names the field for the error that
/// it raises: 9 if the line has no further field, 13 or 6 if the conversion fails.
class HeaderFields {
 public:
    HeaderFields(HeaderSource& source, std::string_view line);
    HeaderFields(const HeaderFields&) = delete;
    HeaderFields& operator=(const HeaderFields&) = delete;

    bool atEnd() const { return next_ >= fields_.size(); }
    std::string text(const char* field);
    std::int16_t whole(const char* field);
    std::int32_t longWhole(const char* field);
    double number(const char* field);
    void skip(std::size_t count) { next_ += count; }

 private:
    HeaderSource& source_;
    std::string line_;
    Pieces fields_;
    std::size_t next_ = 0;
};

}  // namespace zg
