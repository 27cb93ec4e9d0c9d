#include "graph/frq/FreqFault.h"

#include <array>

#include "base/Encoding.h"
#include "base/Text.h"

namespace zg {

namespace {

constexpr std::size_t longestQuote = 60;

std::string placeText(std::size_t line, std::string_view expected, std::string_view found) {
    std::string text = std::to_string(line) + ": ";
    return text.append(expected).append(", found ").append(found);
}

/// Never within a character of several bytes.
std::size_t cutAt(std::string_view text, std::size_t most) {
    while (most > 0 && (static_cast<unsigned char>(text[most]) & 0xC0U) == 0x80U) --most;
    return most;
}

}  // namespace

void placeFreqError(RunTimeError& error, const LineReader& reader, std::string_view expected,
                    std::string_view found) {
    if (error.where.empty()) error.where = placeText(reader.lineNumber(), expected, found);
}

void placeFreqEnd(RunTimeError& error, const LineReader& reader, std::string_view expected,
                  std::string_view found) {
    const bool isEnd = error.number == static_cast<int>(ErrorNumber::InputPastEndOfFile);
    if (isEnd && error.where.empty()) error.where = placeText(reader.lineNumber() + 1, expected, found);
}

std::string freqQuote(std::string_view text) {
    const std::string words = toUtf8(trimmed(text));
    if (words.empty()) return "an empty line";
    const bool isLong = words.size() > longestQuote;
    std::string quote = "\"";
    quote.append(words, 0, isLong ? cutAt(words, longestQuote) : words.size());
    for (char& c : quote)
        if (static_cast<unsigned char>(c) < ' ') c = ' ';
    if (isLong) quote += "...";
    return quote + "\"";
}

std::string freqNumber(std::size_t number) {
    constexpr std::array<const char*, 13> words = {"none", "one",    "two",   "three", "four",
                                                   "five", "six",    "seven", "eight", "nine",
                                                   "ten",  "eleven", "twelve"};
    return number < words.size() ? words[number] : std::to_string(number);
}

std::string_view readFreqLine(LineReader& reader, const char* expected) {
    try {
        return reader.readLine();
    } catch (RunTimeError& error) {
        placeFreqEnd(error, reader, expected);
        throw;
    }
}

}  // namespace zg
