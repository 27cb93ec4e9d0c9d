// A program that stands for another: the processor, a viewer, the office. It does what the lines of the file
// beside it say, which has its name and ".does":
//
//   write NAME TEXT    a file of this text and a line end
//   words NAME         a file of the arguments, each followed by "|"
//   place NAME         a file of the current directory
//   copy FROM TO       a file to another
//   roses [WITHOUT]    an FRQ file for each output that the control file, its first argument, names; none for
//                      those that have this part in their names
//   listing [TEXT]     the listing of that control file
//   after WORD NAME    a file in the directory that the argument after that word names
//   await NAME         waits until there is such a file, or for a minute
//   say TEXT, warn TEXT   to the standard output or the standard error
//   exit STATUS, crash
//
// A NAME is one word. Paths are as the program was given them or relative to the current directory.

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include "base/Console.h"
#include "base/Files.h"
#include "base/Lines.h"
#include "base/Paths.h"
#include "tests/support/System.h"

namespace {

using Words = std::vector<std::string>;

void write(const std::string& path, std::string_view bytes) {
    const zg::FileHandle out(zg::openStream(path, "wb"));
    if (!out || std::fwrite(bytes.data(), 1, bytes.size(), out.get()) != bytes.size()) std::exit(100);
}

/// The text up to the next blank, which is taken off together with it.
std::string firstWord(std::string& text) {
    const std::string word = text.substr(0, text.find(' '));
    text.erase(0, word.size() + 1);
    return word;
}

std::string joined(const Words& words) {
    std::string text;
    for (const std::string& word : words) text += word + "|";
    return text;
}

/// The value of a line "! KEY = value !" if it has that key.
std::string valueOf(std::string_view line, std::string_view key) {
    const std::string start = "! " + std::string(key) + " = ";
    const std::size_t at = line.find(start);
    if (at == std::string_view::npos) return {};
    const std::string_view rest = line.substr(at + start.size());
    return std::string(rest.substr(0, rest.find(" !")));
}

void writeRoses(const std::string& controlFile, const std::string& without) {
    for (zg::LineReader lines(controlFile); !lines.atEnd();) {
        const std::string line(lines.readLine());
        for (const char* key : {"TSFOUT", "ROSEPLT"}) {
            const std::string name = valueOf(line, key);
            if (name.empty() || (!without.empty() && name.find(without) != std::string::npos)) continue;
            write(name + ".FRQ", "");
        }
    }
}

std::string listingOf(const std::string& controlFile) {
    return controlFile.substr(0, controlFile.find(".inp")) + ".lst";
}

std::string wordAfter(const Words& words, const std::string& wanted) {
    for (std::size_t i = 0; i + 1 < words.size(); ++i)
        if (words[i] == wanted) return words[i + 1];
    return {};
}

/// Not for ever: a test that failed would leave this program.
void awaitFile(const std::string& name) {
    constexpr int mostTries = 3'000;
    constexpr std::chrono::milliseconds pause(20);
    for (int tries = 0; tries < mostTries && !zg::fileExists(name); ++tries)
        std::this_thread::sleep_for(pause);
}

void put(std::FILE* file, const std::string& text) { std::fprintf(file, "%s\n", text.c_str()); }

void act(const std::string& verb, std::string rest, const Words& words) {
    const std::string control = words.empty() ? "" : words.front();
    if (verb == "roses") return writeRoses(control, rest);
    if (verb == "listing") return write(listingOf(control), (rest.empty() ? "listing" : rest) + "\n");
    if (verb == "say") return put(stdout, rest);
    if (verb == "warn") return put(stderr, rest);
    if (verb == "crash") crashNow();
    const std::string name = firstWord(rest);
    if (verb == "exit") std::exit(std::atoi(name.c_str()));
    if (verb == "write") return write(name, rest + "\n");
    if (verb == "words") return write(name, joined(words));
    if (verb == "place") return write(name, zg::wholePath("."));
    if (verb == "copy") return write(rest, zg::readWholeFile(name));
    if (verb == "after") return write(zg::withSeparator(wordAfter(words, name)) + rest, "");
    if (verb == "await") return awaitFile(name);
    std::fprintf(stderr, "no such word: %s\n", verb.c_str());
    std::exit(101);
}

}  // namespace

int main(int argc, char** argv) {
    zg::useUtf8Console();
    const Words words = zg::programWords(argc, argv);
    std::string self = zg::FileNameOf(argv[0]);
    if (!self.ends_with(".exe")) self += ".exe";
    const std::string list = zg::programDirectory() + zg::pathSeparator + self + ".does";
    for (zg::LineReader lines(list); !lines.atEnd();) {
        std::string line(lines.readLine());
        const std::string verb = firstWord(line);
        act(verb, line, words);
        std::fflush(nullptr);
    }
}
