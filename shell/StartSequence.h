#pragma once

// The steps of the program's start, and of the main window's load, that need no window.

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace zg {

constexpr std::string_view cfgFileName = "Zephyrgraph.cfg";

/// Before the splash: finds and reads the configuration, derives seasons like the unseen dialog (which reads
/// the file again and rewrites it), and builds the class string. A first start without a file ends with the
/// factory values in memory and on disk.
void startSettings();

/// The zoom in percent in ZoomPercentText; 0 if that does not start with a number.
double startZoom();

/// The outer radius of RadiusText in units of five percent, "25%" is 5; nothing for an empty text.
std::optional<double> startRadius();

/// Empties the plot's three label lines.
void clearLabelLines();

/// Sets the factory minima in memory only: the file and WindClassString keep the user's own, and if the file
/// is written before a dialog has read it again, it gets the factory ones.
void resetWindClassMin();

/// Full path of a picture in the Bitmap directory of the settings or of the program, "" if there is none of
/// that name.
std::string backgroundPicturePath(std::string_view name);

struct BackgroundPicture {
    std::string path;
    std::int16_t style = 0;  ///< 0 to 3 for WP1 to WP4
};

/// The first existing picture among WP1.pgw to WP4.pgw.
std::optional<BackgroundPicture> findBackgroundPicture();

/// Removes every .pgw file of the Bitmap directory.
void removeBackgroundPictures();

/// Path for a picture of that style; creates the directory if necessary. Raises 75 or 76 on failure.
std::string newBackgroundPicturePath(std::int32_t style);

}  // namespace zg
