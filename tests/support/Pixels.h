#pragma once

#include <gtest/gtest.h>

#include <QImage>

#include "graph/render/Canvas.h"

// Checks of pixels. A failing check saves the picture and the expected one in the folder pictures/ of the
// build and reports both names.

/// The colour at a pixel. The expected picture of a failure is the actual one with a square of the wanted
/// colour around each such pixel.
::testing::AssertionResult pixelIs(const QImage& picture, int x, int y, zg::Colour wanted);

/// Whether all pixels are equal, whatever the formats.
::testing::AssertionResult samePicture(const QImage& picture, const QImage& wanted);

/// For checks that count: passes if the condition is true; otherwise saves the picture, and the message
/// includes the description.
::testing::AssertionResult showsIn(const QImage& picture, bool holds, const char* wanted);
