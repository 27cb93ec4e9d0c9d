#pragma once

// The lines of a raw file for its header's reader: from a file or from text in memory. The source tracks the
// current line and field, so that readers can use the plain conversions of base/, whose errors leave the
// reader as a HeaderError with its place.

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

    /// The next line without its line end, valid until the next call; `what` says what it should hold
    /// ("period"). Raises 62 if the file ends here.
    std::string_view readLine(const char* part);

    bool atEnd() { return lines_.atEnd(); }

    /// See LineReader::ahead.
    std::string_view ahead() { return lines_.ahead(); }

    /// Makes a field of the line the current one, with its text if it can be quoted, and what it should be.
    void atField(const char* field, std::string_view text = {}, const char* wanted = "a number");

    /// A line that was read, to return to if its fields turn out wrong later.
    struct Line {
        std::size_t number = 0;
        const char* part = "";
    };
    Line line() const { return line_; }
    void atLine(Line line);

    /// Raises 13 for the current line and field.
    [[noreturn]] void fail(const std::string& problem, const std::string& notice = {}) const;

    /// Runs the reader; errors of conversions in it become a HeaderError for the current line and field.
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
    std::string text_;  ///< of the field, if it is quoted
    const char* wanted_ = "";
};

/// The fields of a line, separated by blanks, one after the other. Each call names the field for its error: 9
/// if the line has no further field, 13 or 6 if the conversion fails.
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
