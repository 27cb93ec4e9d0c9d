#pragma once

// The kinds of raw data that the program knows: the name of each in the control file, and how its files
// begin. The header readers and those of the processor have their own parsers, but both take these words from
// here.

#include <optional>
#include <span>
#include <string_view>

namespace zg {

enum class InputKind { Surf, Up, MonitorW, AermSfc, AermPfl, Tsf, M3d, Ventos, Csv };

/// What is known about a kind of file.
struct Format {
    InputKind kind;
    const char* mdata;           ///< MDATA of the control file
    std::string_view firstWord;  ///< in the first line; "" if its files begin with data or names
    std::span<const std::string_view> versions;  ///< supported, as the second word of the first line

    bool hasVersion(std::string_view version) const;
};

/// Every kind, in no particular order.
std::span<const Format> formats();

const Format& formatOf(InputKind kind);

/// The word for MDATA, such as "SURF".
const char* mdataOf(InputKind kind);

/// The kind of that MDATA, letters in any case; nothing for any other word.
std::optional<InputKind> kindOfMdata(std::string_view word);

/// Whether outputs are places in a grid rather than stations.
bool isGridded(InputKind kind);

}  // namespace zg
