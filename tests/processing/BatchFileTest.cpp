#include "processing/BatchFile.h"

#include <gtest/gtest.h>

#include "base/Lines.h"
#include "base/RunTimeError.h"
#include "tests/support/OddNames.h"
#include "tests/support/Raises.h"
#include "tests/support/TempDirectory.h"

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
     [](const std::string& name, char separator) {
         return joined(batchLines({name, "B", "P"}, separator));
     }},
    {"BaseOfTheRun",
     [](const std::string& name, char separator) {
         return joined(batchLines({"D", name, "P"}, separator));
     }},
    {"ProgramDirectory",
     [](const std::string& name, char separator) {
         return joined(batchLines({"D", "B", name}, separator));
     }},
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
    EXPECT_EQ(batchLines({"D:\\my data\\", "B", "C:\\prog dir"}, '\\'),
              (Texts{"D:", "cd \"D:\\my data\\\"", "\"C:\\prog dir\\tempoline.exe\" B_tempoline.inp",
                     "copy B_tempoline.lst finished.txt", "pause"}));
    EXPECT_EQ(batchLines({"/data/", "B", "/opt"}, '/')[0], "/data/:") << "a path without a drive";
}

TEST(BatchFile, ToViewNamesItsFile) {
    for (const char* path : {"/a b/c.frq", "/a\"b.frq", "-dash.frq", "\"", "notepad \"x\""})
        EXPECT_EQ(viewerLine(path, '/'), std::string("notepad \"") + path + "\"");
}

class BatchFileOnDisk : public ::testing::Test {
 protected:
    bool isAsWritten(const Texts& found, const Texts& lines) {
        LineWriter file(directory_.file("run.bat"));
        for (const std::string& line : found) file.writeLine(line);
        file.close();
        return hasOnlyLines(directory_.file("run.bat"), lines);
    }

    TempDirectory directory_;
};

TEST_F(BatchFileOnDisk, IsKnownByItsLines) {
    for (const char* name : {"B", "my B", "-dash", "$(x);'", "a'b", "tempoline.exe", ""}) {
        const Texts lines = batchLines({"D:/my data/", name, "C:prog dir"}, '/');
        EXPECT_TRUE(isAsWritten(lines, lines)) << name;
    }
    for (const std::string& name : oddNames()) {
        const Texts lines = batchLines({"/" + name + "/", name, "/x" + name}, '/');
        EXPECT_TRUE(isAsWritten(lines, lines)) << name;
        EXPECT_TRUE(isAsWritten({viewerLine(name, '/')}, {viewerLine(name, '/')})) << name;
    }
}

TEST_F(BatchFileOnDisk, WithAnyOtherLineIsNotTheOneThatWasWritten) {
    const Texts good = batchLines({"/out/", "B", "/opt"}, '/');
    const auto changed = [&](std::size_t line, const char* text) {
        Texts lines = good;
        lines[line] = text;
        return isAsWritten(lines, good);
    };
    EXPECT_FALSE(changed(0, "touch PWNED:"));
    EXPECT_FALSE(changed(1, "cd /out/"));
    EXPECT_FALSE(changed(1, "cd \"/elsewhere/\""));
    EXPECT_FALSE(changed(2, "\"/bin/rm\" -r /"));
    EXPECT_FALSE(changed(2, "touch \"/opt/tempoline.exe\" B_tempoline.inp"));
    EXPECT_FALSE(changed(3, "copy C_tempoline.lst finished.txt"));
    EXPECT_FALSE(changed(3, "copy B_tempoline.lst /etc/passwd"));
    EXPECT_FALSE(changed(4, "touch PWNED"));
    EXPECT_FALSE(changed(4, "")) << "a line cut short";
    Texts more = good;
    more.emplace_back("touch PWNED");
    EXPECT_FALSE(isAsWritten(more, good));
    EXPECT_FALSE(isAsWritten({good.begin(), good.end() - 1}, good));
    EXPECT_FALSE(isAsWritten({}, good));
}

TEST_F(BatchFileOnDisk, ThatIsGoneIsAnError) {
    EXPECT_RAISES(53, "File not found", (hasOnlyLines(directory_.file("none.bat"), {"x"}), 0));
}

}  // namespace
}  // namespace zg
