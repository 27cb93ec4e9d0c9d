// The processor: runs a control file, or joins the counts of partial runs.

#include <cstddef>
#include <cstdio>
#include <exception>
#include <new>
#include <string>
#include <vector>

#include "base/Console.h"
#include "base/Files.h"
#include "base/Paths.h"
#include "base/Version.h"
#include "tempoline/Interrupt.h"
#include "tempoline/Merge.h"
#include "tempoline/Run.h"

namespace {

using zg::tempoline::ExitStatus;
using zg::tempoline::Failure;

constexpr const char* usage =
    "usage: tempoline.exe [--] CONTROLFILE\n"
    "       tempoline.exe --merge [--out NAME] [--] A.tab B.tab ...\n"
    "       tempoline.exe --help | --version\n";

constexpr const char* help =
    "\n"
    "Counts the winds of raw data and writes roses (FRQ), their counts (TAB) and the winds step by step "
    "(TSF)\n"
    "into the current directory, as the control file asks, with a listing that tells the run.\n"
    "--merge adds the counts of runs over parts of the data: NAME.frq and NAME.tab, \"merged\" without "
    "--out.\n"
    "\n"
    "Exit status: 0 completed, 1 the data or the disk, 2 the control file or the command line, 130 "
    "interrupted.\n";

ExitStatus merge(const std::vector<std::string>& arguments) {
    std::string name = "merged";
    std::vector<std::string> files;
    for (std::size_t i = 1; i < arguments.size(); ++i) {
        if (arguments[i] == "--") {
            files.insert(files.end(), arguments.begin() + static_cast<std::ptrdiff_t>(i) + 1,
                         arguments.end());
            break;
        }
        if (arguments[i] == "--out" && i + 1 < arguments.size())
            name = arguments[++i];
        else
            files.push_back(arguments[i]);
    }
    if (files.empty() || !zg::isPlainName(name + ".tab")) {
        std::fputs(usage, stderr);
        return ExitStatus::BadControl;
    }
    zg::tempoline::mergeTabs(files, name);
    return ExitStatus::Completed;
}

ExitStatus say(const std::string& text) {
    const bool written = std::fputs(text.c_str(), stdout) >= 0 && std::fflush(stdout) == 0;
    return written ? ExitStatus::Completed : ExitStatus::Failed;
}

/// A control file takes its name from the data, which may begin with a hyphen.
bool isOption(const std::string& argument) { return argument.starts_with('-') && !zg::fileExists(argument); }

ExitStatus start(const std::vector<std::string>& arguments) {
    if (!arguments.empty() && arguments[0] == "--merge") return merge(arguments);
    if (arguments.size() == 1 && arguments[0] == "--help") return say(std::string(usage) + help);
    if (arguments.size() == 1 && arguments[0] == "--version")
        return say(std::string("tempoline ") + zg::versionNumber + "\n");
    const bool onlyNames = !arguments.empty() && arguments[0] == "--";
    const std::size_t names = onlyNames ? 1 : 0;
    const bool isRun = arguments.size() == names + 1 && !arguments[names].empty() &&
                       (onlyNames || !isOption(arguments[names]));
    if (!isRun) {
        std::fputs(usage, stderr);
        return ExitStatus::BadControl;
    }
    return zg::tempoline::run(arguments[names]);
}

ExitStatus told(const char* message, ExitStatus status) {
    std::fprintf(stderr, "tempoline: %s\n", message);
    return status;
}

/// Every result is reported in one line.
ExitStatus startGuarded(int argc, char** argv) {
    try {
        return start(zg::programWords(argc, argv));
    } catch (const Failure& failure) {
        return told(failure.what(), failure.status);
    } catch (const std::bad_alloc&) {
        return told("there is not enough memory", ExitStatus::Failed);
    } catch (const std::exception& error) {
        return told(error.what(), ExitStatus::Failed);
    }
}

}  // namespace

int main(int argc, char** argv) {
    zg::useUtf8Console();
    zg::applicationDirectory = zg::programDirectory();
    zg::tempoline::catchInterrupts();
    return static_cast<int>(startGuarded(argc, argv));
}
