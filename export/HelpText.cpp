#include "export/HelpText.h"

#include <CLI/CLI.hpp>

namespace zg {

namespace {

constexpr std::size_t columnOfTexts = 24;
constexpr std::size_t screenWidth = 80;

std::string namesInLines(const std::vector<const CLI::Option*>& options) {
    std::string lines;
    std::string line = " ";
    for (const CLI::Option* option : options) {
        std::string word = " " + option->get_name(false, false);
        if (const std::size_t value = word.find('{'); value != std::string::npos) word.erase(value);
        if (line.size() + word.size() > screenWidth) {
            lines += line + '\n';
            line = " ";
        }
        line += word;
    }
    return lines + line + '\n';
}

}  // namespace

HelpText::HelpText() { column_width(columnOfTexts); }

std::string HelpText::make_help(const CLI::App* app, std::string name, CLI::AppFormatMode mode) const {
    whole_ = mode == CLI::AppFormatMode::All;
    return CLI::Formatter::make_help(app, std::move(name), mode);
}

std::string HelpText::make_group(std::string group, bool is_positional,
                                 std::vector<const CLI::Option*> opts) const {
    if (whole_ || is_positional || group == "Options")
        return CLI::Formatter::make_group(std::move(group), is_positional, std::move(opts));
    return group + ":\n" + namesInLines(opts);
}

}  // namespace zg
