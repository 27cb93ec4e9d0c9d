// Each fuzz target on its corpus and on changed inputs, the same in each run: a defect that was found once
// stays mended. The fuzzer itself (tools/fuzz.sh) searches further.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <vector>

#include "tests/fuzz/Fuzz.h"

namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr int changedInputs = 500;
constexpr std::size_t longestInput = 4096;  // of a changed one

Bytes contentOf(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return Bytes(std::istreambuf_iterator<char>(file), {});
}

/// In the order of their names.
std::vector<Bytes> corpusOf(const std::string& target) {
    std::vector<std::filesystem::path> paths;
    for (const auto& entry :
         std::filesystem::directory_iterator(ZG_SOURCE_DIR "/tests/fuzz/corpus/" + target))
        paths.push_back(entry.path());
    std::sort(paths.begin(), paths.end());
    std::vector<Bytes> corpus;
    for (const std::filesystem::path& path : paths) corpus.push_back(contentOf(path));
    return corpus;
}

/// Makes inputs from others: bytes replaced, cut out, doubled, taken from another input, numbers beyond any
/// range.
class Changer {
 public:
    Bytes changed(const std::vector<Bytes>& corpus) {
        Bytes bytes = corpus[below(corpus.size())];
        for (std::size_t changes = 1 + below(4); changes > 0; --changes) change(bytes, corpus);
        if (bytes.size() > longestInput) bytes.resize(longestInput);
        return bytes;
    }

 private:
    std::size_t below(std::size_t limit) { return limit == 0 ? 0 : random_() % limit; }

    void change(Bytes& bytes, const std::vector<Bytes>& corpus) {
        const std::size_t at = below(bytes.size() + 1);
        const std::size_t length = std::min(bytes.size() - at, 1 + below(below(2) == 0 ? 8 : 200));
        const auto begin = bytes.begin() + static_cast<std::ptrdiff_t>(at);
        const auto end = begin + static_cast<std::ptrdiff_t>(length);
        switch (below(6)) {
            case 0:
                if (length > 0) bytes[at] = static_cast<std::uint8_t>(random_());
                break;
            case 1:
                if (length > 0) bytes[at] = static_cast<std::uint8_t>(signs_[below(signs_.size())]);
                break;
            case 2:
                bytes.erase(begin, end);
                break;
            case 3:
                insert(bytes, at, Bytes(begin, end));
                break;
            case 4:
                insert(bytes, at, partOf(corpus[below(corpus.size())]));
                break;
            default: {
                const std::string& word = words_[below(words_.size())];
                bytes.erase(begin, end);
                insert(bytes, at, Bytes(word.begin(), word.end()));
            }
        }
    }

    Bytes partOf(const Bytes& bytes) {
        const std::size_t at = below(bytes.size());
        const std::size_t length = std::min(bytes.size() - at, 1 + below(200));
        const auto begin = bytes.begin() + static_cast<std::ptrdiff_t>(at);
        return Bytes(begin, begin + static_cast<std::ptrdiff_t>(length));
    }

    static void insert(Bytes& bytes, std::size_t at, const Bytes& part) {
        bytes.insert(bytes.begin() + static_cast<std::ptrdiff_t>(at), part.begin(), part.end());
    }

    std::mt19937 random_{1};  // NOLINT(cert-msc32-c,cert-msc51-cpp): the same inputs in each run
    const std::string signs_ = "0123456789.,;:-+/\\'\"!@#%&*()=<> \t\n\r";
    const std::vector<std::string> words_ = {
        "-1", "0",  "99999999999",         "1e999", "nan",  "-0.0",        "24", "2100", "1e-320",
        "\n", "\"", "9223372036854775807", "360",   "0x7f", "\xEF\xBB\xBF"};
};

/// A defect ends the program: the file then has the input that did it.
class LastInput {
 public:
    explicit LastInput(std::string path) : path_(std::move(path)), file_(creat(path_.c_str(), 0600)) {}
    ~LastInput() {
        close(file_);
        unlink(path_.c_str());
    }
    LastInput(const LastInput&) = delete;
    LastInput& operator=(const LastInput&) = delete;

    void write(const Bytes& bytes) const {
        ASSERT_EQ(ftruncate(file_, 0), 0);
        ASSERT_EQ(pwrite(file_, bytes.data(), bytes.size(), 0), static_cast<ssize_t>(bytes.size()));
    }

 private:
    std::string path_;
    int file_;
};

class FuzzCorpus : public testing::TestWithParam<std::string> {};

TEST_P(FuzzCorpus, NeitherItNorItsChangesShowADefect) {
    const FuzzFunction target = fuzzTargets().at(GetParam());
    const std::vector<Bytes> corpus = corpusOf(GetParam());
    ASSERT_FALSE(corpus.empty());
    const std::string path = testing::TempDir() + "zg_fuzz_" + GetParam() + "_input";
    std::printf("If the program ends here, the input is in %s\n", path.c_str());
    std::fflush(stdout);
    const LastInput last(path);
    const auto run = [&](const Bytes& bytes) {
        last.write(bytes);
        EXPECT_EQ(target(bytes.data(), bytes.size()), 0);
    };
    for (const Bytes& bytes : corpus) run(bytes);
    Changer changer;
    for (int i = 0; i < changedInputs; ++i) run(changer.changed(corpus));
}

std::vector<std::string> targetNames() {
    std::vector<std::string> names;
    for (const auto& [name, function] : fuzzTargets()) names.push_back(name);
    return names;
}

INSTANTIATE_TEST_SUITE_P(Targets, FuzzCorpus, testing::ValuesIn(targetNames()),
                         [](const auto& target) { return target.param; });

}  // namespace
