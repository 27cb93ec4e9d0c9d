#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace zg {

/// One extraction site of the wizard: its fields exactly as they are typed.
struct Location {
    std::string x;    ///< km, or degrees where all locations take those on show
    std::string y;    ///< as x
    std::string lat;  ///< degrees without their letter
    std::string lon;
    std::string ns = "N";
    std::string we = "W";
    std::string height;   ///< m
    std::string frqName;  ///< of its result, without extension
    std::string id;       ///< of a station, as the control file names it
    std::string i;        ///< of a grid cell, with fractions
    std::string j;
};

/// A field of the form and its place in a location.
struct LocationField {
    const char* control;
    std::string Location::*value;
};

/// The fields that a location takes from the form and gives back to it.
const std::vector<LocationField>& locationFields(bool withCells);

/// The locations of a run, from 1 to a fixed number.
class Locations {
 public:
    explicit Locations(std::size_t most) : rows_(most + 1) {}

    /// Raises 9 for a number below 0 or above the last one.
    Location& operator[](std::int32_t number);

 private:
    std::vector<Location> rows_;  ///< the first is none of the user's
};

}  // namespace zg
