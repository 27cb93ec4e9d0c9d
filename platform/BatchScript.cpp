#include "platform/BatchScript.h"

#include <string_view>

#include "processing/RunReasons.h"

namespace zg {

namespace {

std::string shellQuoted(std::string_view word) {
    std::string out = "'";
    for (const char character : word) {
        if (character == '\'')
            out += "'\\''";
        else
            out += character;
    }
    return out + "'";
}

/// The pieces of a text between its blanks, each quoted, with a blank before each.
std::string quotedWords(std::string_view text) {
    std::string words;
    while (!text.empty()) {
        const std::size_t blank = text.find(' ');
        if (blank != 0) words += " " + shellQuoted(text.substr(0, blank));
        text.remove_prefix(blank == std::string_view::npos ? text.size() : blank + 1);
    }
    return words;
}

/// The reader of a report never sees half of it. A window that has ended takes its reports with it.
constexpr const char* tellFunction = R"sh(tell() {
    printf '%s\n' "$1" >&2
    { [ -z "$report" ] || { printf '%s\n' "$1" >"$report.part" && mv -f "$report.part" "$report"; }; } 2>/dev/null
}
)sh";

/// The processor's messages go on to the terminal and are kept for the reason. A program made for Windows
/// runs by way of wine where that is installed.
constexpr const char* startFunction = R"sh(start() {
    said=${report:+$report.said}
    if [ "$(head -c 2 "$program" 2>/dev/null)" = MZ ] && command -v wine >/dev/null; then
        set -- wine "$program" "$@"
    else
        set -- "$program" "$@"
    fi
    status=$( { { "$@" 3>&- 4>&-; echo $? >&4; } 2>&1 >&3 3>&- | tee "${said:-/dev/null}" >&2; } 4>&1 )
    last=$(tail -n 1 "${said:-/dev/null}" 2>/dev/null)
    last=${last#tempoline: }
    if [ -z "$status" ]; then
        reason='tempoline.exe was ended with its window'
    elif [ "$status" -gt 128 ] && signal=$(kill -l "$status" 2>/dev/null); then
        reason="tempoline.exe was ended by the signal $signal${last:+: $last}"
    elif [ "$status" -eq 0 ]; then
        reason='tempoline.exe ended with status 0 and left no listing'
    else
        reason="tempoline.exe ended with status $status${last:+: $last}"
    fi
}
)sh";

/// The listing's file as it is: another one, or other bytes in it, come of this run.
constexpr const char* stateFunction = R"sh(state() { stat -c '%d %i %s %.Z' "./$listing" 2>/dev/null; }
)sh";

constexpr const char* runFunction = R"sh(run() {
    cd -- "$directory" || { tell "the directory $directory cannot be entered"; return; }
    before=$(state)
    if [ -e "$program" ]; then
        start "$@"
    else
        reason="tempoline.exe is missing in $programs"
    fi
    after=$(state)
    if [ -n "$foreseen" ]; then
        tell "$foreseen"
    elif [ -z "$after" ] || [ "$after" = "$before" ]; then
        tell "$reason"
    elif ! cp -T "./$listing" finished.txt; then
        tell "finished.txt cannot be written in $directory"
    fi
}
)sh";

}  // namespace

std::string asShellScript(const RunBatch& run, const std::string& reportFile) {
    std::string script = "unset CDPATH\ntrap : HUP\nexec 3>&1\n";
    const auto set = [&script](const char* name, const std::string& value) {
        script += name + ("=" + shellQuoted(value)) + "\n";
    };
    set("directory", run.outputDirectory);
    set("programs", run.programDirectory);
    set("program", run.programDirectory + "/tempoline.exe");
    set("listing", run.base + "_tempoline.lst");
    set("report", reportFile);
    // The blank parts "copy" into too many words as well.
    set("foreseen", run.base.find(' ') == std::string::npos ? "" : foreseenTrouble(run.base, {}));
    script += tellFunction;
    script += startFunction;
    script += stateFunction;
    script += runFunction;
    return script + "run" + quotedWords(run.base + "_tempoline.inp") + "\n";
}

std::string shellArguments(const std::string& batchFile) { return "/c \"\"" + batchFile + "\"\""; }

std::vector<std::string> scriptCommand(const std::string& script, const std::string& terminal) {
    if (terminal.empty()) return {"sh", "-c", script};
    const std::string stay = "printf 'Press Enter to close this window. '; read -r key\n";
    return {terminal, "-e", "sh", "-c", script + stay};
}

}  // namespace zg
