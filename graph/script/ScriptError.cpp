#include "graph/script/ScriptError.h"

#include <algorithm>
#include <utility>

namespace zg {

namespace {

struct Description {
    ScriptErrorNumber number;
    const char* text;
};

constexpr Description descriptions[] = {
    {ScriptErrorNumber::OutOfMemory, "Out of memory"},
    {ScriptErrorNumber::OutOfStackSpace, "Out of stack space"},
    {ScriptErrorNumber::InvalidUseOfNull, "Invalid use of Null"},
    {ScriptErrorNumber::InvalidPropertyValue, "Invalid property value"},
    {ScriptErrorNumber::ObjectRequired, "Object required"},
    {ScriptErrorNumber::UnsupportedMember, "Object doesn't support this property or method"},
    {ScriptErrorNumber::WrongArguments, "Wrong number of arguments or invalid property assignment"},
    {ScriptErrorNumber::VariableUndefined, "Variable is undefined"},
    {ScriptErrorNumber::IllegalAssignment, "Illegal assignment"},
    {ScriptErrorNumber::SyntaxError, "Syntax error"},
    {ScriptErrorNumber::ExpectedOpenParenthesis, "Expected '('"},
    {ScriptErrorNumber::ExpectedCloseParenthesis, "Expected ')'"},
    {ScriptErrorNumber::ExpectedIdentifier, "Expected identifier"},
    {ScriptErrorNumber::ExpectedEquals, "Expected '='"},
    {ScriptErrorNumber::ExpectedIf, "Expected 'If'"},
    {ScriptErrorNumber::ExpectedTo, "Expected 'To'"},
    {ScriptErrorNumber::ExpectedEnd, "Expected 'End'"},
    {ScriptErrorNumber::ExpectedFunction, "Expected 'Function'"},
    {ScriptErrorNumber::ExpectedSub, "Expected 'Sub'"},
    {ScriptErrorNumber::ExpectedThen, "Expected 'Then'"},
    {ScriptErrorNumber::ExpectedWend, "Expected 'Wend'"},
    {ScriptErrorNumber::ExpectedLoop, "Expected 'Loop'"},
    {ScriptErrorNumber::ExpectedNext, "Expected 'Next'"},
    {ScriptErrorNumber::ExpectedCase, "Expected 'Case'"},
    {ScriptErrorNumber::ExpectedSelect, "Expected 'Select'"},
    {ScriptErrorNumber::ExpectedStatement, "Expected statement"},
    {ScriptErrorNumber::ExpectedEndOfStatement, "Expected end of statement"},
    {ScriptErrorNumber::ExpectedIntegerConstant, "Expected integer constant"},
    {ScriptErrorNumber::ExpectedWhileOrUntil, "Expected 'While' or 'Until'"},
    {ScriptErrorNumber::IdentifierTooLong, "Identifier too long"},
    {ScriptErrorNumber::InvalidNumber, "Invalid number"},
    {ScriptErrorNumber::InvalidCharacter, "Invalid character"},
    {ScriptErrorNumber::UnterminatedString, "Unterminated string constant"},
    {ScriptErrorNumber::LoopWithoutDo, "'loop' without 'do'"},
    {ScriptErrorNumber::InvalidExit, "Invalid 'exit' statement"},
    {ScriptErrorNumber::InvalidForVariable, "Invalid 'for' loop control variable"},
    {ScriptErrorNumber::NameRedefined, "Name redefined"},
    {ScriptErrorNumber::ParenthesesWithSub, "Cannot use parentheses when calling a Sub"},
    {ScriptErrorNumber::ExpectedLiteral, "Expected literal constant"},
    {ScriptErrorNumber::OutOfTime, "The script ran out of time"},
};

constexpr std::size_t snippetWidth = 80;

bool continuesCharacter(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

std::size_t characters(std::string_view text) {
    return text.size() -
           static_cast<std::size_t>(std::count_if(text.begin(), text.end(), continuesCharacter));
}

/// The offset of the character that many characters before `offset`; not before `first`.
std::size_t stepBack(std::string_view text, std::size_t first, std::size_t offset, std::size_t count) {
    while (offset > first && count > 0) {
        --offset;
        if (!continuesCharacter(text[offset])) --count;
    }
    return offset;
}

std::string snippetOf(std::string_view text, std::size_t lineStart, std::size_t offset) {
    const std::size_t lineEnd = std::min(text.find_first_of("\r\n", lineStart), text.size());
    const std::size_t from = stepBack(text, lineStart, offset, snippetWidth / 2);
    std::size_t end = from;
    for (std::size_t count = 0; end < lineEnd; ++end)
        if (!continuesCharacter(text[end]) && ++count > snippetWidth) break;
    std::string out(text.substr(from, end - from));
    std::replace(out.begin(), out.end(), '\t', ' ');
    return out + "\n" + std::string(characters(text.substr(from, offset - from)), ' ') + "^";
}

}  // namespace

const char* errorDescription(ScriptErrorNumber number) {
    for (const Description& description : descriptions)
        if (description.number == number) return description.text;
    return "Application-defined or object-defined error";
}

ScriptError::ScriptError(int errorNumber, std::string errorDescription, std::string_view text,
                         std::size_t offset)
    : RunTimeError(errorNumber, std::move(errorDescription)), line(1), column(1) {
    offset = std::min(offset, text.size());
    std::size_t lineStart = 0;
    for (std::size_t i = 0; i < offset; ++i) {
        const bool pair = text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n';
        if (pair && i + 1 == offset) break;
        if (pair) ++i;
        if (text[i] != '\r' && text[i] != '\n') continue;
        ++line;
        lineStart = i + 1;
    }
    column = static_cast<int>(characters(text.substr(lineStart, offset - lineStart))) + 1;
    snippet = snippetOf(text, lineStart, offset);
}

ScriptError::ScriptError(ScriptErrorNumber errorNumber, std::string_view text, std::size_t offset)
    : ScriptError(static_cast<int>(errorNumber), zg::errorDescription(errorNumber), text, offset) {}

ZeroByZero::ZeroByZero()
    : RunTimeError(static_cast<int>(ErrorNumber::Overflow), zg::errorDescription(ErrorNumber::Overflow)) {}

void raise(ScriptErrorNumber number) {
    throw RunTimeError(static_cast<int>(number), errorDescription(number));
}

}  // namespace zg
