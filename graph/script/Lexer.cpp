#include "graph/script/Lexer.h"

#include <charconv>
#include <limits>
#include <unordered_map>

#include "base/Numbers.h"
#include "base/Text.h"
#include "graph/script/Limits.h"
#include "graph/script/ScriptError.h"

namespace zg::script {

namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool isLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
bool continuesName(char c) { return isLetter(c) || isDigit(c) || c == '_'; }
bool isBlank(char c) { return c == ' ' || c == '\t'; }
bool isLineEnd(char c) { return c == '\r' || c == '\n'; }

int digitValue(char c) {
    if (isDigit(c)) return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return 99;
}

const std::unordered_map<std::string_view, TokenKind>& words() {
    static const std::unordered_map<std::string_view, TokenKind> table = {
        {"and", TokenKind::And},
        {"byref", TokenKind::ByRef},
        {"byval", TokenKind::ByVal},
        {"call", TokenKind::Call},
        {"case", TokenKind::Case},
        {"const", TokenKind::Const},
        {"dim", TokenKind::Dim},
        {"do", TokenKind::Do},
        {"else", TokenKind::Else},
        {"elseif", TokenKind::ElseIf},
        {"empty", TokenKind::Empty},
        {"end", TokenKind::EndWord},
        {"eqv", TokenKind::Eqv},
        {"exit", TokenKind::Exit},
        {"false", TokenKind::False},
        {"for", TokenKind::For},
        {"function", TokenKind::Function},
        {"if", TokenKind::If},
        {"imp", TokenKind::Imp},
        {"let", TokenKind::Let},
        {"loop", TokenKind::Loop},
        {"mod", TokenKind::Mod},
        {"next", TokenKind::Next},
        {"not", TokenKind::Not},
        {"null", TokenKind::Null},
        {"option", TokenKind::Option},
        {"or", TokenKind::Or},
        {"private", TokenKind::Private},
        {"public", TokenKind::Public},
        {"select", TokenKind::Select},
        {"set", TokenKind::Set},
        {"sub", TokenKind::Sub},
        {"then", TokenKind::Then},
        {"to", TokenKind::To},
        {"true", TokenKind::True},
        {"until", TokenKind::Until},
        {"wend", TokenKind::Wend},
        {"while", TokenKind::While},
        {"xor", TokenKind::Xor},
        {"class", TokenKind::Reserved},
        {"each", TokenKind::Reserved},
        {"erase", TokenKind::Reserved},
        {"goto", TokenKind::Reserved},
        {"in", TokenKind::Reserved},
        {"is", TokenKind::Reserved},
        {"me", TokenKind::Reserved},
        {"new", TokenKind::Reserved},
        {"nothing", TokenKind::Reserved},
        {"on", TokenKind::Reserved},
        {"redim", TokenKind::Reserved},
        {"resume", TokenKind::Reserved},
        {"stop", TokenKind::Reserved},
        {"typeof", TokenKind::Reserved},
        {"with", TokenKind::Reserved},
    };
    return table;
}

}  // namespace

std::size_t Lexer::identifierEnd(std::size_t from) const {
    while (continuesName(at(from))) ++from;
    return from;
}

/// A blank and an underscore at the end of a line continue it on the next one.
bool Lexer::skipContinuation() {
    if (at(offset_) != '_' || offset_ == 0 || !isBlank(text_[offset_ - 1])) return false;
    std::size_t end = offset_ + 1;
    while (isBlank(at(end))) ++end;
    if (!isLineEnd(at(end))) return false;
    offset_ = end + (text_.substr(end).starts_with("\r\n") ? 2 : 1);
    return true;
}

void Lexer::skipComment() {
    while (offset_ < text_.size() && !isLineEnd(text_[offset_])) ++offset_;
}

void Lexer::skipBlanks() {
    do {
        while (isBlank(at(offset_))) ++offset_;
    } while (skipContinuation());
    if (at(offset_) == '\'') skipComment();
}

Token Lexer::made(TokenKind kind, std::size_t length) {
    Token token;
    token.kind = kind;
    token.offset = offset_;
    offset_ += length;
    token.end = offset_;
    return token;
}

Token Lexer::next() {
    skipBlanks();
    if (offset_ >= text_.size()) return made(TokenKind::End, 0);
    const char c = text_[offset_];
    if (isLineEnd(c)) return made(TokenKind::LineEnd, text_.substr(offset_).starts_with("\r\n") ? 2 : 1);
    if (isLetter(c)) return word();
    if (isDigit(c) || (c == '.' && isDigit(at(offset_ + 1)))) return number();
    if (c == '"') return textConstant();
    if (c == '&') {
        const char radix = at(offset_ + 1);
        if ((radix == 'h' || radix == 'H') && digitValue(at(offset_ + 2)) < 16) return radixNumber(16);
        if ((radix == 'o' || radix == 'O') && digitValue(at(offset_ + 2)) < 8) return radixNumber(8);
    }
    return symbol();
}

Token Lexer::word() {
    const std::size_t length = identifierEnd(offset_) - offset_;
    if (length > maxNameLength) throw ScriptError(ScriptErrorNumber::IdentifierTooLong, text_, offset_);
    std::string name = lcase(text_.substr(offset_, length));
    if (name == "rem") {
        skipComment();
        return next();
    }
    const auto found = words().find(name);
    Token token = made(found == words().end() ? TokenKind::Identifier : found->second, length);
    token.text = std::move(name);
    return token;
}

/// Digits without point or exponent are an integer of the narrowest width that holds it.
Token Lexer::number() {
    std::size_t end = offset_;
    bool isWhole = true;
    while (isDigit(at(end))) ++end;
    if (at(end) == '.') {
        isWhole = false;
        do ++end;
        while (isDigit(at(end)));
    }
    if (at(end) == 'e' || at(end) == 'E') {
        isWhole = false;
        ++end;
        if (at(end) == '+' || at(end) == '-') ++end;
        if (!isDigit(at(end))) throw ScriptError(ScriptErrorNumber::InvalidNumber, text_, offset_);
        while (isDigit(at(end))) ++end;
    }
    double value = 0;
    try {
        value = toDouble(text_.substr(offset_, end - offset_));
    } catch (const RunTimeError& error) {
        throw ScriptError(error.number, error.description, text_, offset_);
    }
    Token token = made(TokenKind::Number, end - offset_);
    token.number = isWhole ? widened(ValueType::Integer, value) : Value(value);
    return token;
}

/// The digits are the bits of an integer, or of a long if there are more digits or "&" follows.
Token Lexer::radixNumber(int base) {
    std::size_t end = offset_ + 2;
    while (digitValue(at(end)) < base) ++end;
    std::uint32_t bits = 0;
    const char* const last = text_.data() + end;
    const auto parsed = std::from_chars(text_.data() + offset_ + 2, last, bits, base);
    if (parsed.ec != std::errc() || continuesName(at(end)))
        throw ScriptError(ScriptErrorNumber::InvalidNumber, text_, offset_);
    const bool isLong = at(end) == '&';
    if (isLong) ++end;
    Token token = made(TokenKind::Number, end - offset_);
    if (bits <= 0xFFFF && !isLong)
        token.number = Value(ValueType::Integer, static_cast<std::int16_t>(bits));
    else
        token.number = Value(ValueType::Long, static_cast<std::int32_t>(bits));
    return token;
}

Token Lexer::textConstant() {
    std::string content;
    std::size_t i = offset_ + 1;
    for (; i < text_.size() && !isLineEnd(text_[i]); ++i) {
        if (text_[i] == '"') {
            if (at(i + 1) != '"') break;
            ++i;
        }
        content.push_back(text_[i]);
    }
    if (at(i) != '"') throw ScriptError(ScriptErrorNumber::UnterminatedString, text_, offset_);
    Token token = made(TokenKind::Text, i + 1 - offset_);
    token.text = std::move(content);
    return token;
}

Token Lexer::symbol() {
    const char after = at(offset_ + 1);
    switch (text_[offset_]) {
        case ':':
            return made(TokenKind::Colon, 1);
        case '(':
            return made(TokenKind::OpenParenthesis, 1);
        case ')':
            return made(TokenKind::CloseParenthesis, 1);
        case ',':
            return made(TokenKind::Comma, 1);
        case '.':
            return made(TokenKind::Dot, 1);
        case '+':
            return made(TokenKind::Plus, 1);
        case '-':
            return made(TokenKind::Minus, 1);
        case '*':
            return made(TokenKind::Star, 1);
        case '/':
            return made(TokenKind::Slash, 1);
        case '\\':
            return made(TokenKind::Backslash, 1);
        case '^':
            return made(TokenKind::Caret, 1);
        case '&':
            return made(TokenKind::Ampersand, 1);
        case '=':
            if (after == '<') return made(TokenKind::LessEqual, 2);
            if (after == '>') return made(TokenKind::GreaterEqual, 2);
            return made(TokenKind::Equal, 1);
        case '<':
            if (after == '>') return made(TokenKind::NotEqual, 2);
            if (after == '=') return made(TokenKind::LessEqual, 2);
            return made(TokenKind::Less, 1);
        case '>':
            if (after == '<') return made(TokenKind::NotEqual, 2);
            if (after == '=') return made(TokenKind::GreaterEqual, 2);
            return made(TokenKind::Greater, 1);
        default:
            throw ScriptError(ScriptErrorNumber::InvalidCharacter, text_, offset_);
    }
}

}  // namespace zg::script
