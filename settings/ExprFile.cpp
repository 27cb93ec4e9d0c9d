#include "settings/ExprFile.h"

#include <algorithm>

#include "base/Files.h"
#include "base/Lines.h"
#include "base/RunTimeError.h"
#include "base/Text.h"

namespace zg {

namespace {

constexpr const char* fileKind = "Polar Graph 1.0";

std::string squeezedLower(const std::string& text) {
    std::string out = lcase(text);
    std::erase(out, ' ');
    return out;
}

void write(const std::string& path, const std::vector<std::string>& expressions) {
    LineWriter file(path);
    writeQuoted(file, fileKind);
    for (const std::string& expression : expressions) writeQuoted(file, expression);
    file.close();
}

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
    const std::string fresh = path + ".new";
    try {
        write(fresh, expressions);
    } catch (const RunTimeError&) {
        removeFile(fresh);
        return false;
    }
    const bool replaced = moveFile(fresh, path);
    if (!replaced) removeFile(fresh);
    return replaced;
}

bool sameExpression(const std::string& a, const std::string& b) {
    return squeezedLower(a) == squeezedLower(b);
}

}  // namespace zg
