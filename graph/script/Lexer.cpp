#include "graph/script/Lexer.h"

#include <charconv>
#include <unordered_map>

#include "base/Numbers.h"
#include "base/Text.h"

namespace zg {

namespace {

constexpr std::size_t longestShownLine = 200;

bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool isLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
bool isNamePart(char c) { return isLetter(c) || isDigit(c) || c == '_'; }

const std::unordered_map<std::string, Token>& words() {
    static const std::unordered_map<std::string, Token> table = {{"and", Token::And},
                                                                 {"byref", Token::ByRef},
                                                                 {"byval", Token::ByVal},
                                                                 {"call", Token::Call},
                                                                 {"case", Token::Case},
                                                                 {"const", Token::Const},
                                                                 {"dim", Token::Dim},
                                                                 {"do", Token::Do},
                                                                 {"else", Token::Else},
                                                                 {"elseif", Token::ElseIf},
                                                                 {"empty", Token::Empty},
                                                                 {"end", Token::EndWord},
                                                                 {"eqv", Token::Eqv},
                                                                 {"exit", Token::Exit},
                                                                 {"false", Token::False},
                                                                 {"for", Token::For},
                                                                 {"function", Token::Function},
                                                                 {"if", Token::If},
                                                                 {"imp", Token::Imp},
                                                                 {"is", Token::Is},
                                                                 {"let", Token::Let},
                                                                 {"loop", Token::Loop},
                                                                 {"mod", Token::Mod},
                                                                 {"next", Token::Next},
                                                                 {"not", Token::Not},
                                                                 {"null", Token::Null},
                                                                 {"option", Token::Option},
                                                                 {"or", Token::Or},
                                                                 {"select", Token::Select},
                                                                 {"sub", Token::Sub},
                                                                 {"then", Token::Then},
                                                                 {"to", Token::To},
                                                                 {"true", Token::True},
                                                                 {"until", Token::Until},
                                                                 {"wend", Token::Wend},
                                                                 {"while", Token::While},
                                                                 {"xor", Token::Xor}};
    return table;
}

}  // namespace

void Lexer::fail(ScriptErrorNumber number, ScriptPosition position) const {
    throw ScriptError(static_cast<int>(number), scriptErrorDescription(number), position,
                      sourceLine(position.line));
}

std::string Lexer::sourceLine(int line) const {
    std::size_t from = 0;
    for (int i = 1; i < line && from < source_.size(); ++i) {
        const std::size_t end = source_.find_first_of("\r\n", from);
        if (end == std::string_view::npos) return {};
        from = end + (source_.compare(end, 2, "\r\n") == 0 ? 2U : 1U);
    }
    if (from > source_.size()) return {};
    const std::size_t end = std::min(source_.find_first_of("\r\n", from), source_.size());
    return std::string(source_.substr(from, std::min(end - from, longestShownLine)));
}

/// A line that ends in a blank and "_" goes on in the next one.
bool Lexer::skipContinuation() {
    if (peek() != '_') return false;
    std::size_t end = at_ + 1;
    while (end < source_.size() && (source_[end] == ' ' || source_[end] == '\t')) ++end;
    if (end >= source_.size() || (source_[end] != '\r' && source_[end] != '\n')) return false;
    at_ = end + (source_.compare(end, 2, "\r\n") == 0 ? 2U : 1U);
    lineStart_ = at_;
    ++line_;
    return true;
}

bool Lexer::skipBlanks() {
    const std::size_t from = at_;
    while (peek() == ' ' || peek() == '\t') ++at_;
    return at_ != from;
}

void Lexer::skipComment() {
    while (at_ < source_.size() && source_[at_] != '\r' && source_[at_] != '\n') ++at_;
}

void Lexer::next() {
    while (skipBlanks() || skipContinuation()) {
    }
    if (peek() == '\'' && at_ < source_.size()) skipComment();
    position_ = {line_, static_cast<int>(at_ - lineStart_) + 1};
    if (at_ >= source_.size()) {
        token_ = Token::End;
        return;
    }
    const char c = peek();
    if (isDigit(c) || (c == '.' && isDigit(peek(1))))
        readNumber();
    else if (c == '&' && (peek(1) == 'h' || peek(1) == 'H' || peek(1) == 'o' || peek(1) == 'O'))
        readPrefixedNumber();
    else if (c == '"')
        readText();
    else if (isLetter(c))
        readName();
    else
        readOperator();
}

void Lexer::readNumber() {
    const std::size_t from = at_;
    bool whole = true;
    while (isDigit(peek())) ++at_;
    if (peek() == '.') {
        whole = false;
        ++at_;
        while (isDigit(peek())) ++at_;
    }
    if (peek() == 'e' || peek() == 'E') {
        const std::size_t sign = peek(1) == '+' || peek(1) == '-' ? 2 : 1;
        if (!isDigit(peek(sign))) fail(ScriptErrorNumber::InvalidNumber);
        whole = false;
        at_ += sign;
        while (isDigit(peek())) ++at_;
    }
    if (isNamePart(peek()))
        fail(ScriptErrorNumber::ExpectedEndOfStatement, {line_, static_cast<int>(at_ - lineStart_) + 1});
    double number = 0;
    try {
        number = toDouble(source_.substr(from, at_ - from));
    } catch (const RunTimeError& error) {
        throw ScriptError(error.number, error.description, position_, sourceLine(position_.line));
    }
    value_ = whole ? Value::ofWhole(number) : Value::ofDouble(number);
    token_ = Token::Number;
}

/// "&H1F" and "&O17"; the bits of four hexadecimal digits are those of a 16-bit number.
void Lexer::readPrefixedNumber() {
    const int base = peek(1) == 'h' || peek(1) == 'H' ? 16 : 8;
    at_ += 2;
    std::uint32_t bits = 0;
    const char* const from = source_.data() + at_;
    const auto [end, error] = std::from_chars(from, source_.data() + source_.size(), bits, base);
    if (error != std::errc() || end == from) fail(ScriptErrorNumber::InvalidNumber);
    at_ += static_cast<std::size_t>(end - from);
    if (peek() == '&') ++at_;  // the mark of a 32-bit number
    const bool sixteen = bits <= 0xFFFFU && source_[at_ - 1] != '&';
    const double number = sixteen ? static_cast<double>(static_cast<std::int16_t>(bits))
                                  : static_cast<double>(static_cast<std::int32_t>(bits));
    value_ = Value::ofWhole(number);
    token_ = Token::Number;
}

void Lexer::readText() {
    std::string text;
    ++at_;
    while (true) {
        if (at_ >= source_.size() || peek() == '\r' || peek() == '\n')
            fail(ScriptErrorNumber::UnterminatedString);
        if (peek() == '"') {
            if (peek(1) != '"') break;
            ++at_;
        }
        text.push_back(peek());
        ++at_;
    }
    ++at_;
    value_ = Value::ofString(std::move(text));
    token_ = Token::Text;
}

void Lexer::readName() {
    const std::size_t from = at_;
    while (isNamePart(peek())) ++at_;
    name_ = lcase(source_.substr(from, at_ - from));
    if (name_ == "rem") {
        skipComment();
        next();
        return;
    }
    const auto word = words().find(name_);
    token_ = word == words().end() ? Token::Name : word->second;
}

void Lexer::readOperator() {
    const char c = peek();
    const char d = peek(1);
    ++at_;
    const auto pair = [this](Token token) {
        ++at_;
        token_ = token;
    };
    switch (c) {
        case '\r':
        case '\n':
            if (c == '\r' && d == '\n') ++at_;
            ++line_;
            lineStart_ = at_;
            token_ = Token::EndOfLine;
            return;
        case ':':
            token_ = Token::Colon;
            return;
        case '+':
            token_ = Token::Plus;
            return;
        case '-':
            token_ = Token::Minus;
            return;
        case '*':
            token_ = Token::Times;
            return;
        case '/':
            token_ = Token::Slash;
            return;
        case '\\':
            token_ = Token::Backslash;
            return;
        case '^':
            token_ = Token::Caret;
            return;
        case '&':
            token_ = Token::Ampersand;
            return;
        case '(':
            token_ = Token::Open;
            return;
        case ')':
            token_ = Token::Close;
            return;
        case ',':
            token_ = Token::Comma;
            return;
        case '.':
            token_ = Token::Dot;
            return;
        case '=':
            if (d == '<') return pair(Token::LessOrEqual);
            if (d == '>') return pair(Token::GreaterOrEqual);
            token_ = Token::Equal;
            return;
        case '<':
            if (d == '=') return pair(Token::LessOrEqual);
            if (d == '>') return pair(Token::NotEqual);
            token_ = Token::Less;
            return;
        case '>':
            if (d == '=') return pair(Token::GreaterOrEqual);
            if (d == '<') return pair(Token::NotEqual);
            token_ = Token::Greater;
            return;
        default:
            fail(ScriptErrorNumber::InvalidCharacter);
    }
}

}  // namespace zg
