#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/Lines.h"
#include "base/Paths.h"
#include "graph/frq/ModPolarGraph.h"
#include "settings/Settings.h"
#include "tests/support/TempDirectory.h"

/// Fresh settings and tables, with an empty directory as the program's own.
class SettingsFixture : public testing::Test {
 protected:
    SettingsFixture() {
        reset();
        zg::applicationDirectory = directory_.path();
        zg::settings.CfgFilePath = cfgPath();
    }
    ~SettingsFixture() override {
        reset();
        zg::applicationDirectory.clear();
    }

    static void reset() {
        zg::settings = {};
        zg::modPolarGraph = {};
    }

    std::string cfgPath() const { return zg::inApplicationDirectory("Zephyrgraph.cfg"); }
    std::string cfgBytes() const { return directory_.read("Zephyrgraph.cfg"); }
    void writeCfg(const std::string& bytes) const { directory_.write("Zephyrgraph.cfg", bytes); }

    static std::string dataFile(const std::string& name) {
        return zg::readWholeFile(ZG_SOURCE_DIR "/tests/settings/data/" + name);
    }
    static std::string defaultBytes() { return dataFile("default.cfg"); }

    /// The lines of a file's bytes, without line ends.
    static std::vector<std::string> linesOf(const std::string& bytes) {
        std::vector<std::string> lines;
        zg::LineReader reader = zg::LineReader::ofText(bytes);
        while (!reader.atEnd()) lines.emplace_back(reader.readLine());
        return lines;
    }
    static std::string bytesOf(const std::vector<std::string>& lines) {
        std::string bytes;
        for (const std::string& line : lines) bytes += line + "\r\n";
        return bytes;
    }

    /// The default file with one line, counted from 1, replaced.
    static std::string defaultWith(std::size_t line, const std::string& text) {
        std::vector<std::string> lines = linesOf(defaultBytes());
        lines.at(line - 1) = text;
        return bytesOf(lines);
    }

    TempDirectory directory_;
};
