#pragma once

// The kinds of raw data that the program knows: how the control file names each, and how its files begin. The
// readers of headers and those of the processor keep parsers of their own, but both take these words from
// here.

#include <optional>
#include <span>
#include <string_view>

namespace zg {

enum class InputKind { Surf, Up, MonitorW, AermSfc, AermPfl, Tsf, M3d, Ventos, Csv };

/// What is known of a kind of file.
struct Format {
    InputKind kind;
    const char* mdata;           ///< MDATA of the control file
    std::string_view firstWord;  ///< of the first line; "" where its files begin with data or names
    std::span<const std::string_view> versions;  ///< that are read, as the second word of the first line

    bool hasVersion(std::string_view version) const;
};

/// Every kind, in no order that means anything.
std::span<const Format> formats();

const Format& formatOf(InputKind kind);

/// The word of MDATA, as "SURF".
const char* mdataOf(InputKind kind);

/// The kind of that MDATA, letters in any case; none for any other word.
std::optional<InputKind> kindOfMdata(std::string_view word);

/// Whether places are asked of a grid, and not stations.
bool isGridded(InputKind kind);

}  // namespace zg
