#include "graph/render/PrefixCode.h"

#include <algorithm>
#include <cstddef>

namespace zg {

namespace {

struct Leaf {
    std::uint32_t count = 0;
    std::size_t symbol = 0;
};

std::vector<Leaf> leavesOf(const std::vector<std::uint32_t>& counts) {
    std::vector<Leaf> leaves;
    for (std::size_t symbol = 0; symbol < counts.size(); ++symbol)
        if (counts[symbol] > 0) leaves.push_back({counts[symbol], symbol});
    std::sort(leaves.begin(), leaves.end(), [](const Leaf& a, const Leaf& b) {
        return a.count != b.count ? a.count < b.count : a.symbol < b.symbol;
    });
    return leaves;
}

/// How far each leaf is from the root if the two rarest nodes are joined again and again. Joined nodes come
/// in the order of their counts, too, so the rarest is the next leaf or the next joined one.
std::vector<unsigned> depthsOf(const std::vector<Leaf>& leaves) {
    const std::size_t nodes = 2 * leaves.size() - 1;
    std::vector<std::uint64_t> counts(nodes);
    std::vector<std::size_t> parents(nodes);
    for (std::size_t i = 0; i < leaves.size(); ++i) counts[i] = leaves[i].count;
    std::size_t leaf = 0;
    std::size_t joined = leaves.size();
    for (std::size_t node = leaves.size(); node < nodes; ++node)
        for (int child = 0; child < 2; ++child) {
            const bool isLeaf = leaf < leaves.size() && (joined == node || counts[leaf] <= counts[joined]);
            const std::size_t rarest = isLeaf ? leaf++ : joined++;
            counts[node] += counts[rarest];
            parents[rarest] = node;
        }
    std::vector<unsigned> depths(nodes);
    for (std::size_t node = nodes - 1; node-- > 0;) depths[node] = depths[parents[node]] + 1;
    depths.resize(leaves.size());
    return depths;
}

/// So many words of each length, none above the longest: a longer one gets a place by making a short one a
/// bit longer.
std::vector<std::uint32_t> wordsOfLengths(const std::vector<unsigned>& depths, unsigned longest) {
    std::vector<std::uint32_t> words(longest + 1);
    for (const unsigned depth : depths) ++words[std::min(depth, longest)];
    std::uint64_t used = 0;  // of all places, a word has 2 to the power of (longest - its length)
    for (unsigned length = 1; length <= longest; ++length)
        used += std::uint64_t{words[length]} << (longest - length);
    for (; used > std::uint64_t{1} << longest; --used) {
        unsigned length = longest - 1;
        while (words[length] == 0) --length;
        --words[length];
        words[length + 1] += 2;
        --words[longest];
    }
    return words;
}

std::uint16_t reversed(unsigned word, unsigned length) {
    unsigned result = 0;
    for (unsigned i = 0; i < length; ++i) result |= (word >> i & 1U) << (length - 1 - i);
    return static_cast<std::uint16_t>(result);
}

}  // namespace

PrefixCode prefixCode(const std::vector<std::uint32_t>& counts, unsigned longest) {
    PrefixCode code{std::vector<std::uint8_t>(counts.size()), std::vector<std::uint16_t>(counts.size())};
    const std::vector<Leaf> leaves = leavesOf(counts);
    const std::vector<std::uint32_t> words = wordsOfLengths(depthsOf(leaves), longest);
    std::size_t leaf = 0;
    for (unsigned length = longest; length > 0; --length)
        for (std::uint32_t i = 0; i < words[length]; ++i)
            code.lengths[leaves[leaf++].symbol] = static_cast<std::uint8_t>(length);
    unsigned next = 0;
    for (unsigned length = 1; length <= longest; ++length, next <<= 1U)
        for (std::size_t symbol = 0; symbol < counts.size(); ++symbol)
            if (code.lengths[symbol] == length) code.words[symbol] = reversed(next++, length);
    return code;
}

}  // namespace zg
