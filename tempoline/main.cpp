// The processor: the control file of a run, or the counts of partial runs to be joined.

#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include "tempoline/Interrupt.h"
#include "tempoline/Merge.h"
#include "tempoline/Run.h"

namespace {

using zg::tempoline::ExitStatus;
using zg::tempoline::Failure;

constexpr const char* usage =
    "usage: tempoline.exe CONTROLFILE\n"
    "       tempoline.exe --merge [--out NAME] A.tab B.tab ...\n";

ExitStatus merge(const std::vector<std::string>& arguments) {
    std::string name = "merged";
    std::vector<std::string> files;
    for (std::size_t i = 1; i < arguments.size(); ++i) {
        if (arguments[i] == "--out" && i + 1 < arguments.size())
            name = arguments[++i];
        else
            files.push_back(arguments[i]);
    }
    if (files.empty() || name.empty() || name.find('/') != std::string::npos) {
        std::fputs(usage, stderr);
        return ExitStatus::BadControl;
    }
    try {
        zg::tempoline::mergeTabs(files, name);
    } catch (const Failure& failure) {
        std::fprintf(stderr, "tempoline: %s\n", failure.what());
        return failure.status;
    }
    return ExitStatus::Completed;
}

}  // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    zg::tempoline::catchInterrupts();
    if (!arguments.empty() && arguments[0] == "--merge") return static_cast<int>(merge(arguments));
    if (arguments.size() != 1 || arguments[0].empty() || arguments[0][0] == '-') {
        std::fputs(usage, stderr);
        return static_cast<int>(ExitStatus::BadControl);
    }
    return static_cast<int>(zg::tempoline::run(arguments[0]));
}
