#include "processing/BatchFile.h"

#include <gtest/gtest.h>

#include "base/RunTimeError.h"
#include "tests/support/OddNames.h"

namespace zg {
namespace {

using Texts = std::vector<std::string>;

/// Where a name occurs in a batch file, with the separator that identifies its shell.
struct Place {
    const char* what;
    std::string (*put)(const std::string& name, char separator);
};

std::string joined(const Texts& lines) {
    std::string text;
    for (const std::string& line : lines) text += line + "\n";
    return text;
}

const Place places[] = {
    {"FileToView", [](const std::string& name, char separator) { return viewerLine(name, separator); }},
    {"OutputDirectory",
     [](const std::string& name, char separator) { return joined(batchLines(name, "B", "P", separator)); }},
    {"BaseOfTheRun",
     [](const std::string& name, char separator) { return joined(batchLines("D", name, "P", separator)); }},
    {"ProgramDirectory",
     [](const std::string& name, char separator) { return joined(batchLines("D", "B", name, separator)); }},
};

class BatchNames : public ::testing::TestWithParam<Place> {
 protected:
    std::string refusal(const std::string& name, char separator) {
        try {
            GetParam().put(name, separator);
        } catch (const RunTimeError& error) {
            return std::to_string(error.number) + " " + error.description;
        }
        return "no error";
    }
};

TEST_P(BatchNames, WithALineEndAreRefusedOnEveryPlatform) {
    for (const char separator : {'/', '\\'}) {
        EXPECT_EQ(refusal("roses\n\"touch\" PWNED.frq", separator),
                  "52 Bad file name or number: \"roses<LF>\"touch\" PWNED.frq\" has a line end in it");
        EXPECT_EQ(refusal("a\rcalc", separator),
                  "52 Bad file name or number: \"a<CR>calc\" has a line end in it");
        EXPECT_EQ(refusal("\r\n", separator),
                  "52 Bad file name or number: \"<CR><LF>\" has a line end in it");
        EXPECT_EQ(refusal(std::string("a\0b", 3), separator),
                  "52 Bad file name or number: \"a<00>b\" has a control character in it");
    }
}

TEST_P(BatchNames, OnWhichTheShellOfWindowsActsAreRefusedThere) {
    for (const char character : std::string("%&^!\"|<>")) {
        const std::string name = std::string("50") + character + "calc";
        EXPECT_EQ(refusal(name, '\\'),
                  "52 Bad file name or number: \"" + name + "\" has a " + character + " in it");
        EXPECT_EQ(refusal(name, '/'), "no error") << "the launcher takes them as they are";
    }
    EXPECT_EQ(refusal("a\x1A"
                      "b",
                      '\\'),
              "52 Bad file name or number: \"a<1A>b\" has a control character in it")
        << "at which the shell takes the file to end";
    EXPECT_EQ(refusal("a\tb", '\\'), "52 Bad file name or number: \"a<09>b\" has a control character in it");
}

TEST_P(BatchNames, AreOtherwiseTakenAsTheyAre) {
    std::vector<std::string> names = oddNames();
    names.insert(names.end(), {"a b", " before", "after "});
    for (const std::string& name : names) {
        EXPECT_EQ(refusal(name, '/'), "no error") << name;
        EXPECT_NE(GetParam().put(name, '/').find(name), std::string::npos) << name;
        const bool acted = name.find_first_of("%&^!\"|<>\t\x7F") != std::string::npos;
        EXPECT_EQ(refusal(name, '\\') == "no error", !acted) << name;
    }
}

INSTANTIATE_TEST_SUITE_P(Places, BatchNames, ::testing::ValuesIn(places),
                         [](const auto& place) { return place.param.what; });

TEST(BatchFile, OfARunHasFiveLines) {
    EXPECT_EQ(batchLines("D:\\my data\\", "B", "C:\\prog dir", '\\'),
              (Texts{"D:", "cd \"D:\\my data\\\"", "\"C:\\prog dir\\tempoline.exe\" B_tempoline.inp",
                     "copy B_tempoline.lst finished.txt", "pause"}));
    EXPECT_EQ(batchLines("/data/", "B", "/opt", '/')[0], "/data/:") << "a path without a drive";
}

TEST(BatchFile, OfARunIsReadBackToItsNames) {
    for (const char separator : {'/', '\\'})
        for (const char* name : {"B", "my B", "-dash", "$(x);'", "a'b", "tempoline.exe", ""}) {
            const RunBatch run{std::string("D:") + separator + "my data" + separator, name, "C:prog dir"};
            EXPECT_EQ(readRunBatch(batchLines(run.outputDirectory, run.base, run.programDirectory, separator),
                                   separator),
                      run)
                << name;
        }
    for (const std::string& name : oddNames()) {
        const RunBatch run{"/" + name + "/", name, "/x" + name};
        EXPECT_EQ(readRunBatch(batchLines(run.outputDirectory, run.base, run.programDirectory, '/'), '/'),
                  run)
            << name;
        EXPECT_EQ(viewedFile(viewerLine(name, '/'), '/'), name);
    }
    const RunBatch quoted{"/a \"dir\"/", "a\"b", "/p\"q"};
    EXPECT_EQ(
        readRunBatch(batchLines(quoted.outputDirectory, quoted.base, quoted.programDirectory, '/'), '/'),
        quoted);
}

TEST(BatchFile, OfOtherLinesIsNoRun) {
    const Texts good = batchLines("/out/", "B", "/opt", '/');
    ASSERT_TRUE(readRunBatch(good, '/'));
    const auto changed = [&](std::size_t line, const char* text) {
        Texts lines = good;
        lines[line] = text;
        return readRunBatch(lines, '/').has_value();
    };
    EXPECT_FALSE(changed(0, "touch PWNED:"));
    EXPECT_FALSE(changed(1, "cd /out/"));
    EXPECT_FALSE(changed(1, "cd \""));
    EXPECT_FALSE(changed(1, "cd \"/elsewhere/\"")) << "the drive line is of another directory";
    EXPECT_FALSE(changed(2, "\"/bin/rm\" -r /"));
    EXPECT_FALSE(changed(2, "\"/opt/tempoline.exe\" B.inp"));
    EXPECT_FALSE(changed(2, "\"/opt/tempoline.exe\" _tempoline.in"));
    EXPECT_FALSE(changed(2, "touch PWNED"));
    EXPECT_FALSE(changed(2, "touch \"/opt/tempoline.exe\" B_tempoline.inp"));
    EXPECT_FALSE(changed(3, "copy C_tempoline.lst finished.txt"));
    EXPECT_FALSE(changed(3, "copy B_tempoline.lst /etc/passwd"));
    EXPECT_FALSE(changed(4, "touch PWNED"));
    EXPECT_FALSE(changed(4, ""));
    Texts more = good;
    more.emplace_back("touch PWNED");
    EXPECT_FALSE(readRunBatch(more, '/'));
    EXPECT_FALSE(readRunBatch({good.begin(), good.end() - 1}, '/'));
    EXPECT_FALSE(readRunBatch({}, '/'));
    EXPECT_FALSE(readRunBatch(batchLines("D:/out/", "50%", "/opt", '/'), '\\'));
}

TEST(BatchFile, ToViewNamesItsFile) {
    for (const char* path : {"/a b/c.frq", "/a\"b.frq", "-dash.frq", "\"", "notepad \"x\""}) {
        EXPECT_EQ(viewerLine(path, '/'), std::string("notepad \"") + path + "\"");
        EXPECT_EQ(viewedFile(viewerLine(path, '/'), '/'), path);
    }
    for (const char* line : {"pause", "", "notepad", "notepad \"", "notepad \"\"", "notepad x", "notepad \"x",
                             " notepad \"x\"", "\"touch\" \"x\"", "NOTEPAD \"x\""})
        EXPECT_EQ(viewedFile(line, '/'), "") << line;
    EXPECT_EQ(viewedFile("notepad \"50%\"", '\\'), "");
}

}  // namespace
}  // namespace zg
