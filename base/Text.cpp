#include "base/Text.h"

#include <algorithm>

#include "base/RunTimeError.h"

namespace zg {

std::string_view trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return text.substr(0, 0);
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string trim(std::string_view text) { return std::string(trimmed(text)); }

std::string squeezeBlanks(std::string_view text) {
    text = trimmed(text);
    std::string out;
    out.reserve(text.size());
    for (const char c : text)
        if (c != ' ' || out.back() != ' ') out.push_back(c);
    return out;
}

std::string lcase(std::string_view text) {
    std::string out(text);
    for (char& c : out)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    return out;
}

std::string ucase(std::string_view text) {
    std::string out(text);
    for (char& c : out)
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    return out;
}

std::string_view Pieces::operator[](std::size_t i) const {
    if (i >= pieces_.size()) raise(ErrorNumber::SubscriptOutOfRange);
    return pieces_[i];
}

Pieces split(std::string_view text, std::string_view separator) {
    std::vector<std::string_view> pieces;
    if (text.empty()) return Pieces(std::move(pieces));
    while (true) {
        const std::size_t at = separator.empty() ? std::string_view::npos : text.find(separator);
        pieces.push_back(text.substr(0, at));
        if (at == std::string_view::npos) return Pieces(std::move(pieces));
        text.remove_prefix(at + separator.size());
    }
}

std::string leftN(std::string_view text, std::size_t n) { return std::string(text.substr(0, n)); }

std::string rightN(std::string_view text, std::size_t n) {
    return std::string(text.substr(text.size() - std::min(n, text.size())));
}

std::string midN(std::string_view text, std::size_t start, std::size_t n) {
    if (start == 0) raise(ErrorNumber::InvalidProcedureCall);
    if (start > text.size()) return {};
    return std::string(text.substr(start - 1, n));
}

std::string removeQuotes(std::string_view text) {
    std::string out(trimmed(text));
    std::erase(out, '"');
    return out;
}

}  // namespace zg
