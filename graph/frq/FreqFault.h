#pragma once

// What a line of an FRQ file should hold and what it holds instead, as the place of an error.

#include <cstddef>
#include <string>
#include <string_view>

#include "base/Lines.h"
#include "base/RunTimeError.h"

namespace zg {

/// Gives an error the place "19: six percentages, found five", where 19 is the line that was read last; an
/// error that has a place keeps it.
void placeFreqError(RunTimeError& error, const LineReader& reader, std::string_view expected,
                    std::string_view found);

/// The same for a file that ended before the next line, or before the last of several.
void placeFreqEnd(RunTimeError& error, const LineReader& reader, std::string_view expected,
                  std::string_view found = "the end of the file");

/// The text as UTF-8 in double quotes, without the blanks around it and cut if it is long; "an empty line"
/// for blanks.
std::string freqQuote(std::string_view text);

/// The number as a word, from "none" to "twelve", and larger ones as digits.
std::string freqNumber(std::size_t number);

/// The next line; an error says what was expected there.
std::string_view readFreqLine(LineReader& reader, const char* expected);

/// Reads the next line and lets it be parsed; an error says what was expected, and quotes the line.
template <typename Parse>
auto readFreqLine(LineReader& reader, const char* expected, Parse parse) {
    const std::string_view line = readFreqLine(reader, expected);
    try {
        return parse(line);
    } catch (RunTimeError& error) {
        placeFreqError(error, reader, expected, freqQuote(line));
        throw;
    }
}

}  // namespace zg
