#pragma once

// The steps of the program's start, and of the main window's load, that need no window.

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace zg {

constexpr std::string_view cfgFileName = "Zephyrgraph.cfg";

/// Before the splash is seen: finds and reads the configuration, derives seasons as the unseen dialog does
/// (which reads the file again and rewrites it), and builds the class string. A first start without a file
/// ends with the factory values in memory and on disk.
void startSettings();

/// The zoom in percent that ZoomPercentText holds; 0 where it starts with no number.
double startZoom();

/// The outer radius of RadiusText in units of five percent, "25%" is 5; nothing for an empty text.
std::optional<double> startRadius();

/// Empties the plot's three label lines.
void clearLabelLines();

/// Puts the factory minima in memory alone: the file and WindClassString keep the user's own, and what writes
/// the file before a dialog has read it again stores the factory ones.
void resetWindClassMin();

/// Full path of a picture in the program's Bitmap directory, "" where there is none of that name.
std::string backgroundPicturePath(std::string_view name);

struct BackgroundPicture {
    std::string path;
    std::int16_t style = 0;  ///< 0 to 3 for WP1 to WP4
};

/// The first of the pictures WP1.pgw to WP4.pgw that is there.
std::optional<BackgroundPicture> findBackgroundPicture();

/// Removes every .pgw file of the Bitmap directory.
void removeBackgroundPictures();

/// Where a picture of that style is kept, the directory being made if it is missing. Raises 75 or 76 where it
/// cannot be.
std::string newBackgroundPicturePath(std::int32_t style);

}  // namespace zg
