#include "settings/ExprFile.h"

#include <algorithm>

#include "base/Lines.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "settings/WholeText.h"

namespace zg {

namespace {

constexpr const char* fileKind = "Polar Graph 1.0";

std::string squeezedLower(const std::string& text) {
    std::string out = lcase(text);
    std::erase(out, ' ');
    return out;
}

std::string quoted(const std::string& text) { return '"' + text + "\"\r\n"; }

}  // namespace

std::vector<std::string> readExpressions(const std::string& path) {
    std::vector<std::string> expressions;
    try {
        QuotedRecordReader records(readWholeFile(path));
        if (records.next() != fileKind) return {};
        while (!records.atEnd()) expressions.push_back(records.next());
    } catch (const RunTimeError&) {
        // The list is what was read until then.
    }
    return expressions;
}

bool writeExpressions(const std::string& path, const std::vector<std::string>& expressions) {
    std::string text = quoted(fileKind);
    for (const std::string& expression : expressions) text += quoted(expression);
    return replaceFile(path, text);
}

bool sameExpression(const std::string& a, const std::string& b) {
    return squeezedLower(a) == squeezedLower(b);
}

}  // namespace zg
