#include "export/Palettes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "base/RunTimeError.h"
#include "tests/support/Raises.h"
#include "tests/support/TempDirectory.h"

namespace zg {
namespace {

using Vector = std::array<double, 3>;
using Matrix = std::array<Vector, 3>;

Vector times(const Matrix& matrix, const Vector& v) {
    Vector product{};
    for (std::size_t i = 0; i < 3; ++i)
        for (std::size_t j = 0; j < 3; ++j) product[i] += matrix[i][j] * v[j];
    return product;
}

struct Sight {
    const char* name;
    Matrix ofLinear;
};

/// Of people who lack one kind of cone, on linear red, green and blue: G. M. Machado, M. M. Oliveira and
/// L. A. F. Fernandes, "A Physiologically-based Model for Simulation of Color Vision Deficiency", IEEE
/// Transactions on Visualization and Computer Graphics 15 (6), 2009, severity 1.0.
const Sight sights[] = {
    {"usual", {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}}},
    {"protanopia",
     {{{0.152286, 1.052583, -0.204868}, {0.114503, 0.786281, 0.099216}, {-0.003882, -0.048116, 1.051998}}}},
    {"deuteranopia",
     {{{0.367322, 0.860646, -0.227968}, {0.280085, 0.672501, 0.047413}, {-0.011820, 0.042940, 0.968881}}}},
    {"tritanopia",
     {{{1.255528, -0.076749, -0.178779}, {-0.078411, 0.930809, 0.147602}, {0.004733, 0.691367, 0.303900}}}},
};

/// Of sRGB, IEC 61966-2-1.
double linear(unsigned part) {
    const double value = part / 255.0;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

/// CIE 1976 L*a*b* under D65 of a colour as it is seen.
Vector labOf(Colour colour, const Sight& sight) {
    Vector seen =
        times(sight.ofLinear, {linear(redOf(colour)), linear(greenOf(colour)), linear(blueOf(colour))});
    for (double& part : seen) part = std::clamp(part, 0.0, 1.0);
    const Matrix toXyz = {{{0.4124564, 0.3575761, 0.1804375},
                           {0.2126729, 0.7151522, 0.0721750},
                           {0.0193339, 0.1191920, 0.9503041}}};
    const Vector xyz = times(toXyz, seen);
    const auto f = [](double t) { return t > 216.0 / 24389 ? std::cbrt(t) : (24389.0 / 27 * t + 16) / 116; };
    const double x = f(xyz[0] / 0.95047);
    const double y = f(xyz[1]);
    const double z = f(xyz[2] / 1.08883);
    return {116 * y - 16, 500 * (x - y), 200 * (y - z)};
}

double difference(Colour a, Colour b, const Sight& sight) {
    const Vector first = labOf(a, sight);
    const Vector second = labOf(b, sight);
    return std::hypot(first[0] - second[0], first[1] - second[1], first[2] - second[2]);
}

/// About five times what a careful eye can just tell apart side by side.
constexpr double leastDifference = 12;

TEST(Palettes, NeighbouringClassesStayApartForEveryEye) {
    for (const NamedPalette& palette : palettes())
        for (const Sight& sight : sights)
            for (std::size_t i = 0; i + 1 < palette.colours.size(); ++i)
                EXPECT_GE(difference(palette.colours[i], palette.colours[i + 1], sight), leastDifference)
                    << palette.name << ", classes " << i + 1 << " and " << i + 2 << ", " << sight.name;
}

TEST(Palettes, OfThoseForEveryEyeAllClassesStayApart) {
    for (const char* name : {"viridis", "cividis", "okabe-ito", "greys"}) {
        const Palette palette = paletteNamed(name).value();
        for (const Sight& sight : sights)
            for (std::size_t i = 0; i < palette.size(); ++i)
                for (std::size_t j = 0; j < i; ++j)
                    EXPECT_GE(difference(palette[i], palette[j], sight), leastDifference)
                        << name << ", classes " << j + 1 << " and " << i + 1 << ", " << sight.name;
    }
    // The measure can fail: the factory's green and yellow come close to each other for some.
    const Palette factory = paletteNamed("factory").value();
    EXPECT_LT(difference(factory[1], factory[3], sights[1]), leastDifference);
}

TEST(Palettes, TheFactoryOnesAreThoseOfTheTables) {
    const std::array<float, 6> tables = factoryWindClassColor();
    const Palette factory = paletteNamed("factory").value();
    for (std::size_t i = 0; i < 6; ++i) EXPECT_EQ(factory[i], paintedColour(tables[i]));
    EXPECT_FALSE(paletteNamed("Factory").has_value());
}

TEST(Palettes, AFileHasAColourALine) {
    const TempDirectory directory;
    const std::string path = directory.write(
        "p.txt", "; mine\r\n#FF0000\r\n\r\n 0, 255,0 ; green\n#0000ff\n#010203\n4,5,6\n255,255,255\nmore\n");
    EXPECT_EQ(readPalette(path),
              (Palette{rgb(255, 0, 0), rgb(0, 255, 0), rgb(0, 0, 255), rgb(1, 2, 3), rgb(4, 5, 6), white}));
}

TEST(Palettes, WhatIsNoColourIsToldWithItsLine) {
    const TempDirectory directory;
    for (const char* line :
         {"#12345", "#12345g", "red", "1,2", "1,2,3,4", "256,0,0", "-1,0,0", "1,,3", "99999,0,0"}) {
        const std::string path = directory.write("p.txt", std::string("#000000\n") + line + "\n");
        try {
            readPalette(path);
            ADD_FAILURE() << line;
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.number, 13) << line;
            EXPECT_EQ(error.where, "2: colour") << line;
        }
    }
    EXPECT_RAISES(62, "Input past end of file", readPalette(directory.write("p.txt", "#000000\n")));
    EXPECT_RAISES(53, "File not found", readPalette(directory.file("none.txt")));
}

}  // namespace
}  // namespace zg
