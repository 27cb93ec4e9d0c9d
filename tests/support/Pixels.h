#pragma once

#include <gtest/gtest.h>

#include <QImage>

#include "graph/render/Canvas.h"

// Checks of pixels. One that fails leaves the picture, and what was expected of it, in the folder pictures/
// of the build and names both.

/// The colour at a pixel. What was expected of a picture that lacks it is the picture with a square of the
/// wanted colour round each such pixel.
::testing::AssertionResult pixelIs(const QImage& picture, int x, int y, zg::Colour wanted);

/// Every pixel is the same, whatever the formats.
::testing::AssertionResult samePicture(const QImage& picture, const QImage& wanted);

/// For checks that count: what holds, and otherwise the picture is left, with the words of what was expected
/// of it in the message.
::testing::AssertionResult showsIn(const QImage& picture, bool holds, const char* wanted);
