#include "windtable/TableFields.h"

#include "windtable/TableLayout.h"

namespace zg {

namespace {

bool isBlankByte(char c) { return c == ' ' || c == '\t'; }

}  // namespace

std::string_view withoutBlanks(std::string_view text) {
    while (!text.empty() && isBlankByte(text.front())) text.remove_prefix(1);
    while (!text.empty() && isBlankByte(text.back())) text.remove_suffix(1);
    return text;
}

bool isEmptyLine(std::string_view line, char delimiter) {
    for (const char c : line)
        if (!isBlankByte(c) && c != delimiter && c != '\r') return false;
    return true;
}

std::string_view withoutByteOrderMark(std::string_view line) {
    if (line.starts_with("\xEF\xBB\xBF")) line.remove_prefix(3);
    return line;
}

bool TableFields::cut(std::string_view line, char delimiter, std::size_t most) {
    fields_.clear();
    if (line.find('"') != std::string_view::npos) return cutQuoted(line, delimiter, most);
    if (delimiter == blankDelimiter)
        cutBlanks(line, most);
    else
        cutPlain(line, delimiter, most);
    return true;
}

void TableFields::cutPlain(std::string_view line, char delimiter, std::size_t most) {
    while (fields_.size() < most) {
        const std::size_t end = line.find(delimiter);
        fields_.push_back(withoutBlanks(line.substr(0, end)));
        if (end == std::string_view::npos) return;
        line.remove_prefix(end + 1);
    }
}

void TableFields::cutBlanks(std::string_view line, std::size_t most) {
    std::size_t at = 0;
    while (fields_.size() < most) {
        while (at < line.size() && isBlankByte(line[at])) ++at;
        if (at == line.size()) return;
        const std::size_t begin = at;
        while (at < line.size() && !isBlankByte(line[at])) ++at;
        fields_.push_back(line.substr(begin, at - begin));
    }
}

/// The values are copied without their quotes into one text, which is at most as long as the line.
bool TableFields::cutQuoted(std::string_view line, char delimiter, std::size_t most) {
    unquoted_.clear();
    unquoted_.reserve(line.size());
    const bool byBlanks = delimiter == blankDelimiter;
    std::size_t at = 0;
    while (fields_.size() < most) {
        while (at < line.size() && (line[at] == ' ' || (line[at] == '\t' && delimiter != '\t'))) ++at;
        if (byBlanks && at == line.size()) return true;
        const std::size_t begin = unquoted_.size();
        bool quoted = false;
        for (; at < line.size(); ++at) {
            const char c = line[at];
            if (c == '"' && quoted && at + 1 < line.size() && line[at + 1] == '"')
                unquoted_ += line[++at];
            else if (c == '"')
                quoted = !quoted;
            else if (!quoted && (byBlanks ? isBlankByte(c) : c == delimiter))
                break;
            else
                unquoted_ += c;
        }
        if (quoted) return false;
        fields_.push_back(withoutBlanks(std::string_view(unquoted_).substr(begin)));
        if (at == line.size()) return true;
        ++at;
    }
    return true;
}

}  // namespace zg
