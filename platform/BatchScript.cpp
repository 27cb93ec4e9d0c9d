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

/// The words of a text, separated by blanks, each quoted, with a blank before each.
std::string quotedWords(std::string_view text) {
    std::string words;
    while (!text.empty()) {
        const std::size_t blank = text.find(' ');
        if (blank != 0) words += " " + shellQuoted(text.substr(0, blank));
        text.remove_prefix(blank == std::string_view::npos ? text.size() : blank + 1);
    }
    return words;
}

/// A reader never sees half of a report. A window that has ended removes its reports.
constexpr const char* tellFunction = R"sh(tell() {
    printf '%s\n' "$1" >&2
    { [ -z "$report" ] || { printf '%s\n' "$1" >"$report.part" && mv -f "$report.part" "$report"; }; } 2>/dev/null
}
)sh";

/// The processor's messages go to the terminal and are also kept for the reason; this writes its exit status.
/// A Windows executable is run by wine, if installed. Only the processor itself takes the signals of the
/// terminal.
constexpr const char* workFunction = R"sh(work() {
    if [ "$(head -c 2 "$program" 2>/dev/null)" = MZ ] && command -v wine >/dev/null; then
        set -- wine "$program" "$@"
    else
        set -- "$program" "$@"
    fi
    { { (trap - HUP INT QUIT; exec "$@" 3>&- 4>&-); echo $? >&4; } 2>&1 >&3 3>&- | tee "$said" >&2; } 4>&1
}
)sh";

constexpr const char* reasonFunction = R"sh(reason() {
    last=$(tail -n 1 "$said" 2>/dev/null)
    last=${last#tempoline: }
    if [ -z "$1" ] || { [ "$1" -ge 129 ] && [ "$1" -le 131 ]; }; then
        echo 'tempoline.exe was interrupted, or its window was closed'
    elif [ "$1" -gt 128 ] && signal=$(kill -l "$1" 2>/dev/null); then
        printf '%s\n' "tempoline.exe was ended by the signal $signal${last:+: $last}"
    elif [ "$1" -eq 0 ]; then
        echo 'tempoline.exe ended with status 0 and left no listing'
    else
        printf '%s\n' "tempoline.exe ended with status $1${last:+: $last}"
    fi
}
)sh";

/// The state of the listing file: if another file or other bytes are found later, they come from this run.
constexpr const char* stateFunction = R"sh(state() { stat -c '%d %i %s %.Z' "./$listing" 2>/dev/null; }
)sh";

/// The marker appears with all its lines.
constexpr const char* finishFunction = R"sh(finish() {
    after=$(state)
    if [ -n "$foreseen" ]; then
        tell "$foreseen"
    elif [ -z "$after" ] || [ "$after" = "$before" ]; then
        tell "$(reason "$1")"
    elif ! { cp -T "./$listing" .finished.part && mv -fT .finished.part finished.txt; }; then
        rm -f .finished.part
        tell "finished.txt cannot be written in $directory"
    fi
}
)sh";

/// Closing the terminal or pressing Ctrl-C ends the processor, but its output is still examined: by a shell
/// that ignores these signals before the processor starts. The shell around it must not, since a closed
/// terminal tells only the first process, and the others when that one has ended.
constexpr const char* runFunction = R"sh(run() {
    cd -- "$directory" || { tell "the directory $directory cannot be entered"; return; }
    before=$(state)
    [ -e "$program" ] || { tell "tempoline.exe is missing in $programs"; return; }
    (trap '' HUP INT QUIT; finish "$(work "$@")")
}
)sh";

}  // namespace

std::string asShellScript(const RunBatch& run, const std::string& reportFile) {
    std::string script = "unset CDPATH\nexec 3>&1\n";
    const auto set = [&script](const char* name, const std::string& value) {
        script += name + ("=" + shellQuoted(value)) + "\n";
    };
    set("directory", run.outputDirectory);
    set("programs", run.programDirectory);
    set("program", run.programDirectory + "/tempoline.exe");
    set("listing", run.base + "_tempoline.lst");
    set("report", reportFile);
    set("said", reportFile.empty() ? "/dev/null" : reportFile + ".said");
    // The blank would also split the arguments of "copy".
    set("foreseen", run.base.find(' ') == std::string::npos ? "" : foreseenTrouble(run.base, {}));
    for (const char* function :
         {tellFunction, workFunction, reasonFunction, stateFunction, finishFunction, runFunction})
        script += function;
    return script + "run" + quotedWords(run.base + "_tempoline.inp") + "\n";
}

std::string shellArguments(const std::string& batchFile) { return "/c \"\"" + batchFile + "\"\""; }

std::vector<std::string> scriptCommand(const std::string& script, const std::string& terminal) {
    if (terminal.empty()) return {"sh", "-c", script};
    const std::string stay = "printf 'Press Enter to close this window. '; read -r key\n";
    return {terminal, "-e", "sh", "-c", script + stay};
}

}  // namespace zg
