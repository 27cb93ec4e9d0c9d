#pragma once

#include <CLI/Formatter.hpp>
#include <string>
#include <vector>

namespace zg {

/// The text of --help, short enough for a screen: the options that everyone needs with a line each, those of
/// the other groups by their names.
/// --help-all has a line for each of them.
class HelpText : public CLI::Formatter {
 public:
    HelpText();

    std::string make_help(const CLI::App* app, std::string name, CLI::AppFormatMode mode) const override;
    std::string make_group(std::string group, bool is_positional,
                           std::vector<const CLI::Option*> opts) const override;

 private:
    mutable bool whole_ = false;
};

}  // namespace zg
