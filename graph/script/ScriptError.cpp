#include "graph/script/ScriptError.h"

namespace zg {

const char* scriptErrorDescription(ScriptErrorNumber number) {
    switch (number) {
        case ScriptErrorNumber::OutOfMemory:
            return "Out of memory";
        case ScriptErrorNumber::OutOfStackSpace:
            return "Out of stack space";
        case ScriptErrorNumber::InvalidUseOfNull:
            return "Invalid use of Null";
        case ScriptErrorNumber::ObjectRequired:
            return "Object required";
        case ScriptErrorNumber::NoSuchMember:
            return "Object doesn't support this property or method";
        case ScriptErrorNumber::WrongArgumentCount:
            return "Wrong number of arguments or invalid property assignment";
        case ScriptErrorNumber::VariableIsUndefined:
            return "Variable is undefined";
        case ScriptErrorNumber::IllegalAssignment:
            return "Illegal assignment";
        case ScriptErrorNumber::SyntaxError:
            return "Syntax error";
        case ScriptErrorNumber::ExpectedOpenParenthesis:
            return "Expected '('";
        case ScriptErrorNumber::ExpectedCloseParenthesis:
            return "Expected ')'";
        case ScriptErrorNumber::ExpectedIdentifier:
            return "Expected identifier";
        case ScriptErrorNumber::ExpectedEquals:
            return "Expected '='";
        case ScriptErrorNumber::ExpectedIf:
            return "Expected 'If'";
        case ScriptErrorNumber::ExpectedTo:
            return "Expected 'To'";
        case ScriptErrorNumber::ExpectedEnd:
            return "Expected 'End'";
        case ScriptErrorNumber::ExpectedFunction:
            return "Expected 'Function'";
        case ScriptErrorNumber::ExpectedSub:
            return "Expected 'Sub'";
        case ScriptErrorNumber::ExpectedThen:
            return "Expected 'Then'";
        case ScriptErrorNumber::ExpectedWend:
            return "Expected 'Wend'";
        case ScriptErrorNumber::ExpectedLoop:
            return "Expected 'Loop'";
        case ScriptErrorNumber::ExpectedNext:
            return "Expected 'Next'";
        case ScriptErrorNumber::ExpectedCase:
            return "Expected 'Case'";
        case ScriptErrorNumber::ExpectedSelect:
            return "Expected 'Select'";
        case ScriptErrorNumber::ExpectedExpression:
            return "Expected expression";
        case ScriptErrorNumber::ExpectedStatement:
            return "Expected statement";
        case ScriptErrorNumber::ExpectedEndOfStatement:
            return "Expected end of statement";
        case ScriptErrorNumber::ExpectedLiteralConstant:
            return "Expected literal constant";
        case ScriptErrorNumber::InvalidNumber:
            return "Invalid number";
        case ScriptErrorNumber::InvalidCharacter:
            return "Invalid character";
        case ScriptErrorNumber::UnterminatedString:
            return "Unterminated string constant";
        case ScriptErrorNumber::InvalidExit:
            return "Invalid 'exit' statement";
        case ScriptErrorNumber::NameRedefined:
            return "Name redefined";
        case ScriptErrorNumber::TimedOut:
            return "The script ran out of time";
    }
    return "Syntax error";
}

void raiseScript(ScriptErrorNumber number) {
    throw RunTimeError(static_cast<int>(number), scriptErrorDescription(number));
}

}  // namespace zg
