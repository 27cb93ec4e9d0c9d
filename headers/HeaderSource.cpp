#include "headers/HeaderSource.h"

#include "base/Numbers.h"
#include "base/Paths.h"

namespace zg {

namespace {

constexpr std::size_t longestQuote = 20;

LineReader opened(const std::string& path) {
    try {
        return LineReader(path);
    } catch (const RunTimeError& error) {
        throw HeaderError(error.number, error.description, {FileNameOf(path), 0, "", ""}, error.description);
    }
}

std::string problemOf(const RunTimeError& error, const std::string& text, const char* wanted) {
    const bool isQuoted = !text.empty();
    switch (static_cast<ErrorNumber>(error.number)) {
        case ErrorNumber::TypeMismatch:
            return isQuoted ? "\"" + text + "\" is not " + wanted : "does not exist";
        case ErrorNumber::SubscriptOutOfRange:
            return "is missing";
        case ErrorNumber::Overflow:
            return isQuoted ? "\"" + text + "\" is out of range" : error.description;
        default:
            return error.description;
    }
}

}  // namespace

HeaderSource::HeaderSource(const std::string& path) : name_(FileNameOf(path)), lines_(opened(path)) {}

HeaderSource::HeaderSource(std::string_view text, std::string displayName)
    : name_(std::move(displayName)), lines_(LineReader::ofText(text)) {}

std::string_view HeaderSource::readLine(const char* part) {
    atLine({lines_.lineNumber() + 1, part});
    if (lines_.atEnd())
        throw HeaderError(static_cast<int>(ErrorNumber::InputPastEndOfFile),
                          errorDescription(ErrorNumber::InputPastEndOfFile), place(), "the file ends here");
    return lines_.readLine();
}

void HeaderSource::atLine(Line line) {
    line_ = line;
    field_ = "";
    text_.clear();
}

void HeaderSource::atField(const char* field, std::string_view text, const char* wanted) {
    field_ = field;
    wanted_ = wanted;
    text_.assign(text.substr(0, longestQuote));
}

HeaderPlace HeaderSource::place() const { return {name_, line_.number, line_.part, field_}; }

void HeaderSource::fail(const std::string& problem, const std::string& notice) const {
    HeaderError error(static_cast<int>(ErrorNumber::TypeMismatch),
                      errorDescription(ErrorNumber::TypeMismatch), place(), problem);
    error.notice = notice;
    throw error;
}

void HeaderSource::failBy(const RunTimeError& error) const {
    throw HeaderError(error.number, error.description, place(), problemOf(error, text_, wanted_));
}

HeaderFields::HeaderFields(HeaderSource& source, std::string_view line)
    : source_(source), line_(squeezeBlanks(line)), fields_(split(line_, " ")) {}

std::string HeaderFields::text(const char* field) {
    source_.atField(field);
    const std::string_view text = fields_[next_++];
    source_.atField(field, text);
    return std::string(text);
}

std::int16_t HeaderFields::whole(const char* field) { return toInt16(text(field)); }

std::int32_t HeaderFields::longWhole(const char* field) { return toInt32(text(field)); }

double HeaderFields::number(const char* field) { return toDouble(text(field)); }

}  // namespace zg
