#pragma once

// Mean shifts of datums to WGS 84, as published by the national imagery and mapping agencies. Plain data.

#include <span>

namespace zg::tempoline {

enum class Ellipsoid {
    Airy1830,
    AustralianNational,
    Bessel1841,
    BesselNamibia,
    Clarke1866,
    Clarke1880,
    Everest1830,
    Everest1948,
    Everest1956,
    EverestPakistan,
    EverestSabahSarawak,
    Grs80,
    Helmert1906,
    Hough1960,
    Indonesian1974,
    International1924,
    Krassovsky1940,
    ModifiedAiry,
    ModifiedFischer1960,
    SouthAmerican1969,
    Wgs84,
};

struct DatumShift {
    const char* code;
    Ellipsoid ellipsoid;
    int x;  ///< metres added to the geocentric coordinates; so are y and z
    int y;
    int z;
};

std::span<const DatumShift> datumShifts();

}  // namespace zg::tempoline
